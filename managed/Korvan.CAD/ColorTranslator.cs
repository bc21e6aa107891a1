using System;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Colours in the notations of other programs.</summary>
public static class ColorTranslator
{
    /// <summary>Reads a colour of a style sheet: <c>#rgb</c>, <c>#rgba</c>, <c>#rrggbb</c>, <c>#rrggbbaa</c> or a
    /// name.</summary>
    /// <param name="htmlColor">The text.</param>
    /// <returns>A colour of a style sheet.</returns>
    /// <exception cref="FrameworkException">It is no colour.</exception>
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

        bool isNumber = uint.TryParse(digits, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out uint value);
        if (digits.Length is not (6 or 8) || !isNumber)
        {
            throw new FrameworkException($"'{htmlColor}' is no colour; a number sign and 3, 4, 6 or 8 hexadecimal digits make one.");
        }

        return digits.Length == 6 ? new Color(0xFF000000 | value) : new Color((value << 24) | (value >> 8));
    }

    /// <summary>Gives a colour as style sheets have it: <c>#rrggbb</c>, or <c>#rrggbbaa</c> where it is less than
    /// opaque.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>A colour as style sheets have it.</returns>
    public static string ToHtml(Color color)
    {
        string opaque = $"#{color.R:x2}{color.G:x2}{color.B:x2}";
        return color.A == 255 ? opaque : $"{opaque}{color.A:x2}";
    }

    /// <summary>Reads a COLORREF: blue, green, red from the third byte down.</summary>
    /// <param name="win32Color">The number.</param>
    /// <returns>A COLORREF.</returns>
    public static Color FromWin32(int win32Color) =>
        Color.FromArgb(win32Color & 255, (win32Color >> 8) & 255, (win32Color >> 16) & 255);

    /// <summary>Gives a colour as a COLORREF; opacity is lost.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>A colour as a COLORREF.</returns>
    public static int ToWin32(Color color) => color.R | (color.G << 8) | (color.B << 16);

    /// <summary>Gives a colour with a name.</summary>
    /// <param name="knownColor">The colour.</param>
    /// <returns>A colour with a name.</returns>
    public static Color FromKnownColor(KnownColor knownColor) => Color.FromName(knownColor.ToString());

    /// <summary>Gives the inks of a colour.</summary>
    /// <param name="color">The colour.</param>
    /// <returns>The inks of a colour.</returns>
    public static CmykColor ToCmyk(Color color) => CmykColor.FromColor(color);

    /// <summary>Gives the colour of inks.</summary>
    /// <param name="color">The inks.</param>
    /// <returns>The colour of inks.</returns>
    public static Color FromCmyk(CmykColor color) => color.ToColor();
}
