using System;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Converts colours from and to other notations.</summary>
public static class ColorTranslator
{
    /// <summary>Parses a CSS colour: <c>#rgb</c>, <c>#rgba</c>, <c>#rrggbb</c>, <c>#rrggbbaa</c> or a name.</summary>
    /// <param name="htmlColor">The text.</param>
    /// <returns>The colour.</returns>
    /// <exception cref="FrameworkException">The string is not a colour.</exception>
    public static Color FromHtml(string htmlColor)
    {
        Verify.NotNull(htmlColor);
        string text = htmlColor.Trim();
        if (!text.StartsWith('#'))
        {
            return Color.FromName(text);
        }

        string digits = text[1..];
        if (digits.Length is 3 or 4)
        {
            digits = string.Concat(Array.ConvertAll(digits.ToCharArray(), static c => new string(c, 2)));
        }

        bool isNumber =
            uint.TryParse(digits, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out uint value);
        if (digits.Length is not (6 or 8) || !isNumber)
        {
            throw new FrameworkException(
                $"'{htmlColor}' is no colour; a number sign and 3, 4, 6 or 8 hexadecimal digits make one.");
        }

        return digits.Length == 6 ? new Color(0xFF000000 | value) : new Color((value << 24) | (value >> 8));
    }

    /// <summary>Returns a colour in CSS notation: <c>#rrggbb</c>, or <c>#rrggbbaa</c> where it is not opaque.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>The CSS notation.</returns>
    public static string ToHtml(Color color)
    {
        string opaque = $"#{color.R:x2}{color.G:x2}{color.B:x2}";
        return color.A == 255 ? opaque : $"{opaque}{color.A:x2}";
    }

    /// <summary>Converts a Win32 COLORREF: blue, green, red from the third byte down.</summary>
    /// <param name="win32Color">The value.</param>
    /// <returns>The colour.</returns>
    public static Color FromWin32(int win32Color) =>
        Color.FromArgb(win32Color & 255, (win32Color >> 8) & 255, (win32Color >> 16) & 255);

    /// <summary>Returns a colour as a Win32 COLORREF; alpha is lost.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>The COLORREF.</returns>
    public static int ToWin32(Color color) => color.R | (color.G << 8) | (color.B << 16);

    /// <summary>Returns a named colour.</summary>
    /// <param name="knownColor">The colour.</param>
    /// <returns>The colour.</returns>
    public static Color FromKnownColor(KnownColor knownColor) => Color.FromName(knownColor.ToString());

    /// <summary>Converts a colour to CMYK.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>The CMYK colour.</returns>
    public static CmykColor ToCmyk(Color color) => CmykColor.FromColor(color);

    /// <summary>Converts a CMYK colour to RGB.</summary>
    /// <param name="color">The inks.</param>
    /// <returns>The RGB colour.</returns>
    public static Color FromCmyk(CmykColor color) => color.ToColor();
}
