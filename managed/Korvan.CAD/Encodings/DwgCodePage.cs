using System;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.Encodings;

/// <summary>Encodings by their names in the header variable $DWGCODEPAGE.</summary>
internal static class DwgCodePage
{
    /// <summary>The encoding of drawings that declare none.</summary>
    internal const string DefaultName = "ANSI_1252";

    internal static Encoding Get(int number)
    {
        // With InvariantGlobalization, only a few encodings are built in.
        Encoding.RegisterProvider(CodePagesEncodingProvider.Instance);
        return Encoding.GetEncoding(number);
    }

    /// <summary>Returns the encoding of a name such as ANSI_1252, DOS850, BIG5 or UTF-8; Western European for an
    /// unknown name.</summary>
    internal static Encoding Get(string name)
    {
        int number = Number(name);
        try
        {
            return number == 65001 ? new UTF8Encoding(false) : Get(number);
        }
        catch (Exception e) when (e is ArgumentException or NotSupportedException)
        {
            return Get(1252);
        }
    }

    /// <summary>Returns the code page number of a name.</summary>
    internal static int Number(string name)
    {
        string upper = name.Trim().ToUpperInvariant();
        return upper switch
        {
            "UTF-8" or "UTF8" => 65001,
            "ASCII" or "" => 1252,
            "MACINTOSH" or "MAC-ROMAN" => 10000,
            "BIG5" => 950,
            "KSC5601" => 949,
            "JOHAB" => 1361,
            "GB2312" => 936,
            _ => TrailingNumber(upper),
        };
    }

    private static int TrailingNumber(string name)
    {
        int start = name.Length;
        while (start > 0 && char.IsAsciiDigit(name[start - 1]))
        {
            start--;
        }

        ReadOnlySpan<char> digits = name.AsSpan(start);
        if (name.StartsWith("ISO8859", StringComparison.Ordinal)
            || name.StartsWith("ISO-8859", StringComparison.Ordinal))
        {
            digits = digits.StartsWith("8859") ? digits[4..] : digits;
            return int.TryParse(digits, NumberStyles.None, CultureInfo.InvariantCulture, out int part)
                ? 28590 + part
                : 1252;
        }

        return int.TryParse(digits, NumberStyles.None, CultureInfo.InvariantCulture, out int number) ? number : 1252;
    }
}
