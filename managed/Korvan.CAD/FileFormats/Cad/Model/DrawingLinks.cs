using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What follows from the parts of a drawing once all are read.</summary>
internal static class DrawingLinks
{
    internal static void Complete(CadDrawing drawing)
    {
        if (!drawing.BlockEntities.Contains(drawing.ModelSpace.Name))
        {
            drawing.BlockEntities.Items.Insert(0, drawing.ModelSpace);
        }

        if (!drawing.BlockEntities.Contains(drawing.PaperSpace.Name))
        {
            drawing.BlockEntities.Items.Insert(1, drawing.PaperSpace);
        }

        foreach (CadLayout layout in LayoutsInOrder(drawing))
        {
            drawing.Layouts.Add(layout);
        }

        AddMissingLayouts(drawing);
        ViewportXdata.Apply(drawing, drawing.PaperSpace);
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (BlockNames.IsAnyPaperSpace(block.Name) && !ReferenceEquals(block, drawing.PaperSpace))
            {
                ViewportXdata.Apply(drawing, block);
            }
        }
    }

    /// <summary>Finds the block that holds the entities of a layout.</summary>
    internal static CadBlockEntity? BlockOf(CadDrawing drawing, CadLayout layout)
    {
        if (string.Equals(layout.LayoutName, "Model", StringComparison.OrdinalIgnoreCase))
        {
            return drawing.ModelSpace;
        }

        if (!HandleText.TryParse(layout.BlockTableRecordHandle, out ulong handle) || handle == 0)
        {
            return drawing.PaperSpace;
        }

        CadBlockTableObject? record = drawing.BlockRecords.Items.Find(candidate => candidate.Handle == handle);
        return record is null ? null : drawing.BlockEntities.Find(record.Name);
    }

    private static List<CadLayout> LayoutsInOrder(CadDrawing drawing)
    {
        List<CadLayout> layouts = [];
        foreach (CadObjectBase item in drawing.Objects)
        {
            if (item is CadLayout layout)
            {
                int next = layouts.FindIndex(other => other.TabOrder > layout.TabOrder);
                layouts.Insert(next < 0 ? layouts.Count : next, layout);
            }
        }

        return layouts;
    }

    // Old drawings have a model and one sheet without saying so.
    private static void AddMissingLayouts(CadDrawing drawing)
    {
        if (drawing.Layouts.Count == 0)
        {
            drawing.Layouts.Add(new CadLayout { LayoutName = "Model" });
            drawing.Layouts.Add(new CadLayout { LayoutName = "Layout1", TabOrder = 1 });
        }
    }
}
