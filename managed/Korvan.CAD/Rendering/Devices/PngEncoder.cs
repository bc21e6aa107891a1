using System;
using System.IO;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.Raster.Codecs;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes pixels as a device has them. Lines of drawings differ little from the line above, so the "up" filter serves
/// all of them.
/// </summary>
internal static class PngEncoder
{
    /// <summary>One line of pixels: blue first, alpha multiplied in.</summary>
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

    /// <summary>From blue first and multiplied by alpha to red first and plain.</summary>
    private static void Convert(ReadOnlySpan<byte> from, Span<byte> to, int channels)
    {
        for (int i = 0, o = 0; i < from.Length; i += 4, o += channels)
        {
            int alpha = from[i + 3];
            to[o] = Plain(from[i + 2], alpha);
            to[o + 1] = Plain(from[i + 1], alpha);
            to[o + 2] = Plain(from[i], alpha);
            if (channels == 4)
            {
                to[o + 3] = (byte)alpha;
            }
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
            ReadOnlySpan<byte> row = rows(y);
            for (int i = 3; i < row.Length; i += 4)
            {
                if (row[i] != 255)
                {
                    return false;
                }
            }
        }

        return true;
    }
}
