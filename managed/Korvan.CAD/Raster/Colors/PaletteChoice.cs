using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>The palette that a picture is written with: the one given, or one made for it.</summary>
internal static class PaletteChoice
{
    internal static int[] For(PixelGrid pixels, IColorPalette? given, int most, ColorQuantizationMethod method)
    {
        if (given != null)
        {
            return Given(given, most);
        }

        var colors = new ColorCount();
        colors.Add(pixels);
        return Quantizer.Choose(colors, most, method);
    }

    internal static int[] Given(IColorPalette given, int most)
    {
        if (given.EntriesCount > most)
        {
            throw new ImageSaveException($"The palette has {given.EntriesCount} colours; pixels can number {most} of them here.");
        }

        return given.Argb32Entries;
    }
}

/// <summary>The numbers of all pixels of a picture.</summary>
internal static class IndexedRows
{
    internal static byte[] Of(PixelGrid pixels, int[] palette, DitheringMethods how)
    {
        var all = new byte[pixels.Count];
        Ditherer.Map(pixels, palette, how, (y, indices) => indices.CopyTo(all.AsSpan(y * pixels.Width)));
        return all;
    }
}
