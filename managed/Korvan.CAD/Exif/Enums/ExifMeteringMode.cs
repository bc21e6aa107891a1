using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>How the light was measured.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifMeteringMode
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>The mean of all.</summary>
    Average = 1,

    /// <summary>The mean, weighted to the middle.</summary>
    CenterWeightedAverage = 2,

    /// <summary>A spot.</summary>
    Spot = 3,

    /// <summary>Several spots.</summary>
    MultiSpot = 4,

    /// <summary>A pattern.</summary>
    MultiSegment = 5,

    /// <summary>A part.</summary>
    Partial = 6,

    /// <summary>Otherwise.</summary>
    Other = 255,
}
