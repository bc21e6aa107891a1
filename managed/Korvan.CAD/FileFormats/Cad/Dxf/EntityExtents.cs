using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.Rendering.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

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
                (spline.ControlPoints.Count > 0 ? spline.ControlPoints : spline.FitPoints).ForEach(extents.Add);
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
                AddFlat(text, [text.FirstAlignment], extents);
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
        double sweep = (arc.EndAngle * Math.PI / 180) - start;
        AddRing(arc, start, sweep <= 0 ? sweep + Math.Tau : sweep, extents);
    }

    private static void AddRing(CadCircle circle, double start, double sweep, Extents extents)
    {
        Affine3 system = SystemOf(circle.ExtrusionDirection);
        Cad3DPoint center = circle.CenterPoint;
        foreach (double angle in Angles(start, sweep))
        {
            (double sin, double cos) = Math.SinCos(angle);
            Vec3 point = new(center.X + (circle.Radius * cos), center.Y + (circle.Radius * sin), center.Z);
            extents.Add(system.Point(point));
        }
    }

    // The ends and every quarter between them, so that the box of a circle in its plane is exact.
    private static IEnumerable<double> Angles(double start, double sweep)
    {
        yield return start;
        yield return start + sweep;
        double first = Math.Ceiling(start / (Math.PI / 2)) * (Math.PI / 2);
        for (double angle = first; angle < start + sweep; angle += Math.PI / 2)
        {
            yield return angle;
        }
    }

    private static void AddEllipse(CadEllipse ellipse, Extents extents)
    {
        Cad3DPoint major = ellipse.MajorEndPoint;
        Affine3 plane = SystemOf(ellipse.ExtrusionDirection);
        (double nx, double ny, double nz) = plane.AxisZ;
        double ratio = ellipse.AxisRatio;
        (double X, double Y, double Z) minor = (
            ratio * ((ny * major.Z) - (nz * major.Y)),
            ratio * ((nz * major.X) - (nx * major.Z)),
            ratio * ((nx * major.Y) - (ny * major.X)));
        const int steps = 64;
        double sweep = ellipse.EndAngle - ellipse.StartAngle;
        sweep = sweep <= 0 ? sweep + Math.Tau : sweep;
        for (int i = 0; i <= steps; i++)
        {
            (double sin, double cos) = Math.SinCos(ellipse.StartAngle + (sweep * i / steps));
            extents.Add(
                ellipse.CenterPoint.X + (major.X * cos) + (minor.X * sin),
                ellipse.CenterPoint.Y + (major.Y * cos) + (minor.Y * sin),
                ellipse.CenterPoint.Z + (major.Z * cos) + (minor.Z * sin));
        }
    }

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
        int count = polyline.Vertices.Count;
        for (int i = 0; i < count; i++)
        {
            CadVertexBase vertex = polyline.Vertices[i];
            Cad3DPoint from = vertex.LocationPoint;
            if (vertex is CadFaceRecord)
            {
                continue;
            }

            bool hasPiece = i + 1 < count || polyline.IsClosed;
            Cad3DPoint to = polyline.Vertices[(i + 1) % count].LocationPoint;
            double z = flat ? polyline.Elevation.Z : from.Z;
            AddPiece(system, (from.X, from.Y), (to.X, to.Y), flat && hasPiece ? vertex.Bulge : 0, z, extents);
        }
    }

    // A bulge is the tangent of a quarter of the arc's angle.
    private static void AddPiece(
        Affine3 system, (double X, double Y) from, (double X, double Y) to, double bulge, double z,
        Extents extents)
    {
        extents.Add(system.Point(new Vec3(from.X, from.Y, z)));
        if (bulge == 0 || from == to)
        {
            return;
        }

        (double dx, double dy) = (to.X - from.X, to.Y - from.Y);
        double factor = (1 - (bulge * bulge)) / (4 * bulge);
        (double x, double y) = (((from.X + to.X) / 2) - (dy * factor), ((from.Y + to.Y) / 2) + (dx * factor));
        double radius = Math.Sqrt(((from.X - x) * (from.X - x)) + ((from.Y - y) * (from.Y - y)));
        (double X, double Y) begin = bulge > 0 ? from : to;
        foreach (double angle in Angles(Math.Atan2(begin.Y - y, begin.X - x), 4 * Math.Atan(Math.Abs(bulge))))
        {
            (double sin, double cos) = Math.SinCos(angle);
            extents.Add(system.Point(new Vec3(x + (radius * cos), y + (radius * sin), z)));
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
            foreach ((double x, double y) in OutlinePoints(container.BoundaryPath))
            {
                extents.Add(system.Point(new Vec3(x, y, z)));
            }
        }
    }

    private static IEnumerable<(double X, double Y)> OutlinePoints(ICadBoundaryPath path)
    {
        if (path is CadPolylineBoundaryPath polyline)
        {
            foreach (Cad2DPoint vertex in polyline.Vertices)
            {
                yield return (vertex.X, vertex.Y);
            }
        }

        foreach (ICadBoundaryPathEntity edge in (path as CadEdgeBoundaryPath)?.Edges ?? [])
        {
            foreach ((double, double) point in EdgePoints(edge))
            {
                yield return point;
            }
        }
    }

    private static (double X, double Y)[] EdgePoints(ICadBoundaryPathEntity edge) => edge switch
    {
        CadBoundaryPathLine line =>
        [
            (line.FirstPoint.X, line.FirstPoint.Y),
            (line.SecondPoint.X, line.SecondPoint.Y),
        ],
        CadBoundaryPathCircularArc arc =>
        [
            (arc.CenterPoint.X - arc.Radius, arc.CenterPoint.Y - arc.Radius),
            (arc.CenterPoint.X + arc.Radius, arc.CenterPoint.Y + arc.Radius),
        ],
        CadBoundaryPathCircularEllipse ellipse =>
        [
            (ellipse.CenterPoint.X - ellipse.MajorEndPoint.X, ellipse.CenterPoint.Y - ellipse.MajorEndPoint.Y),
            (ellipse.CenterPoint.X + ellipse.MajorEndPoint.X, ellipse.CenterPoint.Y + ellipse.MajorEndPoint.Y),
        ],
        CadBoundaryPathSpline spline => [.. spline.ControlPoints.ConvertAll(static point => (point.X, point.Y))],
        _ => [],
    };

    private static void AddPicture(Cad3DPoint corner, Cad3DPoint u, Cad3DPoint v, Cad2DPoint size, Extents extents)
    {
        for (int i = 0; i < 4; i++)
        {
            double across = (i & 1) * size.X;
            double up = (i >> 1) * size.Y;
            extents.Add(
                corner.X + (u.X * across) + (v.X * up),
                corner.Y + (u.Y * across) + (v.Y * up),
                corner.Z + (u.Z * across) + (v.Z * up));
        }
    }
}
