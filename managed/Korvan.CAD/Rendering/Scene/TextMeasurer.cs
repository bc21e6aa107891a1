using System;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Measures texts by laying them out with their fonts.</summary>
internal sealed class TextMeasurer : ITextMeasurer
{
    private readonly SceneTables _tables;
    private readonly TextEngine _engine;

    private TextMeasurer(SceneTables tables, TextEngine engine) => (_tables, _engine) = (tables, engine);

    /// <summary>A measurer with the fonts of a drawing; null where there are no libraries for fonts.</summary>
    internal static TextMeasurer? TryCreate(CadDrawing drawing)
    {
        try
        {
            return new TextMeasurer(SceneReader.ReadTables(drawing), new TextEngine());
        }
        catch (Exception e) when (e is RenderException or CadException)
        {
            return null; // neither missing libraries nor a damaged header keep the rest from being measured
        }
    }

    public Bounds2 Measure(in TextLine text)
    {
        var canvas = new Canvas(new DrawingList(), _engine);
        TextPainter.Draw(canvas, TextLayouts.LineOf(text, _tables), Affine3.Identity, default);
        return canvas.List.Bounds;
    }

    public Bounds2 Measure(CadMText text)
    {
        if (TextLayouts.IsVertical(text, _tables))
        {
            return BoxOf(text);
        }

        MTextLayout layout = TextLayouts.LayoutOf(text, _tables, _engine);
        var canvas = new Canvas(new DrawingList(), _engine);
        TextPainter.Draw(canvas, layout.Runs, Affine3.Identity, default, static _ => default);
        (double left, double bottom, double right, double top) = layout.Box;
        var box = Bounds2.Of(left, bottom, right, top);
        box.Add(canvas.List.Bounds);
        return box;
    }

    public Bounds2 BoxOf(CadMText text) => TextLayouts.BoxOf(text, _tables, _engine);

    public void Dispose() => _engine.Dispose();
}
