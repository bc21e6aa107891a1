using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
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
