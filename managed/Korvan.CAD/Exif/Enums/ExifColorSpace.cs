using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The colour space of a photograph.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifColorSpace
{
    /// <summary>sRGB.</summary>
    SRgb = 1,

    /// <summary>Another, or none stated.</summary>
    Uncalibrated = 0xFFFF,
}
