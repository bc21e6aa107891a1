using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The compression types of tiles (ISO/IEC 8632-1, 7.6; indexes above 6 from the register of graphical
/// items).</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionType
{
    /// <summary>All cells have the background colour; there is no data.</summary>
    NullBackground = 0,

    /// <summary>All cells have the foreground colour; there is no data.</summary>
    NullForeground = 1,

    /// <summary>CCITT group 4 (ITU-T T.6).</summary>
    T6 = 2,

    /// <summary>CCITT group 3, one-dimensional (ITU-T T.4).</summary>
    T4OneDimensional = 3,

    /// <summary>CCITT group 3, two-dimensional (ITU-T T.4).</summary>
    T4TwoDimensional = 4,

    /// <summary>Uncompressed.</summary>
    Bitmap = 5,

    /// <summary>Run-length encoding.</summary>
    RunLength = 6,

    /// <summary>JPEG (ITU-T T.81), baseline.</summary>
    BaselineJpeg = 7,

    /// <summary>LZW.</summary>
    Lzw = 8,

    /// <summary>PNG (ISO/IEC 15948).</summary>
    Png = 9,
}
