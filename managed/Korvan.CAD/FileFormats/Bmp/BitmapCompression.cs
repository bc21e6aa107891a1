using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Bmp;

/// <summary>Compression of the pixels of a bitmap.</summary>
[PythonEnum(EnumKind.Integer)]
public enum BitmapCompression
{
    /// <summary>Uncompressed.</summary>
    Rgb = 0,

    /// <summary>Run-length encoding of 8-bit palette indices.</summary>
    Rle8 = 1,

    /// <summary>Run-length encoding of 4-bit palette indices.</summary>
    Rle4 = 2,

    /// <summary>Uncompressed, with bit masks of red, green and blue.</summary>
    Bitfields = 3,

    /// <summary>A JPEG file instead of pixels, for printers.</summary>
    Jpeg = 4,

    /// <summary>A PNG file instead of pixels, for printers.</summary>
    Png = 5,

    /// <summary>Uncompressed, with bit masks of red, green, blue and alpha.</summary>
    AlphaBitfields = 6,

    /// <summary>Texture blocks of 4 × 4 pixels; the value is a four-character code.</summary>
    Dxt1 = 827611204,
}
