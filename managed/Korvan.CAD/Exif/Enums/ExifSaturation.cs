using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Saturation processing of the camera.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSaturation
{
    /// <summary>Normal.</summary>
    Normal = 0,

    /// <summary>Low saturation.</summary>
    Low = 1,

    /// <summary>High saturation.</summary>
    High = 2,
}
