using System;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>Packs and unpacks blocks of pixels in a pixel format.</summary>
internal static class RawData
{
    internal static byte[] Pack(PixelGrid pixels, Rectangle area, RawDataSettings settings)
    {
        int rowBytes = Verify(area, settings);
        ColorConverters converter = ColorConverters.Create(settings.PixelDataFormat, settings.ColorPalette);
        var data = new byte[checked((settings.LineSize * (area.Height - 1)) + rowBytes)];
        for (int y = 0; y < area.Height; y++)
        {
            ReadOnlySpan<int> row = pixels.Row(area.Y + y).Slice(area.X, area.Width);
            converter.Pack(row, data.AsSpan(y * settings.LineSize, rowBytes));
        }

        return data;
    }

    internal static void Unpack(byte[] data, PixelGrid pixels, Rectangle area, RawDataSettings settings)
    {
        int rowBytes = Verify(area, settings);
        long needed = ((long)settings.LineSize * (area.Height - 1)) + rowBytes;
        if (data.Length < needed)
        {
            throw new ArgumentException(
                $"{area.Width} × {area.Height} pixels in rows of {settings.LineSize} bytes need {needed}"
                + $" bytes; {data.Length} were given.");
        }

        ColorConverters converter = ColorConverters.Create(settings.PixelDataFormat, settings.ColorPalette);
        for (int y = 0; y < area.Height; y++)
        {
            Span<int> row = pixels.WritableRow(area.Y + y).Slice(area.X, area.Width);
            converter.Unpack(data.AsSpan(y * settings.LineSize, rowBytes), row);
        }
    }

    private static int Verify(Rectangle area, RawDataSettings settings)
    {
        int rowBytes = settings.PixelDataFormat.RowBytes(area.Width);
        if (settings.LineSize < rowBytes)
        {
            throw new FrameworkException($"Rows of {settings.LineSize} bytes do not hold {area.Width} pixels of"
                + $" {settings.PixelDataFormat}, which need {rowBytes}.");
        }

        return rowBytes;
    }
}
