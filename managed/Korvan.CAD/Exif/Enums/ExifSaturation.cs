using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The saturation that the camera applied.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSaturation
{
    /// <summary>Normal.</summary>
    Normal = 0,

    /// <summary>Low.</summary>
    Low = 1,

    /// <summary>High.</summary>
    High = 2,
}
