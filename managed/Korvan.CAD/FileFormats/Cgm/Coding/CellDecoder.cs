using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Decodes the colours of cells. Rows start at even bytes; in packed mode cell follows cell bit by bit, in run-length
/// mode each run is a count, an integer, and one colour (ISO/IEC 8632-3, cell array).
/// </summary>
internal sealed class CellDecoder(CodingState state, CellFormat format)
{
    private readonly ColorCoding _colors = new(state, format);

    // The intensity of each component byte, for 8-bit RGB, which most cells are.
    private readonly int[]? _bytes =
        format is { Bits: 8, Components: 3 } && state.ColorModel == ColourModel.Model.Rgb
            ? ByteTable(new ColorCoding(state, format))
            : null;

    /// <param name="data">The bytes of the cells.</param>
    /// <param name="skew">1 if they begin at an odd byte of the element.</param>
    /// <param name="isPacked">Whether the mode is packed, not run-length.</param>
    internal int[] Decode(ReadOnlySpan<byte> data, int skew, bool isPacked)
    {
        if (isPacked)
        {
            return DecodePacked(data, skew);
        }

        // Each row has one run at least, and a run may be as long as the row: a few bytes can announce many cells, so
        // all such cells of a metafile together have a limit.
        Verify(data.Length, format.Height * ((state.IntegerBits + (long)format.BitsPerCell + 7) / 8));
        state.RunCellsLeft -= format.Count;
        if (state.RunCellsLeft < 0)
        {
            throw new CgmDataException($"the cells in runs of all elements are more than {CodingState.MaxRunCells}");
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
                $"{format.Width} by {format.Height} cells of {format.BitsPerCell} bits take {needed} bytes at least, "
                + $"but {there} are there");
        }
    }

    private int[] DecodePacked(ReadOnlySpan<byte> data, int skew)
    {
        long second = NextLine(0, skew);
        long stride = NextLine(second, skew) - second;
        long last = format.Height == 1 ? 0 : second + ((format.Height - 2) * stride);
        Verify(data.Length, last + format.BytesPerLine);
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
                int red = table[line[at]] & 0xFF0000;
                int green = table[line[at + 1]] & 0xFF00;
                cells[x] = (0xFF << 24) | red | green | (table[line[at + 2]] & 0xFF);
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
                    throw new CgmDataException(
                        $"a run of {count} cells is in row {y}, where {line.Length} of {format.Width} are left");
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
            return index <= int.MaxValue
                ? (int)index
                : throw new CgmDataException($"{index} is too large for a colour index");
        }

        Span<long> parts = stackalloc long[format.Components];
        for (int i = 0; i < parts.Length; i++)
        {
            parts[i] = bits.ReadUnsigned(format.Bits);
        }

        return _colors.ToArgb(parts);
    }
}
