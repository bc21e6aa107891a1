using System;
using System.IO;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes pixels as a device has them. Lines of drawings differ little from the line above, so the "up" filter serves
/// all of them.
/// </summary>
internal static class PngEncoder
{
    /// <summary>Returns a row of pixels: blue first, premultiplied. It is called on several threads.</summary>
    internal delegate ReadOnlySpan<byte> PixelRow(int y);

    internal static void Write(RasterPage page, Stream output, int compressionLevel, double pixelsPerInch) =>
        Write(page.Width, page.Height, page.Row, output, compressionLevel, pixelsPerInch);

    internal static void Write(int width, int height, PixelRow rows, Stream output, int compressionLevel,
        double pixelsPerInch)
    {
        bool opaque = IsOpaque(height, rows);
        var head = new PngHeader(width, height, 8, opaque ? PngColorType.Truecolor : PngColorType.TruecolorWithAlpha);
        PngStream.Begin(output, head, pixelsPerInch, pixelsPerInch);
        PngStream.WriteRows(
            output, head, PngFilterType.Up, compressionLevel, (y, row) => Convert(rows(y), row, opaque ? 3 : 4));
        PngStream.End(output);
    }

    /// <summary>Converts premultiplied BGRA to RGB or RGBA.</summary>
    private static void Convert(ReadOnlySpan<byte> from, Span<byte> to, int channels)
    {
        if (channels == 3)
        {
            BitPacking.Rgb(MemoryMarshal.Cast<byte, int>(from), to, channels);
            return;
        }

        for (int i = 0; i < from.Length; i += 4)
        {
            int alpha = from[i + 3];
            to[i] = Plain(from[i + 2], alpha);
            to[i + 1] = Plain(from[i + 1], alpha);
            to[i + 2] = Plain(from[i], alpha);
            to[i + 3] = (byte)alpha;
        }
    }

    private static byte Plain(int value, int alpha) => alpha switch
    {
        255 => (byte)value,
        0 => 0,
        _ => (byte)Math.Min(255, ((value * 255) + (alpha / 2)) / alpha),
    };

    private static bool IsOpaque(int height, PixelRow rows)
    {
        for (int y = 0; y < height; y++)
        {
            if (!PixelGrid.AreOpaque(MemoryMarshal.Cast<byte, int>(rows(y))))
            {
                return false;
            }
        }

        return true;
    }
}
