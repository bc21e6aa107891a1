using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <content>Boundaries of hatches.</content>
internal static partial class EntityGeometry
{
    /// <summary>Gives the pieces of one boundary in order; they lie in the plane at an elevation.</summary>
    internal static void EmitBoundary(
        CadHatchBoundaryPathContainer boundary, in Affine3 plane, double elevation, IGeometrySink sink)
    {
        switch (boundary.BoundaryPath)
        {
            case CadPolylineBoundaryPath polyline:
                EmitBoundary(polyline, new PlanarPolyline(plane, elevation, 0, IsClosed: true), sink);
                break;
            case CadEdgeBoundaryPath edges:
                Affine3 map = plane * Affine3.Translation(new Vec3(0, 0, elevation));
                foreach (ICadBoundaryPathEntity edge in edges.Edges)
                {
                    EmitEdge(edge, map, sink);
                }

                break;
        }
    }

    private static void EmitBoundary(CadPolylineBoundaryPath path, in PlanarPolyline shape, IGeometrySink sink)
    {
        var vertices = new PolyVertex[path.Vertices.Count];
        for (int i = 0; i < vertices.Length; i++)
        {
            double bulge = i < path.Bulges.Count ? path.Bulges[i] : 0;
            vertices[i] = new PolyVertex(path.Vertices[i].ToVec2(), 0, 0, bulge);
        }

        sink.Polyline(shape, vertices);
    }

    private static void EmitEdge(ICadBoundaryPathEntity edge, in Affine3 plane, IGeometrySink sink)
    {
        switch (edge)
        {
            case CadBoundaryPathLine line:
                sink.Line(plane.Point(ToVec3(line.FirstPoint)), plane.Point(ToVec3(line.SecondPoint)), default);
                break;
            case CadBoundaryPathCircularArc arc:
                (double start, double sweep) = EdgeSweep(arc.StartAngle, arc.EndAngle, arc.CounterClockwise);
                sink.Arc(new PlanarArc(plane, ToVec3(arc.CenterPoint), arc.Radius, start, sweep));
                break;
            case CadBoundaryPathCircularEllipse ellipse:
                Vec3 major = ToVec3(ellipse.MajorEndPoint);
                Vec3 minor = Vec3.Cross(Vec3.UnitZ, major) * ellipse.AxisRatio;
                (double first, double by) = EdgeSweep(ellipse.StartAngle, ellipse.EndAngle, ellipse.CounterClockwise);

                // Unlike those of the entity, these angles are directions.
                double from = Angles.EllipseParameter(first, ellipse.AxisRatio);
                double to = Angles.EllipseParameter(first + by, ellipse.AxisRatio);
                sink.EllipticArc(new EllipticArc(
                    plane.Point(ToVec3(ellipse.CenterPoint)), plane.Vector(major), plane.Vector(minor), from,
                    to - from));
                break;
            case CadBoundaryPathSpline spline:
                sink.Spline(SplineOf(spline, plane));
                break;
        }
    }

    // The angles of a clockwise edge are measured clockwise.
    private static (double Start, double Sweep) EdgeSweep(double startDegrees, double endDegrees, bool counterclockwise)
    {
        double sign = counterclockwise ? 1 : -1;
        double start = Angles.Radians(startDegrees);
        return (start * sign, Angles.Sweep(start, Angles.Radians(endDegrees)) * sign);
    }

    private static SplineCurve SplineOf(CadBoundaryPathSpline spline, Affine3 plane)
    {
        List<Vec3> control = spline.ControlPoints.ConvertAll(point => plane.Point(ToVec3(point)));
        Nurbs? curve = Nurbs.Create(spline.Degree, spline.KnotValues, control, spline.Weights);
        return new SplineCurve(curve, control, spline.FitPoints.ConvertAll(point => plane.Point(ToVec3(point))));
    }

    private static Vec3 ToVec3(Cad2DPoint point) => new(point.X, point.Y, 0);
}
