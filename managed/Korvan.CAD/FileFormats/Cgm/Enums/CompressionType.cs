using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How the cells of a tile are packed (ISO/IEC 8632-1, 7.6; numbers above 6 from the register of graphical
/// items).</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionType
{
    /// <summary>All cells have the colour of the background; there is no data.</summary>
    NullBackground = 0,

    /// <summary>All cells have the colour of the foreground; there is no data.</summary>
    NullForeground = 1,

    /// <summary>Facsimile, group 4 (ITU-T T.6).</summary>
    T6 = 2,

    /// <summary>Facsimile, group 3 of one dimension (ITU-T T.4).</summary>
    T4OneDimensional = 3,

    /// <summary>Facsimile, group 3 of two dimensions (ITU-T T.4).</summary>
    T4TwoDimensional = 4,

    /// <summary>Not packed.</summary>
    Bitmap = 5,

    /// <summary>Runs of equal cells.</summary>
    RunLength = 6,

    /// <summary>JPEG (ITU-T T.81), baseline.</summary>
    BaselineJpeg = 7,

    /// <summary>LZW.</summary>
    Lzw = 8,

    /// <summary>PNG (ISO/IEC 15948).</summary>
    Png = 9,
}
