using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How strictly a file keeps to the first editions.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffFileStandards
{
    /// <summary>Baseline TIFF 6.0: no tiles, and only plain, PackBits or modified Huffman data.</summary>
    Baseline = 0,

    /// <summary>All of TIFF 6.0 and its supplements.</summary>
    Extended = 1,
}
