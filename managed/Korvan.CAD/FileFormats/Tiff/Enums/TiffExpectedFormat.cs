using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Ready-made combinations of compression and samples.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffExpectedFormat
{
    /// <summary>LZW, RGB.</summary>
    Default = 0,

    /// <summary>Uncompressed, RGB.</summary>
    TiffNoCompressionRgb = 1,

    /// <summary>Uncompressed, RGB with alpha.</summary>
    TiffNoCompressionRgba = 2,

    /// <summary>Uncompressed, black and white.</summary>
    TiffNoCompressionBw = 3,

    /// <summary>LZW, RGB.</summary>
    TiffLzwRgb = 4,

    /// <summary>LZW, RGB with alpha.</summary>
    TiffLzwRgba = 5,

    /// <summary>LZW, grayscale.</summary>
    TiffLzwGray = 6,

    /// <summary>LZW, palette of 256 colours.</summary>
    TiffLzwPalette = 7,

    /// <summary>LZW, black and white.</summary>
    TiffLzwBw = 8,

    /// <summary>Deflate, RGB.</summary>
    TiffDeflateRgb = 9,

    /// <summary>Deflate, RGB with alpha.</summary>
    TiffDeflateRgba = 10,

    /// <summary>Deflate, grayscale.</summary>
    TiffDeflateGray = 11,

    /// <summary>Deflate, black and white.</summary>
    TiffDeflateBw = 12,

    /// <summary>JPEG, RGB.</summary>
    TiffJpegRgb = 13,

    /// <summary>JPEG, grayscale.</summary>
    TiffJpegGray = 14,

    /// <summary>PackBits, RGB.</summary>
    TiffPackBitsRgb = 15,

    /// <summary>CCITT modified Huffman, black and white.</summary>
    TiffCcittRle = 16,

    /// <summary>CCITT group 3, black and white.</summary>
    TiffCcittFax3 = 17,

    /// <summary>CCITT group 4, black and white.</summary>
    TiffCcittFax4 = 18,
}
