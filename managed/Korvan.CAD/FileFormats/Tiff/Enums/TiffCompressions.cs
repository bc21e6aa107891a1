using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How strips and tiles are compressed; the values of tag 259.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffCompressions
{
    /// <summary>Plain.</summary>
    None = 1,

    /// <summary>Modified Huffman code of black and white lines.</summary>
    CcittRle = 2,

    /// <summary>ITU-T T.4, facsimile group 3, black and white.</summary>
    CcittFax3 = 3,

    /// <summary>ITU-T T.6, facsimile group 4, black and white.</summary>
    CcittFax4 = 4,

    /// <summary>Lempel, Ziv and Welch.</summary>
    Lzw = 5,

    /// <summary>JPEG as the first edition had it; read where possible, never written.</summary>
    OldJpeg = 6,

    /// <summary>JPEG, lossy.</summary>
    Jpeg = 7,

    /// <summary>Deflate.</summary>
    AdobeDeflate = 8,

    /// <summary>Run lengths of bytes.</summary>
    PackBits = 32773,

    /// <summary>Deflate under its older number.</summary>
    Deflate = 32946,
}
