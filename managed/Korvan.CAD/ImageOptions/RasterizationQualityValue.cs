using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How finely a kind of object is drawn.</summary>
[PythonEnum(EnumKind.Integer)]
public enum RasterizationQualityValue
{
    /// <summary>Fast and coarse.</summary>
    Low = 0,

    /// <summary>The balance for most drawings.</summary>
    Medium = 1,

    /// <summary>As exact as the device shows.</summary>
    High = 2,
}
