using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Type of the image sensor.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSensingMethod
{
    /// <summary>Not stated.</summary>
    NotDefined = 1,

    /// <summary>One-chip colour area sensor.</summary>
    OneChipColorArea = 2,

    /// <summary>Two-chip colour area sensor.</summary>
    TwoChipColorArea = 3,

    /// <summary>Three-chip colour area sensor.</summary>
    ThreeChipColorArea = 4,

    /// <summary>Colour-sequential area sensor.</summary>
    ColorSequentialArea = 5,

    /// <summary>Trilinear sensor.</summary>
    Trilinear = 7,

    /// <summary>Colour-sequential linear sensor.</summary>
    ColorSequentialLinear = 8,
}
