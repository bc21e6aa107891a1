using System;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>The strings of sections about the drawing: 8-bit characters up to release 2004, UTF-16 later.</summary>
/// <param name="release">The release as a year.</param>
/// <param name="encoding">The encoding of 8-bit characters.</param>
internal sealed class SectionText(int release, Encoding encoding)
{
    private const int FirstUnicode = 2007;

    /// <summary>Gets the strings of all releases from 2007 on.</summary>
    internal static SectionText Unicode { get; } = new(FirstUnicode, Encoding.Unicode);

    /// <summary>Gets whether strings are UTF-16.</summary>
    internal bool IsUnicode => release >= FirstUnicode;

    /// <summary>Reads a string after the number of its characters, the zero at its end included.</summary>
    internal string Read(ref RawReader reader)
    {
        int length = reader.UInt16();
        return Decode(reader.Take(IsUnicode ? 2 * length : length));
    }

    /// <summary>Reads a string after the number of its bytes.</summary>
    internal string ReadLong(ref RawReader reader) => Decode(reader.Take(reader.UInt32()));

    /// <summary>Writes a string after the number of its characters, with a zero at its end.</summary>
    /// <exception cref="ImageSaveException">The string is longer than the number can state.</exception>
    internal void Write(BinaryWriter writer, string value)
    {
        byte[] bytes = Encode(value + "\0");
        int length = IsUnicode ? bytes.Length / 2 : bytes.Length;
        if (length > ushort.MaxValue)
        {
            throw new ImageSaveException($"A string of the summary of the drawing has {length - 1} characters; drawing "
                + $"databases hold at most {ushort.MaxValue - 1}.");
        }

        writer.Write((ushort)length);
        writer.Write(bytes);
    }

    /// <summary>Writes a string after the number of its bytes.</summary>
    internal void WriteLong(BinaryWriter writer, string value)
    {
        byte[] bytes = Encode(value);
        writer.Write(bytes.Length);
        writer.Write(bytes);
    }

    private string Decode(ReadOnlySpan<byte> bytes)
    {
        if (IsUnicode)
        {
            return Encoding.Unicode.GetString(bytes).TrimEnd('\0');
        }

        string text = encoding.GetString(bytes).TrimEnd('\0');
        return text.Contains('\\') ? TextEscapes.Standard.Decode(text) : text;
    }

    private byte[] Encode(string value) =>
        (IsUnicode ? Encoding.Unicode : TextEscapes.Escaping(encoding)).GetBytes(value);
}
