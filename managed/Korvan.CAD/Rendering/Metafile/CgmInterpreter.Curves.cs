using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Lines, arcs, splines and markers.</content>
internal sealed partial class CgmInterpreter
{
    private const double CurveTolerance = 1e-5;

    private static void AddCurves(Dictionary<Type, Action<CgmInterpreter, Command>> d)
    {
        On<Polyline>(d, static (i, x) => i.DrawLine(x.Points));
        On<DisjointPolyline>(d, static (i, x) => i.DrawPairs(x.Points));
        On<PolyMarker>(d, static (i, x) => i.DrawMarkers(x.Points));
        On<CircularArc3Point>(d, static (i, x) => i.DrawThrough(V(x.Start), V(x.Intermediate), V(x.End)));
        On<CircularArcCentre>(d, static (i, x) => i.DrawArc(ConicArcs.Between(
            V(x.Centre), new Vec2(x.StartX, x.StartY), new Vec2(x.EndX, x.EndY), x.Radius, clockwise: false)));
        On<CircularArcCentreReversed>(d, static (i, x) => i.DrawArc(ConicArcs.Between(
            V(x.Centre), new Vec2(x.StartX, x.StartY), new Vec2(x.EndX, x.EndY), x.Radius, clockwise: true)));
        On<EllipticalArc>(d, static (i, x) => i.DrawEllipticalArc(x));
        On<HyperbolicArc>(d, static (i, x) => i.DrawHyperbola(x));
        On<ParabolicArc>(d, static (i, x) => i.DrawParabola(x));
        On<PolyBezier>(d, static (i, x) => i.DrawBezier(x));
        On<NonUniformBSpline>(d, static (i, x) => i.DrawSpline(x, null));
        On<NonUniformRationalBSpline>(d, static (i, x) => i.DrawSpline(x, x.Weights));
    }

    private void DrawLine(List<CgmPoint> points)
    {
        AddChain(NewPath(), points.ConvertAll(V));
        EndLine();
    }

    private static void AddChain(in PathPen pen, IReadOnlyList<Vec2> points)
    {
        for (int i = 0; i < points.Count; i++)
        {
            if (i == 0)
            {
                pen.MoveTo(points[i]);
            }
            else
            {
                pen.LineTo(points[i]);
            }
        }
    }

    private void DrawPairs(List<CgmPoint> points)
    {
        PathPen pen = NewPath();
        for (int i = 0; i + 1 < points.Count; i += 2)
        {
            pen.MoveTo(V(points[i]));
            pen.LineTo(V(points[i + 1]));
        }

        EndLine();
    }

    private void DrawThrough(Vec2 start, Vec2 second, Vec2 end)
    {
        if (ConicArcs.TryThrough(start, second, end, out ConicArcs.Arc arc))
        {
            DrawArc(arc);
            return;
        }

        PathPen pen = NewPath();
        pen.MoveTo(start);
        pen.LineTo(second);
        pen.LineTo(end);
        EndLine();
    }

    private void DrawArc(in ConicArcs.Arc arc)
    {
        AddArc(NewPath(), arc);
        EndLine();
    }

    private static void AddArc(in PathPen pen, in ConicArcs.Arc arc)
    {
        pen.MoveTo(arc.Center + Vec2.Polar(arc.Start, arc.Radius));
        pen.ArcTo(arc.Center, arc.Radius, arc.Start, arc.Sweep);
    }

    private void DrawEllipticalArc(EllipticalArc x)
    {
        AddEllipticalArc(NewPath(), x);
        EndLine();
    }

    private static void AddEllipticalArc(in PathPen pen, EllipticalArc x)
    {
        Vec2 center = V(x.Centre);
        (Vec2 u, Vec2 v) = (V(x.FirstRadiusEnd) - center, V(x.SecondRadiusEnd) - center);
        (double start, double sweep) = ConicArcs.OnEllipse(
            u, v, new Vec2(x.StartX, x.StartY), new Vec2(x.EndX, x.EndY));
        pen.MoveTo(center + (u * Math.Cos(start)) + (v * Math.Sin(start)));
        pen.EllipseTo(center, u, v, start, sweep);
    }

    private void DrawHyperbola(HyperbolicArc x)
    {
        Vec2 center = V(x.Centre);
        bool drawn = ConicArcs.TryHyperbola(
            NewPath(),
            center,
            V(x.TransverseRadiusEnd) - center,
            V(x.ConjugateRadiusEnd) - center,
            new Vec2(x.StartX, x.StartY),
            new Vec2(x.EndX, x.EndY));
        if (drawn)
        {
            EndLine();
        }
        else
        {
            Skip("hyperbolic arc between rays that do not meet it");
        }
    }

    private void DrawParabola(ParabolicArc x)
    {
        ConicArcs.Parabola(NewPath(), V(x.Start), V(x.TangentIntersection), V(x.End));
        EndLine();
    }

    private void DrawBezier(PolyBezier x)
    {
        PathPen pen = NewPath();
        int step = x.ContinuityIndicator == 2 ? 3 : 4;
        for (int i = 0; i + 3 < x.Points.Count; i += step)
        {
            if (step == 4 || i == 0)
            {
                pen.MoveTo(V(x.Points[i]));
            }

            pen.CurveTo(V(x.Points[i + 1]), V(x.Points[i + 2]), V(x.Points[i + 3]));
        }

        EndLine();
    }

    private void DrawSpline(NonUniformBSpline x, List<double>? weights)
    {
        List<Vec3> points = x.ControlPoints.ConvertAll(static p => new Vec3(p.X, p.Y, 0));
        Nurbs? curve = Nurbs.Create(x.Order - 1, x.Knots, points, weights);
        if (curve is null)
        {
            Skip("spline with invalid data");
            return;
        }

        curve.Draw(NewPath(), LongerSide * CurveTolerance, x.StartParameter, x.EndParameter);
        EndLine();
    }

    private void DrawMarkers(List<CgmPoint> points)
    {
        MarkerState marker = Paint.Marker;
        if (_state.MarkerBundles.TryGetValue(marker.Bundle, out MarkerRepresentation? bundle))
        {
            marker.Type = IsBundled(ASF.MarkerType) ? (int)bundle.Type : marker.Type;
            marker.Size = IsBundled(ASF.MarkerSize) ? bundle.Size : marker.Size;
            marker.Color = IsBundled(ASF.MarkerColour) ? bundle.Color : marker.Color;
        }

        const int asteriskMarker = 3;
        int type = marker.Type ?? asteriskMarker;
        double half = MarkerSize(marker.Size) / 2;
        PathPen pen = NewPath();
        foreach (CgmPoint point in points)
        {
            Markers.Add(pen, type, V(point), type == Markers.Dot ? half / 5 : half);
        }

        if (!Markers.Knows(type))
        {
            Skip($"marker of type {type}, drawn as an asterisk");
        }

        EnsureClip();
        if (type == Markers.Dot)
        {
            List.Fill(_path, ColorOf(marker.Color), _layer, evenOdd: false);
        }
        else
        {
            DisplayList.StrokeAttributes style = Width(null, SpecificationMode.Scaled);
            style.Color = ColorOf(marker.Color);
            style.Layer = _layer;
            List.Stroke(_path, style);
        }
    }

    private double MarkerSize(double? stated)
    {
        double nominal = LongerSide * PictureFrame.DefaultSizeShare;
        double size = _state.MarkerSizeMode switch
        {
            SpecificationMode.Absolute => stated ?? nominal,
            SpecificationMode.Fractional => (stated ?? PictureFrame.DefaultSizeShare) * LongerSide,
            SpecificationMode.Millimetres when _picture.Frame.MillimetresPerUnit is double mm => (stated ?? 2.5) / mm,
            SpecificationMode.Millimetres => (stated ?? 2.5) / 2.5 * nominal,
            _ => (stated ?? 1) * nominal,
        };
        return Math.Abs(size);
    }
}
