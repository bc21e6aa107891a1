using System;
using System.Buffers;
using System.Text;
using Korvan.CAD.Input;

namespace Korvan.CAD.Formats.Detection;

/// <summary>Finds the root element of an XML document, after declarations and comments.</summary>
internal static class XmlRoot
{
    private const byte NameEnd = (byte)'>';

    private static readonly SearchValues<byte> NameEnds = SearchValues.Create(" \t\r\n/>"u8);

    /// <summary>Returns whether a source is XML with a root element of a name, in any namespace.</summary>
    internal static bool Is(SourceWindow source, string name)
    {
        byte[] wanted = Encoding.ASCII.GetBytes(name);
        return source.Search((start, isWhole) => Compare(start, wanted, isWhole)) == FileFormat.Custom;
    }

    // The search returns a format: Custom means yes.
    private static FileFormat? Compare(ReadOnlySpan<byte> start, byte[] wanted, bool isWhole)
    {
        ReadOnlySpan<byte> rest = start.StartsWith("\uFEFF"u8) ? start[3..] : start;
        while (true)
        {
            rest = rest.TrimStart(" \t\r\n"u8);
            if (rest.IsEmpty)
            {
                return isWhole ? FileFormat.Undefined : null;
            }

            if (rest[0] != '<')
            {
                return FileFormat.Undefined;
            }

            ReadOnlySpan<byte> end = rest.StartsWith("<!--"u8) ? "-->"u8 : rest.StartsWith("<?"u8) ? "?>"u8
                : rest.StartsWith("<!"u8) ? DeclarationEnd(rest) : [];
            if (end.IsEmpty)
            {
                return IsNamed(rest[1..], wanted) ? FileFormat.Custom : FileFormat.Undefined;
            }

            int place = rest.IndexOf(end);
            if (place < 0)
            {
                return isWhole ? FileFormat.Undefined : null;
            }

            rest = rest[(place + end.Length)..];
        }
    }

    // A document type declaration with an internal subset ends after its bracket.
    private static ReadOnlySpan<byte> DeclarationEnd(ReadOnlySpan<byte> declaration)
    {
        int bracket = declaration.IndexOf((byte)'[');
        int end = declaration.IndexOf(NameEnd);
        return bracket >= 0 && bracket < end ? "]>"u8 : ">"u8;
    }

    private static bool IsNamed(ReadOnlySpan<byte> tag, byte[] wanted)
    {
        int end = tag.IndexOfAny(NameEnds);
        ReadOnlySpan<byte> name = end < 0 ? tag : tag[..end];
        int prefix = name.IndexOf((byte)':');
        return name[(prefix + 1)..].SequenceEqual(wanted);
    }
}
