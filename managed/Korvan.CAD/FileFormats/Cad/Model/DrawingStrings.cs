using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The texts of a drawing: model space, sheets of paper, then what blocks hold.</summary>
internal static class DrawingStrings
{
    internal static string[] Collect(CadDrawing drawing)
    {
        List<string> texts = [];
        AddAll(drawing.ModelSpace.Entities.ItemsOf(), texts);
        AddAll(drawing.PaperSpace.Entities.ItemsOf(), texts);
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            // Blocks of dimensions repeat the texts of the dimensions.
            bool ofDimension = block.Name.StartsWith("*D", System.StringComparison.OrdinalIgnoreCase);
            if (block != drawing.ModelSpace && block != drawing.PaperSpace && !ofDimension)
            {
                AddAll(block.Entities.ItemsOf(), texts);
            }
        }

        return [.. texts];
    }

    private static void AddAll(List<CadEntityBase> entities, List<string> texts)
    {
        foreach (CadEntityBase entity in entities)
        {
            string? text = TextOf(entity);
            if (!string.IsNullOrWhiteSpace(text))
            {
                texts.Add(text);
            }

            foreach (CadAttrib attribute in (entity as CadInsertObject)?.Attributes ?? [])
            {
                AddNonBlank(PlainText.FromText(attribute.DefaultValue), texts);
            }
        }
    }

    private static void AddNonBlank(string text, List<string> texts)
    {
        if (!string.IsNullOrWhiteSpace(text))
        {
            texts.Add(text);
        }
    }

    private static string? TextOf(CadEntityBase entity) => entity switch
    {
        CadAttDef definition => PlainText.FromText(definition.DefaultValue),
        CadText text => PlainText.FromText(text.DefaultValue),
        CadMText text => PlainText.FromMText(text.Text),
        CadDimensionBase { Text: not ("" or "<>") } dimension => PlainText.FromMText(dimension.Text),
        CadTolerance tolerance => tolerance.VisualRepresentation,
        _ => null,
    };
}
