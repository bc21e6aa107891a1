using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Ready-made combinations of compression and samples.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffExpectedFormat
{
    /// <summary>LZW, red, green and blue.</summary>
    Default = 0,

    /// <summary>Plain, red, green and blue.</summary>
    TiffNoCompressionRgb = 1,

    /// <summary>Plain, with opacity.</summary>
    TiffNoCompressionRgba = 2,

    /// <summary>Plain, black and white.</summary>
    TiffNoCompressionBw = 3,

    /// <summary>LZW, red, green and blue.</summary>
    TiffLzwRgb = 4,

    /// <summary>LZW, with opacity.</summary>
    TiffLzwRgba = 5,

    /// <summary>LZW, grey.</summary>
    TiffLzwGray = 6,

    /// <summary>LZW, 256 colours.</summary>
    TiffLzwPalette = 7,

    /// <summary>LZW, black and white.</summary>
    TiffLzwBw = 8,

    /// <summary>Deflate, red, green and blue.</summary>
    TiffDeflateRgb = 9,

    /// <summary>Deflate, with opacity.</summary>
    TiffDeflateRgba = 10,

    /// <summary>Deflate, grey.</summary>
    TiffDeflateGray = 11,

    /// <summary>Deflate, black and white.</summary>
    TiffDeflateBw = 12,

    /// <summary>JPEG inside, red, green and blue.</summary>
    TiffJpegRgb = 13,

    /// <summary>JPEG inside, grey.</summary>
    TiffJpegGray = 14,

    /// <summary>Run lengths, red, green and blue.</summary>
    TiffPackBitsRgb = 15,

    /// <summary>Modified Huffman, black and white.</summary>
    TiffCcittRle = 16,

    /// <summary>Facsimile group 3, black and white.</summary>
    TiffCcittFax3 = 17,

    /// <summary>Facsimile group 4, black and white.</summary>
    TiffCcittFax4 = 18,
}
