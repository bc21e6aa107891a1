using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.PlotStyles;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The line types and fill patterns that plot styles name by number; files have no lengths of them.</summary>
internal static class PlotPatterns
{
    private const int FirstIso = 17;

    // By number from 1 on, in millimetres of paper: dashes are positive, gaps negative, dots zero.
    private static readonly LinePattern?[] Lines =
    [
        .. new double[][]
        {
            [4, -2], [0, -2], [4, -2, 0, -2], [3, -1.5], [6, -1.5], [12, -1.5], [3, -3], [6, -3], [12, -3],
            [6, -1.5, 12, -1.5], [6, -1.5, 3, -1.5, 3, -1.5], [12, -1.5, 3, -1.5], [12, -1.5, 0, -1.5, 0, -1.5],
            [12, -1.5, 0, -1.5], [6, -1.5, 0, -1.5, 3, -1.5, 0, -1.5], [0, -6],
        }.Select(static lengths => LinePattern.Create(lengths)),
    ];

    // Lines 02 to 15 of ISO 128-20, in line widths.
    private static readonly LinePattern?[] IsoLines =
    [
        .. new double[][]
        {
            [12, -3], [12, -18], [24, -3, 0.5, -3], [24, -3, 0.5, -3, 0.5, -3],
            [24, -3, 0.5, -3, 0.5, -3, 0.5, -3], [0.5, -3], [24, -3, 6, -3], [24, -3, 6, -3, 6, -3],
            [12, -3, 0.5, -3], [12, -3, 12, -3, 0.5, -3], [12, -3, 0.5, -3, 0.5, -3],
            [12, -3, 12, -3, 0.5, -3, 0.5, -3], [12, -3, 0.5, -3, 0.5, -3, 0.5, -3],
            [12, -3, 12, -3, 0.5, -3, 0.5, -3, 0.5, -3],
        }.Select(static lengths => LinePattern.Create(lengths)),
    ];

    /// <summary>Returns the pattern of a line type, and the millimetres of paper in one of its units.</summary>
    /// <param name="style">The style.</param>
    /// <param name="lineWeight">The line weight in millimetres.</param>
    internal static (LinePattern? Pattern, double Scale) LineOf(PlotStyle style, double lineWeight)
    {
        const double thinnest = 0.25;
        int number = style.LineType;
        return number < FirstIso
            ? (Lines.ElementAtOrDefault(number - 1), style.PatternScale)
            : (IsoLines.ElementAtOrDefault(number - FirstIso), Math.Max(lineWeight, thinnest));
    }

    /// <summary>Returns the lines of a fill pattern, and how wide they are in millimetres.</summary>
    /// <param name="style">The style.</param>
    /// <param name="unit">The drawing units in a millimetre of paper.</param>
    internal static (List<HatchLine> Lines, double Width) FillOf(PlotStyle style, double unit)
    {
        const double bar = 0.5, thin = 0.15;
        double scale = style.PatternScale;
        double step = 2 * bar * unit * scale;
        double half = step / 2;
        HatchLine Bars(double angle, double distance) =>
            new(angle, default, Vec2.Polar(angle).Left * distance, []);
        HatchLine Squares(double angle, double distance, double shift) => new(
            angle, default, (Vec2.Polar(angle).Left * distance) + (Vec2.Polar(angle) * shift), [half, -half]);
        return style.Fill switch
        {
            PlotFill.Checkerboard => ([Squares(0, half, half)], bar * scale),
            PlotFill.Diamonds => ([Squares(Math.PI / 4, half, half)], bar * scale),
            PlotFill.SquareDots => ([Squares(0, step, 0)], bar * scale),
            PlotFill.Crosshatch => ([Bars(Math.PI / 4, step), Bars(3 * Math.PI / 4, step)], thin * scale),
            PlotFill.HorizontalBars => ([Bars(0, step)], bar * scale),
            PlotFill.VerticalBars => ([Bars(Math.PI / 2, step)], bar * scale),
            PlotFill.SlantLeft => ([Bars(3 * Math.PI / 4, step)], thin * scale),
            PlotFill.SlantRight => ([Bars(Math.PI / 4, step)], thin * scale),
            _ => ([], 0),
        };
    }
}
