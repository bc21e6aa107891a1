using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The rendering quality of a kind of object.</summary>
[PythonEnum(EnumKind.Integer)]
public enum RasterizationQualityValue
{
    /// <summary>Fast and coarse.</summary>
    Low = 0,

    /// <summary>A balance of speed and quality for most drawings.</summary>
    Medium = 1,

    /// <summary>As exact as the device can show.</summary>
    High = 2,
}
