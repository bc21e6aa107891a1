using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Lengths and areas of entities, in their own plane or in space.</summary>
internal static class EntityMeasure
{
    private const int EllipseSteps = 512;
    private const int SplineSteps = 4096;
    private const int SplineFrameVertex = 16;

    internal static double? Length(CadEntityBase entity) => entity switch
    {
        CadLine line => (V(line.SecondPoint) - V(line.FirstPoint)).Length,
        CadArc arc => arc.Radius * Sweep(arc),
        CadCircle circle => Math.Tau * circle.Radius,
        CadEllipse ellipse => EllipseLength(ellipse),
        CadLwPolyline polyline => FlatLength(Pieces(polyline)),
        CadPolyline polyline => FlatLength(Pieces(polyline)),
        CadPolyline3D polyline => SpaceLength(polyline),
        CadSpline spline => SplineLength(spline),
        CadSolid or CadTrace or Cad3DFace => Outline(Corners(entity)),
        _ => null,
    };

    internal static double? Area(CadEntityBase entity) => entity switch
    {
        CadArc => null,
        CadCircle circle => Math.PI * circle.Radius * circle.Radius,
        CadEllipse ellipse when Math.Abs(ellipse.EndAngle - ellipse.StartAngle) >= Math.Tau - 1e-9 =>
            Math.PI * ellipse.AxisRatio * V(ellipse.MajorEndPoint).Length * V(ellipse.MajorEndPoint).Length,
        CadLwPolyline { IsClosed: true } polyline => FlatArea(Pieces(polyline)),
        CadPolyline { IsClosed: true } polyline => FlatArea(Pieces(polyline)),
        CadSolid or CadTrace or Cad3DFace => FaceArea(Corners(entity)),
        _ => null,
    };

    private static Vec3 V(Cad3DPoint p) => new(p.X, p.Y, p.Z);

    private static double Sweep(CadArc arc)
    {
        double sweep = (arc.EndAngle - arc.StartAngle) % 360;
        return (sweep <= 0 ? sweep + 360 : sweep) * Math.PI / 180;
    }

    private static double EllipseLength(CadEllipse ellipse)
    {
        double major = V(ellipse.MajorEndPoint).Length;
        double minor = major * ellipse.AxisRatio;
        double sweep = ellipse.EndAngle - ellipse.StartAngle;
        sweep = sweep <= 0 ? sweep + Math.Tau : sweep;
        double step = sweep / EllipseSteps;

        // Simpson's rule over the speed of the parametric form.
        double sum = 0;
        for (int i = 0; i <= EllipseSteps; i++)
        {
            (double sin, double cos) = Math.SinCos(ellipse.StartAngle + (i * step));
            double speed = Math.Sqrt((major * major * sin * sin) + (minor * minor * cos * cos));
            sum += speed * (i is 0 or EllipseSteps ? 1 : (i % 2 == 1 ? 4 : 2));
        }

        return sum * step / 3;
    }

    private readonly record struct Piece(Vec2 From, Vec2 To, double Bulge);

    private static List<Piece> Pieces(CadLwPolyline polyline)
    {
        List<(Vec2 At, double Bulge)> vertices = [];
        for (int i = 0; i < polyline.Coordinates.Count; i++)
        {
            vertices.Add((new Vec2(polyline.Coordinates[i].X, polyline.Coordinates[i].Y), polyline.BulgeAt(i)));
        }

        return Pieces(vertices, polyline.IsClosed);
    }

    private static List<Piece> Pieces(CadPolyline polyline)
    {
        List<(Vec2 At, double Bulge)> vertices = [];
        foreach (CadVertexBase vertex in polyline.Vertices)
        {
            if ((vertex.VertexFlags & SplineFrameVertex) == 0)
            {
                vertices.Add((V(vertex.LocationPoint).Xy, vertex.Bulge));
            }
        }

        return Pieces(vertices, polyline.IsClosed);
    }

    private static List<Piece> Pieces(List<(Vec2 At, double Bulge)> vertices, bool closed)
    {
        List<Piece> pieces = [];
        int count = closed ? vertices.Count : vertices.Count - 1;
        for (int i = 0; i < count; i++)
        {
            pieces.Add(new Piece(vertices[i].At, vertices[(i + 1) % vertices.Count].At, vertices[i].Bulge));
        }

        return pieces;
    }

    private static double FlatLength(List<Piece> pieces)
    {
        double length = 0;
        foreach (Piece piece in pieces)
        {
            length += BulgeArc.TryCreate(piece.From, piece.To, piece.Bulge, out BulgeArc arc)
                ? arc.Radius * Math.Abs(arc.Sweep)
                : (piece.To - piece.From).Length;
        }

        return length;
    }

    /// <summary>The shoelace formula, and for each arc the segment between it and its chord.</summary>
    private static double FlatArea(List<Piece> pieces)
    {
        double area = 0;
        foreach (Piece piece in pieces)
        {
            area += Vec2.Cross(piece.From, piece.To) / 2;
            if (BulgeArc.TryCreate(piece.From, piece.To, piece.Bulge, out BulgeArc arc))
            {
                area += arc.Radius * arc.Radius * (arc.Sweep - Math.Sin(arc.Sweep)) / 2;
            }
        }

        return Math.Abs(area);
    }

    private static double SpaceLength(CadPolyline3D polyline)
    {
        List<Vec3> points = [];
        foreach (CadVertexBase vertex in polyline.Vertices)
        {
            if ((vertex.VertexFlags & SplineFrameVertex) == 0)
            {
                points.Add(V(vertex.LocationPoint));
            }
        }

        return ChordLength(points, polyline.IsClosed);
    }

    private static double ChordLength(List<Vec3> points, bool closed)
    {
        double length = 0;
        int count = closed ? points.Count : points.Count - 1;
        for (int i = 0; i < count; i++)
        {
            length += (points[(i + 1) % points.Count] - points[i]).Length;
        }

        return length;
    }

    private static double? SplineLength(CadSpline spline)
    {
        List<Vec3> points = spline.ControlPoints.ConvertAll(V);
        if (points.Count <= spline.Degree || Nurbs.Create(spline.Degree, spline.KnotValues, points, spline.Weights) is not Nurbs curve)
        {
            return null;
        }

        double length = 0;
        Vec3 last = curve.At(curve.First);
        for (int i = 1; i <= SplineSteps; i++)
        {
            Vec3 next = curve.At(curve.First + ((curve.Last - curve.First) * i / SplineSteps));
            length += (next - last).Length;
            last = next;
        }

        return length;
    }

    /// <summary>Around, without those that stand twice.</summary>
    private static List<Vec3> Corners(CadEntityBase entity)
    {
        List<Vec3> corners = entity switch
        {
            CadSolid s => [V(s.FirstPoint), V(s.SecondPoint), V(s.FourthPoint), V(s.ThirdPoint)],
            CadTrace t => [V(t.FirstPoint), V(t.SecondPoint), V(t.FourthPoint), V(t.ThirdPoint)],
            Cad3DFace f => [V(f.FirstPoint), V(f.SecondPoint), V(f.ThirdPoint), V(f.FourthPoint)],
            _ => [],
        };
        for (int i = corners.Count - 1; i > 0; i--)
        {
            if (corners[i] == corners[i - 1])
            {
                corners.RemoveAt(i);
            }
        }

        return corners;
    }

    private static double Outline(List<Vec3> corners) => ChordLength(corners, closed: true);

    private static double FaceArea(List<Vec3> corners)
    {
        double area = 0;
        for (int i = 1; i + 1 < corners.Count; i++)
        {
            area += Vec3.Cross(corners[i] - corners[0], corners[i + 1] - corners[0]).Length / 2;
        }

        return area;
    }
}
