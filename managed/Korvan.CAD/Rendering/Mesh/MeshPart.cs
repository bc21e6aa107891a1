using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>The faces of one entity: points in world coordinates, and triangles between them.</summary>
internal sealed class MeshPart(string handle, string typeName, string layer, Rgba color)
{
    /// <summary>Formats of faces have numbers of single precision; what lies farther out could not be told in them.</summary>
    private const double Farthest = 1e30;

    private readonly Dictionary<Vec3, int> _places = [];

    internal string Handle { get; } = handle;

    internal string TypeName { get; } = typeName;

    internal string Layer { get; } = layer;

    internal Rgba Color { get; } = color;

    internal List<Vec3> Points { get; } = [];

    /// <summary>Places of corners, three for each triangle.</summary>
    internal List<int> Triangles { get; } = [];

    /// <summary>Gets how many faces were left out because they lie too far out.</summary>
    internal int LeftOut { get; private set; }

    /// <summary>Adds a flat or nearly flat face; corners that stand twice and faces without area are left out.</summary>
    internal void Face(ReadOnlySpan<Vec3> corners)
    {
        foreach (Vec3 corner in corners)
        {
            if (!(Math.Abs(corner.X) < Farthest && Math.Abs(corner.Y) < Farthest && Math.Abs(corner.Z) < Farthest))
            {
                LeftOut++;
                return;
            }
        }

        Span<int> places = corners.Length <= 64 ? stackalloc int[corners.Length] : new int[corners.Length];
        int count = 0;
        foreach (Vec3 corner in corners)
        {
            int place = Place(corner);
            if (!places[..count].Contains(place))
            {
                places[count++] = place;
            }
        }

        if (count < 3)
        {
            return;
        }

        if (count == 3)
        {
            Triangle(places[0], places[1], places[2]);
            return;
        }

        Triangulation.Add(Points, places[..count], Triangle);
    }

    internal (Vec3 A, Vec3 B, Vec3 C) Triangle(int first)
    {
        return (Points[Triangles[first]], Points[Triangles[first + 1]], Points[Triangles[first + 2]]);
    }

    internal (Vec3 Min, Vec3 Max) Bounds()
    {
        if (Points.Count == 0)
        {
            throw new DataMissmatchError($"The entity {TypeName} '{Handle}' has no faces.");
        }

        Vec3 min = Points[0];
        Vec3 max = Points[0];
        foreach (Vec3 p in Points)
        {
            min = new Vec3(Math.Min(min.X, p.X), Math.Min(min.Y, p.Y), Math.Min(min.Z, p.Z));
            max = new Vec3(Math.Max(max.X, p.X), Math.Max(max.Y, p.Y), Math.Max(max.Z, p.Z));
        }

        return (min, max);
    }

    /// <summary>Adds the faces of another part.</summary>
    internal void Add(MeshPart other)
    {
        int[] places = new int[other.Points.Count];
        for (int i = 0; i < places.Length; i++)
        {
            places[i] = Place(other.Points[i]);
        }

        foreach (int corner in other.Triangles)
        {
            Triangles.Add(places[corner]);
        }
    }

    private void Triangle(int a, int b, int c)
    {
        if (a != b && b != c && a != c && Vec3.Cross(Points[b] - Points[a], Points[c] - Points[a]) != default)
        {
            Triangles.Add(a);
            Triangles.Add(b);
            Triangles.Add(c);
        }
    }

    private int Place(Vec3 point)
    {
        if (!_places.TryGetValue(point, out int place))
        {
            place = Points.Count;
            Points.Add(point);
            _places.Add(point, place);
        }

        return place;
    }
}
