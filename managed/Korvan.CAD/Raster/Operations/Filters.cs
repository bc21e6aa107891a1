using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Operations;

/// <summary>Applies a neighbourhood filter.</summary>
internal static class Filters
{
    internal static PixelGrid Apply(PixelGrid from, ImageFilterType type, int size) => type switch
    {
        ImageFilterType.Box => Convolve(from, BoxWeights(size), BoxWeights(size)),
        ImageFilterType.Gaussian => Convolve(from, GaussianWeights(size), GaussianWeights(size)),
        ImageFilterType.Median => Median(from, size),
        ImageFilterType.Sharpen => Sharpen(from, size),
        ImageFilterType.Edges => Edges(from),
        ImageFilterType.Emboss => Convolve3x3(from, [-2, -1, 0, -1, 1, 1, 0, 1, 2], 0),
        _ => throw Verify.OutOfRange(nameof(type), type, "There is no such filter."),
    };

    private static double[] BoxWeights(int size)
    {
        var weights = new double[size];
        weights.AsSpan().Fill(1.0 / size);
        return weights;
    }

    // The window covers two standard deviations to each side.
    private static double[] GaussianWeights(int size)
    {
        var weights = new double[size];
        double sigma = Math.Max(0.5, size / 4.0);
        double sum = 0;
        for (int i = 0; i < size; i++)
        {
            double d = i - (size / 2);
            sum += weights[i] = Math.Exp(-d * d / (2 * sigma * sigma));
        }

        for (int i = 0; i < size; i++)
        {
            weights[i] /= sum;
        }

        return weights;
    }

    private static PixelGrid Convolve(PixelGrid from, double[] across, double[] down)
    {
        using PixelGrid narrow = ConvolveLine(from, across, 1, 0);
        return ConvolveLine(narrow, down, 0, 1);
    }

    private static PixelGrid ConvolveLine(PixelGrid from, double[] weights, int stepX, int stepY)
    {
        var to = new PixelGrid(from.Width, from.Height);
        int half = weights.Length / 2;
        Span<double> sums = stackalloc double[4];
        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                sums.Clear();
                for (int k = 0; k < weights.Length; k++)
                {
                    int pixel = At(from, x + ((k - half) * stepX), y + ((k - half) * stepY));
                    double alpha = weights[k] * (pixel >>> 24);
                    Add(sums, pixel | PixelGrid.Opaque, alpha);
                }

                row[x] = Unpremultiply(sums);
            }
        }

        return to;
    }

    private static PixelGrid Median(PixelGrid from, int size)
    {
        var to = new PixelGrid(from.Width, from.Height);
        int half = size / 2;
        var values = new byte[4][];
        for (int i = 0; i < 4; i++)
        {
            values[i] = new byte[size * size];
        }

        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                int count = 0;
                for (int dy = -half; dy <= half; dy++)
                {
                    for (int dx = -half; dx <= half; dx++, count++)
                    {
                        int pixel = At(from, x + dx, y + dy);
                        for (int c = 0; c < 4; c++)
                        {
                            values[c][count] = (byte)(pixel >> (8 * c));
                        }
                    }
                }

                row[x] = Middle(values, count);
            }
        }

        return to;
    }

    private static int Middle(byte[][] values, int count)
    {
        int result = 0;
        for (int c = 0; c < 4; c++)
        {
            Array.Sort(values[c], 0, count);
            result |= values[c][count / 2] << (8 * c);
        }

        return result;
    }

    private static PixelGrid Sharpen(PixelGrid from, int size)
    {
        PixelGrid to = Convolve(from, GaussianWeights(size), GaussianWeights(size));
        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            ReadOnlySpan<int> old = from.Row(y);
            for (int x = 0; x < row.Length; x++)
            {
                int result = old[x] & PixelGrid.Opaque;
                for (int shift = 0; shift < 24; shift += 8)
                {
                    int sharp = (2 * ((old[x] >> shift) & 255)) - ((row[x] >> shift) & 255);
                    result |= Math.Clamp(sharp, 0, 255) << shift;
                }

                row[x] = result;
            }
        }

        return to;
    }

    private static PixelGrid Edges(PixelGrid from)
    {
        var to = new PixelGrid(from.Width, from.Height);
        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                int L(int dx, int dy) => PixelGrid.Luma(At(from, x + dx, y + dy));
                int gx = L(1, -1) + (2 * L(1, 0)) + L(1, 1) - L(-1, -1) - (2 * L(-1, 0)) - L(-1, 1);
                int gy = L(-1, 1) + (2 * L(0, 1)) + L(1, 1) - L(-1, -1) - (2 * L(0, -1)) - L(1, -1);
                int size = (int)Math.Min(255, Math.Sqrt((gx * gx) + (gy * gy)));
                row[x] = (from.Row(y)[x] & PixelGrid.Opaque) | (size * 0x010101);
            }
        }

        return to;
    }

    private static PixelGrid Convolve3x3(PixelGrid from, int[] weights, int offset)
    {
        var to = new PixelGrid(from.Width, from.Height);
        Span<double> sums = stackalloc double[4];
        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                sums.Fill(offset);
                for (int k = 0; k < 9; k++)
                {
                    Add(sums, At(from, x + (k % 3) - 1, y + (k / 3) - 1), weights[k]);
                }

                row[x] = (Pack(sums) & 0xFFFFFF) | (from.Row(y)[x] & PixelGrid.Opaque);
            }
        }

        return to;
    }

    // Edge pixels are repeated beyond the edges.
    private static int At(PixelGrid from, int x, int y) =>
        from.Row(Math.Clamp(y, 0, from.Height - 1))[Math.Clamp(x, 0, from.Width - 1)];

    private static void Add(Span<double> sums, int pixel, double weight)
    {
        sums[0] += (pixel & 255) * weight;
        sums[1] += ((pixel >> 8) & 255) * weight;
        sums[2] += ((pixel >> 16) & 255) * weight;
        sums[3] += (pixel >>> 24) * weight;
    }

    // Colours were weighted by alpha; otherwise invisible pixels would show at edges.
    private static int Unpremultiply(Span<double> sums)
    {
        double alpha = sums[3] / 255;
        for (int c = 0; c < 3; c++)
        {
            sums[c] = alpha > 0 ? sums[c] / alpha : 0;
        }

        sums[3] = alpha;
        return Pack(sums);
    }

    private static int Pack(ReadOnlySpan<double> sums)
    {
        int result = 0;
        for (int c = 0; c < 4; c++)
        {
            result |= (int)Math.Clamp(sums[c] + 0.5, 0, 255) << (8 * c);
        }

        return result;
    }
}
