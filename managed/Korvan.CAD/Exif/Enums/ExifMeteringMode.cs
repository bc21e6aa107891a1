using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Metering mode of the camera.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifMeteringMode
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>Average of the whole frame.</summary>
    Average = 1,

    /// <summary>Centre-weighted average.</summary>
    CenterWeightedAverage = 2,

    /// <summary>Spot.</summary>
    Spot = 3,

    /// <summary>Multi-spot.</summary>
    MultiSpot = 4,

    /// <summary>Pattern (multi-segment).</summary>
    MultiSegment = 5,

    /// <summary>Partial: a part of the frame.</summary>
    Partial = 6,

    /// <summary>Another mode.</summary>
    Other = 255,
}
