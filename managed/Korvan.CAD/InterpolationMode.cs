using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How images are resampled.</summary>
[PythonEnum(EnumKind.Integer)]
public enum InterpolationMode
{
    /// <summary>Invalid.</summary>
    Invalid = -1,

    /// <summary>The default of the device.</summary>
    Default = 0,

    /// <summary>Low quality, fast.</summary>
    Low = 1,

    /// <summary>High quality.</summary>
    High = 2,

    /// <summary>Bilinear.</summary>
    Bilinear = 3,

    /// <summary>Bicubic.</summary>
    Bicubic = 4,

    /// <summary>Nearest neighbour.</summary>
    NearestNeighbor = 5,
}
