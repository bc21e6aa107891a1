using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Filters over the neighbourhood of each pixel.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ImageFilterType
{
    /// <summary>The mean of a square.</summary>
    Box = 0,

    /// <summary>The mean of a square, weighted by the normal distribution.</summary>
    Gaussian = 1,

    /// <summary>The middle value of a square; it takes single dots away and keeps edges.</summary>
    Median = 2,

    /// <summary>Differences to the weighted mean are doubled.</summary>
    Sharpen = 3,

    /// <summary>The size of the gradient (I. Sobel and G. Feldman, 1968).</summary>
    Edges = 4,

    /// <summary>A relief, lit from the upper left.</summary>
    Emboss = 5,
}
