using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.PlotStyles;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>What plot styles make of colours and of the ends of lines on a page of a colour.</summary>
internal sealed class PlotColors(Rgba paper)
{
    /// <summary>Returns a colour as it is plotted. Black is that of the foreground: it stays visible on dark
    /// pages.</summary>
    internal Rgba Apply(PlotStyle? style, Rgba color)
    {
        if (style is null)
        {
            return color;
        }

        Rgba plotted = style.Rgb switch
        {
            < 0 => color,
            0 => AciPalette.Color(AciPalette.Contrast, paper),
            _ => Rgba.FromRgb(style.Rgb).WithAlpha(color.A),
        };
        plotted = style.IsGrayscale ? new Rgba(plotted.Luma, plotted.Luma, plotted.Luma, color.A) : plotted;
        return style.Screening == PlotStyle.FullIntensity ? plotted.WithAlpha(color.A) : new Rgba(
            Screened(plotted.R, paper.R, style.Screening), Screened(plotted.G, paper.G, style.Screening),
            Screened(plotted.B, paper.B, style.Screening), color.A);
    }

    /// <summary>Returns the caps and joins of a style; null where it leaves both to the object.</summary>
    internal StrokeStyle? StrokeStyle(PlotStyle? style)
    {
        if (style is null or { End: PlotLineEnd.OfObject, Join: PlotLineJoin.OfObject })
        {
            return null;
        }

        LineCaps cap = style.End switch
        {
            PlotLineEnd.Butt => LineCaps.Butt,
            PlotLineEnd.Square => LineCaps.Square,
            _ => LineCaps.Round,
        };
        LineJoins join = style.Join switch
        {
            PlotLineJoin.Miter => LineJoins.Miter,
            PlotLineJoin.Bevel or PlotLineJoin.Diamond => LineJoins.Bevel,
            _ => LineJoins.Round,
        };
        return new StrokeStyle(cap, join);
    }

    private static byte Screened(byte color, byte paper, int percent) =>
        (byte)(paper + ((color - paper) * percent / PlotStyle.FullIntensity));
}
