using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Lines, circles, arcs, ellipses, splines, points, faces.</content>
internal sealed partial class SceneBuilder
{
    /// <summary>Deviation that splines may have, as a part of their size.</summary>
    private const double SplineTolerance = 1e-4;
    private const double DefaultPointPart = 0.005;

    private void DrawLine(CadLine line, in Pen pen, BlockContext context)
    {
        // The ends of a line are world points even when it has an extrusion, which then only directs its thickness.
        var path = new PathPen(canvas.NewPath(), context.Map);
        path.MoveTo(V(line.FirstPoint));
        path.LineTo(V(line.SecondPoint));
        if (line.Thickness != 0)
        {
            AddThickness(path, [V(line.FirstPoint), V(line.SecondPoint)], V(line.ExtrusionDirection).Unit() * line.Thickness, false);
        }

        canvas.Stroke(pen);
    }

    private void DrawCircle(CadCircle circle, in Pen pen, BlockContext context)
    {
        Affine3 map = InObject(context, circle.ExtrusionDirection);
        PathBuffer path = canvas.NewPath();
        new PathPen(path, map, circle.CenterPoint.Z).Circle(V(circle.CenterPoint).Xy, circle.Radius);
        if (circle.Thickness != 0)
        {
            new PathPen(path, map, circle.CenterPoint.Z + circle.Thickness).Circle(V(circle.CenterPoint).Xy, circle.Radius);
        }

        canvas.Stroke(pen);
    }

    private void DrawArc(CadArc arc, in Pen pen, BlockContext context)
    {
        double start = Radians(arc.StartAngle);
        double sweep = CounterClockwise(start, Radians(arc.EndAngle));
        Affine3 map = InObject(context, arc.ExtrusionDirection);
        PathBuffer path = canvas.NewPath();
        AddArc(new PathPen(path, map, arc.CenterPoint.Z), V(arc.CenterPoint).Xy, arc.Radius, start, sweep);
        if (arc.Thickness != 0)
        {
            AddArc(new PathPen(path, map, arc.CenterPoint.Z + arc.Thickness), V(arc.CenterPoint).Xy, arc.Radius, start, sweep);
        }

        canvas.Stroke(pen);
    }

    private static void AddArc(in PathPen path, Vec2 center, double radius, double start, double sweep)
    {
        path.MoveTo(center + Vec2.Polar(start, radius));
        path.ArcTo(center, radius, start, sweep);
    }

    /// <summary>The positive turn from one angle to another; equal angles are a full turn.</summary>
    private static double CounterClockwise(double start, double end)
    {
        double sweep = Math.IEEERemainder(end - start, 2 * Math.PI);
        return sweep <= 1e-12 ? sweep + (2 * Math.PI) : sweep;
    }

    private void DrawEllipse(CadEllipse ellipse, in Pen pen, BlockContext context)
    {
        Vec3 major = V(ellipse.MajorEndPoint);
        Vec3 minor = Vec3.Cross(V(ellipse.ExtrusionDirection).Unit(), major) * ellipse.AxisRatio;
        double sweep = CounterClockwise(ellipse.StartAngle, ellipse.EndAngle);
        (double sin, double cos) = Math.SinCos(ellipse.StartAngle);
        var path = new PathPen(canvas.NewPath(), context.Map);
        path.MoveTo(V(ellipse.CenterPoint) + (major * cos) + (minor * sin));
        path.EllipseTo(V(ellipse.CenterPoint), major, minor, ellipse.StartAngle, sweep);
        if (sweep >= (2 * Math.PI) - 1e-9)
        {
            path.Close();
        }

        canvas.Stroke(pen);
    }

    private void DrawPoint(CadPoint point, in Pen pen, BlockContext context)
    {
        Vec2 at = context.Map.Project(V(point.CenterPoint));
        Pen solid = pen;
        solid.Pattern = null;
        PathBuffer path = canvas.NewPath();
        int mode = tables.Settings.PointMode;
        double size = PointSize(context) / 2;
        AddPointFigure(path, mode & 15, at, size);
        if ((mode & 32) != 0)
        {
            new PathPen(path, Affine3.Identity).Circle(at, size);
        }

        if ((mode & 64) != 0)
        {
            path.MoveTo(at + new Vec2(-size, -size));
            path.LineTo(at + new Vec2(size, -size));
            path.LineTo(at + new Vec2(size, size));
            path.LineTo(at + new Vec2(-size, size));
            path.Close();
        }

        canvas.Stroke(solid);
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
                AddSegment(path, at, new Vec2(size, size), both: true);
                AddSegment(path, at, new Vec2(size, -size), both: true);
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
        double size = tables.Settings.PointSize;
        if (size > 0)
        {
            return size * context.Map.PlaneScale;
        }

        Bounds2 box = List.Bounds;
        double view = box.IsEmpty ? 1 : Math.Max(box.Width, box.Height);
        return view * (size < 0 ? -size / 100 : DefaultPointPart * 2);
    }

    private void DrawSpline(CadSpline spline, in Pen pen, BlockContext context)
    {
        var path = new PathPen(canvas.NewPath(), context.Map);
        AddSpline(path, spline);
        canvas.Stroke(pen);
    }

    /// <summary>A spline by its control points, or through its fit points where it has no others.</summary>
    private void AddSpline(in PathPen path, CadSpline spline)
    {
        if (spline.ControlPoints.Count > spline.Degree)
        {
            Bounds2 box = Bounds2.Empty;
            foreach (Cad3DPoint p in spline.ControlPoints)
            {
                box.Add(p.X, p.Y);
            }

            double tolerance = Math.Max((box.Width + box.Height) * SplineTolerance, 1e-9);
            List<Vec3> points = spline.ControlPoints.ConvertAll(V);
            if (Nurbs.Create(spline.Degree, spline.KnotValues, points, spline.Weights) is Nurbs curve)
            {
                curve.Draw(path, tolerance);
                return;
            }
        }

        if (spline.FitPoints.Count >= 2)
        {
            FitSpline.Draw(path, spline.FitPoints.ConvertAll(V), V(spline.StartTangent), V(spline.EndTangent), spline.IsClosed);
            return;
        }

        List.Skip("SPLINE without a curve");
    }

    private void DrawFilledQuad(
        Cad3DPoint p1, Cad3DPoint p2, Cad3DPoint p3, Cad3DPoint p4, Cad3DPoint extrusion, in Pen pen, BlockContext context)
    {
        // The corners run in a Z, not around: third and fourth change places.
        var path = new PathPen(canvas.NewPath(), InObject(context, extrusion));
        path.MoveTo(V(p1));
        path.LineTo(V(p2));
        path.LineTo(V(p4));
        path.LineTo(V(p3));
        path.Close();
        if (tables.Settings.FillMode)
        {
            canvas.Fill(pen, evenOdd: true);
        }
        else
        {
            canvas.Stroke(pen);
        }
    }

    private void DrawFace(Cad3DFace face, in Pen pen, BlockContext context)
    {
        Span<Vec3> corners = [V(face.FirstPoint), V(face.SecondPoint), V(face.ThirdPoint), V(face.FourthPoint)];
        var path = new PathPen(canvas.NewPath(), context.Map);
        AddEdges(path, corners, face.InvisibleEdges);
        canvas.Stroke(pen);
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

    /// <summary>The copy of a line at the other end of its thickness, and the edges between both.</summary>
    private static void AddThickness(in PathPen path, IReadOnlyList<Vec3> points, Vec3 by, bool closed)
    {
        for (int i = 0; i < points.Count; i++)
        {
            if (i == 0)
            {
                path.MoveTo(points[i] + by);
            }
            else
            {
                path.LineTo(points[i] + by);
            }
        }

        if (closed)
        {
            path.Close();
        }

        foreach (Vec3 p in points)
        {
            path.MoveTo(p);
            path.LineTo(p + by);
        }
    }
}
