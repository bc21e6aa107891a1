using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Operations;

/// <summary>Binarizes images.</summary>
internal static class Binarization
{
    private const int White = -1;
    private const int Black = PixelGrid.Opaque;

    /// <summary>Makes pixels of at least the threshold white, the others black.</summary>
    internal static void Fixed(PixelGrid pixels, int threshold) =>
        ColorAdjustment.Each(
            pixels, pixel => PixelGrid.Luma(PixelGrid.Over(pixel, White)) >= threshold ? White : Black);

    /// <summary>Returns the threshold that separates the histogram into the two most distinct classes (N. Otsu,
    /// 1979).</summary>
    internal static int OtsuThreshold(PixelGrid pixels)
    {
        Span<long> histogram = stackalloc long[256];
        long weighted = 0;
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (int pixel in pixels.Row(y))
            {
                int level = PixelGrid.Luma(PixelGrid.Over(pixel, White));
                histogram[level]++;
                weighted += level;
            }
        }

        long below = 0;
        long sumBelow = 0;
        double max = -1;
        int best = 128;
        for (int level = 0; level < 255; level++)
        {
            below += histogram[level];
            sumBelow += level * histogram[level];
            long above = pixels.Count - below;
            if (below == 0 || above == 0)
            {
                continue;
            }

            double difference = ((double)sumBelow / below) - ((double)(weighted - sumBelow) / above);
            double between = (double)below * above * difference * difference;
            if (between > max)
            {
                (max, best) = (between, level + 1);
            }
        }

        return best;
    }

    /// <summary>Compares each pixel with the mean of the square around it, less a share of that mean (D. Bradley and G.
    /// Roth, "Adaptive thresholding using the integral image", 2007). Only as many rows of sums are kept as a square is
    /// high.</summary>
    internal static PixelGrid Adaptive(PixelGrid from, int window, double fraction)
    {
        int half = Math.Max(1, window / 2);
        var to = new PixelGrid(from.Width, from.Height);
        var columns = new long[from.Width]; // sums of the columns of the rows around y
        var luma = new byte[from.Width];
        for (int y = -half; y < from.Height; y++)
        {
            AddRow(from, y + half, columns, 1);
            AddRow(from, y - half - 1, columns, -1);
            if (y < 0)
            {
                continue;
            }

            int rows = Math.Min(from.Height, y + half + 1) - Math.Max(0, y - half);
            Levels(from.Row(y), luma);
            Compare(luma, columns, half, rows, fraction, to.WritableRow(y));
        }

        return to;
    }

    private static void AddRow(PixelGrid from, int y, long[] columns, int sign)
    {
        if ((uint)y >= (uint)from.Height)
        {
            return;
        }

        ReadOnlySpan<int> row = from.Row(y);
        for (int x = 0; x < row.Length; x++)
        {
            columns[x] += sign * PixelGrid.Luma(PixelGrid.Over(row[x], White));
        }
    }

    private static void Levels(ReadOnlySpan<int> row, byte[] luma)
    {
        for (int x = 0; x < row.Length; x++)
        {
            luma[x] = (byte)PixelGrid.Luma(PixelGrid.Over(row[x], White));
        }
    }

    private static void Compare(byte[] luma, long[] columns, int half, int rows, double fraction, Span<int> to)
    {
        long sum = 0;
        for (int x = 0; x < Math.Min(half, columns.Length); x++)
        {
            sum += columns[x];
        }

        for (int x = 0; x < to.Length; x++)
        {
            sum += x + half < columns.Length ? columns[x + half] : 0;
            sum -= x - half - 1 >= 0 ? columns[x - half - 1] : 0;
            long count = (long)rows * (Math.Min(columns.Length, x + half + 1) - Math.Max(0, x - half));
            to[x] = luma[x] * (double)count >= sum * (1 - fraction) ? White : Black;
        }
    }
}
