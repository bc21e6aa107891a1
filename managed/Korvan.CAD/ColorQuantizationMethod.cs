using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the colours of a palette are chosen.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorQuantizationMethod
{
    /// <summary>Popularity: the most frequent colours; exact where the image has few.</summary>
    Popularity = 0,

    /// <summary>Median cut (P. Heckbert, 1982).</summary>
    MedianCut = 1,

    /// <summary>Octree quantization (M. Gervautz and W. Purgathofer, 1988).</summary>
    Octree = 2,

    /// <summary>Uniform quantization: a regular lattice, independent of the image.</summary>
    Uniform = 3,
}
