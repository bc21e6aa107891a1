using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Dithers pixels to the colours of a palette.</summary>
internal static class Ditherer
{
    // B. Bayer, "An optimum method for two-level rendition of continuous-tone pictures", 1973.
    private static readonly byte[] Bayer =
    [
        0, 32, 8, 40, 2, 34, 10, 42, 48, 16, 56, 24, 50, 18, 58, 26,
        12, 44, 4, 36, 14, 46, 6, 38, 60, 28, 52, 20, 62, 30, 54, 22,
        3, 35, 11, 43, 1, 33, 9, 41, 51, 19, 59, 27, 49, 17, 57, 25,
        15, 47, 7, 39, 13, 45, 5, 37, 63, 31, 55, 23, 61, 29, 53, 21,
    ];

    // Offsets from the pixel, and the share of the error that goes there.
    private static readonly (int X, int Y, int Parts)[] FloydSteinberg = [(1, 0, 7), (-1, 1, 3), (0, 1, 5), (1, 1, 1)];

    private static readonly (int X, int Y, int Parts)[] Atkinson =
        [(1, 0, 1), (2, 0, 1), (-1, 1, 1), (0, 1, 1), (1, 1, 1), (0, 2, 1)];

    private static readonly (int X, int Y, int Parts)[] Jarvis =
    [
        (1, 0, 7), (2, 0, 5), (-2, 1, 3), (-1, 1, 5), (0, 1, 7), (1, 1, 5), (2, 1, 3),
        (-2, 2, 1), (-1, 2, 3), (0, 2, 5), (1, 2, 3), (2, 2, 1),
    ];

    /// <summary>Receives the palette indices of a row; rows come from the top down.</summary>
    internal delegate void IndexRow(int y, ReadOnlySpan<byte> indices);

    internal static void Map(PixelGrid pixels, int[] palette, DitheringMethods methods, IndexRow consume)
    {
        bool serpentine = (methods & DitheringMethods.Serpentine) != 0;
        DitheringMethod method = (methods & DitheringMethods.ErrorDiffusion) != 0 ? DitheringMethod.FloydSteinberg
            : (methods & DitheringMethods.Ordered) != 0 ? DitheringMethod.Ordered : DitheringMethod.Threshold;
        Map(pixels, palette, method, serpentine, consume);
    }

    internal static void Map(PixelGrid pixels, int[] palette, DitheringMethod method, bool serpentine, IndexRow consume)
    {
        switch (method)
        {
            case DitheringMethod.FloydSteinberg:
                Diffuse(pixels, palette, FloydSteinberg, 16, serpentine, consume);
                break;
            case DitheringMethod.Atkinson:
                Diffuse(pixels, palette, Atkinson, 8, serpentine, consume);
                break;
            case DitheringMethod.JarvisJudiceNinke:
                Diffuse(pixels, palette, Jarvis, 48, serpentine, consume);
                break;
            default:
                Direct(pixels, palette, method == DitheringMethod.Ordered, consume);
                break;
        }
    }

    /// <summary>Replaces pixels by the colours of a palette.</summary>
    internal static void Apply(PixelGrid pixels, int[] palette, DitheringMethod method)
    {
        Map(pixels, palette, method, false, (y, indices) =>
        {
            Span<int> row = pixels.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                row[x] = palette[indices[x]];
            }
        });
    }

    private static void Direct(PixelGrid pixels, int[] palette, bool ordered, IndexRow consume)
    {
        var lookup = new PaletteLookup(palette, ColorCompareMethod.Euclidean);
        int step = ordered ? (int)(255 / Math.Max(1, Math.Cbrt(palette.Length) - 1)) : 0;
        var indices = new byte[pixels.Width];
        for (int y = 0; y < pixels.Height; y++)
        {
            ReadOnlySpan<int> row = pixels.Row(y);
            for (int x = 0; x < row.Length; x++)
            {
                int index = lookup.Nearest(row[x]);
                if (ordered && palette[index] != row[x])
                {
                    int shift = ((Bayer[((y & 7) << 3) | (x & 7)] * 2) - 63) * step / 128;
                    index = lookup.Nearest(Shifted(row[x], shift));
                }

                indices[x] = (byte)index;
            }

            consume(y, indices);
        }
    }

    private static int Shifted(int argb, int by)
    {
        int Part(int shift) => Math.Clamp(((argb >> shift) & 255) + by, 0, 255) << shift;
        return (argb & PixelGrid.Opaque) | Part(16) | Part(8) | Part(0);
    }

    private static void Diffuse(
        PixelGrid pixels, int[] palette, (int X, int Y, int Parts)[] spread, int parts, bool serpentine,
        IndexRow consume)
    {
        const int margin = 2;
        var lookup = new PaletteLookup(palette, ColorCompareMethod.Euclidean);
        int width = pixels.Width;
        var indices = new byte[width];
        int size = (width + (2 * margin)) * 3;
        int[][] errors = [new int[size], new int[size], new int[size]];
        for (int y = 0; y < pixels.Height; y++)
        {
            bool back = serpentine && (y & 1) != 0;
            ReadOnlySpan<int> row = pixels.Row(y);
            for (int i = 0; i < width; i++)
            {
                int x = back ? width - 1 - i : i;
                Span<int> own = errors[0].AsSpan((x + margin) * 3, 3);
                int target = Corrected(row[x], own, parts);
                int index = lookup.Nearest(target);
                indices[x] = (byte)index;
                for (int channel = 0; channel < 3; channel++)
                {
                    int error = ((target >> (8 * channel)) & 255) - ((palette[index] >> (8 * channel)) & 255);
                    foreach ((int dx, int dy, int share) in spread)
                    {
                        errors[dy][((x + margin + (back ? -dx : dx)) * 3) + channel] += error * share;
                    }
                }
            }

            consume(y, indices);
            Array.Clear(errors[0]);
            errors = [errors[1], errors[2], errors[0]];
        }
    }

    private static int Corrected(int argb, ReadOnlySpan<int> errors, int parts)
    {
        if (((uint)argb >> 24) == 0)
        {
            return 0;
        }

        int result = argb & PixelGrid.Opaque;
        for (int channel = 0; channel < 3; channel++)
        {
            int value = ((argb >> (8 * channel)) & 255) + (errors[channel] / parts);
            result |= Math.Clamp(value, 0, 255) << (8 * channel);
        }

        return result;
    }
}
