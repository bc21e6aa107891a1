using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Reduces the records of the symbol tables to what drawing needs.</summary>
internal static class TableReader
{
    private const int TextElement = 2;
    private const int FontIsBold = 0x02000000;
    private const int FontIsItalic = 0x01000000;
    private const string TransparencyApplication = "AcCmTransparency";

    internal static LayerInfo Layer(CadLayerTable layer) => new(layer.Name)
    {
        Handle = layer.ObjectHandle,
        Color = new DrawingColor(layer.ColorId, layer.ColorValue),
        LineType = layer.LineTypeName,
        PlotStyleHandle = layer.PlotStyleHandle,
        LineWeight = layer.LineWeight,
        IsOff = !layer.IsOn,
        IsFrozen = layer.IsFrozen,
        IsPlotted = layer.IsPlottable,
        Opacity = Opacity(layer),
    };

    internal static StyleInfo Style(CadStyleTableObject style)
    {
        double width = style.WidthFactor is > 0.01 and < 100 ? style.WidthFactor : 1;
        return new StyleInfo(Font(style), style.TextHeight, width, style.ObliqueAngle,
            FontTable.IsToleranceSymbolFont(style.PrimaryFontName))
        {
            IsVertical = (style.StyleFlags & CadFontStyleTableFlag.VerticalText) != 0,
        };
    }

    internal static DimStyleInfo DimStyle(CadDimensionStyleTable style, double overallScale, string textStyle) =>
        new(style.Dimasz, style.Dimtxt, style.Dimgap, style.Dimscale > 0 ? style.Dimscale : overallScale, textStyle);

    internal static LinePattern? LineType(CadLineTypeTableObject type, IReadOnlyDictionary<string, string> styleNames)
    {
        var texts = new List<PatternText>();
        double at = 0;
        for (int i = 0; i < type.Pattern.Count; i++)
        {
            at += Math.Abs(type.Pattern[i]);
            if (type.IsComplex && TryText(type, i + 1, at, styleNames, out PatternText text))
            {
                texts.Add(text);
            }
        }

        return LinePattern.Create(type.Pattern, texts.ToArray());
    }

    private static bool TryText(
        CadLineTypeTableObject type, int element, double at, IReadOnlyDictionary<string, string> styleNames,
            out PatternText text)
    {
        int kind = 0;
        text = new PatternText(at, string.Empty, string.Empty, 1, 0, 0, 0);
        foreach ((int of, CadCodeValue tag) in type.ComplexTags)
        {
            if (of != element)
            {
                continue;
            }

            switch (tag.Attribute)
            {
                case 74:
                    kind = (int)Number(tag);
                    break;
                case 340:
                    text = text with
                    {
                        Style = styleNames.TryGetValue(tag.Value.TrimStart('0'), out string? name) ? name
                        : string.Empty
                    };
                    break;
                case 46:
                    text = text with { Height = Number(tag) };
                    break;
                case 50:
                    text = text with { Rotation = Number(tag) * Math.PI / 180 };
                    break;
                case 44:
                    text = text with { OffsetX = Number(tag) };
                    break;
                case 45:
                    text = text with { OffsetY = Number(tag) };
                    break;
                case 9:
                    text = text with { Text = tag.Value };
                    break;
            }
        }

        return (kind & TextElement) != 0 && text.Text.Length > 0 && text.Height > 0;
    }

    /// <summary>Outline fonts stand in extended data as a family and bits for weight and slant, stroke fonts as a
    /// file.</summary>
    private static FontSpec Font(CadStyleTableObject style)
    {
        string family = style.FontFamily;
        if (family.Length == 0)
        {
            FontSpec font = FontTable.FromFile(style.PrimaryFontName);
            string big = FontTable.NameOf(style.BigFontName);
            return font.Stroke is null || big.Length == 0 ? font : font with { BigFont = big };
        }

        CadCodeValue? bits = style.XdataOrNull?.Find("ACAD")?.Data.Find(static tag => tag.Attribute == 1071);
        int flags = bits == null ? 0 : (int)Number(bits);
        return FontTable.FromFamily(family, (flags & FontIsBold) != 0, (flags & FontIsItalic) != 0);
    }

    private static double Opacity(CadLayerTable layer)
    {
        CadCodeValue? tag = layer.XdataOrNull?.Find(TransparencyApplication)?.Data.Find(static t =>
            t.Attribute == 1071);
        int value = tag == null ? 0 : (int)Number(tag);

        // Layer managers write a plain 0 for "not set"; only with this bit is the lowest byte an opacity.
        return (value & RawColor.HasOpacity) == 0 ? 1 : (value & 0xff) / 255.0;
    }

    private static double Number(CadCodeValue tag) =>
        double.TryParse(tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;
}
