using System.Collections.Generic;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>A node of the file.</summary>
internal sealed record GltfNode(string Name, Affine3 Transform, int Mesh, List<int> Children)
{
    internal const int NoMesh = -1;
}

/// <summary>
/// Turns the nodes of a scene into those of a file, which share meshes but no children. Nodes have their origin in the
/// middle of what they show: coordinates are small then, wherever the scene lies.
/// </summary>
internal sealed class GltfNodes(GltfBuffer buffer)
{
    private readonly Dictionary<List<Node>, Bounds3> _boxes = [];
    private readonly Dictionary<Mesh, Bounds3> _meshBoxes = [];

    internal List<GltfNode> Nodes { get; } = [];

    /// <summary>Adds the root, whose transform is that of the world to the file's axes and unit.</summary>
    internal void AddRoot(Scene3D.Scene scene, Affine3 toFile)
    {
        Vec3 center = BoxOf(scene.Roots).Center;
        List<int> children = [];
        Nodes.Add(new GltfNode("", toFile * Affine3.Translation(center), GltfNode.NoMesh, children));
        AddChildren(scene.Roots, center, children);
    }

    private void AddChildren(List<Node> nodes, Vec3 parentOrigin, List<int> places)
    {
        foreach (Node node in nodes)
        {
            Budget.Check();
            Affine3 toParent = Affine3.Translation(-parentOrigin) * node.Transform;
            if (node.Mesh is not null)
            {
                // What stays in its parent's coordinates needs no origin of its own.
                bool isPlaced = !node.Transform.IsIdentity;
                int mesh = buffer.PlaceOf(node.Mesh, isPlaced ? BoxOf(node.Mesh).Center : parentOrigin);
                Affine3 transform = toParent * Affine3.Translation(buffer.Meshes[mesh].Origin);
                places.Add(Nodes.Count);
                Nodes.Add(new GltfNode(node.Name, transform, mesh, []));
            }

            if (node.Children.Count > 0)
            {
                Vec3 origin = BoxOf(node.Children).Center;
                List<int> children = [];
                places.Add(Nodes.Count);
                Nodes.Add(new GltfNode(node.Name, toParent * Affine3.Translation(origin), GltfNode.NoMesh, children));
                AddChildren(node.Children, origin, children);
            }
        }
    }

    private Bounds3 BoxOf(Mesh mesh)
    {
        if (!_meshBoxes.TryGetValue(mesh, out Bounds3 box))
        {
            _meshBoxes.Add(mesh, box = mesh.Bounds());
        }

        return box;
    }

    /// <summary>The box of nodes in the coordinates of their parent; shared ones are measured once.</summary>
    private Bounds3 BoxOf(List<Node> nodes)
    {
        if (!_boxes.TryGetValue(nodes, out Bounds3 box))
        {
            box = Bounds3.Empty;
            foreach (Node node in nodes)
            {
                Bounds3 own = node.Mesh is null ? Bounds3.Empty : BoxOf(node.Mesh);
                box = box.With(own.With(BoxOf(node.Children)).Mapped(node.Transform));
            }

            _boxes.Add(nodes, box);
        }

        return box;
    }
}
