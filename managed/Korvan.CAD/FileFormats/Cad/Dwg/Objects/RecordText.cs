using System;
using System.Buffers;
using System.Text;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Strings of drawing databases, and as text files have them: control characters are a caret and a
/// letter.</summary>
internal static class RecordText
{
    private const char Caret = '^';
    private const char LastControl = '\x1F';
    private const int Offset = '@';

    /// <summary>Returns a string of a file as the model has it.</summary>
    internal static string FromFile(string text)
    {
        string decoded = text.Contains('\\') ? TextEscapes.Standard.Decode(text) : text;
        return decoded.AsSpan().IndexOfAnyInRange('\0', LastControl) < 0 ? decoded : WithCarets(decoded);
    }

    /// <summary>Returns a string of the model as files have it.</summary>
    internal static string ToFile(string text)
    {
        if (!text.Contains(Caret))
        {
            return text;
        }

        StringBuilder result = new(text.Length);
        for (int i = 0; i < text.Length; i++)
        {
            bool isControl = text[i] == Caret && i + 1 < text.Length && text[i + 1] is 'I' or 'J' or 'M';
            result.Append(isControl ? (char)(text[++i] - Offset) : text[i]);
        }

        return result.ToString();
    }

    private static string WithCarets(string text)
    {
        StringBuilder result = new(text.Length + 1);
        foreach (char c in text)
        {
            _ = c <= LastControl ? result.Append(Caret).Append((char)(c + Offset)) : result.Append(c);
        }

        return result.ToString();
    }

    /// <summary>Returns the bytes of a value in hexadecimal.</summary>
    /// <exception cref="DwgFault">It is something else.</exception>
    internal static byte[] ToBytes(string value)
    {
        byte[] bytes = new byte[value.Length / 2];
        return Convert.FromHexString(value.AsSpan().Trim(), bytes, out _, out int count) == OperationStatus.Done
            ? bytes[..count] : throw new DwgFault(0, $"'{value}' is not binary data in hexadecimal");
    }
}
