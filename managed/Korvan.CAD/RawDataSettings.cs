using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The layout of rows of pixel bytes.</summary>
public class RawDataSettings
{
    /// <summary>Creates settings of rows without padding.</summary>
    /// <param name="pixelDataFormat">The pixel format.</param>
    /// <param name="width">The number of pixels in a row.</param>
    public RawDataSettings(PixelDataFormat pixelDataFormat, int width)
    {
        Verify.NotNull(pixelDataFormat);
        Verify.NotBelow(width, 1);
        PixelDataFormat = pixelDataFormat;
        LineSize = pixelDataFormat.RowBytes(width);
    }

    /// <summary>Gets the pixel format.</summary>
    public PixelDataFormat PixelDataFormat { get; }

    /// <summary>Gets or sets the distance from one row to the next in bytes (stride).</summary>
    public int LineSize { get; set; }

    /// <summary>Gets or sets the palette; required by indexed formats.</summary>
    public IColorPalette? ColorPalette { get; set; }

    /// <summary>Returns a converter between rows and ARGB values.</summary>
    /// <returns>The converter.</returns>
    public IColorConverter CreateColorConverter() => PixelDataFormat.CreateConverter(ColorPalette);
}
