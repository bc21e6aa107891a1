using System;
using System.Collections.Concurrent;
using System.Text;

namespace Korvan.CAD.Encodings;

/// <summary>
/// Escape sequences for characters that a code page lacks: <c>\U+XXXX</c> is a UTF-16 code unit, <c>\M+nXXXX</c> a
/// double byte of one of five East Asian code pages.
/// </summary>
/// <param name="page">The code page of all double bytes, regardless of their digit.</param>
/// <param name="recover">Whether malformed sequences are decoded as well.</param>
internal sealed class TextEscapes(MifCodePages page, bool recover)
{
    /// <summary>Decodes well-formed sequences, in the code pages that they name.</summary>
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
            if (TryTake(text.AsSpan(next), out string? character, out int length))
            {
                result.Append(text, done, next - done).Append(character);
                done = next + length;
            }
        }

        return result.Append(text, done, text.Length - done).ToString();
    }

    /// <summary>Returns the encoding with a fallback that writes characters which it lacks as sequences.</summary>
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

    private bool TryTake(ReadOnlySpan<char> text, out string? character, out int length)
    {
        if (TryTakeWhole(text, out character, out length) || !recover)
        {
            return character is not null;
        }

        // "\\U+00E9": the first backslash is removed, too.
        if (text is ['\\', '\\', ..] && TryTakeWhole(text[1..], out character, out length))
        {
            length++;
            return true;
        }

        return TryTakeDamaged(text, out character, out length);
    }

    private bool TryTakeWhole(ReadOnlySpan<char> text, out string? character, out int length)
    {
        character = null;
        length = 0;
        if (text is ['\\', 'U', '+', ..] && text.Length >= 7
            && MifCodePageDecoder.TryBytes(text[3..7], out ushort unit))
        {
            character = ((char)unit).ToString();
            length = 7;
        }
        else if (text is ['\\', 'M', '+', ..] && _decoder.TryDecode(text, out character))
        {
            length = MifCodePageDecoder.SequenceLength;
        }

        return character is not null;
    }

    private bool TryTakeDamaged(ReadOnlySpan<char> text, out string? character, out int length)
    {
        character = null;
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
            character = digits > 0 && MifCodePageDecoder.TryBytes(text.Slice(3, digits), out ushort unit)
                ? ((char)unit).ToString()
                : null;
        }
        else if (digits == 5)
        {
            _decoder.TryDecode(text, out character);
        }
        else if (digits == 4 && page != MifCodePages.Undefined
            && MifCodePageDecoder.TryBytes(text.Slice(3, 4), out ushort pair))
        {
            character = MifCodePageDecoder.Characters(page, pair);
        }

        length = 3 + digits;
        return character is not null;
    }
}
