using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The gain of the sensor.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifGainControl
{
    /// <summary>None.</summary>
    None = 0,

    /// <summary>A little more.</summary>
    LowGainUp = 1,

    /// <summary>Much more.</summary>
    HighGainUp = 2,

    /// <summary>A little less.</summary>
    LowGainDown = 3,

    /// <summary>Much less.</summary>
    HighGainDown = 4,
}
