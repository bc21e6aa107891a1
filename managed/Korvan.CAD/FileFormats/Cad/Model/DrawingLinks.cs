using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What follows from the parts of a drawing once all are read.</summary>
internal static class DrawingLinks
{
    internal static void Complete(CadImage image)
    {
        if (!image.BlockEntities.Contains(image.ModelSpace.Name))
        {
            image.BlockEntities.Items.Insert(0, image.ModelSpace);
        }

        if (!image.BlockEntities.Contains(image.PaperSpace.Name))
        {
            image.BlockEntities.Items.Insert(1, image.PaperSpace);
        }

        IEnumerable<CadLayout> layouts = image.Objects.OfType<CadLayout>().OrderBy(static layout => layout.TabOrder);
        foreach (CadLayout layout in layouts)
        {
            image.Layouts.Add(layout);
        }

        AddMissingLayouts(image);
        image.PaperSpace.Entities.ForEach(ViewportXdata.Apply);
    }

    /// <summary>Finds the block that holds the entities of a layout.</summary>
    internal static CadBlockEntity? BlockOf(CadImage image, CadLayout layout)
    {
        if (string.Equals(layout.LayoutName, "Model", StringComparison.OrdinalIgnoreCase))
        {
            return image.ModelSpace;
        }

        if (!HandleText.TryParse(layout.BlockTableRecordHandle, out ulong handle) || handle == 0)
        {
            return image.PaperSpace;
        }

        CadBlockTableObject? record = image.BlockRecords.Items.Find(candidate => candidate.Handle == handle);
        return record is null ? null : image.BlockEntities.Find(record.Name);
    }

    // Old drawings have a model and one sheet without saying so.
    private static void AddMissingLayouts(CadImage image)
    {
        if (image.Layouts.Count == 0)
        {
            image.Layouts.Add(new CadLayout { LayoutName = "Model" });
            image.Layouts.Add(new CadLayout { LayoutName = "Layout1", TabOrder = 1 });
        }
    }
}
