using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>The kinds of tokens of a clear text metafile.</summary>
internal enum ClearTextToken
{
    Word,
    String,
    Terminator,
    End,
}

/// <summary>
/// Splits clear text into words, which are keywords and numbers, quoted strings, and terminators (ISO/IEC 8632-4, 6).
/// Parentheses only group, so they separate like spaces; underscores and dollar signs are ignored outside strings.
/// </summary>
internal sealed class ClearTextScanner(byte[] data)
{
    // 1: separator; 2: terminator; 3: start of a string or a comment.
    private static readonly byte[] Kinds = CreateKinds();

    private int _countedTo;
    private int _line = 1;

    internal int Position { get; set; }

    internal int Left => data.Length - Position;

    /// <summary>Moves to the next token and returns its kind.</summary>
    internal ClearTextToken Peek()
    {
        while (Position < data.Length)
        {
            byte character = data[Position];
            if (character == '%')
            {
                SkipComment();
            }
            else if (Kinds[character] == 1 || character is (byte)'_' or (byte)'$')
            {
                Position++;
            }
            else
            {
                return character switch
                {
                    (byte)';' or (byte)'/' => ClearTextToken.Terminator,
                    (byte)'\'' or (byte)'"' => ClearTextToken.String,
                    _ => ClearTextToken.Word,
                };
            }
        }

        return ClearTextToken.End;
    }

    /// <summary>Returns the line of a position, from 1. Only the text between it and the last position that was asked
    /// for is scanned.</summary>
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
            : throw new CgmDataException($"'{Shown(word)}' is no integer");
    }

    internal double ReadReal()
    {
        ReadOnlySpan<byte> word = TakeWord();
        bool isNumber = double.TryParse(word, NumberStyles.Float, CultureInfo.InvariantCulture, out double value);
        if (isNumber && double.IsFinite(value))
        {
            return value;
        }

        return TryParse(word, out long whole) ? whole : throw new CgmDataException($"'{Shown(word)}' is no number");
    }

    internal byte[] ReadString()
    {
        Expect(ClearTextToken.String, "a quoted string");
        byte quote = data[Position++];
        int start = Position;
        List<byte>? parts = null;
        while (true)
        {
            int length = data.AsSpan(Position).IndexOf(quote);
            if (length < 0)
            {
                throw new CgmDataException("a string has no closing quote");
            }

            Position += length + 1;
            if (Position == data.Length || data[Position] != quote)
            {
                ReadOnlySpan<byte> last = data.AsSpan(start, Position - 1 - start);
                return parts is null ? last.ToArray() : [.. parts, .. last];
            }

            // A quote inside a string is doubled.
            (parts ??= []).AddRange(data.AsSpan(start, Position - start));
            start = ++Position;
        }
    }

    /// <summary>Skips the rest of the element and its terminator.</summary>
    /// <returns>The count of words and strings that were skipped.</returns>
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
                case ClearTextToken.String:
                    SkipString();
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
        return mark > 0 && digits.Length > 0
            && int.TryParse(
                word[..mark].TrimStart("+-"u8), NumberStyles.None, CultureInfo.InvariantCulture, out int radix)
            && radix is >= 2 and <= 16
            && TryParse(digits, radix, isNegative, out value);
    }

    private static bool TryParse(ReadOnlySpan<byte> digits, int radix, bool isNegative, out long value)
    {
        value = 0;
        foreach (byte character in digits)
        {
            int digit = DigitOf(character);
            if (digit >= radix || value > long.MaxValue >> 5)
            {
                return false;
            }

            value = (value * radix) + digit;
        }

        value = isNegative ? -value : value;
        return true;
    }

    private static int DigitOf(byte character) => character switch
    {
        >= (byte)'0' and <= (byte)'9' => character - '0',
        >= (byte)'A' and <= (byte)'F' => character - 'A' + 10,
        >= (byte)'a' and <= (byte)'f' => character - 'a' + 10,
        _ => int.MaxValue,
    };

    private static string Shown(ReadOnlySpan<byte> word)
    {
        const int shownLength = 40;
        string shown = Encoding.Latin1.GetString(word[..Math.Min(word.Length, shownLength)]);
        return word.Length > shownLength ? shown + "..." : shown;
    }

    private static byte[] CreateKinds()
    {
        byte[] kinds = new byte[256];
        kinds.AsSpan(0, ' ' + 1).Fill(1);
        foreach (char separator in ",()\u00a0")
        {
            kinds[separator] = 1;
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
            ClearTextToken.String => $"there is a string where {what} is expected",
            _ => $"'{Shown(TakeWord())}' is where {what} is expected",
        });
    }

    // A word without ignored characters is returned without a copy.
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
        foreach (byte character in word)
        {
            if (character is not ((byte)'_' or (byte)'$'))
            {
                clean[count++] = character;
            }
        }

        return clean.AsSpan(0, count);
    }

    private void SkipWord()
    {
        while (Position < data.Length && Kinds[data[Position]] == 0)
        {
            Position++;
        }
    }

    private void SkipString()
    {
        // A doubled quote is skipped as two strings.
        int length = data.AsSpan(Position + 1).IndexOf(data[Position]);
        Position = length < 0 ? data.Length : Position + length + 2;
    }

    private void SkipComment()
    {
        int length = data.AsSpan(Position + 1).IndexOf((byte)'%');
        Position = length < 0 ? data.Length : Position + length + 2;
    }
}
