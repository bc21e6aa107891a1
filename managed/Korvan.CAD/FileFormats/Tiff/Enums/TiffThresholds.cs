using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How grey became black and white; the values of tag 263.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffThresholds
{
    /// <summary>By a threshold.</summary>
    NoDithering = 1,

    /// <summary>By a regular pattern.</summary>
    OrderedDithering = 2,

    /// <summary>By spreading errors.</summary>
    ErrorDiffusion = 3,
}
