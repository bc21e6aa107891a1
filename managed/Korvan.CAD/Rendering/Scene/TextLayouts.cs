using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Texts of the model with what their styles and the header say of them.</summary>
internal static class TextLayouts
{
    private const double MaxLineSpacing = 100;

    /// <summary>Characters that take as long as a step of work to be laid out and placed.</summary>
    private const int CharactersPerStep = 32;

    internal static SingleLine LineOf(in TextLine text, SceneTables tables)
    {
        StyleInfo style = tables.Style(text.StyleName);
        double fallback = style.FixedHeight > 0 ? style.FixedHeight : tables.Settings.TextSize;
        return new SingleLine
        {
            Text = text.Shown,
            Font = style.Font,
            First = text.First,
            Second = text.Second,
            Height = text.Height > 0 ? text.Height : fallback,
            WidthFactor = text.WidthFactor,
            Rotation = text.Rotation,
            Oblique = text.Oblique,
            Backward = text.IsBackward,
            UpsideDown = text.IsUpsideDown,
            Horizontal = text.Horizontal,
            Vertical = text.Vertical,
            ToleranceSymbols = style.IsToleranceFont,
            IsVertical = style.IsVertical && style.Font.Stroke is not null,
        };
    }

    internal static double HeightOf(CadMText text, SceneTables tables) =>
        text.InitialTextHeight > 0 ? text.InitialTextHeight : tables.Settings.TextSize;

    internal static MTextLayout LayoutOf(CadMText text, SceneTables tables, TextEngine engine)
    {
        Budget.Step(text.Text.Length / CharactersPerStep); // again for each reference of a block
        double height = HeightOf(text, tables);
        MTextFormat start = StartFormat(tables.Style(text.TextStyleName), height);
        double spacing = text.LineSpacingFactor is > 0 and < MaxLineSpacing ? text.LineSpacingFactor : 1;
        var frame = new MTextFrame(
            text.ReferenceRectangleWidth,
            (int)text.AttachmentPoint,
            spacing,
            text.LineSpacingStyle == CadLineSpacing.Exact,
            MTextColumns.Read(text));
        return MTextLayout.Create(engine, MTextParser.Parse(text.Text, start), frame, height);
    }

    /// <summary>Determines whether the characters of a text are below each other: it says so, or its style does, which
    /// only fonts of strokes can have.</summary>
    internal static bool IsVertical(CadMText text, SceneTables tables) => text.DrawingDirection switch
    {
        CadDrawingDirection.TopToBottom => true,
        CadDrawingDirection.ByStyle => tables.Style(text.TextStyleName) is { IsVertical: true, Font.Stroke: not null },
        _ => false,
    };

    internal static VerticalTextLayout VerticalOf(CadMText text, SceneTables tables, TextEngine engine)
    {
        Budget.Step(text.Text.Length / CharactersPerStep);
        double height = HeightOf(text, tables);
        MTextFormat start = StartFormat(tables.Style(text.TextStyleName), height);
        double spacing = text.LineSpacingFactor is > 0 and < MaxLineSpacing ? text.LineSpacingFactor : 1;
        var frame = new MTextFrame(text.ReferenceRectangleHeight, (int)text.AttachmentPoint, spacing, false);
        return VerticalTextLayout.Create(engine, MTextParser.Parse(text.Text, start), frame, height);
    }

    /// <summary>Returns the box of a text in its own plane.</summary>
    internal static Bounds2 BoxOf(CadMText text, SceneTables tables, TextEngine engine)
    {
        if (IsVertical(text, tables))
        {
            return VerticalOf(text, tables, engine).Box;
        }

        (double left, double bottom, double right, double top) = LayoutOf(text, tables, engine).Box;
        return Bounds2.Of(left, bottom, right, top);
    }

    internal static MTextFormat StartFormat(StyleInfo style, double height) => new(
        style.Font,
        height,
        style.WidthFactor,
        style.ObliqueDegrees,
        1,
        default,
        StackAlign.Baseline,
        false,
        false,
        false,
        style.IsToleranceFont);
}
