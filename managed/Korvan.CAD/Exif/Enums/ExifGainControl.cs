using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Gain control of the camera.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifGainControl
{
    /// <summary>None.</summary>
    None = 0,

    /// <summary>Low gain up.</summary>
    LowGainUp = 1,

    /// <summary>High gain up.</summary>
    HighGainUp = 2,

    /// <summary>Low gain down.</summary>
    LowGainDown = 3,

    /// <summary>High gain down.</summary>
    HighGainDown = 4,
}
