using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>The faces of one entity. An entity without faces, or whose corners are missing, adds none.</summary>
internal static class EntityFaces
{
    private const int SplineFrameVertex = 16;
    private const int PolyfacePoint = 64;

    internal static void Add(CadEntityBase entity, in Affine3 map, MeshBuilder part, int circleSides)
    {
        switch (entity)
        {
            case Cad3DFace f:
                Mapped(part, map, [V(f.FirstPoint), V(f.SecondPoint), V(f.ThirdPoint), V(f.FourthPoint)]);
                break;
            case CadSolid s:
                Prism(part, s, map, [V(s.FirstPoint), V(s.SecondPoint), V(s.FourthPoint), V(s.ThirdPoint)]);
                break;
            case CadTrace t:
                Prism(part, t, map, [V(t.FirstPoint), V(t.SecondPoint), V(t.FourthPoint), V(t.ThirdPoint)]);
                break;
            case CadPolyFaceMesh mesh:
                Polyface(part, mesh, map);
                break;
            case CadPolygonMesh mesh:
                Net(part, mesh, map);
                break;
            case CadPolyline3D:
                break;
            case CadExtrudedEntityBase { Thickness: not 0 } thick:
                Thick(part, thick, map, circleSides);
                break;
            case CadMesh mesh:
                Subdivision(part, mesh, map);
                break;
        }
    }

    private static Vec3 V(Cad3DPoint p) => new(p.X, p.Y, p.Z);

    private static void Mapped(MeshBuilder part, in Affine3 map, ReadOnlySpan<Vec3> corners)
    {
        Span<Vec3> mapped = corners.Length <= 64 ? stackalloc Vec3[corners.Length] : new Vec3[corners.Length];
        for (int i = 0; i < corners.Length; i++)
        {
            mapped[i] = map.Point(corners[i]);
            if (!mapped[i].IsFinite)
            {
                return;
            }
        }

        if (IsMirror(map))
        {
            mapped.Reverse(); // what looked outwards still does
        }

        part.Add(mapped);
    }

    private static bool IsMirror(in Affine3 map) => Vec3.Dot(Vec3.Cross(map.AxisX, map.AxisY), map.AxisZ) < 0;

    private static Affine3 InObject(CadExtrudedEntityBase entity, in Affine3 map) => map * Ocs.ToWorld(V(entity.ExtrusionDirection));

    /// <summary>The ring at the lower end of its thickness, turned so that its walls look outwards.</summary>
    private static (Vec3[] Ring, Vec3 Up) Outwards(IEnumerable<Vec3> ring, double thickness)
    {
        Vec3 down = Vec3.UnitZ * Math.Min(0, thickness);
        Vec3[] corners = [.. ring.Select(p => p + down)];
        double area = 0;
        for (int i = 0; i < corners.Length; i++)
        {
            Vec3 next = corners[(i + 1) % corners.Length];
            area += ((corners[i].X - corners[0].X) * (next.Y - corners[0].Y)) - ((corners[i].Y - corners[0].Y) * (next.X - corners[0].X));
        }

        if (area < 0)
        {
            Array.Reverse(corners);
        }

        return (corners, Vec3.UnitZ * Math.Abs(thickness));
    }

    /// <summary>A flat face, or with a thickness two of them and the walls between.</summary>
    private static void Prism(MeshBuilder part, CadExtrudedEntityBase entity, in Affine3 map, Vec3[] ring)
    {
        Affine3 ocs = InObject(entity, map);
        if (entity.Thickness == 0)
        {
            Mapped(part, ocs, ring);
            return;
        }

        (Vec3[] sides, Vec3 up) = Outwards(ring, entity.Thickness);
        Vec3[] bottom = [.. sides];
        Array.Reverse(bottom);
        Mapped(part, ocs, bottom);
        Mapped(part, ocs, Array.ConvertAll(sides, p => p + up));
        Walls(part, ocs, sides, closed: true, up);
    }

    private static void Walls(MeshBuilder part, in Affine3 ocs, IReadOnlyList<Vec3> line, bool closed, Vec3 up)
    {
        int count = closed ? line.Count : line.Count - 1;
        for (int i = 0; i < count; i++)
        {
            Vec3 a = line[i];
            Vec3 b = line[(i + 1) % line.Count];
            Mapped(part, ocs, [a, b, b + up, a + up]);
        }
    }

    private static void Fence(MeshBuilder part, in Affine3 ocs, List<Vec3> line, bool closed, double thickness)
    {
        (Vec3[] corners, Vec3 up) = closed ? Outwards(line, thickness) : ([.. line], Vec3.UnitZ * thickness);
        Walls(part, ocs, corners, closed, up);
    }

    /// <summary>Lines become walls; a circle becomes a drum with its two lids.</summary>
    private static void Thick(MeshBuilder part, CadExtrudedEntityBase entity, in Affine3 map, int sides)
    {
        Affine3 ocs = InObject(entity, map);
        Vec3 up = Vec3.UnitZ * entity.Thickness;
        switch (entity)
        {
            case CadArc arc:
                double sweep = (arc.EndAngle - arc.StartAngle) % 360;
                sweep = sweep <= 0 ? sweep + 360 : sweep;
                Walls(part, ocs, Arc(V(arc.CenterPoint), arc.Radius, arc.StartAngle, sweep, sides), closed: false, up);
                break;
            case CadCircle circle:
                List<Vec3> ring = Arc(V(circle.CenterPoint), circle.Radius, 0, 360, sides);
                ring.RemoveAt(ring.Count - 1);
                Prism(part, circle, map, [.. ring]);
                break;
            case CadLwPolyline polyline:
                Fence(part, ocs, Line(polyline, sides), polyline.IsClosed, polyline.Thickness);
                break;
            case CadPolyline polyline:
                Fence(part, ocs, Line(polyline, sides), polyline.IsClosed, polyline.Thickness);
                break;
            case CadLine line:

                // The ends of a line stand in world coordinates; only its thickness follows the normal.
                Walls(part, map, [V(line.FirstPoint), V(line.SecondPoint)], closed: false, V(line.ExtrusionDirection).Unit() * line.Thickness);
                break;
        }
    }

    private static List<Vec3> Arc(Vec3 center, double radius, double startDegrees, double sweepDegrees, int sides)
    {
        List<Vec3> points = [];
        int steps = Math.Max(2, (int)Math.Ceiling(sides * sweepDegrees / 360));
        for (int i = 0; i <= steps; i++)
        {
            (double sin, double cos) = Math.SinCos((startDegrees + (sweepDegrees * i / steps)) * Math.PI / 180);
            points.Add(center + new Vec3(radius * cos, radius * sin, 0));
        }

        return points;
    }

    private static List<Vec3> Line(CadLwPolyline polyline, int sides)
    {
        List<(Vec2 At, double Bulge)> vertices = [];
        for (int i = 0; i < polyline.Coordinates.Count; i++)
        {
            vertices.Add((new Vec2(polyline.Coordinates[i].X, polyline.Coordinates[i].Y), polyline.BulgeAt(i)));
        }

        return Line(vertices, polyline.IsClosed, polyline.Elevation, sides);
    }

    private static List<Vec3> Line(CadPolyline polyline, int sides)
    {
        List<(Vec2 At, double Bulge)> vertices = [];
        foreach (CadVertexBase vertex in polyline.Vertices)
        {
            if ((vertex.VertexFlags & SplineFrameVertex) == 0)
            {
                vertices.Add((V(vertex.LocationPoint).Xy, vertex.Bulge));
            }
        }

        return Line(vertices, polyline.IsClosed, polyline.Elevation.Z, sides);
    }

    /// <summary>The vertices, and points on the arcs between them.</summary>
    private static List<Vec3> Line(List<(Vec2 At, double Bulge)> vertices, bool closed, double elevation, int sides)
    {
        List<Vec3> points = [];
        for (int i = 0; i < vertices.Count; i++)
        {
            (Vec2 from, double bulge) = vertices[i];
            points.Add(new Vec3(from.X, from.Y, elevation));
            bool last = i + 1 == vertices.Count;
            if ((!last || closed) && BulgeArc.TryCreate(from, vertices[(i + 1) % vertices.Count].At, bulge, out BulgeArc arc))
            {
                int steps = Math.Max(2, (int)Math.Ceiling(sides * Math.Abs(arc.Sweep) / Math.Tau));
                for (int k = 1; k < steps; k++)
                {
                    Vec2 p = arc.At((double)k / steps);
                    points.Add(new Vec3(p.X, p.Y, elevation));
                }
            }
        }

        return points;
    }

    private static void Polyface(MeshBuilder part, CadPolyFaceMesh mesh, in Affine3 map)
    {
        List<Vec3> points = [];
        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if ((vertex.VertexFlags & PolyfacePoint) != 0)
            {
                points.Add(V(vertex.LocationPoint));
            }
        }

        Span<Vec3> corners = stackalloc Vec3[4];
        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if (vertex is CadFaceRecord face)
            {
                Mapped(part, map, corners[..Corners(points, face, corners)]);
            }
        }
    }

    // Indexes count from one; a negative one only hides an edge.
    private static int Corners(List<Vec3> points, CadFaceRecord face, Span<Vec3> corners)
    {
        int count = 0;
        foreach (int index in (ReadOnlySpan<int>)[face.VertexIndex1, face.VertexIndex2, face.VertexIndex3, face.VertexIndex4])
        {
            int at = Math.Abs(index) - 1;
            if (at >= 0 && at < points.Count)
            {
                corners[count++] = points[at];
            }
        }

        return count;
    }

    private static void Net(MeshBuilder part, CadPolygonMesh mesh, in Affine3 map)
    {
        bool smooth = (mesh.Flag & CadPolylineFlag.SplineFit) != 0 && mesh.SurfaceMDensity > 1 && mesh.SurfaceNDensity > 1;
        int m = smooth ? mesh.SurfaceMDensity : mesh.MeshMVertexCount;
        int n = smooth ? mesh.SurfaceNDensity : mesh.MeshNVertexCount;
        IList<CadVertexBase> points = smooth
            ? mesh.Vertices.FindAll(v => (v.VertexFlags & SplineFrameVertex) == 0)
            : mesh.Vertices;
        if (m < 2 || n < 2 || (long)m * n > points.Count)
        {
            return;
        }

        int rows = mesh.IsClosed ? m : m - 1;
        int columns = (mesh.Flag & CadPolylineFlag.ClosedN) != 0 ? n : n - 1;
        for (int row = 0; row < rows; row++)
        {
            for (int column = 0; column < columns; column++)
            {
                int below = (row + 1) % m;
                int right = (column + 1) % n;
                Mapped(part, map, [At(row, column), At(below, column), At(below, right), At(row, right)]);
            }
        }

        Vec3 At(int row, int column) => V(points[(row * n) + column].LocationPoint);
    }

    /// <summary>The faces of the control mesh of a subdivision mesh.</summary>
    private static void Subdivision(MeshBuilder part, CadMesh mesh, in Affine3 map)
    {
        SubdivisionCage cage = SubdivisionCage.Read(mesh);
        foreach (Vec3[] face in cage.Faces())
        {
            Mapped(part, map, face);
        }
    }
}
