using System;
using System.IO;
using System.Numerics;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Filters rows of a PNG, and back (ISO/IEC 15948, clause 9).</summary>
internal sealed class PngFilters(PngHeader header)
{
    private readonly int _pixelBytes = Math.Max(1, header.BitsPerPixel / 8);
    private readonly byte[][] _lines = [new byte[header.RowBytes + 1], new byte[header.RowBytes + 1]];
    private byte[] _row = new byte[header.RowBytes];
    private byte[] _above = new byte[header.RowBytes];

    /// <summary>Gets the buffer of the next row.</summary>
    internal Span<byte> Row => _row;

    /// <summary>Returns the filtered row, preceded by its filter type.</summary>
    internal ReadOnlySpan<byte> Apply(PngFilterType filter)
    {
        byte[] best = _lines[0];
        if (filter != PngFilterType.Adaptive)
        {
            Fill(best, filter);
        }
        else
        {
            best = Adaptive();
        }

        Skip();
        return best;
    }

    /// <summary>Makes the row the one above the next.</summary>
    internal void Skip() => (_row, _above) = (_above, _row);

    /// <summary>Reverses the filter of a row.</summary>
    internal static void Undo(PngFilterType filter, Span<byte> row, ReadOnlySpan<byte> above, int pixelBytes)
    {
        if (filter is < PngFilterType.None or > PngFilterType.Paeth)
        {
            throw new InvalidDataException($"A row has the filter {(int)filter}, which does not exist.");
        }

        for (int i = 0; i < row.Length; i++)
        {
            int left = i >= pixelBytes ? row[i - pixelBytes] : 0;
            int corner = i >= pixelBytes ? above[i - pixelBytes] : 0;
            row[i] += (byte)Predict(filter, left, above[i], corner);
        }
    }

    private byte[] Adaptive()
    {
        byte[] best = _lines[0];
        byte[] trial = _lines[1];
        long least = long.MaxValue;
        for (PngFilterType filter = PngFilterType.None; filter <= PngFilterType.Paeth; filter++)
        {
            Fill(trial, filter);
            long sum = 0;
            foreach (byte difference in trial.AsSpan(1))
            {
                sum += Math.Abs((int)(sbyte)difference);
            }

            if (sum < least)
            {
                least = sum;
                (best, trial) = (trial, best);
            }
        }

        return best;
    }

    private void Fill(byte[] line, PngFilterType filter)
    {
        line[0] = (byte)filter;
        Span<byte> target = line.AsSpan(1);
        switch (filter)
        {
            case PngFilterType.None:
                _row.CopyTo(target);
                break;
            case PngFilterType.Sub:
                int first = Math.Min(_pixelBytes, _row.Length);
                _row.AsSpan(0, first).CopyTo(target);
                Subtract(_row.AsSpan(first), _row, target[first..]);
                break;
            case PngFilterType.Up:
                Subtract(_row, _above, target);
                break;
            default:
                FillPredicted(target, filter);
                break;
        }
    }

    private void FillPredicted(Span<byte> target, PngFilterType filter)
    {
        for (int i = 0; i < _row.Length; i++)
        {
            int left = i >= _pixelBytes ? _row[i - _pixelBytes] : 0;
            int corner = i >= _pixelBytes ? _above[i - _pixelBytes] : 0;
            target[i] = (byte)(_row[i] - Predict(filter, left, _above[i], corner));
        }
    }

    private static void Subtract(ReadOnlySpan<byte> from, ReadOnlySpan<byte> less, Span<byte> target)
    {
        int i = 0;
        for (; i <= from.Length - Vector<byte>.Count; i += Vector<byte>.Count)
        {
            (new Vector<byte>(from[i..]) - new Vector<byte>(less[i..])).CopyTo(target[i..]);
        }

        for (; i < from.Length; i++)
        {
            target[i] = (byte)(from[i] - less[i]);
        }
    }

    private static int Predict(PngFilterType filter, int left, int up, int corner) => filter switch
    {
        PngFilterType.Sub => left,
        PngFilterType.Up => up,
        PngFilterType.Average => (left + up) / 2,
        PngFilterType.Paeth => Paeth(left, up, corner),
        _ => 0,
    };

    private static int Paeth(int left, int up, int corner)
    {
        int estimate = left + up - corner;
        int toLeft = Math.Abs(estimate - left);
        int toUp = Math.Abs(estimate - up);
        int toCorner = Math.Abs(estimate - corner);
        return toLeft <= toUp && toLeft <= toCorner ? left : toUp <= toCorner ? up : corner;
    }
}
