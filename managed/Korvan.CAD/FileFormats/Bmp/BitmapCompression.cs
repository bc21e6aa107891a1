using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Bmp;

/// <summary>How the pixels of a bitmap are stored.</summary>
[PythonEnum(EnumKind.Integer)]
public enum BitmapCompression
{
    /// <summary>Plain.</summary>
    Rgb = 0,

    /// <summary>Run lengths of bytes, with a palette of up to 256 colours.</summary>
    Rle8 = 1,

    /// <summary>Run lengths of half bytes, with a palette of up to 16 colours.</summary>
    Rle4 = 2,

    /// <summary>Plain; masks say where red, green and blue lie.</summary>
    Bitfields = 3,

    /// <summary>A whole JPEG in the place of pixels, meant for printers.</summary>
    Jpeg = 4,

    /// <summary>A whole PNG in the place of pixels, meant for printers.</summary>
    Png = 5,

    /// <summary>Plain; masks say where red, green, blue and opacity lie.</summary>
    AlphaBitfields = 6,

    /// <summary>Texture blocks of four by four pixels; the number is the characters of the tag.</summary>
    Dxt1 = 827611204,
}
