using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Lengths and areas of entities, in their own plane or in space.</summary>
internal sealed class EntityMeasure : IGeometrySink
{
    private const int EllipseSteps = 512;
    private const int SplineSteps = 4096;

    private double? _length;
    private double? _area;

    private EntityMeasure()
    {
    }

    internal static double? Length(CadEntityBase entity) => Of(entity)._length;

    internal static double? Area(CadEntityBase entity) => Of(entity)._area;

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness) => _length = (to - from).Length;

    void IGeometrySink.Arc(in PlanarArc arc)
    {
        _length = arc.Radius * arc.Sweep;
        _area = arc.IsCircle ? Math.PI * arc.Radius * arc.Radius : null;
    }

    void IGeometrySink.EllipticArc(in EllipticArc arc)
    {
        double major = arc.Major.Length;
        double minor = arc.Minor.Length;
        double step = arc.Sweep / EllipseSteps;

        // Simpson's rule over the speed of the parametric form.
        double sum = 0;
        for (int i = 0; i <= EllipseSteps; i++)
        {
            (double sin, double cos) = Math.SinCos(arc.Start + (i * step));
            double speed = Math.Sqrt((major * major * sin * sin) + (minor * minor * cos * cos));
            sum += speed * (i is 0 or EllipseSteps ? 1 : (i % 2 == 1 ? 4 : 2));
        }

        _length = sum * step / 3;
        _area = arc.IsWhole ? Math.PI * major * minor : null;
    }

    void IGeometrySink.Spline(in SplineCurve spline)
    {
        if (spline.Curve is not Nurbs curve)
        {
            return;
        }

        double length = 0;
        Vec3 last = curve.At(curve.First);
        for (int i = 1; i <= SplineSteps; i++)
        {
            Vec3 next = curve.At(curve.First + ((curve.Last - curve.First) * i / SplineSteps));
            length += (next - last).Length;
            last = next;
        }

        _length = length;
    }

    /// <summary>The shoelace formula, and for each arc the segment between it and its chord.</summary>
    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        double length = 0;
        double area = 0;
        int count = polyline.IsClosed ? vertices.Length : vertices.Length - 1;
        for (int i = 0; i < count; i++)
        {
            (Vec2 from, Vec2 to) = (vertices[i].Point, vertices[(i + 1) % vertices.Length].Point);
            area += Vec2.Cross(from, to) / 2;
            if (BulgeArc.TryCreate(from, to, vertices[i].Bulge, out BulgeArc arc))
            {
                length += arc.Radius * Math.Abs(arc.Sweep);
                area += arc.Radius * arc.Radius * (arc.Sweep - Math.Sin(arc.Sweep)) / 2;
            }
            else
            {
                length += (to - from).Length;
            }
        }

        _length = length;
        _area = polyline.IsClosed ? Math.Abs(area) : null;
    }

    void IGeometrySink.Polyline(ReadOnlySpan<Vec3> points, bool closed) => _length = Outline(points, closed);

    void IGeometrySink.Quad(in FilledQuad quad) => MeasureFace([quad.A, quad.B, quad.C, quad.D]);

    void IGeometrySink.Face(ReadOnlySpan<Vec3> corners, int hiddenEdges) => MeasureFace(corners);

    private static EntityMeasure Of(CadEntityBase entity)
    {
        var measure = new EntityMeasure();
        EntityGeometry.Emit(entity, measure);
        return measure;
    }

    private static double Outline(ReadOnlySpan<Vec3> points, bool closed)
    {
        double length = 0;
        int count = closed ? points.Length : points.Length - 1;
        for (int i = 0; i < count; i++)
        {
            length += (points[(i + 1) % points.Length] - points[i]).Length;
        }

        return length;
    }

    private void MeasureFace(ReadOnlySpan<Vec3> corners)
    {
        double area = 0;
        for (int i = 1; i + 1 < corners.Length; i++)
        {
            area += Vec3.Cross(corners[i] - corners[0], corners[i + 1] - corners[0]).Length / 2;
        }

        _length = Outline(corners, closed: true);
        _area = area;
    }
}
