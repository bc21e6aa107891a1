using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Colors;

namespace Korvan.CAD.PaletteHelper;

/// <summary>Makes one palette for several pictures: their colours are counted one after the other.</summary>
public class AdjustPalette : IPartialArgb32PixelLoader
{
    private readonly ColorHistogram _colors = new();

    /// <summary>Creates a palette maker that has seen no colours yet.</summary>
    public AdjustPalette()
    {
    }

    /// <summary>Gets or sets how colours are chosen.</summary>
    public ColorQuantizationMethod Method { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets how many different colours were counted; among very many, alike ones count as one.</summary>
    public int ColorsCount => _colors.Counts.Count;

    /// <summary>Counts the colours of a picture.</summary>
    /// <param name="image">The picture.</param>
    public void AddImage(RasterImage image)
    {
        Verify.NotNull(image);
        _colors.Add(image.Pixels);
    }

    /// <summary>Counts the colours of a block of pixels.</summary>
    /// <param name="pixelsRectangle">Where the block belongs.</param>
    /// <param name="pixels">Its pixels as 32-bit numbers.</param>
    public void Process(Rectangle pixelsRectangle, int[] pixels)
    {
        Verify.NotNull(pixels);
        _colors.Add(pixels);
    }

    /// <summary>Chooses colours for all that was counted.</summary>
    /// <param name="entriesCount">How many at most, 2 to 256.</param>
    /// <exception cref="InvalidOperationException">Nothing was counted.</exception>
    public IColorPalette CreatePalette(int entriesCount)
    {
        Verify.InRange(entriesCount, 2, 256);
        if (ColorsCount == 0)
        {
            throw new InvalidOperationException("No colours were counted; add a picture first.");
        }

        return new ColorPalette(Quantizer.Choose(_colors, entriesCount, Method));
    }
}
