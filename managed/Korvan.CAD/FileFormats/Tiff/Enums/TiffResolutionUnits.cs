using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Unit of resolutions; the values of tag 296.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffResolutionUnits
{
    /// <summary>No unit: the values give only the aspect ratio of a pixel.</summary>
    None = 1,

    /// <summary>Pixels per inch.</summary>
    Inch = 2,

    /// <summary>Pixels per centimetre.</summary>
    Centimeter = 3,
}
