using System;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Encodings;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>What numbers mean that both kinds of metafiles have.</summary>
internal static class GdiNumbers
{
    private const int DefaultCodePage = 1252;

    /// <summary>The caps and joins of a pen by its style.</summary>
    internal static StrokeStyle EndsOf(int style) => new(
        (style & 0xf00) switch { 0x100 => LineCaps.Square, 0x200 => LineCaps.Butt, _ => LineCaps.Round },
        (style & 0xf000) switch { 0x1000 => LineJoins.Bevel, 0x2000 => LineJoins.Miter, _ => LineJoins.Round });

    /// <summary>The text of bytes in a character set.</summary>
    internal static string Text(ReadOnlySpan<byte> bytes, int charset)
    {
        int page = charset switch
        {
            128 => 932,
            129 => 949,
            134 => 936,
            136 => 950,
            161 => 1253,
            162 => 1254,
            163 => 1258,
            177 => 1255,
            178 => 1256,
            186 => 1257,
            204 => 1251,
            222 => 874,
            238 => 1250,
            _ => DefaultCodePage,
        };
        Encoding encoding = DwgCodePage.Get(page);
        return encoding.GetString(bytes);
    }

    internal static string UpToZero(string text)
    {
        int end = text.IndexOf('\0', StringComparison.Ordinal);
        return end < 0 ? text : text[..end];
    }
}
