using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Number format of samples; the values of tag 339.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffSampleFormats
{
    /// <summary>Unsigned integers.</summary>
    UInt = 1,

    /// <summary>Signed integers.</summary>
    Int = 2,

    /// <summary>Floating point.</summary>
    IeeeFp = 3,

    /// <summary>Not stated.</summary>
    Void = 4,
}
