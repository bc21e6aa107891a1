using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>Creates palettes.</summary>
public static class ColorPaletteHelper
{
    private static readonly int[] BaseColors =
    [
        0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
        0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
    ];

    /// <summary>Returns a palette of black and white.</summary>
    /// <returns>Black and white.</returns>
    public static IColorPalette CreateMonochrome() => new ColorPalette([PixelGrid.Opaque, -1]);

    /// <summary>Returns a palette of the 16 basic colours of HTML 4.01.</summary>
    /// <returns>The palette.</returns>
    public static IColorPalette Create4Bit() =>
        new ColorPalette(Array.ConvertAll(BaseColors, static rgb => rgb | PixelGrid.Opaque));

    /// <summary>Returns a uniform palette of 252 colours: 6 levels of red, 7 of green, 6 of blue.</summary>
    /// <returns>The palette.</returns>
    public static IColorPalette Create8Bit() => GetUniformColorPalette(256);

    /// <summary>Returns a palette of 16 grays from black to white.</summary>
    /// <returns>The palette.</returns>
    public static IColorPalette Create4BitGrayscale() => Grays(16);

    /// <summary>Returns a palette of 256 grays from black to white.</summary>
    /// <returns>The palette.</returns>
    public static IColorPalette Create8BitGrayscale() => Grays(256);

    /// <summary>Returns a uniform palette, independent of an image.</summary>
    /// <param name="entriesCount">The maximum number of colours, 2 to 256; the palette has as many as a regular lattice
    /// fits.</param>
    /// <returns>The palette.</returns>
    public static IColorPalette GetUniformColorPalette(int entriesCount) =>
        new ColorPalette(Quantizer.Uniform(Verified(entriesCount)));

    /// <summary>Returns a palette for an image, chosen by median cut.</summary>
    /// <param name="image">The image.</param>
    /// <param name="entriesCount">The maximum number of colours, 2 to 256. An image with no more colours gets exactly
    /// its own.</param>
    public static IColorPalette GetCloseImagePalette(RasterImage image, int entriesCount) =>
        GetCloseImagePalette(image, entriesCount, ColorQuantizationMethod.MedianCut);

    /// <summary>Returns a palette for an image.</summary>
    /// <param name="image">The image.</param>
    /// <param name="entriesCount">The maximum number of colours, 2 to 256. An image with no more colours gets exactly
    /// its own.</param>
    /// <param name="method">How the colours are chosen.</param>
    public static IColorPalette GetCloseImagePalette(
        RasterImage image, int entriesCount, ColorQuantizationMethod method)
    {
        Verify.NotNull(image);
        return new ColorPalette(PaletteChoice.For(image.Pixels, null, Verified(entriesCount), method));
    }

    /// <summary>Returns whether any colour of a palette is not opaque.</summary>
    /// <param name="palette">The palette.</param>
    /// <returns>Whether there is one.</returns>
    public static bool HasTransparentColors(IColorPalette palette)
    {
        Verify.NotNull(palette);
        return Array.Exists(palette.Argb32Entries, static color => (color >>> 24) != 255);
    }

    private static ColorPalette Grays(int count)
    {
        var colors = new int[count];
        for (int i = 0; i < count; i++)
        {
            colors[i] = PixelGrid.Opaque | (i * 255 / (count - 1) * 0x010101);
        }

        return new ColorPalette(colors);
    }

    private static int Verified(int entriesCount)
    {
        Verify.InRange(entriesCount, 2, 256);
        return entriesCount;
    }
}
