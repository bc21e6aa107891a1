using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>White balance mode.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifWhiteBalance
{
    /// <summary>Automatic.</summary>
    Auto = 0,

    /// <summary>Manual.</summary>
    Manual = 1,
}
