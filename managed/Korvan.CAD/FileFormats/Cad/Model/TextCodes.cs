using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A stretch of single-line text with the bars that run along it.</summary>
internal readonly record struct TextPiece(string Text, bool Underline, bool Overline, bool Strike);

/// <summary>
/// The control codes of single-line text: %%c %%d %%p for signs, %%u %%o %%k that switch bars, %%nnn for a character
/// by number, ^x for control characters, \U+XXXX and \M+nXXXX for characters beyond the drawing's code page.
/// </summary>
internal static class TextCodes
{
    internal static List<TextPiece> Parse(string text)
    {
        var pieces = new List<TextPiece>();
        Parse(text, pieces);
        return pieces;
    }

    /// <summary>Adds the pieces of a text; most have one, which is the text itself.</summary>
    internal static void Parse(string text, List<TextPiece> pieces)
    {
        if (text.Length > 0 && !HasSpecial(text))
        {
            pieces.Add(new TextPiece(text, false, false, false));
            return;
        }

        var pending = new StringBuilder();
        bool underline = false;
        bool overline = false;
        bool strike = false;
        void Flush()
        {
            if (pending.Length > 0)
            {
                pieces.Add(new TextPiece(pending.ToString(), underline, overline, strike));
                pending.Clear();
            }
        }

        for (int at = 0; at < text.Length;)
        {
            switch (SwitchAt(text, at))
            {
                case 'u':
                    Flush();
                    underline = !underline;
                    at += 3;
                    continue;
                case 'o':
                    Flush();
                    overline = !overline;
                    at += 3;
                    continue;
                case 'k':
                    Flush();
                    strike = !strike;
                    at += 3;
                    continue;
            }

            at += ReadCharacter(text, at, pending);
        }

        Flush();
    }

    /// <summary>The text as it reads, without bars.</summary>
    internal static string Plain(string text)
    {
        if (!HasSpecial(text))
        {
            return text;
        }

        var result = new StringBuilder(text.Length);
        foreach (TextPiece piece in Parse(text))
        {
            result.Append(piece.Text);
        }

        return result.ToString();
    }

    /// <summary>Appends the sign that begins at <paramref name="at"/> and says how many characters its code
    /// takes.</summary>
    internal static int ReadCharacter(string text, int at, StringBuilder into)
    {
        char c = text[at];
        if (c == '%' && at + 2 < text.Length && text[at + 1] == '%')
        {
            return ReadPercent(text, at, into);
        }

        if (c == '\\' && TryReadUnicode(text, at, into, out int length))
        {
            return length;
        }

        if (c == '^' && at + 1 < text.Length)
        {
            return ReadCaret(text[at + 1], into);
        }

        if (!char.IsControl(c) || c == '\t')
        {
            into.Append(c == '\t' ? ' ' : c);
        }

        return 1;
    }

    /// <summary>Reads \U+XXXX (one UTF-16 unit) or \M+nXXXX (a code page by number and two bytes).</summary>
    internal static bool TryReadUnicode(string text, int at, StringBuilder into, out int length)
    {
        length = 0;
        if (at + 6 < text.Length && text[at + 1] is 'U' or 'u' && text[at + 2] == '+'
            && TryHex(text, at + 3, out int unit))
        {
            into.Append((char)unit);
            length = 7;
            return true;
        }

        if (at + 7 < text.Length && text[at + 1] is 'M' or 'm' && text[at + 2] == '+'
            && MultibytePage(text[at + 3]) is int page && TryHex(text, at + 4, out int pair))
        {
            into.Append(DecodePair(page, pair));
            length = 8;
            return true;
        }

        return false;
    }

    private static int? MultibytePage(char digit) => digit switch
    {
        '1' => 932,
        '2' => 950,
        '3' => 949,
        '4' => 1361,
        '5' => 936,
        _ => null,
    };

    // Most texts have a few characters: less than a search by vectors takes to be prepared.
    private static bool HasSpecial(string text)
    {
        foreach (char c in text)
        {
            if (c is < ' ' or '%' or '^' or '\\' or (>= '\u007f' and < '\u00a0'))
            {
                return true;
            }
        }

        return false;
    }

    private static char SwitchAt(string text, int at)
    {
        bool isCode = text[at] == '%' && at + 2 < text.Length && text[at + 1] == '%';
        return isCode ? char.ToLowerInvariant(text[at + 2]) : '\0';
    }

    private static int ReadPercent(string text, int at, StringBuilder into)
    {
        char code = char.ToLowerInvariant(text[at + 2]);
        switch (code)
        {
            case 'c':
                into.Append('\u00d8');
                return 3;
            case 'd':
                into.Append('\u00b0');
                return 3;
            case 'p':
                into.Append('\u00b1');
                return 3;
            case '%':
                into.Append('%');
                return 3;
        }

        int digits = 0;
        int value = 0;
        while (digits < 3 && at + 2 + digits < text.Length && char.IsAsciiDigit(text[at + 2 + digits]))
        {
            value = (value * 10) + (text[at + 2 + digits] - '0');
            digits++;
        }

        if (digits == 0)
        {
            into.Append("%%");
            return 2;
        }

        // Numbers up to 255 mean the ANSI page; 128 to 131 were drawn as signs by the stroke fonts.
        into.Append(value switch
        {
            127 => "\u00b0",
            128 => "\u00b1",
            129 => "\u00d8",
            < 32 => string.Empty,
            _ => ((char)value).ToString(),
        });
        return 2 + digits;
    }

    private static int ReadCaret(char next, StringBuilder into)
    {
        switch (next)
        {
            case ' ':
                into.Append('^');
                return 2;
            case >= '@' and <= '_':
                into.Append(' ');
                return 2;
            default:
                into.Append('^');
                return 1;
        }
    }

    private static bool TryHex(string text, int at, out int value) =>
        int.TryParse(text.AsSpan(at, 4), NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out value);

    private static string DecodePair(int page, int pair)
    {
        Encoding encoding = CodePagesEncodingProvider.Instance.GetEncoding(page) ?? Encoding.Latin1;
        byte[] bytes = pair > 255 ? [(byte)(pair >> 8), (byte)pair] : [(byte)pair];
        return encoding.GetString(bytes);
    }
}
