using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>What rows of bytes mean.</summary>
public class RawDataSettings
{
    /// <summary>Creates settings whose rows have no gaps between them.</summary>
    /// <param name="pixelDataFormat">The form of a pixel.</param>
    /// <param name="width">How many pixels a row has.</param>
    public RawDataSettings(PixelDataFormat pixelDataFormat, int width)
    {
        Verify.NotNull(pixelDataFormat);
        Verify.NotBelow(width, 1);
        PixelDataFormat = pixelDataFormat;
        LineSize = pixelDataFormat.RowBytes(width);
    }

    /// <summary>Gets the form of a pixel.</summary>
    public PixelDataFormat PixelDataFormat { get; }

    /// <summary>Gets or sets how many bytes lie between the beginnings of two rows.</summary>
    public int LineSize { get; set; }

    /// <summary>Gets or sets the colours that pixels are numbers of; needed by forms with a palette.</summary>
    public IColorPalette? ColorPalette { get; set; }

    /// <summary>Gives what turns single rows into colours, and back.</summary>
    /// <returns>What turns single rows into colours, and back.</returns>
    public IColorConverter CreateColorConverter() => PixelDataFormat.CreateConverter(ColorPalette);
}
