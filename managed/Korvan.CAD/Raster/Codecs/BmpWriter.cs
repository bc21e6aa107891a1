using System;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Bmp;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes device-independent bitmaps with the header BITMAPINFOHEADER or, for alpha, BITMAPV4HEADER.</summary>
internal static class BmpWriter
{
    private const int FileHeaderBytes = 14;
    private const int InfoHeaderBytes = 40;
    private const int V4HeaderBytes = 108;
    private const int White = -1;
    private const double InchesPerMetre = 1 / 0.0254;

    internal static void Write(RasterPageData page, BmpOptions options, Stream output)
    {
        int bits = options.BitsPerPixel;
        bool rle = options.Compression == BitmapCompression.Rle8;
        if (bits is not (1 or 4 or 8 or 24 or 32))
        {
            throw new BmpImageException($"Bitmaps are written with 1, 4, 8, 24 or 32 for bits_per_pixel, not {bits}.");
        }

        if (options.Compression is not (BitmapCompression.Rgb or BitmapCompression.Rle8) || (rle && bits != 8))
        {
            throw new BmpImageException(
                $"Bitmaps of {bits} bits per pixel are not written with the compression "
                    + $"{Verify.NameOf(options.Compression)};"
                + " choose RGB, or RLE8 with 8 bits.");
        }

        if (bits != 32)
        {
            page.Pixels.Flatten(White);
        }

        int[] palette = bits > 8
            ? [] : PaletteChoice.For(page.Pixels, options.Palette, 1 << bits, ColorQuantizationMethod.MedianCut);
        long rowBytes = (((long)page.Pixels.Width * bits) + 31) / 32 * 4;
        byte[]? packed = rle
            ? BmpRunLengths.Pack(IndexedPixels.Of(page.Pixels, palette, options.Dithering), page.Pixels.Width) : null;
        long size = packed?.Length ?? (rowBytes * page.Pixels.Height);
        WriteHeaders(page, bits, options.Compression, palette, size, output);
        if (packed != null)
        {
            output.Write(packed);
        }
        else
        {
            WriteRows(page.Pixels, bits, palette, options.Dithering, checked((int)rowBytes), output);
        }
    }

    private static void WriteHeaders(
        RasterPageData page, int bits, BitmapCompression compression, int[] palette, long size, Stream output)
    {
        int headerBytes = bits == 32 ? V4HeaderBytes : InfoHeaderBytes;
        long offset = FileHeaderBytes + headerBytes + (palette.Length * 4);
        if (offset + size > uint.MaxValue)
        {
            throw new BmpImageException($"The bitmap would have {offset + size} bytes; the format ends at 4 GiB.");
        }

        var data = new byte[offset];
        Span<byte> to = data;
        (to[0], to[1]) = ((byte)'B', (byte)'M');
        BinaryPrimitives.WriteUInt32LittleEndian(to[2..], (uint)(offset + size));
        BinaryPrimitives.WriteUInt32LittleEndian(to[10..], (uint)offset);
        to = to[FileHeaderBytes..];
        BinaryPrimitives.WriteInt32LittleEndian(to, headerBytes);
        BinaryPrimitives.WriteInt32LittleEndian(to[4..], page.Pixels.Width);
        BinaryPrimitives.WriteInt32LittleEndian(to[8..], page.Pixels.Height);
        BinaryPrimitives.WriteInt16LittleEndian(to[12..], 1);
        BinaryPrimitives.WriteInt16LittleEndian(to[14..], (short)bits);
        BinaryPrimitives.WriteInt32LittleEndian(
            to[16..], (int)(bits == 32 ? BitmapCompression.Bitfields : compression));
        BinaryPrimitives.WriteUInt32LittleEndian(to[20..], (uint)size);
        BinaryPrimitives.WriteInt32LittleEndian(to[24..], PerMetre(page.HorizontalResolution));
        BinaryPrimitives.WriteInt32LittleEndian(to[28..], PerMetre(page.VerticalResolution));
        BinaryPrimitives.WriteInt32LittleEndian(to[32..], palette.Length);
        if (bits == 32)
        {
            BinaryPrimitives.WriteUInt32LittleEndian(to[40..], 0x00FF0000);
            BinaryPrimitives.WriteUInt32LittleEndian(to[44..], 0x0000FF00);
            BinaryPrimitives.WriteUInt32LittleEndian(to[48..], 0x000000FF);
            BinaryPrimitives.WriteUInt32LittleEndian(to[52..], 0xFF000000);
            "BGRs"u8.CopyTo(to[56..]); // LCS_sRGB, lowest byte first
        }

        for (int i = 0; i < palette.Length; i++)
        {
            BinaryPrimitives.WriteInt32LittleEndian(to[(headerBytes + (i * 4))..], palette[i] & 0xFFFFFF);
        }

        output.Write(data);
    }

    private static int PerMetre(double pixelsPerInch) =>
        (int)Math.Min(int.MaxValue, Math.Round(pixelsPerInch * InchesPerMetre));

    // Rows run from the bottom up.
    private static void WriteRows(
        PixelGrid pixels, int bits, int[] palette, DitheringMethods dithering, int rowBytes, Stream output)
    {
        byte[]? indices = bits > 8 ? null : IndexedPixels.Of(pixels, palette, dithering);
        var row = new byte[rowBytes];
        for (int y = pixels.Height - 1; y >= 0; y--)
        {
            if (bits == 32)
            {
                output.Write(pixels.Bytes(y));
                continue;
            }

            if (indices != null)
            {
                BitPacking.Pack(indices.AsSpan(y * pixels.Width, pixels.Width), row, bits);
            }
            else
            {
                ReadOnlySpan<int> from = pixels.Row(y);
                for (int x = 0; x < from.Length; x++)
                {
                    (row[3 * x], row[(3 * x) + 1], row[(3 * x) + 2]) =
                        ((byte)from[x], (byte)(from[x] >> 8), (byte)(from[x] >> 16));
                }
            }

            output.Write(row);
        }
    }
}
