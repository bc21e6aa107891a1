using System;
using System.Numerics;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Operations;

/// <summary>Resizes images by separable resampling kernels.</summary>
internal static class Resampler
{
    internal static PixelGrid Resize(PixelGrid from, int width, int height, ResizeType type, int background)
    {
        PixelGrid.VerifySize(width, height);
        return type switch
        {
            ResizeType.NearestNeighbour => Nearest(from, width, height),
            ResizeType.Centered =>
                Place(from, width, height, (width - from.Width) / 2, (height - from.Height) / 2, background),
            ResizeType.UpperLeft => Place(from, width, height, 0, 0, background),
            _ => Filter(from, width, height, type),
        };
    }

    private static PixelGrid Nearest(PixelGrid from, int width, int height)
    {
        var to = new PixelGrid(width, height);
        for (int y = 0; y < height; y++)
        {
            ReadOnlySpan<int> source = from.Row((int)((((2L * y) + 1) * from.Height) / (2L * height)));
            Span<int> row = to.WritableRow(y);
            for (int x = 0; x < width; x++)
            {
                row[x] = source[(int)((((2L * x) + 1) * from.Width) / (2L * width))];
            }
        }

        return to;
    }

    private static PixelGrid Place(PixelGrid from, int width, int height, int left, int top, int background)
    {
        var to = new PixelGrid(width, height);
        to.Fill(background);
        int first = Math.Max(0, -left);
        int count = Math.Min(from.Width - first, width - Math.Max(0, left));
        for (int y = Math.Max(0, top); y < Math.Min(height, top + from.Height); y++)
        {
            from.Row(y - top).Slice(first, count).CopyTo(to.WritableRow(y)[Math.Max(0, left)..]);
        }

        return to;
    }

    private static PixelGrid Filter(PixelGrid from, int width, int height, ResizeType type)
    {
        var across = new ResizeKernel(from.Width, width, type);
        var down = new ResizeKernel(from.Height, height, type);
        var to = new PixelGrid(width, height);

        // Rows that have their width already: as many as one result row needs.
        var ring = new Vector4[down.Taps][];
        for (int i = 0; i < ring.Length; i++)
        {
            ring[i] = new Vector4[width];
        }

        int ready = 0;
        var sum = new Vector4[width];
        for (int y = 0; y < height; y++)
        {
            int first = down.First(y);
            for (ready = Math.Max(ready, first); ready < first + down.Taps; ready++)
            {
                Across(from.Row(ready), across, ring[ready % ring.Length]);
            }

            Array.Clear(sum);
            for (int k = 0; k < down.Taps; k++)
            {
                Vector4[] line = ring[(first + k) % ring.Length];
                float weight = down.Weight(y, k);
                for (int x = 0; x < sum.Length; x++)
                {
                    sum[x] += line[x] * weight;
                }
            }

            Store(sum, to.WritableRow(y));
        }

        return to;
    }

    private static void Across(ReadOnlySpan<int> row, ResizeKernel kernel, Vector4[] result)
    {
        for (int x = 0; x < result.Length; x++)
        {
            Vector4 sum = Vector4.Zero;
            int first = kernel.First(x);
            for (int k = 0; k < kernel.Taps; k++)
            {
                sum += Premultiply(row[first + k]) * kernel.Weight(x, k);
            }

            result[x] = sum;
        }
    }

    // Colours are weighted by alpha; otherwise invisible pixels would show at edges.
    private static Vector4 Premultiply(int argb)
    {
        float alpha = argb >>> 24;
        float scale = alpha / 255;
        return new Vector4((argb & 255) * scale, ((argb >> 8) & 255) * scale, ((argb >> 16) & 255) * scale, alpha);
    }

    private static void Store(Vector4[] from, Span<int> to)
    {
        for (int x = 0; x < to.Length; x++)
        {
            Vector4 value = from[x];
            int alpha = (int)Math.Clamp(value.W + 0.5f, 0, 255);
            if (alpha == 0)
            {
                to[x] = 0;
                continue;
            }

            Vector4 plain = (value * (255 / Math.Clamp(value.W, 0.5f, 255))) + new Vector4(0.5f);
            plain = Vector4.Clamp(plain, Vector4.Zero, new Vector4(255));
            to[x] = (alpha << 24) | ((int)plain.Z << 16) | ((int)plain.Y << 8) | (int)plain.X;
        }
    }
}
