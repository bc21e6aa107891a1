using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.Compressors;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Run-length encoding of bitmaps: RLE8 and RLE4.</summary>
internal static class BmpRunLengths
{
    private const int EndOfLine = 0;
    private const int EndOfBitmap = 1;
    private const int Delta = 2;

    /// <summary>Packs 8-bit palette indices, whose rows run from the top down.</summary>
    internal static byte[] Pack(ReadOnlySpan<byte> indices, int width)
    {
        List<byte> packed = [];
        for (int start = indices.Length - width; start >= 0; start -= width)
        {
            PackRow(indices.Slice(start, width), packed);
            packed.AddRange([0, EndOfLine]);
        }

        packed[^1] = EndOfBitmap;
        return [.. packed];
    }

    /// <summary>Unpacks into palette indices, rows from the top down; skipped pixels keep 0.</summary>
    internal static void Unpack(ReadOnlySpan<byte> data, Span<byte> indices, int width, int height, bool halfBytes)
    {
        int x = 0;
        int y = height - 1;
        int at = 0;
        while (true)
        {
            if (at + 2 > data.Length)
            {
                throw new RleCompressorException(
                    $"The run lengths end after {data.Length} bytes, before their end mark.");
            }

            int count = data[at];
            int code = data[at + 1];
            at += 2;
            if (count > 0)
            {
                Run(Row(indices, width, y), ref x, count, code, halfBytes);
            }
            else if (code > Delta)
            {
                int bytes = halfBytes ? (code + 1) / 2 : code;
                Literal(Row(indices, width, y), ref x, code, Take(data, ref at, (bytes + 1) & ~1), halfBytes);
            }
            else if (code == EndOfLine)
            {
                (x, y) = (0, y - 1);
            }
            else if (code == EndOfBitmap)
            {
                return;
            }
            else
            {
                ReadOnlySpan<byte> move = Take(data, ref at, 2);
                (x, y) = (x + move[0], y - move[1]);
            }
        }
    }

    private static void PackRow(ReadOnlySpan<byte> row, List<byte> packed)
    {
        for (int start = 0; start < row.Length;)
        {
            int end = start + 1;
            while (end < row.Length && end - start < 255 && row[end] == row[start])
            {
                end++;
            }

            packed.Add((byte)(end - start));
            packed.Add(row[start]);
            start = end;
        }
    }

    private static Span<byte> Row(Span<byte> indices, int width, int y)
    {
        return y < 0
            ? throw new RleCompressorException("The run lengths lead past the last line.")
            : indices.Slice(y * width, width);
    }

    // A run may exceed its row; the excess is ignored.
    private static void Run(Span<byte> row, ref int x, int count, int code, bool halfBytes)
    {
        for (int i = 0; i < count; i++, x++)
        {
            if (x < row.Length)
            {
                row[x] = halfBytes ? (byte)((i & 1) == 0 ? code >> 4 : code & 15) : (byte)code;
            }
        }
    }

    private static void Literal(Span<byte> row, ref int x, int count, ReadOnlySpan<byte> data, bool halfBytes)
    {
        for (int i = 0; i < count; i++, x++)
        {
            if (x < row.Length)
            {
                row[x] = halfBytes ? (byte)((i & 1) == 0 ? data[i / 2] >> 4 : data[i / 2] & 15) : data[i];
            }
        }
    }

    private static ReadOnlySpan<byte> Take(ReadOnlySpan<byte> data, ref int at, int count)
    {
        if (count > data.Length - at)
        {
            throw new RleCompressorException($"The run lengths end after {data.Length} bytes, inside of a command.");
        }

        at += count;
        return data.Slice(at - count, count);
    }
}
