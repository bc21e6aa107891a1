using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The texts of a drawing: model space, sheets of paper, then what blocks hold.</summary>
internal static class DrawingStrings
{
    internal static string[] Collect(CadDrawing drawing)
    {
        List<string> texts = [];
        var sink = new Sink(drawing, texts);
        AddAll(drawing.ModelSpace.Entities.ItemsOf(), sink);
        AddAll(drawing.PaperSpace.Entities.ItemsOf(), sink);
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            // Blocks of dimensions repeat the texts of the dimensions.
            bool ofDimension = block.Name.StartsWith("*D", System.StringComparison.OrdinalIgnoreCase);
            if (block != drawing.ModelSpace && block != drawing.PaperSpace && !ofDimension)
            {
                AddAll(block.Entities.ItemsOf(), sink);
            }
        }

        return [.. texts];
    }

    private static void AddAll(List<CadEntityBase> entities, Sink sink)
    {
        foreach (CadEntityBase entity in entities)
        {
            EntityGeometry.Emit(entity, sink);
        }
    }

    private sealed class Sink(CadDrawing drawing, List<string> texts) : IGeometrySink
    {
        private DimensionStyles? _dimensions;

        void IGeometrySink.Text(in TextLine text) => Add(PlainText.FromText(text.Content));

        void IGeometrySink.Paragraphs(CadMText text, in Affine3 plane) => Add(PlainText.FromMText(text.Text));

        void IGeometrySink.MultiLeader(CadMLeader leader) => Add(PlainText.FromMText(leader.ContextData.Text));

        void IGeometrySink.Tolerance(CadTolerance tolerance, in Affine3 plane) => Add(tolerance.VisualRepresentation);

        void IGeometrySink.Dimension(CadDimensionBase dimension)
        {
            bool hasBlock = dimension.BlockName.Length > 0
                && drawing.BlockEntities.Find(dimension.BlockName) is not null;
            if (!hasBlock)
            {
                _dimensions ??= new DimensionStyles(drawing);
                Add(PlainText.FromMText(DimensionText.Of(dimension, _dimensions.Of(dimension))));
            }
            else if (dimension.Text is not ("" or "<>"))
            {
                Add(PlainText.FromMText(dimension.Text));
            }
        }

        void IGeometrySink.BlockReference(CadInsertObject insert) =>
            insert.Attributes.ForEach(attribute => Add(PlainText.FromText(attribute.DefaultValue)));

        private void Add(string text)
        {
            if (!string.IsNullOrWhiteSpace(text))
            {
                texts.Add(text);
            }
        }
    }
}
