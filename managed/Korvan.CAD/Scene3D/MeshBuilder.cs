using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Scene3D;

/// <summary>Makes a mesh of faces, which share the points that they have in common.</summary>
internal sealed class MeshBuilder
{
    /// <summary>Mesh formats have numbers of single precision, and what lies farther out cannot be told in
    /// them.</summary>
    private const double MaxCoordinate = 1e30;
    private const int MaxOnStack = 64;

    private readonly Mesh _mesh = new();
    /// <summary>The bytes of a point and of its place in the table.</summary>
    private const int BytesPerPoint = 64;

    private readonly Dictionary<Vec3, int> _places = [];

    /// <summary>Gets how many faces were left out because they lie too far out.</summary>
    internal int FarFaces { get; private set; }

    /// <summary>Gets how many faces were left out because their outline crosses itself too often.</summary>
    internal int TangledFaces { get; private set; }

    internal int TriangleCount => _mesh.Indices.Count / 3;

    /// <summary>Whether mesh formats have numbers for a point.</summary>
    internal static bool IsNear(Vec3 p) =>
        Math.Abs(p.X) < MaxCoordinate && Math.Abs(p.Y) < MaxCoordinate && Math.Abs(p.Z) < MaxCoordinate;

    /// <summary>The mesh as it is, of one material.</summary>
    internal Mesh Build(string name, Material material)
    {
        var mesh = new Mesh { Name = name };
        mesh.Positions.AddRange(_mesh.Positions);
        mesh.Indices.AddRange(_mesh.Indices);
        mesh.Ranges.Add(new MeshRange(0, mesh.Indices.Count, material));
        return mesh;
    }

    /// <summary>Adds a flat or nearly flat face; one without an area adds nothing.</summary>
    internal void Add(ReadOnlySpan<Vec3> ring)
    {
        if (!AreNear(ring))
        {
            return;
        }

        Span<int> places = ring.Length <= MaxOnStack ? stackalloc int[ring.Length] : new int[ring.Length];
        int count = Places(ring, places);
        if (count < 3)
        {
            return;
        }

        if (count == 3)
        {
            AddTriangle(places[0], places[1], places[2]);
            return;
        }

        if (FaceTriangulation.IsConvex(_mesh.Positions, places[..count]))
        {
            for (int i = 1; i + 1 < count; i++)
            {
                AddTriangle(places[0], places[i], places[i + 1]);
            }

            return;
        }

        AddTriangulated([places[..count].ToArray()]);
    }

    /// <summary>Adds a face with holes, whichever way round these run.</summary>
    internal void Add(Vec3[] ring, IReadOnlyList<Vec3[]> holes)
    {
        if (holes.Count == 0)
        {
            Add(ring);
            return;
        }

        List<int[]> rings = [];
        foreach (Vec3[] one in (IEnumerable<Vec3[]>)[ring, .. holes])
        {
            if (!AreNear(one))
            {
                return;
            }

            int[] places = new int[one.Length];
            rings.Add(places[..Places(one, places)]);
        }

        AddTriangulated(rings);
    }

    /// <summary>Adds the triangles of another mesh.</summary>
    internal void Add(MeshBuilder other)
    {
        int[] places = new int[other._mesh.Positions.Count];
        for (int i = 0; i < places.Length; i++)
        {
            places[i] = Place(other._mesh.Positions[i]);
        }

        foreach (int index in other._mesh.Indices)
        {
            _mesh.Indices.Add(places[index]);
        }
    }

    private void AddTriangulated(List<int[]> rings)
    {
        if (FaceTriangulation.TryTriangulate(_mesh.Positions, rings, Place) is not { } corners)
        {
            TangledFaces++;
            return;
        }

        for (int i = 0; i < corners.Length; i += 3)
        {
            AddTriangle(corners[i], corners[i + 1], corners[i + 2]);
        }
    }

    private bool AreNear(ReadOnlySpan<Vec3> ring)
    {
        foreach (Vec3 p in ring)
        {
            if (!IsNear(p))
            {
                FarFaces++;
                return false;
            }
        }

        return true;
    }

    /// <summary>The places of corners, those left out that repeat the one before; gives how many there are.</summary>
    private int Places(ReadOnlySpan<Vec3> ring, Span<int> places)
    {
        int count = 0;
        foreach (Vec3 corner in ring)
        {
            int place = Place(corner);
            if (count == 0 || place != places[count - 1])
            {
                places[count++] = place;
            }
        }

        while (count > 1 && places[count - 1] == places[0])
        {
            count--;
        }

        return count;
    }

    private void AddTriangle(int a, int b, int c)
    {
        List<Vec3> points = _mesh.Positions;
        if (a != b && b != c && a != c && Vec3.Cross(points[b] - points[a], points[c] - points[a]) != default)
        {
            _mesh.Indices.Add(a);
            _mesh.Indices.Add(b);
            _mesh.Indices.Add(c);
        }
    }

    private int Place(Vec3 point)
    {
        ref int place = ref CollectionsMarshal.GetValueRefOrAddDefault(_places, point, out bool known);
        if (!known)
        {
            List<Vec3> points = _mesh.Positions;
            if (points.Count == points.Capacity)
            {
                Workload.Reserve(2L * points.Capacity * BytesPerPoint);
            }

            place = points.Count;
            points.Add(point);
        }

        return place;
    }
}
