using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Reference of an altitude.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifGPSAltitudeRef
{
    /// <summary>Above sea level.</summary>
    AboveSeaLevel = 0,

    /// <summary>Below sea level.</summary>
    BelowSeaLevel = 1,
}
