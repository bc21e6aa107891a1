using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>What entities of a block inherit from the reference that draws it.</summary>
internal sealed record BlockContext
{
    /// <summary>From the block's coordinates to the page.</summary>
    internal required Affine3 Map { get; init; }

    internal BlockContext? Parent { get; init; }

    internal string BlockName { get; init; } = string.Empty;

    internal int Depth { get; init; }

    /// <summary>The layer that stands in for layer 0 inside of blocks.</summary>
    internal LayerInfo? Layer { get; init; }

    /// <summary>The reference's own pen, for everything that is "by block".</summary>
    internal Pen ByBlock { get; init; }

    /// <summary>Set inside of a viewport: layers frozen or changed there.</summary>
    internal ViewportScope? Viewport { get; init; }

    /// <summary>What the entities of a block inherit that is drawn from here.</summary>
    internal BlockContext Inside(BlockInfo block, in Affine3 map, LayerInfo layer, in Pen pen) => new()
    {
        Map = map,
        Parent = this,
        BlockName = block.Name,
        Depth = Depth + 1,
        Layer = layer,
        ByBlock = pen,
        Viewport = Viewport,
    };

    internal bool IsInside(string block)
    {
        for (BlockContext? c = this; c != null; c = c.Parent)
        {
            if (string.Equals(c.BlockName, block, System.StringComparison.OrdinalIgnoreCase))
            {
                return true;
            }
        }

        return false;
    }
}

/// <summary>What a viewport changes for the model that it shows.</summary>
internal sealed record ViewportScope(System.Collections.Generic.IReadOnlySet<string> FrozenLayers, double PatternScale)
{
    /// <summary>Gets the layers that have properties of their own there, by name; null for none.</summary>
    internal System.Collections.Generic.IReadOnlyDictionary<string, LayerInfo>? Layers { get; init; }
}
