using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Takes out of a drawing what release 12 does not have: layouts but the first of paper space, objects, and
/// fields and names of later releases.</summary>
internal static class PlainRelease
{
    // Since release 13: the block is that of this dimension alone.
    private const int OwnBlock = 32;

    internal static void Apply(CadDrawing drawing, List<string> changes)
    {
        RemoveLayouts(drawing, changes);
        foreach (CadDimensionStyleTable style in drawing.DimensionStyles)
        {
            DimensionArrows.ToNames(drawing, style);
        }

        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            ViewportXdata.Store(drawing, entity);
        }

        RemoveObjects(drawing, changes);
        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            Simplify(item);
        }

        ReplaceVariables(drawing.Header, changes);
        new PlainNames(drawing, changes).Apply();
    }

    private static void RemoveLayouts(CadDrawing drawing, List<string> changes)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities.Items.ToList())
        {
            bool isSheet = BlockNames.IsAnyPaperSpace(block.Name) && block != drawing.PaperSpace;
            if (!isSheet)
            {
                continue;
            }

            CadLayout? layout = drawing.Layouts.Items.Find(one => DrawingLinks.BlockOf(drawing, one) == block);
            drawing.BlockEntities.Remove(block);
            if (block.Entities.Count > 0)
            {
                string name = layout?.LayoutName ?? block.Name;
                changes.Add($"layout '{name}' with {block.Entities.Count} entities: left out");
            }
        }

        drawing.ModelSpaceInFile = false;
        drawing.PaperSpaceInFile = false;
    }

    private static void RemoveObjects(CadDrawing drawing, List<string> changes)
    {
        if (drawing.Objects.Count > 0)
        {
            changes.Add("dictionaries, layouts and other objects: left out");
        }

        drawing.Objects.Clear();
        drawing.ClassEntities.Items.Clear();
        drawing.RawSections.Clear();
        drawing.BlockRecords.Items.Clear();
        drawing.ThumbnailImage = [];
        drawing.Layouts.Items.Clear();
    }

    private static void Simplify(CadBaseObject item)
    {
        item.Kept = null;
        item.ApplicationCodesOrNull?.ApplicationCodes.Clear();
        switch (item)
        {
            case CadLineTypeTableObject lineType:
                lineType.ComplexTags.Clear();
                break;
            case CadEntityBase entity:
                Simplify(entity);
                break;
        }
    }

    private static void Simplify(CadEntityBase entity)
    {
        entity.LinetypeScale = 1;
        entity.Visible = 0;
        if (entity is CadDimensionBase dimension)
        {
            dimension.TypeOfDimension &= ~OwnBlock;
            dimension.AttachmentPoint = CadAttachmentPoint.MiddleCenter;
            dimension.LineSpacingStyle = CadLineSpacing.AtLeast;
            dimension.LineSpacingFactor = 1;
            dimension.ActualMeasurement = 0;
        }

        if (entity is CadViewport viewport)
        {
            viewport.ClippingBoundaryHandle = "";
        }
    }

    private static void ReplaceVariables(CadHeader header, List<string> changes)
    {
        List<string> removed = [.. header.VariableNames.Where(static name => !HeaderVariables.IsInRelease12(name))];
        removed.ForEach(name => header.Remove(name));
        if (removed.Count > 0)
        {
            changes.Add($"header variables that the release does not have, left out: {string.Join(' ', removed)}");
        }

        HeaderVariables.SetArrowCode(header, HeaderVariables.OldArrowCode);
        header.Set("$HANDLING", 70, "1");
    }
}
