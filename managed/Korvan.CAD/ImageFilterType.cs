using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Neighbourhood filters.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ImageFilterType
{
    /// <summary>Box blur: the mean of a square.</summary>
    Box = 0,

    /// <summary>Gaussian blur.</summary>
    Gaussian = 1,

    /// <summary>Median of a square; removes specks and keeps edges.</summary>
    Median = 2,

    /// <summary>Sharpening: differences from the Gaussian blur are doubled.</summary>
    Sharpen = 3,

    /// <summary>Edge detection by the gradient magnitude (I. Sobel and G. Feldman, 1968).</summary>
    Edges = 4,

    /// <summary>Emboss: a relief, lit from the upper left.</summary>
    Emboss = 5,
}
