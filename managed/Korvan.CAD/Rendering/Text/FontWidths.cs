using System;
using System.Collections.Generic;

namespace Korvan.CAD.Rendering.Text;

/// <summary>The widths of digits of common families, in ems, as their published metrics state them. Where a family is
/// not installed, what replaces it is made as wide.</summary>
internal static class FontWidths
{
    private const double Narrowest = 0.6;
    private const double Widest = 1.5;

    private static readonly Dictionary<string, double> Digits = new(StringComparer.OrdinalIgnoreCase)
    {
        ["Arial"] = 0.556,
        ["Arial Black"] = 0.667,
        ["Arial Narrow"] = 0.456,
        ["Bookman Old Style"] = 0.62,
        ["Calibri"] = 0.507,
        ["Cambria"] = 0.554,
        ["Candara"] = 0.55,
        ["Century Gothic"] = 0.554,
        ["Century Schoolbook"] = 0.556,
        ["Comic Sans MS"] = 0.61,
        ["Consolas"] = 0.55,
        ["Courier New"] = 0.6,
        ["Franklin Gothic Book"] = 0.554,
        ["Garamond"] = 0.469,
        ["Georgia"] = 0.614,
        ["Helvetica"] = 0.556,
        ["Lucida Console"] = 0.603,
        ["Lucida Sans Unicode"] = 0.632,
        ["Palatino Linotype"] = 0.5,
        ["Segoe UI"] = 0.539,
        ["Tahoma"] = 0.546,
        ["Times New Roman"] = 0.5,
        ["Trebuchet MS"] = 0.524,
        ["Verdana"] = 0.636,
    };

    /// <summary>Returns the factor on the width of a replacement.</summary>
    /// <param name="family">The family that is replaced.</param>
    /// <param name="actual">The width of a digit of the replacement, in ems.</param>
    internal static double FactorOf(string family, double actual) =>
        actual > 0 && Digits.TryGetValue(family, out double wanted)
            ? Math.Clamp(wanted / actual, Narrowest, Widest) : 1;
}
