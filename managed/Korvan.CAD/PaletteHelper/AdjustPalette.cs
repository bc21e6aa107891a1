using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Colors;

namespace Korvan.CAD.PaletteHelper;

/// <summary>Creates one palette for several images, whose colours are counted one after the other.</summary>
public class AdjustPalette : IPartialArgb32PixelLoader
{
    private readonly ColorHistogram _colors = new();

    /// <summary>Creates an object that has counted no colours yet.</summary>
    public AdjustPalette()
    {
    }

    /// <summary>Gets or sets how colours are chosen.</summary>
    public ColorQuantizationMethod Method { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets how many distinct colours were counted; past 262144 of them, similar ones count as one.</summary>
    public int ColorsCount => _colors.Counts.Count;

    /// <summary>Counts the colours of an image.</summary>
    /// <param name="image">The image.</param>
    public void AddImage(RasterImage image)
    {
        Verify.NotNull(image);
        _colors.Add(image.Pixels);
    }

    /// <summary>Counts the colours of a block of pixels.</summary>
    /// <param name="pixelsRectangle">The position of the block in the image.</param>
    /// <param name="pixels">Its pixels as 32-bit ARGB values.</param>
    public void Process(Rectangle pixelsRectangle, int[] pixels)
    {
        Verify.NotNull(pixels);
        _colors.Add(pixels);
    }

    /// <summary>Chooses colours for all that was counted.</summary>
    /// <param name="entriesCount">The maximum number of colours, 2 to 256.</param>
    /// <exception cref="InvalidOperationException">No colours were counted.</exception>
    public IColorPalette CreatePalette(int entriesCount)
    {
        Verify.InRange(entriesCount, 2, 256);
        if (ColorsCount == 0)
        {
            throw new InvalidOperationException("No colours were counted; add an image first.");
        }

        return new ColorPalette(Quantizer.Choose(_colors, entriesCount, Method));
    }
}
