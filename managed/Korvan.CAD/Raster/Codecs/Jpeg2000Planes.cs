using System;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Combines the components of a decoded JPEG 2000 of any depth, sign and subsampling.</summary>
internal static unsafe class Jpeg2000Planes
{
    internal static PixelGrid ToPixels(in OpenJpeg.ImageHeader image, RasterSource source, out int bitsPerPixel)
    {
        int count = (int)image.ComponentCount;
        bitsPerPixel = 0;
        for (int i = 0; i < count; i++)
        {
            Verify(image.Components[i], source);
            bitsPerPixel += (int)image.Components[i].Precision;
        }

        bool isCmyk = image.Colors == OpenJpeg.ColorCmyk && count >= 4;
        int colors = isCmyk ? 4 : count >= 3 ? 3 : 1;
        var pixels = new PixelGrid(checked((int)(image.X1 - image.X0)), checked((int)(image.Y1 - image.Y0)));
        var samples = new int[colors + 1];
        for (int y = 0; y < pixels.Height; y++)
        {
            Span<int> row = pixels.WritableRow(y);
            for (int x = 0; x < row.Length; x++)
            {
                samples[colors] = 255;
                for (int c = 0; c < Math.Min(count, colors + 1); c++)
                {
                    samples[c] = Sample(image.Components[c], image.X0 + x, image.Y0 + y);
                }

                row[x] = Pixel(samples, isCmyk, image.Colors);
            }
        }

        return pixels;
    }

    private static int Pixel(ReadOnlySpan<int> s, bool isCmyk, int colors)
    {
        int alpha = s[^1] << 24;
        if (isCmyk)
        {
            var color = CmykColor.FromStored(s[0] | (s[1] << 8) | (s[2] << 16) | (s[3] << 24));
            return (color.ToArgb32() & 0xFFFFFF) | alpha;
        }

        if (s.Length < 4)
        {
            return alpha | (s[0] * 0x010101);
        }

        return colors == OpenJpeg.ColorYcc
            ? alpha | FromYcc(s[0], s[1] - 128, s[2] - 128)
            : alpha | (s[0] << 16) | (s[1] << 8) | s[2];
    }

    // ITU-R BT.601 with full ranges.
    internal static int FromYcc(int y, int cb, int cr)
    {
        static int Part(double value) => (int)Math.Clamp(Math.Round(value), 0, 255);
        return (Part(y + (1.402 * cr)) << 16)
            | (Part(y - (0.344136 * cb) - (0.714136 * cr)) << 8)
            | Part(y + (1.772 * cb));
    }

    // The position is on the reference grid, on which the image may begin anywhere.
    private static int Sample(in OpenJpeg.Component plane, long x, long y)
    {
        long column = Math.Clamp((x / plane.Dx) - plane.X0, 0, plane.Width - 1);
        long row = Math.Clamp((y / plane.Dy) - plane.Y0, 0, plane.Height - 1);
        long value = plane.Data[(row * plane.Width) + column];
        int bits = (int)plane.Precision;
        value += plane.Signed != 0 ? 1L << (bits - 1) : 0;
        long max = (1L << bits) - 1;
        return (int)(((Math.Clamp(value, 0, max) * 255) + (max / 2)) / max);
    }

    private static void Verify(in OpenJpeg.Component plane, RasterSource source)
    {
        bool empty = plane.Data == null || plane.Width == 0 || plane.Height == 0;
        if (empty || plane.Dx == 0 || plane.Dy == 0 || plane.Precision is 0 or > 31)
        {
            throw new Jpeg2000Exception($"A plane of '{source.Name}' has no samples.");
        }
    }
}
