using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>Makes palettes.</summary>
public static class ColorPaletteHelper
{
    private static readonly int[] BaseColors =
    [
        0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
        0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
    ];

    /// <summary>Gives black and white.</summary>
    /// <returns>Black and white.</returns>
    public static IColorPalette CreateMonochrome() => new ColorPalette([PixelGrid.Opaque, -1]);

    /// <summary>Gives the 16 basic colours of HTML 4.01.</summary>
    /// <returns>The 16 basic colours of HTML 4.01.</returns>
    public static IColorPalette Create4Bit() => new ColorPalette(Array.ConvertAll(BaseColors, static rgb => rgb | PixelGrid.Opaque));

    /// <summary>Gives 252 colours in even steps: 6 of red, 7 of green, 6 of blue.</summary>
    /// <returns>252 colours in even steps.</returns>
    public static IColorPalette Create8Bit() => GetUniformColorPalette(256);

    /// <summary>Gives 16 greys from black to white.</summary>
    /// <returns>16 greys from black to white.</returns>
    public static IColorPalette Create4BitGrayscale() => Grays(16);

    /// <summary>Gives 256 greys from black to white.</summary>
    /// <returns>256 greys from black to white.</returns>
    public static IColorPalette Create8BitGrayscale() => Grays(256);

    /// <summary>Gives colours in even steps, whatever a picture holds.</summary>
    /// <param name="entriesCount">How many at most, 2 to 256; as many as a regular lattice has.</param>
    /// <returns>Colours in even steps, whatever a picture holds.</returns>
    public static IColorPalette GetUniformColorPalette(int entriesCount) => new ColorPalette(Quantizer.Uniform(Verified(entriesCount)));

    /// <summary>Chooses colours for a picture, by median cut.</summary>
    /// <param name="image">The picture.</param>
    /// <param name="entriesCount">How many at most, 2 to 256. A picture with no more colours gets exactly its own.</param>
    public static IColorPalette GetCloseImagePalette(RasterImage image, int entriesCount) =>
        GetCloseImagePalette(image, entriesCount, ColorQuantizationMethod.MedianCut);

    /// <summary>Chooses colours for a picture.</summary>
    /// <param name="image">The picture.</param>
    /// <param name="entriesCount">How many at most, 2 to 256. A picture with no more colours gets exactly its own.</param>
    /// <param name="method">How they are chosen.</param>
    public static IColorPalette GetCloseImagePalette(RasterImage image, int entriesCount, ColorQuantizationMethod method)
    {
        Verify.NotNull(image);
        return new ColorPalette(PaletteChoice.For(image.Pixels, null, Verified(entriesCount), method));
    }

    /// <summary>Tells whether any colour of a palette is less than opaque.</summary>
    /// <param name="palette">The palette.</param>
    /// <returns>Whether any colour of a palette is less than opaque.</returns>
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
