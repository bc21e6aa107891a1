using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Method by which gray levels became black and white; the values of tag 263.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffThresholds
{
    /// <summary>Threshold.</summary>
    NoDithering = 1,

    /// <summary>Ordered dithering.</summary>
    OrderedDithering = 2,

    /// <summary>Error diffusion.</summary>
    ErrorDiffusion = 3,
}
