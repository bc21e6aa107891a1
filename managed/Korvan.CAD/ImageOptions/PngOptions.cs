using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes portable network graphics.</summary>
public class PngOptions : ImageOptionsBase
{
    private int _compressionLevel = 6;
    private int _bitDepth = 8;

    /// <summary>Creates options with their defaults.</summary>
    public PngOptions()
        : base(FileFormat.Png)
    {
    }

    /// <summary>Gets or sets how hard the data is compressed, 0 (not at all) to 9. 6 by default.</summary>
    public int CompressionLevel
    {
        get => _compressionLevel;
        set
        {
            Verify.InRange(value, 0, 9);
            _compressionLevel = value;
        }
    }

    /// <summary>Gets or sets what pixels store. By default colours with opacity; a picture that is opaque all over is
    /// written without. Where opacity is not stored, it is laid over white.</summary>
    public PngColorType ColorType { get; set; } = PngColorType.TruecolorWithAlpha;

    /// <summary>Gets or sets the bits of a sample: 1, 2, 4 or 8 for grey and palettes, otherwise 8.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is none of these.</exception>
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

    /// <summary>Gets or sets what of each line is stored. Drawings become smallest with
    /// <see cref="PngFilterType.Up"/>, the default; photographs with <see cref="PngFilterType.Adaptive"/>. Pictures
    /// with a palette are written without a filter.</summary>
    public PngFilterType FilterType { get; set; } = PngFilterType.Up;

    /// <summary>Gets or sets how colours are brought to a palette.</summary>
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
            throw NotHonoured(nameof(Dithering), "set color_type to INDEXED_COLOR, as other pixels keep their colours");
        }
    }
}
