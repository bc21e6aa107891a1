using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Who chose the white balance.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifWhiteBalance
{
    /// <summary>The camera.</summary>
    Auto = 0,

    /// <summary>The photographer.</summary>
    Manual = 1,
}
