using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How samples are to be read; the values of tag 339.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffSampleFormats
{
    /// <summary>Unsigned numbers.</summary>
    UInt = 1,

    /// <summary>Signed numbers.</summary>
    Int = 2,

    /// <summary>Floating point.</summary>
    IeeeFp = 3,

    /// <summary>Not stated.</summary>
    Void = 4,
}
