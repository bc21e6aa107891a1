using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The kind of sensor.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSensingMethod
{
    /// <summary>Not stated.</summary>
    NotDefined = 1,

    /// <summary>One chip.</summary>
    OneChipColorArea = 2,

    /// <summary>Two chips.</summary>
    TwoChipColorArea = 3,

    /// <summary>Three chips.</summary>
    ThreeChipColorArea = 4,

    /// <summary>One colour after the other, by areas.</summary>
    ColorSequentialArea = 5,

    /// <summary>Three lines.</summary>
    Trilinear = 7,

    /// <summary>One colour after the other, by lines.</summary>
    ColorSequentialLinear = 8,
}
