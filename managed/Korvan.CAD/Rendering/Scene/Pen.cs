using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.PlotStyles;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>What an entity is drawn with, after layers, blocks and defaults have had their say.</summary>
internal record struct Pen
{
    internal Rgba Color;

    /// <summary>In millimetres of the page.</summary>
    internal float LineWeight;

    internal LinePattern? Pattern;

    /// <summary>Drawing units of the page in a unit of the pattern.</summary>
    internal double PatternScale;

    /// <summary>Index of the layer in the list.</summary>
    internal int Layer;

    /// <summary>Index of the caps and joins in the list, or 0 for those of the page.</summary>
    internal int Style;

    /// <summary>What the colour, the weight and the ends come from, where the page is plotted by styles.</summary>
    internal PlotStyle? Plot;

    /// <summary>Drawing units in a millimetre of the paper that the page is plotted on.</summary>
    internal double PlotUnit;
}
