using Korvan.CAD.FileFormats.Bmp;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes Windows bitmaps.</summary>
public class BmpOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public BmpOptions()
        : base(FileFormat.Bmp)
    {
    }

    /// <summary>Gets or sets the bits of a pixel: 1, 4 and 8 with a palette, 24, or 32 with opacity. 24 by default.</summary>
    public int BitsPerPixel { get; set; } = 24;

    /// <summary>Gets or sets how pixels are stored: plain, or as run lengths with 8 bits a pixel.</summary>
    public BitmapCompression Compression { get; set; }

    /// <summary>Gets or sets how colours are brought to a palette.</summary>
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
                "choose 1, 4 or 8 for bits_per_pixel, as other pixels keep their colours");
        }
    }
}
