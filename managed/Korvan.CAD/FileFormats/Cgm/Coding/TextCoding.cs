using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using System.Text.Unicode;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Decodes the bytes of strings and encodes them. The selected character set of the metafile applies; ISO/IEC 2022
/// sequences inside a string switch to Unicode and back. Without either, bytes are Latin-1, unless they are UTF-8.
/// </summary>
internal static class TextCoding
{
    private const byte Escape = 0x1B;
    private const int Set96 = 1, CompleteCode = 4;

    // The final characters of the sequences that designate the right halves of ISO/IEC 8859-1, -2 and so on.
    private const string RightHalves = "ABCDLGFHM";
    private const int FirstRightHalf = 28591;

    private static readonly UTF8Encoding StrictUtf8 = new(false, true);
    private static readonly UnicodeEncoding StrictUtf16 = new(true, false, true);

    // The complete codes by the ends of their sequences ESC % F and ESC % / F (register of ISO/IEC 2375).
    private static readonly string[] Utf8Codes = ["G", "/G", "/H", "/I"];
    private static readonly string[] Utf16Codes = ["/@", "/C", "/E", "/J", "/K", "/L"];

    internal static string Decode(ReadOnlySpan<byte> bytes, CodingState state)
    {
        Encoding selected = Selected(state);
        if (selected is UnicodeEncoding || bytes.IndexOf(Escape) < 0)
        {
            return Decode(bytes, IsUndeclaredUtf8(bytes, state) ? StrictUtf8 : selected);
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
            return IsUndeclaredUtf8(bytes, state) ? EncodeAsUnicode(text) : bytes;
        }
        catch (EncoderFallbackException)
        {
            return EncodeAsUnicode(text);
        }
    }

    // Many programs write UTF-8 without declaring it. Latin-1 strings are hardly ever valid UTF-8 by chance.
    private static bool IsUndeclaredUtf8(ReadOnlySpan<byte> bytes, CodingState state) =>
        state.CharacterSets.Count == 0 && !Ascii.IsValid(bytes) && Utf8.IsValid(bytes);

    // Some programs write the columns and rows of the code table, as in "4/2" for B.
    private static string FromColumnsAndRows(string text)
    {
        var characters = new StringBuilder();
        foreach (string one in text.Split(' ', StringSplitOptions.RemoveEmptyEntries))
        {
            string[] parts = one.Split('/');
            if (parts.Length != 2
                || !TryParseNibble(parts[0], out int column)
                || !TryParseNibble(parts[1], out int row))
            {
                return text;
            }

            characters.Append((char)((column << 4) | row));
        }

        return characters.ToString();
    }

    private static bool TryParseNibble(string digits, out int value) =>
        int.TryParse(digits, NumberStyles.None, CultureInfo.InvariantCulture, out value) && value <= 15;

    private static byte[] EncodeAsUnicode(string text)
    {
        try
        {
            return [.. "\u001b%G"u8, .. StrictUtf8.GetBytes(text), .. "\u001b%@"u8];
        }
        catch (EncoderFallbackException)
        {
            throw new CgmDataException("a string has a lone surrogate");
        }
    }

    private static Encoding Strict(Encoding encoding)
    {
        if (ReferenceEquals(encoding, StrictUtf8) || ReferenceEquals(encoding, StrictUtf16))
        {
            return encoding;
        }

        EncoderFallback refuse = EncoderFallback.ExceptionFallback;
        DecoderFallback replace = DecoderFallback.ReplacementFallback;
        return CodePagesEncodingProvider.Instance.GetEncoding(encoding.CodePage, refuse, replace)
            ?? Encoding.GetEncoding(encoding.CodePage, refuse, replace);
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
        Encoding? right = half > 0 ? CodePagesEncodingProvider.Instance.GetEncoding(FirstRightHalf + half) : null;
        return right ?? Encoding.Latin1;
    }

    private static (int Kind, string Tail) At(IReadOnlyList<(int Kind, string Tail)> sets, int number) =>
        number >= 1 && number <= sets.Count
            ? (sets[number - 1].Kind, FromColumnsAndRows(sets[number - 1].Tail))
            : (-1, "");

    private static Encoding? Complete(string tail) =>
        Array.IndexOf(Utf8Codes, tail) >= 0 ? StrictUtf8 : Array.IndexOf(Utf16Codes, tail) >= 0 ? StrictUtf16 : null;

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

    // In UTF-16 each character of the sequence has two bytes, too.
    private static int NextSequence(ReadOnlySpan<byte> bytes, Encoding current)
    {
        int end = current is UnicodeEncoding
            ? bytes.IndexOf((ReadOnlySpan<byte>)[0, Escape, 0, (byte)'%'])
            : bytes.IndexOf(Escape);
        return end < 0 ? bytes.Length : end;
    }

    private static int SkipSequence(ReadOnlySpan<byte> bytes, Encoding selected, ref Encoding current)
    {
        int step = current is UnicodeEncoding ? 2 : 1;
        int at = step;
        var tail = new StringBuilder();
        for (; at < bytes.Length; at += step)
        {
            char character = (char)bytes[at + step - 1 < bytes.Length ? at + step - 1 : at];
            tail.Append(character);
            if (character is < ' ' or > '/')
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
