using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Chooses the palette that an image is written with: the given one, or one made for it.</summary>
internal static class PaletteChoice
{
    internal static int[] For(PixelGrid pixels, IColorPalette? given, int maxColors, ColorQuantizationMethod method)
    {
        if (given != null)
        {
            return Verified(given, maxColors);
        }

        var colors = new ColorHistogram();
        colors.Add(pixels);
        return Quantizer.Choose(colors, maxColors, method);
    }

    internal static int[] Verified(IColorPalette given, int maxColors)
    {
        if (given.EntriesCount > maxColors)
        {
            throw new ImageSaveException(
                $"The palette has {given.EntriesCount} colours; at most {maxColors} are possible here.");
        }

        return given.Argb32Entries;
    }
}

/// <summary>The palette indices of all pixels of an image.</summary>
internal static class IndexedPixels
{
    internal static byte[] Of(PixelGrid pixels, int[] palette, DitheringMethods dithering)
    {
        Budget.VerifyRoom(pixels.Count);
        var all = new byte[pixels.Count];
        Ditherer.Map(pixels, palette, dithering, (y, indices) => indices.CopyTo(all.AsSpan(y * pixels.Width)));
        return all;
    }
}
