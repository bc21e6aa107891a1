using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Encodes the colours of cells as <see cref="CellDecoder"/> decodes them.</summary>
internal sealed class CellEncoder
{
    private readonly CellFormat _format;
    private readonly int[] _cells;
    private readonly int _integerBits;
    private readonly int _longestRun;
    private readonly ColorCoding _colors;
    private readonly bool _isPlain;

    internal CellEncoder(CodingState state, CellFormat format, int[] cells)
    {
        if (cells.Length != format.Count)
        {
            throw new CgmDataException($"there are {cells.Length} colours for {format.Width} by {format.Height} cells");
        }

        (_format, _cells, _integerBits) = (format, cells, state.IntegerBits);
        _longestRun = (int)Math.Min(NumberRange.Signed(_integerBits).Highest, format.Width);
        _colors = new ColorCoding(state, format);
        _isPlain = format is { Bits: 8, Components: 3 } && state.ColorModel == ColourModel.Model.Rgb
            && (format.IsLocal || HasDefaultExtent(state));
    }

    /// <summary>Gets whether run-length mode is much shorter: few programs read other cells than packed ones.</summary>
    internal bool IsShorterInRuns
    {
        get
        {
            const int minRatio = 8;
            long bits = ((_integerBits + _format.BitsPerCell) * CountRuns()) + (_format.Height * 8L);
            return bits * minRatio < _format.BytesPerLine * 8 * _format.Height;
        }
    }

    /// <param name="isPacked">Whether to use packed mode, not run-length mode.</param>
    /// <param name="skew">1 if the cells begin at an odd byte of the element.</param>
    internal byte[] Encode(bool isPacked, int skew)
    {
        var bits = new BitWriter();
        for (int y = 0; y < _format.Height; y++)
        {
            if (y > 0)
            {
                bits.AlignToWord(skew);
            }

            ReadOnlySpan<int> line = _cells.AsSpan(y * _format.Width, _format.Width);
            if (isPacked)
            {
                WritePacked(bits, line);
            }
            else
            {
                WriteRuns(bits, line);
            }
        }

        return bits.ToArray();
    }

    private static bool HasDefaultExtent(CodingState state) =>
        state.ColorLow.AsSpan(0, 3).IndexOfAnyExcept(0) < 0 && state.ColorHigh.AsSpan(0, 3).IndexOfAnyExcept(255) < 0;

    private long CountRuns()
    {
        long count = 0;
        for (int y = 0; y < _format.Height; y++)
        {
            ReadOnlySpan<int> line = _cells.AsSpan(y * _format.Width, _format.Width);
            for (; line.Length > 0; count++)
            {
                line = line[RunLength(line)..];
            }
        }

        return count;
    }

    private int RunLength(ReadOnlySpan<int> line)
    {
        int end = line.IndexOfAnyExcept(line[0]);
        return Math.Min(end < 0 ? line.Length : end, _longestRun);
    }

    private void WritePacked(BitWriter bits, ReadOnlySpan<int> line)
    {
        if (_isPlain)
        {
            foreach (int cell in line)
            {
                bits.WriteByte((byte)(cell >> 16));
                bits.WriteByte((byte)(cell >> 8));
                bits.WriteByte((byte)cell);
            }

            return;
        }

        if (_format is { IsIndexed: true, Bits: 8 } && line.IndexOfAnyExceptInRange(0, byte.MaxValue) < 0)
        {
            foreach (int cell in line)
            {
                bits.WriteByte((byte)cell);
            }

            return;
        }

        foreach (int cell in line)
        {
            WriteColor(bits, cell);
        }
    }

    private void WriteRuns(BitWriter bits, ReadOnlySpan<int> line)
    {
        while (line.Length > 0)
        {
            int count = RunLength(line);
            bits.Write((uint)count, _integerBits);
            WriteColor(bits, line[0]);
            line = line[count..];
        }
    }

    private void WriteColor(BitWriter bits, int cell)
    {
        if (_format.IsIndexed)
        {
            NumberRange.Verify(cell, NumberRange.Unsigned(_format.Bits), _format.Bits);
            bits.Write((uint)cell, _format.Bits);
            return;
        }

        Span<long> components = stackalloc long[_format.Components];
        _colors.FromArgb(cell, components);
        foreach (long component in components)
        {
            NumberRange.Verify(component, NumberRange.Unsigned(_format.Bits), _format.Bits);
            bits.Write((uint)component, _format.Bits);
        }
    }
}
