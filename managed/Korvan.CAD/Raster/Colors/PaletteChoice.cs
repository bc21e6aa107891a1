using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>The palette that a picture is written with: the one given, or one made for it.</summary>
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
            throw new ImageSaveException($"The palette has {given.EntriesCount} colours; pixels can number {maxColors} of them here.");
        }

        return given.Argb32Entries;
    }
}

/// <summary>The numbers of all pixels of a picture.</summary>
internal static class IndexedPixels
{
    internal static byte[] Of(PixelGrid pixels, int[] palette, DitheringMethods dithering)
    {
        var all = new byte[pixels.Count];
        Ditherer.Map(pixels, palette, dithering, (y, indices) => indices.CopyTo(all.AsSpan(y * pixels.Width)));
        return all;
    }
}
