using System;
using System.Buffers.Binary;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>
/// Reads compiled shape files. They begin with a sentinel that ends with the byte 1A. Those of shapes have the first
/// and last number, the count, number and length of each shape, then the shapes; those of Unicode the count, the data
/// of the font, then number, length and data of each; big fonts the ranges of lead bytes, and an index with number,
/// length and offset. Of a file that ends early, the shapes that are whole are read.
/// </summary>
internal static class ShapeFileReader
{
    private const int EndOfText = 0x1A;
    private const int MaxSentinel = 64;

    private static ReadOnlySpan<byte> Shapes => "AutoCAD-86 shapes V1."u8;

    private static ReadOnlySpan<byte> Unicode => "AutoCAD-86 unifont 1."u8;

    private static ReadOnlySpan<byte> Big => "AutoCAD-86 bigfont 1."u8;

    /// <summary>Reads a file; null where it has no shape.</summary>
    internal static ShapeFile? Read(ReadOnlySpan<byte> data)
    {
        int start = data[..Math.Min(data.Length, MaxSentinel)].IndexOf((byte)EndOfText) + 1;
        if (start <= 0)
        {
            return null;
        }

        return data.StartsWith(Shapes) ? ReadShapes(data, start)
            : data.StartsWith(Unicode) ? ReadUnicode(data, start)
            : data.StartsWith(Big) ? ReadBig(data, start)
            : null;
    }

    private static int UInt16(ReadOnlySpan<byte> data, int at) =>
        at >= 0 && at + 2 <= data.Length ? BinaryPrimitives.ReadUInt16LittleEndian(data[at..]) : 0;

    private static ShapeFile? ReadShapes(ReadOnlySpan<byte> data, int start)
    {
        const int countsLength = 6;
        const int entryLength = 4;
        ShapeFile file = new(ShapeFileKind.Shapes);
        int count = UInt16(data, start + 4);
        int at = start + countsLength + (entryLength * count);
        int read = 0;
        for (int i = 0; i < count; i++)
        {
            int entry = start + countsLength + (entryLength * i);
            int length = UInt16(data, entry + 2);
            if (at + length > data.Length)
            {
                break;
            }

            file.Add(UInt16(data, entry), data.Slice(at, length));
            at += length;
            read++;
        }

        return read > 0 ? file : null;
    }

    private static ShapeFile? ReadUnicode(ReadOnlySpan<byte> data, int start)
    {
        const int entryLength = 4;
        ShapeFile file = new(ShapeFileKind.Unicode);

        // The data of the font has a length alone, or a number of zero before it.
        int at = start + 2;
        at += UInt16(data, at) == 0 ? 2 : 0;
        int header = UInt16(data, at);
        at += 2;
        if (header == 0 || at + header > data.Length)
        {
            return null;
        }

        file.Add(0, data.Slice(at, header));
        int read = 0;
        for (at += header; at + entryLength <= data.Length; read++)
        {
            int length = UInt16(data, at + 2);
            if (at + entryLength + length > data.Length)
            {
                break;
            }

            file.Add(UInt16(data, at), data.Slice(at + entryLength, length));
            at += entryLength + length;
        }

        return read > 0 ? file : null;
    }

    private static ShapeFile? ReadBig(ReadOnlySpan<byte> data, int start)
    {
        const int entryLength = 8;
        const int rangeLength = 4;
        ShapeFile file = new(ShapeFileKind.Big);
        int count = UInt16(data, start + 2);
        int ranges = UInt16(data, start + 4);
        int at = start + 6;
        for (int i = 0; i < ranges && at + rangeLength <= data.Length; i++, at += rangeLength)
        {
            file.LeadBytes.Add((UInt16(data, at) & 0xFF, UInt16(data, at + 2) & 0xFF));
        }

        List<(int Number, int Length, uint Offset)> index = [];
        for (int i = 0; i < count && at + entryLength <= data.Length; i++, at += entryLength)
        {
            uint offset = BinaryPrimitives.ReadUInt32LittleEndian(data[(at + 4)..]);
            index.Add((UInt16(data, at), UInt16(data, at + 2), offset));
        }

        bool isSwapped = IsSwapped(index, file.LeadBytes);
        int read = 0;
        foreach ((int number, int length, uint offset) in index)
        {
            if (length > 0 && offset < data.Length && length <= data.Length - offset)
            {
                int own = isSwapped && number > 0xFF ? BinaryPrimitives.ReverseEndianness((ushort)number) : number;
                file.Add(own, data.Slice((int)offset, length));
                read++;
            }
        }

        return read > 0 ? file : null;
    }

    // Compilers differ in the order of the two bytes of a number; the first is a lead byte.
    private static bool IsSwapped(
        List<(int Number, int Length, uint Offset)> index, List<(int First, int Last)> leads)
    {
        int high = 0;
        int low = 0;
        foreach ((int number, _, _) in index)
        {
            bool isWide = number > 0xFF;
            high += isWide && leads.Exists(range => number >> 8 >= range.First && number >> 8 <= range.Last) ? 1 : 0;
            low += isWide && leads.Exists(range => (number & 0xFF) >= range.First && (number & 0xFF) <= range.Last)
                ? 1 : 0;
        }

        return low > high;
    }
}
