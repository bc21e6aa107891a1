using System;
using System.IO;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Turns rows of a PNG into differences, and back (ISO/IEC 15948, clause 9).</summary>
internal sealed class PngFilters(int rowBytes, int pixelBytes)
{
    private readonly byte[][] _lines = [new byte[rowBytes + 1], new byte[rowBytes + 1]];
    private byte[] _row = new byte[rowBytes];
    private byte[] _above = new byte[rowBytes];

    /// <summary>The row that comes next; its owner fills it.</summary>
    internal Span<byte> Row => _row;

    /// <summary>Gives the filtered row with the number of its filter before it.</summary>
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

    /// <summary>Makes pixels of a filtered row again.</summary>
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
            row[i] += (byte)Guess(filter, left, above[i], corner);
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
            line[i + 1] = (byte)(_row[i] - Guess(filter, left, _above[i], corner));
        }
    }

    private static int Guess(PngFilterType filter, int left, int up, int corner) => filter switch
    {
        PngFilterType.Sub => left,
        PngFilterType.Up => up,
        PngFilterType.Average => (left + up) / 2,
        PngFilterType.Paeth => Paeth(left, up, corner),
        _ => 0,
    };

    private static int Paeth(int left, int up, int corner)
    {
        int guess = left + up - corner;
        int toLeft = Math.Abs(guess - left);
        int toUp = Math.Abs(guess - up);
        int toCorner = Math.Abs(guess - corner);
        return toLeft <= toUp && toLeft <= toCorner ? left : toUp <= toCorner ? up : corner;
    }
}
