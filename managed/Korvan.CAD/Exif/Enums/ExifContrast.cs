using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Contrast processing of the camera.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifContrast
{
    /// <summary>Normal.</summary>
    Normal = 0,

    /// <summary>Soft.</summary>
    Low = 1,

    /// <summary>Hard.</summary>
    High = 2,
}
