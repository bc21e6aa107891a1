using System;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>
/// Letters that a code page lacks: <c>\U+XXXX</c> is one UTF-16 unit, <c>\M+nXXXX</c> a double byte of one of five
/// East Asian code pages.
/// </summary>
internal static class TextEscapes
{
    private static readonly int[] MultiBytePages = [932, 950, 949, 1361, 936];

    internal static bool MayHaveEscapes(ReadOnlySpan<byte> text)
    {
        return text.IndexOf("\\U+"u8) >= 0 || text.IndexOf("\\M+"u8) >= 0;
    }

    internal static string Decode(string text)
    {
        int next = text.IndexOf('\\');
        if (next < 0)
        {
            return text;
        }

        StringBuilder result = new(text.Length);
        int done = 0;
        for (; next >= 0; next = text.IndexOf('\\', Math.Max(next + 1, done)))
        {
            if (TryTake(text.AsSpan(next), out string? letter, out int length))
            {
                result.Append(text, done, next - done).Append(letter);
                done = next + length;
            }
        }

        return result.Append(text, done, text.Length - done).ToString();
    }

    /// <summary>Replaces letters that an encoding lacks.</summary>
    internal static string Encode(string text, Encoding encoding)
    {
        if (Ascii.IsValid(text) || encoding is UTF8Encoding)
        {
            return text;
        }

        StringBuilder result = new(text.Length + 16);
        Span<byte> bytes = stackalloc byte[16];
        Span<char> back = stackalloc char[16];
        foreach (char letter in text)
        {
            bool fits = letter < 128;
            if (!fits && !char.IsSurrogate(letter))
            {
                int count = encoding.GetBytes([letter], bytes);
                fits = encoding.GetChars(bytes[..count], back) == 1 && back[0] == letter;
            }

            _ = fits ? result.Append(letter) : result.Append(CultureInfo.InvariantCulture, $"\\U+{(int)letter:X4}");
        }

        return result.ToString();
    }

    private static bool TryTake(ReadOnlySpan<char> text, out string? letter, out int length)
    {
        letter = null;
        length = 0;
        if (text.Length >= 7 && text[1] == 'U' && text[2] == '+'
            && TryHex(text[3..7], out ushort unit))
        {
            letter = ((char)unit).ToString();
            length = 7;
        }
        else if (text.Length >= 8 && text[1] == 'M' && text[2] == '+' && text[3] is >= '1' and <= '5'
            && TryHex(text[4..8], out ushort pair))
        {
            letter = DwgCodePage.Get(MultiBytePages[text[3] - '1']).GetString([(byte)(pair >> 8), (byte)pair]);
            length = 8;
        }

        return letter is not null;
    }

    private static bool TryHex(ReadOnlySpan<char> text, out ushort value)
    {
        return ushort.TryParse(text, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out value);
    }
}
