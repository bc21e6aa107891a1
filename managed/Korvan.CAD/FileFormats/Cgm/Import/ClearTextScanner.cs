using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>What stands at a place of a clear text metafile.</summary>
internal enum ClearTextToken
{
    Word,
    Text,
    Terminator,
    End,
}

/// <summary>
/// Parts clear text into words, which numbers are too, texts in quotes, and the ends of elements (ISO/IEC 8632-4, 6).
/// Brackets only group, so they part like blanks; low lines and dollar signs mean nothing anywhere but in texts.
/// </summary>
internal sealed class ClearTextScanner(byte[] data)
{
    // 1: parts words; 2: ends an element; 3: begins a text or a comment.
    private static readonly byte[] s_kinds = Kinds();

    private int _countedTo;
    private int _line = 1;

    internal int Position { get; set; }

    internal int Left => data.Length - Position;

    /// <summary>Goes to the next thing that has a meaning, and tells what it is.</summary>
    internal ClearTextToken Peek()
    {
        while (Position < data.Length)
        {
            byte letter = data[Position];
            if (letter == '%')
            {
                SkipComment();
            }
            else if (s_kinds[letter] == 1 || letter is (byte)'_' or (byte)'$')
            {
                Position++;
            }
            else
            {
                return letter switch
                {
                    (byte)';' or (byte)'/' => ClearTextToken.Terminator,
                    (byte)'\'' or (byte)'"' => ClearTextToken.Text,
                    _ => ClearTextToken.Word,
                };
            }
        }

        return ClearTextToken.End;
    }

    /// <summary>Tells the line of a place, counted from 1. Only what lies between it and the place asked for before is
    /// looked at.</summary>
    internal int LineOf(int position)
    {
        (int start, int end) = (Math.Min(position, _countedTo), Math.Max(position, _countedTo));
        int lines = data.AsSpan(start, end - start).Count((byte)'\n');
        _line += position >= _countedTo ? lines : -lines;
        _countedTo = position;
        return _line;
    }

    internal string ReadWord() => Encoding.Latin1.GetString(TakeWord());

    internal long ReadInteger()
    {
        ReadOnlySpan<byte> word = TakeWord();
        if (TryParse(word, out long value))
        {
            return value;
        }

        // "1E3" is whole, too.
        bool isNumber = double.TryParse(word, NumberStyles.Float, CultureInfo.InvariantCulture, out double real);
        return isNumber && real == Math.Floor(real) && Math.Abs(real) < long.MaxValue
            ? (long)real
            : throw new CgmDataException($"'{Shown(word)}' is no whole number");
    }

    internal double ReadReal()
    {
        ReadOnlySpan<byte> word = TakeWord();
        if (double.TryParse(word, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) && double.IsFinite(value))
        {
            return value;
        }

        return TryParse(word, out long whole) ? whole : throw new CgmDataException($"'{Shown(word)}' is no number");
    }

    internal byte[] ReadText()
    {
        Expect(ClearTextToken.Text, "a text in quotes");
        byte quote = data[Position++];
        int start = Position;
        List<byte>? parts = null;
        while (true)
        {
            int length = data.AsSpan(Position).IndexOf(quote);
            if (length < 0)
            {
                throw new CgmDataException("a text has no quote at its end");
            }

            Position += length + 1;
            if (Position == data.Length || data[Position] != quote)
            {
                ReadOnlySpan<byte> last = data.AsSpan(start, Position - 1 - start);
                return parts is null ? last.ToArray() : [.. parts, .. last];
            }

            // A quote inside of a text is doubled.
            (parts ??= []).AddRange(data.AsSpan(start, Position - start));
            start = ++Position;
        }
    }

    /// <summary>Goes behind the end of the element, over whatever it still has.</summary>
    /// <returns>How many words and texts were passed over.</returns>
    internal int SkipElement()
    {
        for (int count = 0; ; count++)
        {
            switch (Peek())
            {
                case ClearTextToken.Terminator:
                    Position++;
                    return count;
                case ClearTextToken.End:
                    return count;
                case ClearTextToken.Text:
                    SkipText();
                    break;
                default:
                    SkipWord();
                    break;
            }
        }
    }

    internal string Source(int start, int end) => Encoding.Latin1.GetString(data.AsSpan(start, end - start));

    private static bool TryParse(ReadOnlySpan<byte> word, out long value)
    {
        if (long.TryParse(word, NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out value))
        {
            return true;
        }

        int mark = word.IndexOf((byte)'#');
        bool isNegative = word.StartsWith("-"u8);
        ReadOnlySpan<byte> digits = word[(mark + 1)..];
        return mark > 0 && digits.Length > 0 && int.TryParse(word[..mark].TrimStart("+-"u8), NumberStyles.None, CultureInfo.InvariantCulture, out int radix)
            && radix is >= 2 and <= 16 && TryParse(digits, radix, isNegative, out value);
    }

    private static bool TryParse(ReadOnlySpan<byte> digits, int radix, bool isNegative, out long value)
    {
        value = 0;
        foreach (byte letter in digits)
        {
            int digit = char.IsAsciiHexDigit((char)letter) ? Convert.ToInt32(((char)letter).ToString(), 16) : radix;
            if (digit >= radix || value > long.MaxValue >> 5)
            {
                return false;
            }

            value = (value * radix) + digit;
        }

        value = isNegative ? -value : value;
        return true;
    }

    private static string Shown(ReadOnlySpan<byte> word)
    {
        const int shownLength = 40;
        return Encoding.Latin1.GetString(word[..Math.Min(word.Length, shownLength)]) + (word.Length > shownLength ? "..." : "");
    }

    private static byte[] Kinds()
    {
        byte[] kinds = new byte[256];
        kinds.AsSpan(0, ' ' + 1).Fill(1);
        foreach (char letter in ",()\u00a0")
        {
            kinds[letter] = 1;
        }

        (kinds[';'], kinds['/']) = (2, 2);
        (kinds['\''], kinds['"'], kinds['%']) = (3, 3, 3);
        return kinds;
    }

    private void Expect(ClearTextToken token, string what)
    {
        ClearTextToken found = Peek();
        if (found == token)
        {
            return;
        }

        throw new CgmDataException(found switch
        {
            ClearTextToken.End => $"the file ends where {what} is expected",
            ClearTextToken.Terminator => $"the parameters end where {what} is expected",
            ClearTextToken.Text => $"a text stands where {what} is expected",
            _ => $"'{Shown(TakeWord())}' stands where {what} is expected",
        });
    }

    // A word that has no letters without meaning is given as it stands.
    private ReadOnlySpan<byte> TakeWord()
    {
        Expect(ClearTextToken.Word, "a word or number");
        int start = Position;
        SkipWord();
        ReadOnlySpan<byte> word = data.AsSpan(start, Position - start);
        if (word.IndexOfAny((byte)'_', (byte)'$') < 0)
        {
            return word;
        }

        byte[] clean = new byte[word.Length];
        int count = 0;
        foreach (byte letter in word)
        {
            if (letter is not ((byte)'_' or (byte)'$'))
            {
                clean[count++] = letter;
            }
        }

        return clean.AsSpan(0, count);
    }

    private void SkipWord()
    {
        while (Position < data.Length && s_kinds[data[Position]] == 0)
        {
            Position++;
        }
    }

    private void SkipText()
    {
        // A doubled quote is passed over as two texts.
        int length = data.AsSpan(Position + 1).IndexOf(data[Position]);
        Position = length < 0 ? data.Length : Position + length + 2;
    }

    private void SkipComment()
    {
        int length = data.AsSpan(Position + 1).IndexOf((byte)'%');
        Position = length < 0 ? data.Length : Position + length + 2;
    }
}
