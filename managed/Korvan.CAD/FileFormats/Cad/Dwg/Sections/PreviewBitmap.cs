using System;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>Preview images as bitmaps without a file header; files from release 2013 on have them in the PNG
/// format.</summary>
internal static class PreviewBitmap
{
    private const int HeaderLength = 40;
    private const int PixelLength = 4;
    private const int Level = 6;
    private const double Density = 96;

    /// <summary>Returns a bitmap.</summary>
    /// <param name="image">A bitmap without its file header, or a file in the PNG format.</param>
    /// <param name="name">The name of the drawing in messages.</param>
    /// <returns>The bitmap; empty if the image is damaged.</returns>
    internal static byte[] From(ReadOnlySpan<byte> image, string name)
    {
        if (!PreviewSection.IsPng(image))
        {
            return image.ToArray();
        }

        try
        {
            DecodedFrame frame = PngReader.Read(new RasterSource(image.ToArray(), name, true)).Frames[0];
            using (frame)
            {
                return ToBitmap(frame.Pixels);
            }
        }
        catch (Exception e) when (e is ImageLoadException or ArgumentException)
        {
            return [];
        }
    }

    /// <summary>Returns the preview of a file from release 2013 on.</summary>
    /// <param name="bitmap">A bitmap without its file header.</param>
    /// <returns>A file in the PNG format; the bitmap if it is damaged or empty.</returns>
    internal static byte[] ToPng(byte[] bitmap)
    {
        if (bitmap.Length <= HeaderLength || PreviewSection.IsPng(bitmap))
        {
            return bitmap;
        }

        try
        {
            RasterSource source = new(WithFileHeader(bitmap), "preview", true);
            using DecodedFrame frame = BmpReader.Read(source).Frames[0];
            using MemoryStream stream = new();
            PixelGrid pixels = frame.Pixels;
            PngHeader header = new(pixels.Width, pixels.Height, 8, PngColorType.TruecolorWithAlpha);
            PngStream.Begin(stream, header, Density, Density);
            PngStream.WriteRows(stream, header, PngFilterType.Up, Level, (y, row) => Pack(pixels.Bytes(y), row));
            PngStream.End(stream);
            return stream.ToArray();
        }
        catch (Exception e) when (e is ImageLoadException or ArgumentException)
        {
            return bitmap;
        }
    }

    private static void Pack(ReadOnlySpan<byte> from, Span<byte> to)
    {
        for (int i = 0; i < from.Length; i += PixelLength)
        {
            (to[i], to[i + 1], to[i + 2], to[i + 3]) = (from[i + 2], from[i + 1], from[i], from[i + 3]);
        }
    }

    // The pixels follow the header, the masks of channels and the palette.
    private static byte[] WithFileHeader(byte[] bitmap)
    {
        const int fileHeader = 14;
        const int masksLength = 12;
        int depth = BitConverter.ToUInt16(bitmap, 14);
        bool hasMasks = BitConverter.ToInt32(bitmap, 16) == 3 && BitConverter.ToInt32(bitmap, 0) == HeaderLength;
        long colors = BitConverter.ToUInt32(bitmap, 32);
        colors = colors == 0 && depth <= 8 ? 1 << depth : colors;
        long start = fileHeader + BitConverter.ToUInt32(bitmap, 0) + (hasMasks ? masksLength : 0)
            + (PixelLength * colors);
        byte[] file = new byte[fileHeader + bitmap.Length];
        "BM"u8.CopyTo(file);
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(2), file.Length);
        BinaryPrimitives.WriteUInt32LittleEndian(file.AsSpan(10), (uint)Math.Min(start, file.Length));
        bitmap.CopyTo(file, fileHeader);
        return file;
    }

    // Rows of a bitmap go from the bottom up.
    private static unsafe byte[] ToBitmap(PixelGrid pixels)
    {
        int row = pixels.Width * PixelLength;
        byte[] bitmap = new byte[HeaderLength + (row * pixels.Height)];
        BinaryPrimitives.WriteInt32LittleEndian(bitmap, HeaderLength);
        BinaryPrimitives.WriteInt32LittleEndian(bitmap.AsSpan(4), pixels.Width);
        BinaryPrimitives.WriteInt32LittleEndian(bitmap.AsSpan(8), pixels.Height);
        bitmap[12] = 1;
        bitmap[14] = 8 * PixelLength;
        for (int y = 0; y < pixels.Height; y++)
        {
            ReadOnlySpan<byte> source = new(pixels.Pointer + ((long)y * row), row);
            source.CopyTo(bitmap.AsSpan(HeaderLength + ((pixels.Height - 1 - y) * row)));
        }

        return bitmap;
    }
}
