using Korvan.CAD.DisplayList;

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
}
