using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the colours of a palette are chosen.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorQuantizationMethod
{
    /// <summary>The colours that occur most often; exact where the picture has few.</summary>
    Popularity = 0,

    /// <summary>Boxes of colours are cut at their medians (P. Heckbert, 1982).</summary>
    MedianCut = 1,

    /// <summary>Colours are merged in a tree by their leading bits (M. Gervautz and W. Purgathofer, 1988).</summary>
    Octree = 2,

    /// <summary>A regular lattice of the colour cube, whatever the picture holds.</summary>
    Uniform = 3,
}
