using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>What resolutions count; the values of tag 296.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffResolutionUnits
{
    /// <summary>Nothing: they give the shape of a pixel alone.</summary>
    None = 1,

    /// <summary>Pixels in an inch.</summary>
    Inch = 2,

    /// <summary>Pixels in a centimetre.</summary>
    Centimeter = 3,
}
