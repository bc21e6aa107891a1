using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Colour space of an image.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifColorSpace
{
    /// <summary>sRGB.</summary>
    SRgb = 1,

    /// <summary>Uncalibrated: another colour space, or none stated.</summary>
    Uncalibrated = 0xFFFF,
}
