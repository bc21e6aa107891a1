using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>What a height is measured from.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifGPSAltitudeRef
{
    /// <summary>Above the sea.</summary>
    AboveSeaLevel = 0,

    /// <summary>Below the sea.</summary>
    BelowSeaLevel = 1,
}
