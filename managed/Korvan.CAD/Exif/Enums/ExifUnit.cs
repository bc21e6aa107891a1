using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Unit of resolutions.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifUnit
{
    /// <summary>No unit.</summary>
    None = 1,

    /// <summary>Pixels per inch.</summary>
    Inch = 2,

    /// <summary>Pixels per centimetre.</summary>
    Cm = 3,
}
