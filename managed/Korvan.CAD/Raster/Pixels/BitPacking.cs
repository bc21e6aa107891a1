using System;
using System.Runtime.Intrinsics;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>Packs pixels into the bits and bytes of files.</summary>
internal static class BitPacking
{
    /// <summary>Packs values of 1, 2, 4 or 8 bits, the first in the highest bits.</summary>
    internal static void Pack(ReadOnlySpan<byte> values, Span<byte> row, int bits)
    {
        if (bits == 8)
        {
            values.CopyTo(row);
            return;
        }

        row.Clear();
        for (int i = 0; i < values.Length; i++)
        {
            int bit = i * bits;
            row[bit >> 3] |= (byte)(values[i] << (8 - bits - (bit & 7)));
        }
    }

    /// <summary>Packs grayscale of 1, 2, 4 or 8 bits, black at 0.</summary>
    internal static void Gray(ReadOnlySpan<int> pixels, Span<byte> row, int bits)
    {
        if (bits < 8)
        {
            row.Clear();
        }

        int max = (1 << bits) - 1;
        for (int i = 0; i < pixels.Length; i++)
        {
            int level = ((PixelGrid.Luma(pixels[i]) * max) + 127) / 255;
            if (bits == 8)
            {
                row[i] = (byte)level;
                continue;
            }

            int bit = i * bits;
            row[bit >> 3] |= (byte)(level << (8 - bits - (bit & 7)));
        }
    }

    /// <summary>Packs RGB, or RGBA where there are four samples; optionally premultiplied.</summary>
    internal static void Rgb(ReadOnlySpan<int> pixels, Span<byte> row, int samples, bool premultiplied = false)
    {
        int done = premultiplied ? 0 : RgbInBlocks(pixels, row, samples);
        for (int i = done, o = done * samples; i < pixels.Length; i++, o += samples)
        {
            int pixel = pixels[i];
            int alpha = pixel >>> 24;
            if (premultiplied && alpha < 255)
            {
                pixel = Premultiply(pixel, alpha);
            }

            row[o] = (byte)(pixel >> 16);
            row[o + 1] = (byte)(pixel >> 8);
            row[o + 2] = (byte)pixel;
            if (samples == 4)
            {
                row[o + 3] = (byte)alpha;
            }
        }
    }

    /// <summary>Packs four pixels at once, as long as sixteen bytes of the row are left; returns how many were
    /// packed.</summary>
    private static int RgbInBlocks(ReadOnlySpan<int> pixels, Span<byte> row, int samples)
    {
        Vector128<byte> order = samples == 4
            ? Vector128.Create((byte)2, 1, 0, 3, 6, 5, 4, 7, 10, 9, 8, 11, 14, 13, 12, 15)
            : Vector128.Create((byte)2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, 255, 255, 255, 255);
        int i = 0;
        for (; i + 4 <= pixels.Length && (i * samples) + 16 <= row.Length; i += 4)
        {
            Vector128<byte> block = Vector128.Create(pixels[i..]).AsByte();
            Vector128.Shuffle(block, order).CopyTo(row[(i * samples)..]);
        }

        return i;
    }

    /// <summary>CMYK.</summary>
    internal static void Cmyk(ReadOnlySpan<int> pixels, Span<byte> row)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            System.Buffers.Binary.BinaryPrimitives.WriteInt32LittleEndian(
                row[(4 * i)..], CmykColor.FromArgb32(pixels[i]).ToStored());
        }
    }

    /// <summary>Returns a colour premultiplied by its alpha.</summary>
    internal static int Premultiply(int argb, int alpha)
    {
        int Part(int shift) => ((((argb >> shift) & 255) * alpha) + 127) / 255 << shift;
        return (alpha << 24) | Part(16) | Part(8) | Part(0);
    }

    /// <summary>Returns a colour without premultiplication.</summary>
    internal static int Unpremultiply(int argb)
    {
        int alpha = argb >>> 24;
        if (alpha is 255 or 0)
        {
            return alpha == 0 ? 0 : argb;
        }

        int Part(int shift) => Math.Min(255, ((((argb >> shift) & 255) * 255) + (alpha / 2)) / alpha) << shift;
        return (alpha << 24) | Part(16) | Part(8) | Part(0);
    }

    /// <summary>Returns one value of a packed row.</summary>
    internal static int Value(ReadOnlySpan<byte> row, int index, int bits)
    {
        int bit = index * bits;
        return (row[bit >> 3] >> (8 - bits - (bit & 7))) & ((1 << bits) - 1);
    }
}
