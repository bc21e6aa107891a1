using Korvan.CAD.FileFormats.Bmp;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for BMP images.</summary>
public class BmpOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public BmpOptions()
        : base(FileFormat.Bmp)
    {
    }

    /// <summary>Gets or sets the bits per pixel: 1, 4 or 8 with a palette, 24, or 32 with an alpha channel. 24 by
    /// default.</summary>
    public int BitsPerPixel { get; set; } = 24;

    /// <summary>Gets or sets the compression: none, or run-length encoding with 8 bits per pixel.</summary>
    public BitmapCompression Compression { get; set; }

    /// <summary>Gets or sets the dithering method for colours that the palette lacks.</summary>
    public DitheringMethods Dithering { get; set; } = DitheringMethods.None;

    internal override bool HoldsResolution => true;

    internal override bool UsesPalette => BitsPerPixel <= 8;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (Dithering != DitheringMethods.None && !UsesPalette)
        {
            throw NotHonoured(nameof(Dithering),
                "choose 1, 4 or 8 for bits_per_pixel, as other pixels are not indexed");
        }
    }
}
