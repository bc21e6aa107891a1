using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Joins shapes to one outline. Where one does not begin at the end of the last, a line joins them, as rounding in
/// files opens gaps.
/// </summary>
internal sealed class OutlineSink(PathBuffer path, Affine3 map) : IGeometrySink
{
    private const double SplineTolerance = 1e-4;
    private const double SmallestTolerance = 1e-9;

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness)
    {
        var pen = new PathPen(path, map);
        pen.LineTo(from);
        pen.LineTo(to);
    }

    void IGeometrySink.Arc(in PlanarArc arc)
    {
        var pen = new PathPen(path, map * arc.Plane, arc.Center.Z);
        if (arc.IsCircle)
        {
            pen.Circle(arc.Center.Xy, arc.Radius);
            return;
        }

        pen.LineTo(arc.Center.Xy + Vec2.Polar(arc.Start, arc.Radius));
        pen.ArcTo(arc.Center.Xy, arc.Radius, arc.Start, arc.Sweep);
    }

    void IGeometrySink.EllipticArc(in EllipticArc arc)
    {
        (double sin, double cos) = Math.SinCos(arc.Start);
        var pen = new PathPen(path, map);
        pen.LineTo(arc.Center + (arc.Major * cos) + (arc.Minor * sin));
        pen.EllipseTo(arc.Center, arc.Major, arc.Minor, arc.Start, arc.Sweep);
    }

    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        if (vertices.Length < 2)
        {
            return;
        }

        var pen = new PathPen(path, map * polyline.Plane, polyline.Elevation);
        pen.MoveTo(vertices[0].Point);
        for (int i = 0; i < vertices.Length; i++)
        {
            pen.BulgeTo(vertices[i].Point, vertices[(i + 1) % vertices.Length].Point, vertices[i].Bulge);
        }
    }

    void IGeometrySink.Spline(in SplineCurve spline)
    {
        var pen = new PathPen(path, map);
        if (spline.Curve is Nurbs curve)
        {
            pen.LineTo(curve.Start);
            curve.Draw(pen, ToleranceOf(spline.Control), move: false);
            return;
        }

        foreach (Vec3 point in spline.Fit.Count > 0 ? spline.Fit : spline.Control)
        {
            pen.LineTo(point);
        }
    }

    /// <summary>The deviation that is allowed where a curve is flattened, by its size.</summary>
    internal static double ToleranceOf(List<Vec3> points)
    {
        Bounds2 box = Bounds2.Empty;
        points.ForEach(p => box.Add(p.X, p.Y));
        return Math.Max((box.Width + box.Height) * SplineTolerance, SmallestTolerance);
    }
}
