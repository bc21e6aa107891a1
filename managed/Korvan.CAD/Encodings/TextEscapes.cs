using System;
using System.Collections.Concurrent;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Encodings;

/// <summary>
/// Letters that a code page lacks: <c>\U+XXXX</c> is one UTF-16 unit, <c>\M+nXXXX</c> a double byte of one of five
/// East Asian code pages.
/// </summary>
/// <param name="page">The code page of all double bytes, whatever their digit says.</param>
/// <param name="recover">Whether damaged sequences are read as what they were meant to be.</param>
internal sealed class TextEscapes(MifCodePages page, bool recover)
{
    /// <summary>Whole sequences, in the code pages that they name.</summary>
    internal static readonly TextEscapes Standard = new(MifCodePages.Undefined, false);

    private static readonly ConcurrentDictionary<int, Encoding> Escapings = new();

    private readonly MifCodePageDecoder _decoder = new(page);

    internal bool MayHaveEscapes(ReadOnlySpan<byte> text)
    {
        return text.IndexOf("\\U+"u8) >= 0 || text.IndexOf("\\M+"u8) >= 0
            || (recover && (text.IndexOf("\\u+"u8) >= 0 || text.IndexOf("\\m+"u8) >= 0));
    }

    internal string Decode(string text)
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

    /// <summary>The encoding, which writes letters that it lacks as sequences.</summary>
    internal static Encoding Escaping(Encoding encoding)
    {
        return encoding is UTF8Encoding
            ? encoding
            : Escapings.GetOrAdd(encoding.CodePage, static number => WithFallback(DwgCodePage.Get(number)));
    }

    private static Encoding WithFallback(Encoding encoding)
    {
        var result = (Encoding)encoding.Clone();
        result.EncoderFallback = new CifReplacingEncoderFallback();
        return result;
    }

    private bool TryTake(ReadOnlySpan<char> text, out string? letter, out int length)
    {
        if (TryTakeWhole(text, out letter, out length) || !recover)
        {
            return letter is not null;
        }

        // "\\U+00E9": the first backslash goes, too.
        if (text is ['\\', '\\', ..] && TryTakeWhole(text[1..], out letter, out length))
        {
            length++;
            return true;
        }

        return TryTakeDamaged(text, out letter, out length);
    }

    private bool TryTakeWhole(ReadOnlySpan<char> text, out string? letter, out int length)
    {
        letter = null;
        length = 0;
        if (text is ['\\', 'U', '+', ..] && text.Length >= 7 && MifCodePageDecoder.TryBytes(text[3..7], out ushort unit))
        {
            letter = ((char)unit).ToString();
            length = 7;
        }
        else if (text is ['\\', 'M', '+', ..] && _decoder.TryDecode(text, out letter))
        {
            length = MifCodePageDecoder.SequenceLength;
        }

        return letter is not null;
    }

    private bool TryTakeDamaged(ReadOnlySpan<char> text, out string? letter, out int length)
    {
        letter = null;
        length = 0;
        if (text is not ['\\', 'U' or 'u' or 'M' or 'm', '+', ..])
        {
            return false;
        }

        int digits = 0;
        while (digits < 5 && 3 + digits < text.Length && char.IsAsciiHexDigit(text[3 + digits]))
        {
            digits++;
        }

        if (text[1] is 'U' or 'u')
        {
            digits = Math.Min(digits, 4);
            letter = digits > 0 && MifCodePageDecoder.TryBytes(text.Slice(3, digits), out ushort unit) ? ((char)unit).ToString() : null;
        }
        else if (digits == 5)
        {
            _decoder.TryDecode(text, out letter);
        }
        else if (digits == 4 && page != MifCodePages.Undefined && MifCodePageDecoder.TryBytes(text.Slice(3, 4), out ushort pair))
        {
            letter = MifCodePageDecoder.Letters(page, pair);
        }

        length = 3 + digits;
        return letter is not null;
    }
}
