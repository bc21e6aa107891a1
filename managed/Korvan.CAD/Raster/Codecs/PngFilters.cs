using System;
using System.IO;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Filters rows of a PNG, and back (ISO/IEC 15948, clause 9).</summary>
internal sealed class PngFilters(int rowBytes, int pixelBytes)
{
    private readonly byte[][] _lines = [new byte[rowBytes + 1], new byte[rowBytes + 1]];
    private byte[] _row = new byte[rowBytes];
    private byte[] _above = new byte[rowBytes];

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

        (_row, _above) = (_above, _row);
        return best;
    }

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
        for (int i = 0; i < _row.Length; i++)
        {
            int left = i >= pixelBytes ? _row[i - pixelBytes] : 0;
            int corner = i >= pixelBytes ? _above[i - pixelBytes] : 0;
            line[i + 1] = (byte)(_row[i] - Predict(filter, left, _above[i], corner));
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
