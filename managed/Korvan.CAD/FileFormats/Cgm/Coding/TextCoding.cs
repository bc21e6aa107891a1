using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using System.Text.Unicode;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Leads from the bytes of texts to letters and back. The set of characters that the metafile has selected counts;
/// sequences of ISO/IEC 2022 inside of a text lead to Unicode and back. Without either, bytes are Latin-1, unless they are
/// UTF-8.
/// </summary>
internal static class TextCoding
{
    private const byte Escape = 0x1B;
    private const int Set96 = 1, CompleteCode = 4;

    // The final letters of the sequences that designate the right halves of ISO/IEC 8859-1, -2 and so on.
    private const string RightHalves = "ABCDLGFHM";
    private const int FirstRightHalf = 28591;

    private static readonly UTF8Encoding s_utf8 = new(false, true);
    private static readonly UnicodeEncoding s_utf16 = new(true, false, true);

    // The complete codes by the ends of their sequences ESC % F and ESC % / F (register of ISO/IEC 2375).
    private static readonly string[] s_utf8Codes = ["G", "/G", "/H", "/I"];
    private static readonly string[] s_utf16Codes = ["/@", "/C", "/E", "/J", "/K", "/L"];

    internal static string Decode(ReadOnlySpan<byte> bytes, CodingState state)
    {
        Encoding selected = Selected(state);
        if (selected is UnicodeEncoding || bytes.IndexOf(Escape) < 0)
        {
            return Decode(bytes, IsUtf8Unsaid(bytes, state) ? s_utf8 : selected);
        }

        var text = new StringBuilder();
        Encoding current = selected;
        while (bytes.Length > 0)
        {
            int end = NextSequence(bytes, current);
            text.Append(Decode(bytes[..end], current));
            bytes = bytes[end..];
            bytes = bytes[SkipSequence(bytes, selected, ref current)..];
        }

        return text.ToString();
    }

    internal static byte[] Encode(string text, CodingState state)
    {
        Encoding selected = Selected(state);
        try
        {
            byte[] bytes = Strict(selected).GetBytes(text);
            return IsUtf8Unsaid(bytes, state) ? EncodeAsUnicode(text) : bytes;
        }
        catch (EncoderFallbackException)
        {
            return EncodeAsUnicode(text);
        }
    }

    // Programs of today write UTF-8 and select nothing. Hardly a Latin-1 text is UTF-8 by chance.
    private static bool IsUtf8Unsaid(ReadOnlySpan<byte> bytes, CodingState state) =>
        state.CharacterSets.Count == 0 && !Ascii.IsValid(bytes) && Utf8.IsValid(bytes);

    // Some programs write the columns and rows of the code table, as in "4/2" for B.
    private static string FromColumnsAndRows(string text)
    {
        var letters = new StringBuilder();
        foreach (string one in text.Split(' ', StringSplitOptions.RemoveEmptyEntries))
        {
            string[] parts = one.Split('/');
            if (parts.Length != 2 || !byte.TryParse(parts[0], NumberStyles.None, CultureInfo.InvariantCulture, out byte column)
                || !byte.TryParse(parts[1], NumberStyles.None, CultureInfo.InvariantCulture, out byte row) || column > 15 || row > 15)
            {
                return text;
            }

            letters.Append((char)((column << 4) | row));
        }

        return letters.ToString();
    }

    private static byte[] EncodeAsUnicode(string text)
    {
        try
        {
            return [.. "\u001b%G"u8, .. s_utf8.GetBytes(text), .. "\u001b%@"u8];
        }
        catch (EncoderFallbackException)
        {
            throw new CgmDataException("a text has half of a letter that takes two codes (a lone surrogate)");
        }
    }

    private static Encoding Strict(Encoding encoding)
    {
        if (ReferenceEquals(encoding, s_utf8) || ReferenceEquals(encoding, s_utf16))
        {
            return encoding;
        }

        (EncoderFallback refuse, DecoderFallback replace) = (EncoderFallback.ExceptionFallback, DecoderFallback.ReplacementFallback);
        return CodePagesEncodingProvider.Instance.GetEncoding(encoding.CodePage, refuse, replace) ?? Encoding.GetEncoding(encoding.CodePage, refuse, replace);
    }

    private static Encoding Selected(CodingState state)
    {
        IReadOnlyList<(int Kind, string Tail)> sets = state.CharacterSets;
        if (sets.Count == 0)
        {
            return Encoding.Latin1;
        }

        (int kind, string tail) = At(sets, state.Current.CharacterSet);
        if (kind == CompleteCode && Complete(tail) is Encoding complete)
        {
            return complete;
        }

        (kind, tail) = At(sets, state.Current.AlternateCharacterSet);
        int half = kind == Set96 && tail.Length == 1 ? RightHalves.IndexOf(tail[0]) : -1;
        return half > 0 ? CodePagesEncodingProvider.Instance.GetEncoding(FirstRightHalf + half) ?? Encoding.Latin1 : Encoding.Latin1;
    }

    private static (int Kind, string Tail) At(IReadOnlyList<(int Kind, string Tail)> sets, int number) =>
        number >= 1 && number <= sets.Count ? (sets[number - 1].Kind, FromColumnsAndRows(sets[number - 1].Tail)) : (-1, "");

    private static Encoding? Complete(string tail) =>
        Array.IndexOf(s_utf8Codes, tail) >= 0 ? s_utf8 : Array.IndexOf(s_utf16Codes, tail) >= 0 ? s_utf16 : null;

    private static string Decode(ReadOnlySpan<byte> bytes, Encoding encoding)
    {
        try
        {
            return encoding.GetString(bytes);
        }
        catch (DecoderFallbackException)
        {
            return Encoding.Latin1.GetString(bytes);
        }
    }

    // In UTF-16 the sequence has two bytes a letter, too.
    private static int NextSequence(ReadOnlySpan<byte> bytes, Encoding current)
    {
        int end = current is UnicodeEncoding ? bytes.IndexOf((ReadOnlySpan<byte>)[0, Escape, 0, (byte)'%']) : bytes.IndexOf(Escape);
        return end < 0 ? bytes.Length : end;
    }

    private static int SkipSequence(ReadOnlySpan<byte> bytes, Encoding selected, ref Encoding current)
    {
        int step = current is UnicodeEncoding ? 2 : 1;
        int at = step;
        var tail = new StringBuilder();
        for (; at < bytes.Length; at += step)
        {
            char letter = (char)bytes[at + step - 1 < bytes.Length ? at + step - 1 : at];
            tail.Append(letter);
            if (letter is < ' ' or > '/')
            {
                at += step;
                break;
            }
        }

        string sequence = tail.ToString();
        if (sequence.StartsWith('%'))
        {
            current = Complete(sequence[1..]) ?? selected;
        }

        return Math.Min(at, bytes.Length);
    }
}
