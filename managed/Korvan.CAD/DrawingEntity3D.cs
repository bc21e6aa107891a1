using System;
using System.Linq;
using Korvan.CAD.Measurement;
using Korvan.CAD.Primitives;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Mesh;

namespace Korvan.CAD;

/// <summary>The mesh of one entity of a drawing, as triangles in world coordinates.</summary>
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

    /// <summary>Gets the type name of that entity as in files.</summary>
    public string TypeNameText => _part.TypeName;

    /// <summary>Gets the name of the layer.</summary>
    public string LayerName => _part.Layer;

    /// <summary>Gets the colour of the faces.</summary>
    public Color Color => Color.FromArgb(_part.Color.A, _part.Color.R, _part.Color.G, _part.Color.B);

    /// <summary>Gets the vertices; faces share common ones.</summary>
    public Point3D[] Vertices => [.. _part.Points.Select(ToPoint)];

    /// <summary>Gets the indices of the triangles into <see cref="Vertices"/>, three for each.</summary>
    public int[] Triangles => [.. _part.Triangles];

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
        for (int i = 0; i < _part.Triangles.Count; i += 3)
        {
            (Vec3 a, Vec3 b, Vec3 c) = _part.Triangle(i);
            area += Vec3.Cross(b - a, c - a).Length / 2;
        }

        return area;
    }

    private static Point3D ToPoint(Vec3 point) => new(point.X, point.Y, point.Z);
}
