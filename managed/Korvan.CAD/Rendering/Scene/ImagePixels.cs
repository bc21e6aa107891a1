using System;
using System.Runtime.InteropServices;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Decoded pixels: blue first, alpha multiplied in.</summary>
internal sealed record ImagePixels(int Width, int Height, byte[] Pixels)
{
    private const int ChannelCount = 4;

    /// <summary>The first page of an image file, as far as it can be read; null for a format that has no
    /// reader.</summary>
    internal static ImagePixels? Decode(byte[] data, string name)
    {
        if (RasterCodecs.Detect(data) is not { } codec)
        {
            return null;
        }

        DecodedFile decoded = codec.Decode(data, name, lenient: true);
        try
        {
            return From(decoded.Frames[0].Pixels);
        }
        finally
        {
            decoded.Frames.ForEach(static frame => frame.Dispose());
        }
    }

    // A quarter of a square at each reduction, until the image takes no more than a part of the memory of the call.
    private static int Reduction(PixelGrid pixels)
    {
        const int part = 4;
        long most = (Budget.Current?.Memory ?? long.MaxValue) / part;
        int reduction = 1;
        while (pixels.Count * sizeof(int) / reduction / reduction > most)
        {
            reduction *= 2;
        }

        return reduction;
    }

    private static ImagePixels Reduced(PixelGrid pixels, int by)
    {
        int width = Math.Max(1, pixels.Width / by);
        int height = Math.Max(1, pixels.Height / by);
        var bytes = new byte[width * height * ChannelCount];
        var sums = new int[width * ChannelCount];
        for (int y = 0; y < height; y++)
        {
            Array.Clear(sums);
            int rows = Math.Min(by, pixels.Height - (y * by));
            for (int row = 0; row < rows; row++)
            {
                Add(pixels.Row((y * by) + row), by, sums);
            }

            int count = rows * Math.Min(by, pixels.Width);
            for (int i = 0; i < sums.Length; i++)
            {
                bytes[(y * sums.Length) + i] = (byte)(sums[i] / count);
            }
        }

        return new ImagePixels(width, height, bytes);
    }

    private static void Add(ReadOnlySpan<int> row, int by, int[] sums)
    {
        int used = Math.Min(row.Length, sums.Length / ChannelCount * by);
        for (int x = 0; x < used; x++)
        {
            int pixel = BitPacking.Premultiply(row[x], row[x] >>> 24);
            int at = x / by * ChannelCount;
            sums[at] += pixel & 255;
            sums[at + 1] += (pixel >> 8) & 255;
            sums[at + 2] += (pixel >> 16) & 255;
            sums[at + 3] += pixel >>> 24;
        }
    }

    /// <summary>Copies pixels, as many as the memory of the call allows; those of the grid may have their opacity
    /// multiplied in from then on.</summary>
    internal static ImagePixels From(PixelGrid pixels)
    {
        int reduction = Reduction(pixels);
        if (reduction > 1)
        {
            return Reduced(pixels, reduction);
        }

        var bytes = new byte[checked((int)(pixels.Count * ChannelCount))];
        for (int y = 0; y < pixels.Height; y++)
        {
            Span<int> row = pixels.WritableRow(y);
            foreach (ref int pixel in row)
            {
                int alpha = pixel >>> 24;
                pixel = alpha == 255 ? pixel : BitPacking.Premultiply(pixel, alpha);
            }

            MemoryMarshal.AsBytes(row).CopyTo(bytes.AsSpan(y * pixels.Width * 4));
        }

        return new ImagePixels(pixels.Width, pixels.Height, bytes);
    }
}
