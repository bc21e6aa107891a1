using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Single-line and multi-line text, attributes and their definitions.</content>
internal sealed partial class SceneBuilder
{
    // Group code 90 of a multi-line text.
    private const int BackgroundFilled = 3;
    private const int BackgroundOfWindow = 2;
    private const int BackgroundFramed = 16;

    /// <summary>
    /// A definition shows its tag in the drawing where it stands; inside of a reference only constants show.
    /// </summary>
    void IGeometrySink.Text(in TextLine text)
    {
        bool isReplaced = text.Role == TextRole.AttributeDefinition && !text.IsConstant
            && _current.Context.BlockName.Length > 0;
        if (isReplaced || !IsShown(text))
        {
            return;
        }

        bool showsValue = text.Role == TextRole.Attribute || text.IsConstant;
        if (showsValue && EmbeddedMText.FromTags(text.Source.Embedded) is { } lines)
        {
            ((IGeometrySink)this).Paragraphs(lines, EntityGeometry.PlaneOf(lines));
        }
        else if (!string.IsNullOrWhiteSpace(text.Shown))
        {
            TextPainter.Draw(_canvas, TextLayouts.LineOf(text, _tables), MapOf(text.Plane), _current.Pen);
        }
    }

    private bool IsShown(in TextLine text) => text.Role == TextRole.Text || _tables.Settings.AttributeMode switch
    {
        0 => false,
        2 => true,
        _ => !text.IsHidden,
    };

    void IGeometrySink.Paragraphs(CadMText text, in Affine3 plane)
    {
        (Pen pen, LayerInfo layer, BlockContext context, _) = _current;
        double height = TextLayouts.HeightOf(text, _tables);
        Affine3 map = MapOf(plane);
        if (TextLayouts.IsVertical(text, _tables))
        {
            VerticalTextLayout columns = TextLayouts.VerticalOf(text, _tables, _canvas.Engine);
            DrawBackground(text, columns.Box, height, map, pen, layer, context);
            TextPainter.Draw(_canvas, columns.Runs, map, pen, color => InlineColorOf(color, layer, context));
            return;
        }

        MTextLayout layout = TextLayouts.LayoutOf(text, _tables, _canvas.Engine);
        (double left, double bottom, double right, double top) = layout.Box;
        DrawBackground(text, Bounds2.Of(left, bottom, right, top), height, map, pen, layer, context);
        TextPainter.Draw(_canvas, layout, map, pen, color => InlineColorOf(color, layer, context));
    }

    private static MTextFormat StartFormat(StyleInfo style, double height) => TextLayouts.StartFormat(style, height);

    private Rgba InlineColorOf(InlineColor color, LayerInfo layer, BlockContext context) =>
        _pens.ColorOf(
            color.IsTrueColor ? new DrawingColor(0, color.Value) : new DrawingColor(color.Value), layer, context,
            _current.Pen.Plot);

    private void DrawBackground(
        CadMText text, in Bounds2 box, double height, in Affine3 map, in Pen pen, LayerInfo layer,
        BlockContext context)
    {
        int setting = (int)text.BackgroundFillSetting;
        bool filled = (setting & BackgroundFilled) != 0;
        bool framed = (setting & BackgroundFramed) != 0;
        if (!filled && !framed)
        {
            return;
        }

        double grow = (Math.Clamp(text.FillBoxScale, 1, 5) - 1) * height;
        AddBox(map, box.MinX - grow, box.MinY - grow, box.MaxX + grow, box.MaxY + grow);
        if (filled)
        {
            bool window = (setting & BackgroundOfWindow) != 0;
            Pen fill = pen with { Plot = null };
            fill.Color = window
                ? _style.Background
                : _pens.ColorOf(
                    new DrawingColor(text.BackgroundColorId, text.BackgroundColor), layer, context, pen.Plot);
            _canvas.Fill(fill, evenOdd: false);
        }

        if (framed)
        {
            _canvas.Stroke(pen);
        }
    }
}
