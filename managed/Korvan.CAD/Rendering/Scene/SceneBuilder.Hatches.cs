using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Hatch;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Hatches: their boundaries as loops, then a solid, a gradient or pattern lines.</content>
internal sealed partial class SceneBuilder
{
    private const double HatchTolerance = 1e-4;

    private void DrawHatch(CadHatch hatch, in Pen pen, LayerInfo layer, BlockContext context)
    {
        if (!tables.Settings.FillMode)
        {
            return;
        }

        List<HatchLoop> loops = HatchLoops.Select(Loops(hatch), (HatchStyle)Math.Clamp((int)hatch.HatchStyle, 0, 2));
        if (loops.Count == 0)
        {
            return;
        }

        var plane = new HatchPlane(InObject(context, hatch.ExtrusionDirection), hatch.ElevationPoint.Z);
        if (hatch.IsGradient != 0 && hatch.GradientColors.Count > 0 && style.SingleColor == null)
        {
            canvas.FillLoops(loops, plane, pen, GradientOf(hatch, loops, plane, pen));
        }
        else if (hatch.SolidFillFlag != 0)
        {
            canvas.FillLoops(loops, plane, pen, null);
        }
        else if (style.CoarseHatches)
        {
            canvas.FillLoops(loops, plane, pen with { Color = pen.Color.WithAlpha((byte)(pen.Color.A / 2)) }, null);
        }
        else
        {
            canvas.FillPattern(loops, Lines(hatch), plane, pen);
        }
    }

    private static List<HatchLine> Lines(CadHatch hatch)
    {
        var lines = new List<HatchLine>(hatch.PatternDefinitions.Count);
        foreach (CadHatchPatternData line in hatch.PatternDefinitions)
        {
            lines.Add(new HatchLine(Radians(line.LineAngle), V(line.LineBasePoint), V(line.LineOffset), line.DashLengths));
        }

        return lines;
    }

    private static Gradient GradientOf(CadHatch hatch, List<HatchLoop> loops, in HatchPlane plane, in Pen pen)
    {
        Bounds2 box = Bounds2.Empty;
        loops.ForEach(l => box.Add(l.Path.Bounds));
        byte alpha = pen.Color.A;
        Rgba first = Rgba.FromRgb(hatch.GradientColors[0]).WithAlpha(alpha);
        Rgba second = hatch.SingleColorGradient == 0 && hatch.GradientColors.Count > 1
            ? Rgba.FromRgb(hatch.GradientColors[^1]).WithAlpha(alpha)
            : Tint(first, hatch.GradientTint);
        Gradient local = HatchGradient.Create(hatch.GradientName, hatch.GradientAngle, hatch.GradientShift == 0, first, second, box);
        Vec2 origin = plane.Map.Project(0, 0, plane.Elevation);
        Affine3 m = plane.Map;
        var toPage = new Affine2(m.AxisX.X, m.AxisX.Y, m.AxisY.X, m.AxisY.Y, origin.X, origin.Y);
        return local with { Matrix = toPage * local.Matrix };
    }

    /// <summary>A tint of 0 is black, of 1 white, with the colour itself halfway.</summary>
    private static Rgba Tint(Rgba color, double tint)
    {
        double t = Math.Clamp(tint, 0, 1);
        return t < 0.5
            ? HatchGradient.Mix(Rgba.Black.WithAlpha(color.A), color, t * 2)
            : HatchGradient.Mix(color, Rgba.White.WithAlpha(color.A), (t * 2) - 1);
    }

    private static List<HatchLoop> Loops(CadHatch hatch)
    {
        var loops = new List<HatchLoop>(hatch.BoundaryPaths.Count);
        foreach (CadHatchBoundaryPathContainer container in hatch.BoundaryPaths)
        {
            var path = new PathBuffer();
            var pen = new PathPen(path, Affine3.Identity);
            switch (container.BoundaryPath)
            {
                case CadPolylineBoundaryPath polyline:
                    AddPolyline(pen, polyline);
                    break;
                case CadEdgeBoundaryPath edges:
                    AddEdges(pen, edges);
                    break;
            }

            if (!path.IsEmpty && path.Bounds.IsFinite)
            {
                path.Close();
                double size = Math.Max(path.Bounds.Width, path.Bounds.Height);
                loops.Add(new HatchLoop(path, Math.Max(size * HatchTolerance, 1e-9)));
            }
        }

        return loops;
    }

    private static void AddPolyline(in PathPen pen, CadPolylineBoundaryPath polyline)
    {
        int count = polyline.Vertices.Count;
        for (int i = 0; i <= count && count > 1; i++)
        {
            Vec2 p = V(polyline.Vertices[i % count]);
            if (i == 0)
            {
                pen.MoveTo(p);
                continue;
            }

            double bulge = i - 1 < polyline.Bulges.Count ? polyline.Bulges[i - 1] : 0;
            pen.BulgeTo(V(polyline.Vertices[i - 1]), p, bulge);
        }
    }

    /// <summary>
    /// Edges follow each other; where one does not begin at the end of the last, a line joins them, as rounding in
    /// files opens gaps. An edge that was written backwards is not turned: even-odd filling does not ask for it.
    /// </summary>
    private static void AddEdges(in PathPen pen, CadEdgeBoundaryPath path)
    {
        foreach (ICadBoundaryPathEntity edge in path.Edges)
        {
            switch (edge)
            {
                case CadBoundaryPathLine line:
                    pen.LineTo(V(line.FirstPoint));
                    pen.LineTo(V(line.SecondPoint));
                    break;
                case CadBoundaryPathCircularArc arc:
                    AddArcEdge(pen, V(arc.CenterPoint), new Vec2(arc.Radius, 0), new Vec2(0, arc.Radius), arc.StartAngle, arc.EndAngle, arc.CounterClockwise);
                    break;
                case CadBoundaryPathCircularEllipse ellipse:
                    Vec2 major = V(ellipse.MajorEndPoint);
                    AddArcEdge(pen, V(ellipse.CenterPoint), major, major.Left * ellipse.AxisRatio, ellipse.StartAngle, ellipse.EndAngle, ellipse.CounterClockwise);
                    break;
                case CadBoundaryPathSpline spline:
                    AddSplineEdge(pen, spline);
                    break;
            }
        }
    }

    // The angles of a clockwise edge are measured clockwise.
    private static void AddArcEdge(in PathPen pen, Vec2 center, Vec2 u, Vec2 v, double startDegrees, double endDegrees, bool counterClockwise)
    {
        double sign = counterClockwise ? 1 : -1;
        double start = Radians(startDegrees) * sign;
        double sweep = CounterClockwise(Radians(startDegrees), Radians(endDegrees)) * sign;
        pen.LineTo(center + (u * Math.Cos(start)) + (v * Math.Sin(start)));
        pen.EllipseTo(center, u, v, start, sweep);
    }

    private static void AddSplineEdge(in PathPen pen, CadBoundaryPathSpline spline)
    {
        List<Vec3> control = spline.ControlPoints.ConvertAll(p => new Vec3(p.X, p.Y, 0));
        Nurbs? curve = Nurbs.Create(spline.Degree, spline.KnotValues, control, spline.Weights);
        if (curve != null)
        {
            Bounds2 box = Bounds2.Empty;
            control.ForEach(p => box.Add(p.X, p.Y));
            pen.LineTo(curve.Start);
            curve.Draw(pen, Math.Max((box.Width + box.Height) * SplineTolerance, 1e-9), move: false);
            return;
        }

        foreach (Cad2DPoint p in spline.FitPoints.Count > 0 ? spline.FitPoints : spline.ControlPoints)
        {
            pen.LineTo(V(p));
        }
    }
}
