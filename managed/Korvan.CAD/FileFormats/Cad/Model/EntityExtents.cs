using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The space that one entity takes; lines without end take none.</summary>
internal static class EntityExtents
{
    internal static void Add(CadEntityBase entity, Extents extents)
    {
        switch (entity)
        {
            case CadLine line:
                extents.Add(line.FirstPoint);
                extents.Add(line.SecondPoint);
                break;
            case CadPoint point:
                extents.Add(point.CenterPoint);
                break;
            case CadArc arc:
                AddArc(arc, extents);
                break;
            case CadCircle circle:
                AddRing(circle, 0, Math.Tau, extents);
                break;
            case CadEllipse ellipse:
                AddEllipse(ellipse, extents);
                break;
            case CadLwPolyline polyline:
                AddLwPolyline(polyline, extents);
                break;
            case CadPolylineBase polyline:
                AddPolyline(polyline, extents);
                break;
            case CadSpline spline:
                AddSpline(spline, extents);
                break;
            case CadSolid solid:
                AddFlat(solid, [solid.FirstPoint, solid.SecondPoint, solid.ThirdPoint, solid.FourthPoint], extents);
                break;
            case CadTrace trace:
                AddFlat(trace, [trace.FirstPoint, trace.SecondPoint, trace.ThirdPoint, trace.FourthPoint], extents);
                break;
            case Cad3DFace face:
                Array.ForEach([face.FirstPoint, face.SecondPoint, face.ThirdPoint, face.FourthPoint], extents.Add);
                break;
            default:
                AddOthers(entity, extents);
                break;
        }
    }

    internal static Affine3 SystemOf(Cad3DPoint normal) => Ocs.ToWorld(new Vec3(normal.X, normal.Y, normal.Z));

    private static void AddOthers(CadEntityBase entity, Extents extents)
    {
        switch (entity)
        {
            case CadText text:
                bool aligned = text.HorizontalAlignment != 0 || text.VerticalAlignment != 0;
                AddFlat(text, [aligned ? text.SecondAlignment : text.FirstAlignment], extents);
                break;
            case CadMText text:
                extents.Add(text.InsertionPoint);
                break;
            case CadLeader leader:
                leader.Coordinates.ForEach(extents.Add);
                break;
            case CadMultiLine line:
                line.Vertices.ForEach(vertex => extents.Add(vertex.Location));
                break;
            case CadTolerance tolerance:
                extents.Add(tolerance.InsertionPoint);
                break;
            case CadShape shape:
                extents.Add(shape.InsertionPoint);
                break;
            case CadHatch hatch:
                AddHatch(hatch, extents);
                break;
            case CadRasterImage picture:
                AddPicture(picture.InsertionPoint, picture.VectorU, picture.VectorV, picture.ImageSize, extents);
                break;
            case CadWipeoutBase wipeout:
                AddPicture(wipeout.InsertionPoint, wipeout.VectorU, wipeout.VectorV, wipeout.ImageSize, extents);
                break;
        }
    }

    private static void AddArc(CadArc arc, Extents extents)
    {
        double start = arc.StartAngle * Math.PI / 180;
        AddRing(arc, start, Sweep(start, arc.EndAngle * Math.PI / 180), extents);
    }

    private static void AddRing(CadCircle circle, double start, double sweep, Extents extents)
    {
        Affine3 system = SystemOf(circle.ExtrusionDirection);
        Vec3 center = system.Point(ToVector(circle.CenterPoint));
        extents.AddArc(center, system.AxisX * circle.Radius, system.AxisY * circle.Radius, start, sweep);
    }

    // Anticlockwise from one angle to the other; equal angles are the whole way round.
    private static double Sweep(double start, double end)
    {
        double sweep = Math.IEEERemainder(end - start, Math.Tau);
        return sweep < 1e-12 ? sweep + Math.Tau : sweep;
    }

    private static void AddEllipse(CadEllipse ellipse, Extents extents)
    {
        Vec3 major = ToVector(ellipse.MajorEndPoint);
        Vec3 minor = Vec3.Cross(SystemOf(ellipse.ExtrusionDirection).AxisZ, major) * ellipse.AxisRatio;
        double sweep = Sweep(ellipse.StartAngle, ellipse.EndAngle);
        extents.AddArc(ToVector(ellipse.CenterPoint), major, minor, ellipse.StartAngle, sweep);
    }

    private static void AddSpline(CadSpline spline, Extents extents)
    {
        List<Vec3> control = spline.ControlPoints.ConvertAll(ToVector);
        List<Vec3> fit = spline.FitPoints.ConvertAll(ToVector);
        if (Nurbs.Create(spline.Degree, spline.KnotValues, control, spline.Weights) is { } curve)
        {
            extents.AddPath(pen => curve.Draw(pen, Tolerance(control)));
        }
        else if (fit.Count > 1)
        {
            (Vec3 start, Vec3 end) = (ToVector(spline.StartTangent), ToVector(spline.EndTangent));
            extents.AddPath(pen => FitSpline.Draw(pen, fit, start, end, spline.IsClosed));
        }
        else
        {
            control.ForEach(extents.Add);
            fit.ForEach(extents.Add);
        }
    }

    private static double Tolerance(List<Vec3> points)
    {
        const double share = 1e-6;
        double size = 0;
        points.ForEach(point => size = Math.Max(size, (point - points[0]).Length));
        return Math.Max(size * share, 1e-9);
    }

    private static Vec3 ToVector(Cad3DPoint point) => new(point.X, point.Y, point.Z);

    private static void AddLwPolyline(CadLwPolyline polyline, Extents extents)
    {
        Affine3 system = SystemOf(polyline.ExtrusionDirection);
        int count = polyline.Coordinates.Count;
        for (int i = 0; i < count; i++)
        {
            Cad2DPoint from = polyline.Coordinates[i];
            bool hasPiece = i + 1 < count || polyline.IsClosed;
            Cad2DPoint to = polyline.Coordinates[(i + 1) % count];
            double bulge = hasPiece ? polyline.BulgeAt(i) : 0;
            AddPiece(system, (from.X, from.Y), (to.X, to.Y), bulge, polyline.Elevation, extents);
        }
    }

    private static void AddPolyline(CadPolylineBase polyline, Extents extents)
    {
        bool flat = polyline is CadPolyline;
        Affine3 system = flat ? SystemOf(polyline.ExtrusionDirection) : Affine3.Identity;
        List<CadVertexBase> drawn = polyline.Vertices.FindAll(static vertex => IsDrawn(vertex));
        for (int i = 0; i < drawn.Count; i++)
        {
            bool hasPiece = i + 1 < drawn.Count || polyline.IsClosed;
            Cad3DPoint from = drawn[i].LocationPoint;
            Cad3DPoint to = drawn[(i + 1) % drawn.Count].LocationPoint;
            double z = flat ? polyline.Elevation.Z : from.Z;
            AddPiece(system, (from.X, from.Y), (to.X, to.Y), flat && hasPiece ? drawn[i].Bulge : 0, z, extents);
        }
    }

    // Faces have no place of their own, and the frame of a spline is not drawn.
    private static bool IsDrawn(CadVertexBase vertex)
    {
        const int splineFrame = 16;
        return vertex is not CadFaceRecord && (vertex.VertexFlags & splineFrame) == 0;
    }

    private static void AddPiece(
        Affine3 system, (double X, double Y) from, (double X, double Y) to, double bulge, double z,
        Extents extents)
    {
        extents.Add(system.Point(new Vec3(from.X, from.Y, z)));
        if (BulgeArc.TryCreate(new Vec2(from.X, from.Y), new Vec2(to.X, to.Y), bulge, out BulgeArc arc))
        {
            Vec3 center = system.Point(new Vec3(arc.Center.X, arc.Center.Y, z));
            extents.AddArc(center, system.AxisX * arc.Radius, system.AxisY * arc.Radius, arc.Start, arc.Sweep);
        }
    }

    private static void AddFlat(CadExtrudedEntityBase entity, Cad3DPoint[] points, Extents extents)
    {
        Affine3 system = SystemOf(entity.ExtrusionDirection);
        foreach (Cad3DPoint point in points)
        {
            extents.Add(system.Point(new Vec3(point.X, point.Y, point.Z)));
        }
    }

    private static void AddHatch(CadHatch hatch, Extents extents)
    {
        Affine3 system = SystemOf(hatch.ExtrusionDirection);
        double z = hatch.ElevationPoint.Z;
        foreach (CadHatchBoundaryPathContainer container in hatch.BoundaryPaths)
        {
            if (container.BoundaryPath is CadPolylineBoundaryPath outline)
            {
                AddOutline(outline, system, z, extents);
            }

            foreach (ICadBoundaryPathEntity edge in (container.BoundaryPath as CadEdgeBoundaryPath)?.Edges ?? [])
            {
                AddEdge(edge, system * Affine3.Translation(new Vec3(0, 0, z)), extents);
            }
        }
    }

    private static void AddOutline(CadPolylineBoundaryPath outline, Affine3 system, double z, Extents extents)
    {
        int count = outline.Vertices.Count;
        for (int i = 0; i < count; i++)
        {
            (Cad2DPoint from, Cad2DPoint to) = (outline.Vertices[i], outline.Vertices[(i + 1) % count]);
            double bulge = i < outline.Bulges.Count ? outline.Bulges[i] : 0;
            AddPiece(system, (from.X, from.Y), (to.X, to.Y), bulge, z, extents);
        }
    }

    private static void AddEdge(ICadBoundaryPathEntity edge, Affine3 plane, Extents extents)
    {
        switch (edge)
        {
            case CadBoundaryPathLine line:
                extents.Add(plane.Point(ToVector(line.FirstPoint)));
                extents.Add(plane.Point(ToVector(line.SecondPoint)));
                break;
            case CadBoundaryPathCircularArc arc:
                Vec3 radius = new(arc.Radius, 0, 0);
                (double, double, bool) round = (arc.StartAngle, arc.EndAngle, arc.CounterClockwise);
                AddEdgeArc(plane, arc.CenterPoint, radius, 1, round, extents);
                break;
            case CadBoundaryPathCircularEllipse oval:
                Vec3 major = ToVector(oval.MajorEndPoint);
                (double, double, bool) angles = (oval.StartAngle, oval.EndAngle, oval.CounterClockwise);
                AddEdgeArc(plane, oval.CenterPoint, major, oval.AxisRatio, angles, extents);
                break;
            case CadBoundaryPathSpline spline:
                AddEdgeSpline(spline, plane, extents);
                break;
        }
    }

    // Edges that run clockwise measure their angles clockwise.
    private static void AddEdgeArc(
        Affine3 plane, Cad2DPoint center, Vec3 major, double ratio, (double Start, double End, bool Anticlockwise) angles,
        Extents extents)
    {
        double sign = angles.Anticlockwise ? 1 : -1;
        double start = angles.Start * Math.PI / 180;
        double sweep = Sweep(start, angles.End * Math.PI / 180);
        Vec3 minor = Vec3.Cross(Vec3.UnitZ, major) * ratio;
        extents.AddArc(plane.Point(ToVector(center)), plane.Vector(major), plane.Vector(minor), start * sign, sweep * sign);
    }

    private static void AddEdgeSpline(CadBoundaryPathSpline spline, Affine3 plane, Extents extents)
    {
        List<Vec3> control = spline.ControlPoints.ConvertAll(point => plane.Point(ToVector(point)));
        if (Nurbs.Create(spline.Degree, spline.KnotValues, control, spline.Weights) is { } curve)
        {
            extents.AddPath(pen => curve.Draw(pen, Tolerance(control)));
            return;
        }

        control.ForEach(extents.Add);
    }

    private static Vec3 ToVector(Cad2DPoint point) => new(point.X, point.Y, 0);

    private static void AddPicture(Cad3DPoint corner, Cad3DPoint u, Cad3DPoint v, Cad2DPoint size, Extents extents)
    {
        for (int i = 0; i < 4; i++)
        {
            double across = (i & 1) * size.X;
            double up = (i >> 1) * size.Y;
            extents.Add(ToVector(corner) + (ToVector(u) * across) + (ToVector(v) * up));
        }
    }
}
