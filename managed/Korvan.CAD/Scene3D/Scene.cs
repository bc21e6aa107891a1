using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Scene3D;

/// <summary>The axis of a scene that points away from the ground.</summary>
internal enum UpAxis
{
    Z,
    Y,
}

/// <summary>
/// Meshes in space, whatever format they come from and go to. Nodes may share children and meshes: that is how
/// instances are kept.
/// </summary>
internal sealed class Scene
{
    internal List<Node> Roots { get; } = [];

    /// <summary>Gets the length of a unit in millimetres; null where the source does not say.</summary>
    internal double? MillimetresPerUnit { get; init; }

    internal UpAxis Up { get; init; }

    /// <summary>The meshes in the order of the nodes, each with the map to the world.</summary>
    internal IEnumerable<(Node Node, Mesh Mesh, Affine3 World)> Instances() => Instances(Roots, Affine3.Identity);

    private static IEnumerable<(Node Node, Mesh Mesh, Affine3 World)> Instances(List<Node> nodes, Affine3 parent)
    {
        foreach (Node node in nodes)
        {
            Affine3 world = parent * node.Transform;
            if (node.Mesh is not null)
            {
                yield return (node, node.Mesh, world);
            }

            foreach ((Node, Mesh, Affine3) instance in node.Children.Count > 0 ? Instances(node.Children, world) : [])
            {
                yield return instance;
            }
        }
    }
}

/// <summary>A place in a scene with its own coordinates.</summary>
internal sealed class Node
{
    // Children are set as a whole, and most of many nodes have none or share them.
    private static readonly List<Node> None = [];

    internal string Name { get; init; } = "";

    /// <summary>Gets the map from the coordinates of the node to those of its parent.</summary>
    internal Affine3 Transform { get; init; } = Affine3.Identity;

    internal List<Node> Children { get; init; } = None;

    internal Mesh? Mesh { get; init; }

    /// <summary>Gets the handle of what the node comes from; empty for none.</summary>
    internal string Handle { get; init; } = "";

    /// <summary>Gets the type of that, as its format names it.</summary>
    internal string TypeName { get; init; } = "";

    internal string Layer { get; init; } = "";
}

/// <summary>How light meets a surface: a base colour, and what share of it is reflected as metals and mirrors
/// do.</summary>
internal sealed record Material(Rgba Color)
{
    internal string Name { get; init; } = "";

    /// <summary>Gets how metallic the surface is, from 0 to 1.</summary>
    internal double Metallic { get; init; }

    /// <summary>Gets how rough the surface is, from 0 (a mirror) to 1.</summary>
    internal double Roughness { get; init; } = 1;

    /// <summary>Gets whether faces are seen from behind, too.</summary>
    internal bool DoubleSided { get; init; } = true;
}
