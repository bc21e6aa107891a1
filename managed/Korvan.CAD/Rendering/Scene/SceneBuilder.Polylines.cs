using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Polylines of all kinds: flat with widths and bulges, in space, meshes and polyfaces.</content>
internal sealed partial class SceneBuilder
{
    private const int SplineFrameVertex = 16;
    private const int PolyfacePoint = 64;

    private readonly List<PolyVertex> vertices = [];

    private void DrawPolyline(CadPolylineBase polyline, in Pen pen, BlockContext context)
    {
        switch (polyline)
        {
            case CadPolyFaceMesh mesh:
                DrawPolyface(mesh, pen, context);
                break;
            case CadPolygonMesh mesh:
                DrawMesh(mesh, pen, context);
                break;
            case CadPolyline3D line:
                DrawSpacePolyline(line, pen, context);
                break;
            default:
                DrawFlatPolyline(polyline, pen, context);
                break;
        }
    }

    private void DrawLwPolyline(CadLwPolyline polyline, in Pen pen, BlockContext context)
    {
        ReadVertices(polyline);
        bool generated = (polyline.Flag & CadLwPolylineFlag.Plinegen) != 0;
        Affine3 map = InObject(context, polyline.ExtrusionDirection);
        DrawVertices(map, polyline.Elevation, polyline.Thickness, polyline.IsClosed, generated, pen);
    }

    private void ReadVertices(CadLwPolyline polyline)
    {
        vertices.Clear();
        for (int i = 0; i < polyline.Coordinates.Count; i++)
        {
            vertices.Add(new PolyVertex(
                V(polyline.Coordinates[i]), polyline.StartWidthAt(i), polyline.EndWidthAt(i), polyline.BulgeAt(i)));
        }
    }

    private void DrawFlatPolyline(CadPolylineBase polyline, in Pen pen, BlockContext context)
    {
        vertices.Clear();
        foreach (CadVertexBase vertex in polyline.Vertices)
        {
            // The frame of a fitted curve is kept in the file but not part of the line.
            if ((vertex.VertexFlags & SplineFrameVertex) == 0)
            {
                double start = vertex.StartWidth != 0 ? vertex.StartWidth : polyline.StartWidth;
                double end = vertex.EndWidth != 0 ? vertex.EndWidth : vertex.StartWidth != 0 ? 0 : polyline.EndWidth;
                vertices.Add(new PolyVertex(V(vertex.LocationPoint).Xy, start, end, vertex.Bulge));
            }
        }

        bool generated = (polyline.Flag & CadPolylineFlag.Plinegen) != 0;
        Affine3 map = InObject(context, polyline.ExtrusionDirection);
        DrawVertices(map, polyline.Elevation.Z, polyline.Thickness, polyline.IsClosed, generated, pen);
    }

    /// <summary>Draws <see cref="vertices"/>, as a band where they have a width, else as a line.</summary>
    private void DrawVertices(in Affine3 map, double elevation, double thickness, bool closed, bool generated, in Pen pen)
    {
        if (vertices.Count == 0)
        {
            return;
        }

        ReadOnlySpan<PolyVertex> all = System.Runtime.InteropServices.CollectionsMarshal.AsSpan(vertices);
        if (WidePolyline.HasWidth(all))
        {
            DrawWide(map, elevation, closed, pen);
            return;
        }

        var path = new PathPen(canvas.NewPath(), map, elevation);
        if (pen.Pattern != null && !generated)
        {
            DrawSegments(path, closed, pen);
            return;
        }

        AddVertices(path, all, closed);
        if (thickness != 0)
        {
            AddVertices(new PathPen(canvas.Path, map, elevation + thickness), all, closed);
            var edges = new PathPen(canvas.Path, map);
            foreach (PolyVertex v in vertices)
            {
                edges.MoveTo(new Vec3(v.Point.X, v.Point.Y, elevation));
                edges.LineTo(new Vec3(v.Point.X, v.Point.Y, elevation + thickness));
            }
        }

        canvas.Stroke(pen);
    }

    private void DrawWide(in Affine3 map, double elevation, bool closed, in Pen pen)
    {
        var path = new PathPen(canvas.NewPath(), map, elevation);
        ReadOnlySpan<PolyVertex> all = System.Runtime.InteropServices.CollectionsMarshal.AsSpan(vertices);
        WidePolyline.AddOutline(path, all, closed);
        if (tables.Settings.FillMode)
        {
            canvas.Fill(pen, evenOdd: false);
        }
        else
        {
            Pen outline = pen;
            outline.Pattern = null;
            canvas.Stroke(outline);
        }

        // Segments without a width among wide ones are still lines.
        canvas.NewPath();
        int segments = closed ? all.Length : all.Length - 1;
        for (int i = 0; i < segments; i++)
        {
            if (all[i].StartWidth <= 0 && all[i].EndWidth <= 0)
            {
                path.MoveTo(all[i].Point);
                path.BulgeTo(all[i].Point, all[(i + 1) % all.Length].Point, all[i].Bulge);
            }
        }

        canvas.Stroke(pen);
    }

    /// <summary>Each segment begins its line type anew.</summary>
    private void DrawSegments(in PathPen path, bool closed, in Pen pen)
    {
        int segments = closed ? vertices.Count : vertices.Count - 1;
        for (int i = 0; i < segments; i++)
        {
            canvas.NewPath();
            Vec2 from = vertices[i].Point;
            path.MoveTo(from);
            path.BulgeTo(from, vertices[(i + 1) % vertices.Count].Point, vertices[i].Bulge);
            canvas.Stroke(pen);
        }
    }

    private static void AddVertices(in PathPen path, ReadOnlySpan<PolyVertex> all, bool closed)
    {
        path.MoveTo(all[0].Point);
        if (all.Length == 1)
        {
            path.LineTo(all[0].Point);
        }

        int segments = closed && all.Length > 1 ? all.Length : all.Length - 1;
        for (int i = 0; i < segments; i++)
        {
            path.BulgeTo(all[i].Point, all[(i + 1) % all.Length].Point, all[i].Bulge);
        }

        if (closed)
        {
            path.Close();
        }
    }

    private void DrawSpacePolyline(CadPolyline3D polyline, in Pen pen, BlockContext context)
    {
        var path = new PathPen(canvas.NewPath(), context.Map);
        foreach (CadVertexBase vertex in polyline.Vertices)
        {
            if ((vertex.VertexFlags & SplineFrameVertex) == 0)
            {
                path.LineTo(V(vertex.LocationPoint));
            }
        }

        if (polyline.IsClosed)
        {
            path.Close();
        }

        canvas.Stroke(pen);
    }

    /// <summary>A net of m rows and n columns; a smoothed one shows its surface, not the frame.</summary>
    private void DrawMesh(CadPolygonMesh mesh, in Pen pen, BlockContext context)
    {
        bool smooth = (mesh.Flag & CadPolylineFlag.SplineFit) != 0 && mesh.SurfaceMDensity > 1 && mesh.SurfaceNDensity > 1;
        int m = smooth ? mesh.SurfaceMDensity : mesh.MeshMVertexCount;
        int n = smooth ? mesh.SurfaceNDensity : mesh.MeshNVertexCount;
        IList<CadVertexBase> points = smooth
            ? mesh.Vertices.FindAll(v => (v.VertexFlags & SplineFrameVertex) == 0)
            : mesh.Vertices;
        if (m < 1 || n < 1 || (long)m * n > points.Count)
        {
            List.Skip("POLYLINE mesh with missing vertices");
            return;
        }

        var path = new PathPen(canvas.NewPath(), context.Map);
        for (int row = 0; row < m; row++)
        {
            AddRow(path, points, row * n, 1, n, (mesh.Flag & CadPolylineFlag.ClosedN) != 0);
        }

        for (int column = 0; column < n; column++)
        {
            AddRow(path, points, column, n, m, mesh.IsClosed);
        }

        canvas.Stroke(pen);
    }

    private static void AddRow(in PathPen path, IList<CadVertexBase> points, int first, int step, int count,
        bool closed)
    {
        path.MoveTo(V(points[first].LocationPoint));
        for (int i = 1; i < count; i++)
        {
            path.LineTo(V(points[first + (i * step)].LocationPoint));
        }

        if (closed)
        {
            path.Close();
        }
    }

    private void DrawPolyface(CadPolyFaceMesh mesh, in Pen pen, BlockContext context)
    {
        var points = new List<Vec3>();
        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if ((vertex.VertexFlags & PolyfacePoint) != 0)
            {
                points.Add(V(vertex.LocationPoint));
            }
        }

        var path = new PathPen(canvas.NewPath(), context.Map);
        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if (vertex is CadFaceRecord face)
            {
                AddFace(path, points, face);
            }
        }

        canvas.Stroke(pen);
    }

    // Indexes count from one; a negative one hides the edge that leaves its vertex.
    private static void AddFace(in PathPen path, List<Vec3> points, CadFaceRecord face)
    {
        ReadOnlySpan<int> indexes = [face.VertexIndex1, face.VertexIndex2, face.VertexIndex3, face.VertexIndex4];
        Span<Vec3> corners = stackalloc Vec3[4];
        int count = 0;
        int hidden = 0;
        foreach (int index in indexes)
        {
            int at = Math.Abs(index) - 1;
            if (at >= 0 && at < points.Count)
            {
                hidden |= index < 0 ? 1 << count : 0;
                corners[count++] = points[at];
            }
        }

        if (count >= 2)
        {
            AddEdges(path, corners[..count], hidden);
        }
    }
}
