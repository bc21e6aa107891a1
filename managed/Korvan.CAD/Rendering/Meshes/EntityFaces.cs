using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>
/// The faces of entities: those of surfaces, and those between flat entities and their copies at the other end of their
/// thickness.
/// </summary>
internal sealed class EntityFaces : IGeometrySink
{
    private readonly MeshBuilder _mesh;
    private readonly int _circleSides;

    private EntityFaces(MeshBuilder mesh, int circleSides) => (_mesh, _circleSides) = (mesh, circleSides);

    /// <summary>Adds the faces of an entity. One without faces, or whose corners are missing, adds none.</summary>
    internal static void Add(CadEntityBase entity, MeshBuilder mesh, int circleSides) =>
        EntityGeometry.Emit(entity, new EntityFaces(mesh, circleSides));

    void IGeometrySink.Face(ReadOnlySpan<Vec3> corners, int hiddenEdges) => _mesh.Add(corners);

    void IGeometrySink.Faces(FaceSet faces) => faces.Faces.ForEach(face => _mesh.Add(faces.Ring(face)));

    void IGeometrySink.Quad(in FilledQuad quad) =>
        AddExtrusion(quad.Plane, [quad.A, quad.B, quad.C, quad.D], quad.Thickness);

    void IGeometrySink.Grid(in PointGrid grid)
    {
        if (!grid.IsWhole || grid.Rows < 2 || grid.Columns < 2)
        {
            return;
        }

        int rows = grid.ClosesColumns ? grid.Rows : grid.Rows - 1;
        int columns = grid.ClosesRows ? grid.Columns : grid.Columns - 1;
        for (int row = 0; row < rows; row++)
        {
            for (int column = 0; column < columns; column++)
            {
                int below = (row + 1) % grid.Rows * grid.Columns;
                int right = (column + 1) % grid.Columns;
                int at = row * grid.Columns;
                List<Vec3> p = grid.Points;
                _mesh.Add([p[at + column], p[below + column], p[below + right], p[at + right]]);
            }
        }
    }

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness)
    {
        if (thickness != default)
        {
            _mesh.Add([from, to, to + thickness, from + thickness]);
        }
    }

    /// <summary>A circle is extruded to a cylinder with its two ends, an arc to a wall.</summary>
    void IGeometrySink.Arc(in PlanarArc arc)
    {
        if (arc.Thickness == 0)
        {
            return;
        }

        List<Vec3> points = [];
        int steps = Math.Max(2, (int)Math.Ceiling(_circleSides * arc.Sweep / Math.Tau));
        for (int i = 0; i <= steps; i++)
        {
            Vec2 p = Vec2.Polar(arc.Start + (arc.Sweep * i / steps), arc.Radius);
            points.Add(arc.Center + new Vec3(p.X, p.Y, 0));
        }

        if (arc.IsCircle)
        {
            points.RemoveAt(points.Count - 1);
            AddExtrusion(arc.Plane, [.. points], arc.Thickness);
        }
        else
        {
            AddWalls(arc.Plane, points, closed: false, Vec3.UnitZ * arc.Thickness);
        }
    }

    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        if (polyline.Thickness == 0)
        {
            return;
        }

        List<Vec3> line = Flatten(vertices, polyline.IsClosed, polyline.Elevation);
        (Vec3[] corners, Vec3 up) = polyline.IsClosed
            ? Outwards(line, polyline.Thickness)
            : ([.. line], Vec3.UnitZ * polyline.Thickness);
        AddWalls(polyline.Plane, corners, polyline.IsClosed, up);
    }

    /// <summary>The ring at the lower end of its thickness, in the sense that lets its walls face outwards.</summary>
    private static (Vec3[] Ring, Vec3 Up) Outwards(IEnumerable<Vec3> ring, double thickness)
    {
        Vec3 down = Vec3.UnitZ * Math.Min(0, thickness);
        Vec3[] corners = [.. ring.Select(p => p + down)];
        if (Polygons.SignedArea(Array.ConvertAll(corners, p => (p - corners[0]).Xy)) < 0)
        {
            Array.Reverse(corners);
        }

        return (corners, Vec3.UnitZ * Math.Abs(thickness));
    }

    /// <summary>A flat face, or with a thickness two of them and the walls between.</summary>
    private void AddExtrusion(in Affine3 plane, Vec3[] ring, double thickness)
    {
        if (thickness == 0)
        {
            AddFace(plane, ring);
            return;
        }

        (Vec3[] sides, Vec3 up) = Outwards(ring, thickness);
        Vec3[] bottom = [.. sides];
        Array.Reverse(bottom);
        AddFace(plane, bottom);
        AddFace(plane, Array.ConvertAll(sides, p => p + up));
        AddWalls(plane, sides, closed: true, up);
    }

    private void AddWalls(in Affine3 plane, IReadOnlyList<Vec3> line, bool closed, Vec3 up)
    {
        int count = closed ? line.Count : line.Count - 1;
        for (int i = 0; i < count; i++)
        {
            Vec3 a = line[i];
            Vec3 b = line[(i + 1) % line.Count];
            AddFace(plane, [a, b, b + up, a + up]);
        }
    }

    private void AddFace(Affine3 plane, Vec3[] corners) => _mesh.Add(Array.ConvertAll(corners, plane.Point));

    /// <summary>The vertices, and points on the arcs between them.</summary>
    private List<Vec3> Flatten(ReadOnlySpan<PolyVertex> vertices, bool closed, double elevation)
    {
        List<Vec3> points = [];
        for (int i = 0; i < vertices.Length; i++)
        {
            Vec2 from = vertices[i].Point;
            points.Add(new Vec3(from.X, from.Y, elevation));
            bool hasSegment = closed || i + 1 < vertices.Length;
            Vec2 to = vertices[(i + 1) % vertices.Length].Point;
            if (hasSegment && BulgeArc.TryCreate(from, to, vertices[i].Bulge, out BulgeArc arc))
            {
                int steps = Math.Max(2, (int)Math.Ceiling(_circleSides * Math.Abs(arc.Sweep) / Math.Tau));
                for (int k = 1; k < steps; k++)
                {
                    Vec2 p = arc.At((double)k / steps);
                    points.Add(new Vec3(p.X, p.Y, elevation));
                }
            }
        }

        return points;
    }
}
