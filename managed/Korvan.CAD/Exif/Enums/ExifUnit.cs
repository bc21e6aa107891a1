using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>What resolutions count.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifUnit
{
    /// <summary>Nothing.</summary>
    None = 1,

    /// <summary>Pixels in an inch.</summary>
    Inch = 2,

    /// <summary>Pixels in a centimetre.</summary>
    Cm = 3,
}
