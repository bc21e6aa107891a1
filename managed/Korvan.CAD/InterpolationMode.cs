using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How pictures are resampled.</summary>
[PythonEnum(EnumKind.Integer)]
public enum InterpolationMode
{
    /// <summary>No mode at all.</summary>
    Invalid = -1,

    /// <summary>As the device does by itself.</summary>
    Default = 0,

    /// <summary>Fast.</summary>
    Low = 1,

    /// <summary>Careful.</summary>
    High = 2,

    /// <summary>Linear between neighbours.</summary>
    Bilinear = 3,

    /// <summary>Cubic between neighbours.</summary>
    Bicubic = 4,

    /// <summary>The nearest pixel.</summary>
    NearestNeighbor = 5,
}
