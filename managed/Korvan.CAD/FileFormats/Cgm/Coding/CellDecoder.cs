using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Unpacks the colours of cells. Lines begin at even bytes; in a packed line cell follows cell bit by bit, in the other
/// form each run is a count, an integer, and one colour (ISO/IEC 8632-3, cell array).
/// </summary>
internal sealed class CellDecoder(CodingState state, CellFormat format)
{
    private readonly ColorCoding _colors = new(state, format);

    // What each byte stands for in each part of a colour; for RGB of 8 bits, which most cells are.
    private readonly int[]? _bytes = format is { Bits: 8, Components: 3 } && state.ColorModel == Commands.ColourModel.Model.Rgb
        ? ByteTable(new ColorCoding(state, format)) : null;

    /// <param name="data">The bytes of the cells.</param>
    /// <param name="skew">1 if they begin at an odd byte of the element.</param>
    /// <param name="isPacked">Whether there are no runs.</param>
    internal int[] Decode(ReadOnlySpan<byte> data, int skew, bool isPacked)
    {
        if (isPacked)
        {
            return DecodePacked(data, skew);
        }

        // Each line has one run at least, and a run may be as long as the line: what is announced is little bounded by
        // what is there, so all such cells of a metafile together have a limit.
        Verify(data.Length, format.Height * ((state.IntegerBits + (long)format.BitsPerCell + 7) / 8));
        state.RunCellsLeft -= format.Count;
        if (state.RunCellsLeft < 0)
        {
            throw new CgmDataException($"the cells in runs of all elements are more than {CodingState.MostRunCells}");
        }

        return DecodeRuns(data, skew);
    }

    private static int[] ByteTable(ColorCoding colors)
    {
        int[] table = new int[256];
        for (int i = 0; i < table.Length; i++)
        {
            table[i] = colors.ToArgb([i, i, i]) & 0xFFFFFF;
        }

        return table;
    }

    private void Verify(long there, long needed)
    {
        if (there < needed)
        {
            throw new CgmDataException(
                $"{format.Width} by {format.Height} cells of {format.BitsPerCell} bits take {needed} bytes at least, but {there} are there");
        }
    }

    private int[] DecodePacked(ReadOnlySpan<byte> data, int skew)
    {
        long second = NextLine(0, skew);
        long stride = NextLine(second, skew) - second;
        Verify(data.Length, format.Height == 1 ? format.BytesPerLine : second + ((format.Height - 2) * stride) + format.BytesPerLine);
        int[] cells = new int[format.Count];
        long start = 0;
        for (int y = 0; y < format.Height; y++, start = NextLine(start, skew))
        {
            DecodeLine(data[(int)start..], cells.AsSpan(y * format.Width, format.Width));
        }

        return cells;
    }

    private long NextLine(long start, int skew) => ((start + format.BytesPerLine + skew + 1) & ~1L) - skew;

    private void DecodeLine(ReadOnlySpan<byte> line, Span<int> cells)
    {
        if (format is { IsIndexed: true, Bits: 8 })
        {
            for (int x = 0; x < cells.Length; x++)
            {
                cells[x] = line[x];
            }
        }
        else if (_bytes is int[] table)
        {
            for (int x = 0, at = 0; x < cells.Length; x++, at += 3)
            {
                cells[x] = (0xFF << 24) | (table[line[at]] & 0xFF0000) | (table[line[at + 1]] & 0xFF00) | (table[line[at + 2]] & 0xFF);
            }
        }
        else
        {
            var bits = new BitReader(line);
            for (int x = 0; x < cells.Length; x++)
            {
                cells[x] = ReadColor(ref bits);
            }
        }
    }

    private int[] DecodeRuns(ReadOnlySpan<byte> data, int skew)
    {
        int[] cells = new int[format.Count];
        var bits = new BitReader(data);
        for (int y = 0; y < format.Height; y++)
        {
            if (y > 0)
            {
                bits.AlignToWord(skew);
            }

            Span<int> line = cells.AsSpan(y * format.Width, format.Width);
            while (line.Length > 0)
            {
                long count = bits.ReadSigned(state.IntegerBits);
                if (count < 1 || count > line.Length)
                {
                    throw new CgmDataException($"a run of {count} cells is in line {y}, where {line.Length} of {format.Width} are open");
                }

                line[..(int)count].Fill(ReadColor(ref bits));
                line = line[(int)count..];
            }
        }

        return cells;
    }

    private int ReadColor(ref BitReader bits)
    {
        if (format.IsIndexed)
        {
            uint index = bits.ReadUnsigned(format.Bits);
            return index <= int.MaxValue ? (int)index : throw new CgmDataException($"{index} is too large for the number of a colour");
        }

        Span<long> parts = stackalloc long[format.Components];
        for (int i = 0; i < parts.Length; i++)
        {
            parts[i] = bits.ReadUnsigned(format.Bits);
        }

        return _colors.ToArgb(parts);
    }
}
