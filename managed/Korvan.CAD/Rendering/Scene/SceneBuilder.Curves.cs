using System;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Lines, circles, arcs, ellipses, splines, points, faces.</content>
internal sealed partial class SceneBuilder
{
    private const double DefaultPointShare = 0.005;

    // The header variable PDMODE.
    private const int PointFigureMask = 15;
    private const int PointInCircle = 32;
    private const int PointInSquare = 64;

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness)
    {
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        path.MoveTo(from);
        path.LineTo(to);
        if (thickness != default)
        {
            path.MoveTo(from + thickness);
            path.LineTo(to + thickness);
            path.MoveTo(from);
            path.LineTo(from + thickness);
            path.MoveTo(to);
            path.LineTo(to + thickness);
        }

        _canvas.Stroke(_current.Pen);
    }

    void IGeometrySink.Arc(in PlanarArc arc)
    {
        Affine3 map = MapOf(arc.Plane);
        PathBuffer path = _canvas.NewPath();
        AddArc(new PathPen(path, map, arc.Center.Z), arc);
        if (arc.Thickness != 0)
        {
            AddArc(new PathPen(path, map, arc.Center.Z + arc.Thickness), arc);
        }

        _canvas.Stroke(_current.Pen);
    }

    private static void AddArc(in PathPen path, in PlanarArc arc)
    {
        if (arc.IsCircle)
        {
            path.Circle(arc.Center.Xy, arc.Radius);
            return;
        }

        path.MoveTo(arc.Center.Xy + Vec2.Polar(arc.Start, arc.Radius));
        path.ArcTo(arc.Center.Xy, arc.Radius, arc.Start, arc.Sweep);
    }

    void IGeometrySink.EllipticArc(in EllipticArc arc)
    {
        (double sin, double cos) = Math.SinCos(arc.Start);
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        path.MoveTo(arc.Center + (arc.Major * cos) + (arc.Minor * sin));
        path.EllipseTo(arc.Center, arc.Major, arc.Minor, arc.Start, arc.Sweep);
        if (arc.IsWhole)
        {
            path.Close();
        }

        _canvas.Stroke(_current.Pen);
    }

    void IGeometrySink.Point(Vec3 point)
    {
        BlockContext context = _current.Context;
        Vec2 at = context.Map.Project(point);
        Pen solid = _current.Pen;
        solid.Pattern = null;
        PathBuffer path = _canvas.NewPath();
        int mode = _tables.Settings.PointMode;
        _isPlaceBound |= mode != 0; // the figures of points are upright, wherever they are
        double size = PointSize(context) / 2;
        AddPointFigure(path, mode & PointFigureMask, at, size);
        if ((mode & PointInCircle) != 0)
        {
            new PathPen(path, Affine3.Identity).Circle(at, size);
        }

        if ((mode & PointInSquare) != 0)
        {
            path.MoveTo(at + new Vec2(-size, -size));
            path.LineTo(at + new Vec2(size, -size));
            path.LineTo(at + new Vec2(size, size));
            path.LineTo(at + new Vec2(-size, size));
            path.Close();
        }

        _canvas.Stroke(solid);
    }

    private static void AddPointFigure(PathBuffer path, int figure, Vec2 at, double size)
    {
        switch (figure)
        {
            case 0:
                path.MoveTo(at);
                path.LineTo(at);
                break;
            case 2:
                AddSegment(path, at, new Vec2(size * 2, 0), both: true);
                AddSegment(path, at, new Vec2(0, size * 2), both: true);
                break;
            case 3:
                AddSegment(path, at, new Vec2(size * 2, size * 2), both: true);
                AddSegment(path, at, new Vec2(size * 2, -size * 2), both: true);
                break;
            case 4:
                AddSegment(path, at, new Vec2(0, size), both: false);
                break;
        }
    }

    private static void AddSegment(PathBuffer path, Vec2 at, Vec2 reach, bool both)
    {
        path.MoveTo(both ? at - reach : at);
        path.LineTo(at + reach);
    }

    // A size of zero or below is a share of the view; the extents drawn so far stand in for the view.
    private double PointSize(BlockContext context)
    {
        double size = _tables.Settings.PointSize;
        if (size > 0)
        {
            return size * context.Map.PlaneScale;
        }

        Bounds2 box = List.Bounds;
        double view = box.IsEmpty ? 1 : Math.Max(box.Width, box.Height);
        return view * (size < 0 ? -size / 100 : DefaultPointShare * 2);
    }

    void IGeometrySink.Spline(in SplineCurve spline)
    {
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        if (spline.TryDraw(path, OutlineSink.ToleranceOf(spline.Control)))
        {
            _canvas.Stroke(_current.Pen);
        }
        else
        {
            List.Skip("SPLINE without a curve");
        }
    }

    void IGeometrySink.Edges(AcisWireframe edges)
    {
        EntityGeometry.EmitEdges(edges, this);
        for (int i = 0; i < edges.UnreadEdges; i++)
        {
            List.Skip($"{_current.Entity.TypeNameText} edge");
        }
    }

    void IGeometrySink.Quad(in FilledQuad quad)
    {
        var path = new PathPen(_canvas.NewPath(), MapOf(quad.Plane));
        path.MoveTo(quad.A);
        path.LineTo(quad.B);
        path.LineTo(quad.C);
        path.LineTo(quad.D);
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

    void IGeometrySink.Face(ReadOnlySpan<Vec3> corners, int hiddenEdges)
    {
        AddEdges(new PathPen(_canvas.NewPath(), _current.Context.Map), corners, hiddenEdges);
        _canvas.Stroke(_current.Pen);
    }

    void IGeometrySink.Faces(FaceSet faces)
    {
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        foreach (FaceCorners face in faces.Faces)
        {
            if (face.Count >= 2)
            {
                AddEdges(path, faces.Ring(face), face.HiddenEdges);
            }
        }

        _canvas.Stroke(_current.Pen);
    }

    /// <summary>Adds the visible edges of a face; bit i of the mask hides the edge that leaves corner i.</summary>
    private static void AddEdges(in PathPen path, ReadOnlySpan<Vec3> corners, int hidden)
    {
        bool down = false;
        for (int i = 0; i < corners.Length; i++)
        {
            Vec3 from = corners[i];
            Vec3 to = corners[(i + 1) % corners.Length];
            if ((hidden & (1 << i)) != 0 || from == to)
            {
                down = false;
                continue;
            }

            if (!down)
            {
                path.MoveTo(from);
            }

            path.LineTo(to);
            down = true;
        }
    }
}
