using System;
using System.Buffers;
using System.Globalization;
using System.Text;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Strings, with the control directives of ISO 10303-21, 6.4.3, for characters beyond ASCII.</summary>
internal static class StepStrings
{
    private const int CodePageBase = 28590; // ISO 8859-1 is 28591

    private static readonly SearchValues<byte> SpecialBytes = SearchValues.Create("'\\"u8);
    private static readonly UTF8Encoding StrictUtf8 = new(false, true);

    /// <summary>Decodes the content of a string.</summary>
    /// <param name="raw">The bytes between the apostrophes, in which apostrophes are doubled.</param>
    /// <param name="offset">Its offset in the file, for messages.</param>
    internal static string Decode(ReadOnlySpan<byte> raw, int offset)
    {
        if (raw.IndexOfAny(SpecialBytes) < 0)
        {
            return Plain(raw);
        }

        StringBuilder text = new(raw.Length);
        int page = CodePageBase + 1;
        int at = 0;
        while (at < raw.Length)
        {
            int length = raw[at..].IndexOfAny(SpecialBytes);
            length = length < 0 ? raw.Length - at : length;
            text.Append(Plain(raw.Slice(at, length)));
            at += length;
            if (at < raw.Length)
            {
                at += raw[at] == '\'' ? Apostrophe(text) : Directive(raw[at..], text, ref page, offset + at);
            }
        }

        return text.ToString();
    }

    /// <summary>Writes a string with its apostrophes, in ASCII only.</summary>
    internal static void Encode(string text, StringBuilder target)
    {
        target.Append('\'');
        for (int at = 0; at < text.Length;)
        {
            char one = text[at];
            if (one is >= ' ' and <= '~')
            {
                target.Append(one is '\'' or '\\' ? new string(one, 2) : one.ToString());
                at++;
                continue;
            }

            at = EncodeRun(text, at, target);
        }

        target.Append('\'');
    }

    // Adjacent characters of the same width share a directive.
    private static int EncodeRun(string text, int at, StringBuilder target)
    {
        bool isWide = IsPair(text, at);
        target.Append(isWide ? "\\X4\\" : "\\X2\\");
        while (at < text.Length && text[at] is < ' ' or > '~' && IsPair(text, at) == isWide)
        {
            int code = isWide ? char.ConvertToUtf32(text[at], text[at + 1]) : text[at];
            target.Append(code.ToString(isWide ? "X8" : "X4", CultureInfo.InvariantCulture));
            at += isWide ? 2 : 1;
        }

        target.Append("\\X0\\");
        return at;
    }

    private static bool IsPair(string text, int at) => at + 1 < text.Length && char.IsSurrogatePair(text, at);

    private static int Apostrophe(StringBuilder text)
    {
        text.Append('\'');
        return 2;
    }

    // Returns the length of the directive.
    private static int Directive(ReadOnlySpan<byte> raw, StringBuilder text, ref int page, int offset)
    {
        byte kind = raw.Length > 1 ? raw[1] : (byte)0;
        switch (kind)
        {
            case (byte)'\\':
                text.Append('\\');
                return 2;
            case (byte)'S' when raw.Length > 3 && raw[2] == '\\':
                text.Append(HighCharacter(raw[3], page));
                return 4;
            case (byte)'P' when raw.Length > 3 && raw[3] == '\\' && raw[2] is >= (byte)'A' and <= (byte)'I':
                page = CodePageBase + 1 + raw[2] - 'A';
                return 4;
            case (byte)'X' when raw.Length > 4 && raw[2] == '\\':
                text.Append((char)Hexadecimal(raw.Slice(3, 2), offset));
                return 5;
            case (byte)'X' when raw.Length > 3 && raw[3] == '\\' && raw[2] is (byte)'2' or (byte)'4':
                return Wide(raw, raw[2] == '2' ? 4 : 8, text, offset);
            default:
                // No directive: many programs write single backslashes, mostly in paths.
                text.Append('\\');
                return 1;
        }
    }

    private static int Wide(ReadOnlySpan<byte> raw, int width, StringBuilder text, int offset)
    {
        int length = raw[4..].IndexOf("\\X0\\"u8);
        if (length < 0 || length % width != 0)
        {
            throw new StepException(
                InvalidValue, offset, "a directive \\X2\\ or \\X4\\ has no whole characters up to \\X0\\");
        }

        for (int at = 4; at < 4 + length; at += width)
        {
            uint code = Hexadecimal(raw.Slice(at, width), offset);
            if (width == 4)
            {
                text.Append((char)code);
            }
            else if (Rune.TryCreate(code, out Rune rune))
            {
                text.Append(rune.ToString());
            }
            else
            {
                throw new StepException(
                    InvalidValue, offset, $"a string has the character {code:X}, which does not exist");
            }
        }

        return length + 8;
    }

    private static uint Hexadecimal(ReadOnlySpan<byte> digits, int offset)
    {
        return uint.TryParse(digits, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out uint value)
            ? value
            : throw new StepException(InvalidValue, offset, "a string directive has digits that are not hexadecimal");
    }

    private static char HighCharacter(byte low, int page)
    {
        byte[] bytes = [(byte)(low | 0x80)];
        return page == CodePageBase + 1
            ? (char)bytes[0]
            : (CodePagesEncodingProvider.Instance.GetEncoding(page) ?? Encoding.Latin1).GetString(bytes)[0];
    }

    // Earlier editions allow ASCII only, but other bytes are common: UTF-8, else ISO 8859-1.
    private static string Plain(ReadOnlySpan<byte> raw)
    {
        if (Ascii.IsValid(raw))
        {
            return Encoding.ASCII.GetString(raw);
        }

        try
        {
            return StrictUtf8.GetString(raw);
        }
        catch (DecoderFallbackException)
        {
            return Encoding.Latin1.GetString(raw);
        }
    }
}
