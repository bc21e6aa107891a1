using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>
/// A compiled shape file: symbols by name and number. Its layout: a sentinel that ends with the byte 1A, the first and
/// last number and the count of shapes, number and length of each, then for each its name, a zero and its code.
/// </summary>
internal sealed class ShapeFile
{
    private const int EndOfText = 0x1A;
    private const int CountsLength = 6;

    private readonly Dictionary<int, byte[]> _codes = [];
    private readonly Dictionary<string, int> _numbers = new(StringComparer.OrdinalIgnoreCase);

    private ShapeFile()
    {
    }

    private static ReadOnlySpan<byte> Sentinel => "AutoCAD-86 shapes V1."u8;

    /// <summary>Reads a file.</summary>
    /// <returns>Its shapes; null where it is not a shape file or is damaged.</returns>
    internal static ShapeFile? TryRead(byte[] data)
    {
        int start = Array.IndexOf(data, (byte)EndOfText) + 1;
        if (!data.AsSpan().StartsWith(Sentinel) || start <= 0 || data.Length < start + CountsLength)
        {
            return null;
        }

        int count = BinaryPrimitives.ReadUInt16LittleEndian(data.AsSpan(start + 4));
        int at = start + CountsLength + (4 * count);
        ShapeFile file = new();
        for (int i = 0; i < count; i++)
        {
            int entry = start + CountsLength + (4 * i);
            if (entry + 4 > data.Length)
            {
                return null;
            }

            int number = BinaryPrimitives.ReadUInt16LittleEndian(data.AsSpan(entry));
            int length = BinaryPrimitives.ReadUInt16LittleEndian(data.AsSpan(entry + 2));
            if (at + length > data.Length)
            {
                return null;
            }

            file.Add(number, data.AsSpan(at, length));
            at += length;
        }

        return file;
    }

    /// <summary>Returns the strokes of a shape, in units of the file.</summary>
    /// <returns>Polylines; null where there is no such shape.</returns>
    internal List<Vec2[]>? Find(string name) =>
        _numbers.TryGetValue(name, out int number) ? new ShapePen(_codes).Draw(number) : null;

    private void Add(int number, ReadOnlySpan<byte> shape)
    {
        int end = shape.IndexOf((byte)0);
        if (end < 0)
        {
            return;
        }

        _codes[number] = shape[(end + 1)..].ToArray();
        if (end > 0)
        {
            _numbers[Encoding.Latin1.GetString(shape[..end])] = number;
        }
    }
}
