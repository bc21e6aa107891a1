using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Polylines of all kinds: flat with widths and bulges, in space, meshes and polyfaces.</content>
internal sealed partial class SceneBuilder
{
    private const int MaxBands = 4_096;

    void IGeometrySink.FilledPolygon(ReadOnlySpan<Vec3> corners)
    {
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        path.MoveTo(corners[0]);
        foreach (Vec3 corner in corners[1..])
        {
            path.LineTo(corner);
        }

        path.Close();
        if (_tables.Settings.FillMode)
        {
            _canvas.Fill(_current.Pen, evenOdd: true);
        }
        else
        {
            _canvas.Stroke(_current.Pen);
        }
    }

    /// <summary>Draws a band where the vertices have widths, else a line.</summary>
    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        if (vertices.Length == 0)
        {
            return;
        }

        Affine3 map = MapOf(polyline.Plane);
        bool closed = polyline.IsClosed;
        if (WidePolyline.HasWidth(vertices))
        {
            DrawWide(vertices, map, polyline.Elevation, closed);
            return;
        }

        var lower = new PathPen(_canvas.NewPath(), map, polyline.Elevation);
        var upper = new PathPen(_canvas.Path, map, polyline.Elevation + polyline.Thickness);
        if (_current.Pen.Pattern != null && !polyline.HasContinuousPattern)
        {
            DrawSegments(vertices, lower, closed);
            if (polyline.Thickness != 0)
            {
                DrawSegments(vertices, upper, closed);
                _canvas.NewPath();
                AddSides(polyline, vertices, map);
                _canvas.Stroke(_current.Pen);
            }

            return;
        }

        AddVertices(lower, vertices, closed);
        if (polyline.Thickness != 0)
        {
            AddVertices(upper, vertices, closed);
            AddSides(polyline, vertices, map);
        }

        _canvas.Stroke(_current.Pen);
    }

    private void AddSides(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices, in Affine3 map)
    {
        var path = new PathPen(_canvas.Path, map);
        foreach (PolyVertex v in vertices)
        {
            path.MoveTo(new Vec3(v.Point.X, v.Point.Y, polyline.Elevation));
            path.LineTo(new Vec3(v.Point.X, v.Point.Y, polyline.Elevation + polyline.Thickness));
        }
    }

    private void DrawWide(ReadOnlySpan<PolyVertex> all, in Affine3 map, double elevation, bool closed)
    {
        Pen pen = _current.Pen;
        var path = new PathPen(_canvas.NewPath(), map, elevation);
        if (_tables.Settings.FillMode)
        {
            FillBands(path, all, closed);
        }
        else
        {
            WidePolyline.AddOutline(path, all, closed);
            Pen outline = pen;
            outline.Pattern = null;
            _canvas.Stroke(outline);
        }

        // Segments without a width among wide ones are still lines.
        _canvas.NewPath();
        int segments = closed ? all.Length : all.Length - 1;
        for (int i = 0; i < segments; i++)
        {
            if (all[i].StartWidth <= 0 && all[i].EndWidth <= 0)
            {
                path.MoveTo(all[i].Point);
                path.BulgeTo(all[i].Point, all[(i + 1) % all.Length].Point, all[i].Bulge);
            }
        }

        _canvas.Stroke(pen);
    }

    /// <summary>Fills parts of a long polyline one by one: the time for one area grows faster than the number of its
    /// edges.</summary>
    private void FillBands(in PathPen path, ReadOnlySpan<PolyVertex> all, bool closed)
    {
        if (all.Length <= MaxBands)
        {
            WidePolyline.AddOutline(path, all, closed);
            _canvas.Fill(_current.Pen, evenOdd: false);
            return;
        }

        PolyVertex[] part = new PolyVertex[MaxBands + 1];
        int segments = closed ? all.Length : all.Length - 1;
        for (int first = 0; first < segments; first += MaxBands)
        {
            Budget.Step(MaxBands);
            int count = Math.Min(MaxBands, segments - first);
            for (int i = 0; i <= count; i++)
            {
                part[i] = all[(first + i) % all.Length];
            }

            _canvas.NewPath();
            WidePolyline.AddOutline(path, part.AsSpan(0, count + 1), closed: false);
            _canvas.Fill(_current.Pen, evenOdd: false);
        }
    }

    /// <summary>Each segment begins its line type anew.</summary>
    private void DrawSegments(ReadOnlySpan<PolyVertex> vertices, in PathPen path, bool closed)
    {
        int segments = closed ? vertices.Length : vertices.Length - 1;
        for (int i = 0; i < segments; i++)
        {
            _canvas.NewPath();
            Vec2 from = vertices[i].Point;
            path.MoveTo(from);
            path.BulgeTo(from, vertices[(i + 1) % vertices.Length].Point, vertices[i].Bulge);
            _canvas.Stroke(_current.Pen);
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

    void IGeometrySink.Polyline(ReadOnlySpan<Vec3> points, bool closed)
    {
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        foreach (Vec3 point in points)
        {
            path.LineTo(point);
        }

        if (closed)
        {
            path.Close();
        }

        _canvas.Stroke(_current.Pen);
    }

    void IGeometrySink.Grid(in PointGrid grid)
    {
        if (!grid.IsWhole)
        {
            List.Skip("POLYLINE mesh with missing vertices");
            return;
        }

        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        for (int row = 0; row < grid.Rows; row++)
        {
            AddRun(path, grid.Points, row * grid.Columns, 1, grid.Columns, grid.ClosesRows);
        }

        for (int column = 0; column < grid.Columns; column++)
        {
            AddRun(path, grid.Points, column, grid.Columns, grid.Rows, grid.ClosesColumns);
        }

        _canvas.Stroke(_current.Pen);
    }

    private static void AddRun(in PathPen path, List<Vec3> points, int first, int step, int count, bool closed)
    {
        path.MoveTo(points[first]);
        for (int i = 1; i < count; i++)
        {
            path.LineTo(points[first + (i * step)]);
        }

        if (closed)
        {
            path.Close();
        }
    }
}
