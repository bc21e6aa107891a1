using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Edition of TIFF that a file conforms to.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffFileStandards
{
    /// <summary>Baseline TIFF 6.0: no tiles, and only uncompressed, PackBits or modified Huffman data.</summary>
    Baseline = 0,

    /// <summary>All of TIFF 6.0 and its supplements.</summary>
    Extended = 1,
}
