using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for PNG images.</summary>
public class PngOptions : ImageOptionsBase
{
    private int _compressionLevel = 6;
    private int _bitDepth = 8;

    /// <summary>Creates options with default values.</summary>
    public PngOptions()
        : base(FileFormat.Png)
    {
    }

    /// <summary>Gets or sets the compression level, 0 (none) to 9 (smallest). 6 by default.</summary>
    public int CompressionLevel
    {
        get => _compressionLevel;
        set
        {
            Verify.InRange(value, 0, 9);
            _compressionLevel = value;
        }
    }

    /// <summary>Gets or sets the colour type. Truecolour with alpha by default; the alpha channel is left out if all
    /// pixels are opaque. For colour types without alpha, transparent pixels are blended with white.</summary>
    public PngColorType ColorType { get; set; } = PngColorType.TruecolorWithAlpha;

    /// <summary>Gets or sets the bits per sample: 1, 2, 4 or 8 for greyscale and palettes, otherwise 8.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is none of these.</exception>
    public int BitDepth
    {
        get => _bitDepth;
        set
        {
            if (value is not (1 or 2 or 4 or 8))
            {
                throw Verify.OutOfRange(nameof(value), value, "A sample has 1, 2, 4 or 8 bits.");
            }

            _bitDepth = value;
        }
    }

    /// <summary>Gets or sets the filter of the rows. <see cref="PngFilterType.Up"/>, the default, compresses drawings
    /// best, <see cref="PngFilterType.Adaptive"/> photographs. Images with a palette are written without a
    /// filter.</summary>
    public PngFilterType FilterType { get; set; } = PngFilterType.Up;

    /// <summary>Gets or sets the dithering method for colours that the palette lacks.</summary>
    public DitheringMethods Dithering { get; set; }

    internal override bool HoldsXmp => true;

    internal override bool HoldsResolution => true;

    internal override bool UsesPalette => ColorType == PngColorType.IndexedColor;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (Dithering != DitheringMethods.None && !UsesPalette)
        {
            throw NotHonoured(nameof(Dithering), "set color_type to INDEXED_COLOR, as other pixels are not indexed");
        }
    }
}
