using System;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Measurement;
using Korvan.CAD.Primitives;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD;

/// <summary>The mesh of one entity of a drawing, as triangles in world coordinates.</summary>
public class DrawingEntity3D : ObjectWithBounds, IMeasurableEntity
{
    private readonly Node _node;
    private readonly Mesh _mesh;
    private readonly Affine3 _world;

    internal DrawingEntity3D(Node node, Mesh mesh, Affine3 world)
    {
        (_node, _mesh, _world) = (node, mesh, world);
        Bounds3 box = mesh.Positions.Aggregate(Bounds3.Empty, (box, point) => box.With(world.Point(point)));
        MinPoint = ToPoint(box.Min);
        MaxPoint = ToPoint(box.Max);
    }

    /// <summary>Gets the handle of the entity that the faces come from.</summary>
    public string UniqueId => _node.Handle;

    /// <summary>Gets the type name of that entity as in files.</summary>
    public string TypeNameText => _node.TypeName;

    /// <summary>Gets the name of the layer.</summary>
    public string LayerName => _node.Layer;

    /// <summary>Gets the colour of the faces.</summary>
    public Color Color
    {
        get
        {
            Rgba color = _mesh.Ranges[0].Material.Color;
            return Color.FromArgb(color.A, color.R, color.G, color.B);
        }
    }

    /// <summary>Gets the vertices; faces share common ones.</summary>
    public Point3D[] Vertices => [.. _mesh.Positions.Select(point => ToPoint(_world.Point(point)))];

    /// <summary>Gets the indices of the triangles into <see cref="Vertices"/>, three for each.</summary>
    public int[] Triangles
    {
        get
        {
            int[] triangles = [.. _mesh.Indices];
            for (int i = 0; _world.IsMirror && i < triangles.Length; i += 3)
            {
                Array.Reverse(triangles, i, 3); // what looked outwards still does
            }

            return triangles;
        }
    }

    /// <inheritdoc/>
    public override Point3D MinPoint { get; }

    /// <inheritdoc/>
    public override Point3D MaxPoint { get; }

    /// <summary>Returns <see langword="null"/>: a mesh has an area, but no length.</summary>
    /// <returns><see langword="null"/>.</returns>
    public double? GetLength() => null;

    /// <summary>Returns the total area of the faces, in square drawing units.</summary>
    /// <returns>The area.</returns>
    public double? GetArea()
    {
        double area = 0;
        foreach ((Vec3 a, Vec3 b, Vec3 c) in _mesh.Triangles(_mesh.Ranges[0], _world))
        {
            area += Vec3.Cross(b - a, c - a).Length / 2;
        }

        return area;
    }

    private static Point3D ToPoint(Vec3 point) => new(point.X, point.Y, point.Z);
}
