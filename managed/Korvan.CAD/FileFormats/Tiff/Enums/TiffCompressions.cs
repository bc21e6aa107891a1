using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Compression of strips and tiles; the values of tag 259.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffCompressions
{
    /// <summary>Uncompressed.</summary>
    None = 1,

    /// <summary>CCITT modified Huffman run-length encoding, black and white.</summary>
    CcittRle = 2,

    /// <summary>CCITT group 3 (ITU-T T.4), black and white.</summary>
    CcittFax3 = 3,

    /// <summary>CCITT group 4 (ITU-T T.6), black and white.</summary>
    CcittFax4 = 4,

    /// <summary>LZW.</summary>
    Lzw = 5,

    /// <summary>Old-style JPEG of TIFF 6.0; read where possible, never written.</summary>
    OldJpeg = 6,

    /// <summary>JPEG, lossy.</summary>
    Jpeg = 7,

    /// <summary>Deflate.</summary>
    AdobeDeflate = 8,

    /// <summary>PackBits run-length encoding.</summary>
    PackBits = 32773,

    /// <summary>Deflate under its older, unofficial number.</summary>
    Deflate = 32946,
}
