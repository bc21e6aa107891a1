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
}
