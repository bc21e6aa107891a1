using System;
using System.Linq;
using Korvan.CAD.Measurement;
using Korvan.CAD.Primitives;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Mesh;

namespace Korvan.CAD;

/// <summary>The faces of one entity of a drawing in world coordinates, as triangles.</summary>
public class DrawingEntity3D : ObjectWithBounds, IMeasurableEntity
{
    private readonly MeshPart _part;

    internal DrawingEntity3D(MeshPart part)
    {
        _part = part;
        (Vec3 min, Vec3 max) = part.Bounds();
        MinPoint = ToPoint(min);
        MaxPoint = ToPoint(max);
    }

    /// <summary>Gets the handle of the entity that the faces come from.</summary>
    public string UniqueId => _part.Handle;

    /// <summary>Gets the type of that entity as files name it.</summary>
    public string TypeNameText => _part.TypeName;

    /// <summary>Gets the name of the layer.</summary>
    public string LayerName => _part.Layer;

    /// <summary>Gets the colour of the faces.</summary>
    public Color Color => Color.FromArgb(_part.Color.A, _part.Color.R, _part.Color.G, _part.Color.B);

    /// <summary>Gets the corners of all faces; faces share those that they have in common.</summary>
    public Point3D[] Vertices => [.. _part.Points.Select(ToPoint)];

    /// <summary>Gets the places in <see cref="Vertices"/> of the corners of triangles, three for each.</summary>
    public int[] Triangles => [.. _part.Triangles];

    /// <inheritdoc/>
    public override Point3D MinPoint { get; }

    /// <inheritdoc/>
    public override Point3D MaxPoint { get; }

    /// <summary>Gives nothing: faces have an area, but no length.</summary>
    /// <returns>Nothing.</returns>
    public double? GetLength() => null;

    /// <summary>Gives the area of all faces.</summary>
    /// <returns>The area of all faces.</returns>
    public double? GetArea()
    {
        double area = 0;
        for (int i = 0; i < _part.Triangles.Count; i += 3)
        {
            (Vec3 a, Vec3 b, Vec3 c) = _part.Triangle(i);
            area += Vec3.Cross(b - a, c - a).Length / 2;
        }

        return area;
    }

    private static Point3D ToPoint(Vec3 point) => new(point.X, point.Y, point.Z);
}
