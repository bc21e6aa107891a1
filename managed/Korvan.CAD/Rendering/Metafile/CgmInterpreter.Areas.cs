using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Areas, and the figures, compound lines and regions that several elements form.</content>
internal sealed partial class CgmInterpreter
{
    private readonly PathBuffer _figure = new();
    private readonly PathBuffer _edges = new();
    private Collecting _collecting;
    private int _regionIndex;
    private bool _connects;

    /// <summary>What collects lines and areas instead of drawing them.</summary>
    private enum Collecting
    {
        Nothing,
        Figure,
        CompoundLine,
        TextPath,
        Region,
    }

    private static void AddAreas(Dictionary<Type, Action<CgmInterpreter, Command>> d)
    {
        On<PolygonElement>(d, static (i, x) => i.DrawPolygon(x.Points));
        On<PolygonSet>(d, static (i, x) => i.DrawPolygons(x));
        On<RectangleElement>(d, static (i, x) => i.DrawBox(V(x.FirstCorner), V(x.SecondCorner)));
        On<CircleElement>(d, static (i, x) => i.DrawEllipse(
            V(x.Centre), V(x.Centre) + new Vec2(x.Radius, 0), V(x.Centre) + new Vec2(0, x.Radius)));
        On<EllipseElement>(d, static (i, x) => i.DrawEllipse(V(x.Centre), V(x.FirstRadiusEnd), V(x.SecondRadiusEnd)));
        On<CircularArc3PointClose>(d, static (i, x) => i.DrawClosedThrough(x));
        On<CircularArcCentreClose>(d, static (i, x) => i.DrawClosedArc(
            ConicArcs.Between(
                V(x.Centre), new Vec2(x.StartX, x.StartY), new Vec2(x.EndX, x.EndY), x.Radius, clockwise: false),
            x.Closure));
        On<EllipticalArcClose>(d, static (i, x) => i.DrawClosedEllipticalArc(x));
        On<BeginFigure>(d, static (i, _) => i.BeginCollecting(Collecting.Figure, 0));
        On<NewRegion>(d, static (i, _) => i.CloseRegion());
        On<ConnectingEdge>(d, static (i, _) => i._connects = true);
        On<EndFigure>(d, static (i, _) => i.EndFigure());
        On<BeginCompoundLine>(d, static (i, _) => i.BeginCollecting(Collecting.CompoundLine, 0));
        On<EndCompoundLine>(d, static (i, _) => i.EndCompoundLine());
        On<BeginCompoundTextPath>(d, static (i, _) => i.BeginCollecting(Collecting.TextPath, 0));
        On<EndCompoundTextPath>(d, static (i, _) => i.EndTextPath());
    }

    private void DrawPolygon(List<CgmPoint> points)
    {
        PathPen pen = NewPath();
        AddChain(pen, points.ConvertAll(V));
        pen.Close();
        EndArea(null);
    }

    private void DrawPolygons(PolygonSet set)
    {
        if (set.Flags.Count != set.Points.Count)
        {
            Skip("set of polygons without a flag for each point");
            return;
        }

        PathPen pen = NewPath();
        var edges = new PathBuffer();
        PathPen edge = PenOn(edges);
        int first = 0;
        for (int i = 0; i < set.Points.Count; i++)
        {
            PolygonSet.EdgeFlag flag = set.Flags[i];
            Vec2 point = V(set.Points[i]);
            if (i == first)
            {
                pen.MoveTo(point);
            }
            else
            {
                pen.LineTo(point);
            }

            bool closes = flag is PolygonSet.EdgeFlag.CloseInvisible or PolygonSet.EdgeFlag.CloseVisible;
            if (flag is PolygonSet.EdgeFlag.Visible or PolygonSet.EdgeFlag.CloseVisible)
            {
                int next = closes || i + 1 == set.Points.Count ? first : i + 1;
                edge.MoveTo(point);
                edge.LineTo(V(set.Points[next]));
            }

            if (closes)
            {
                pen.Close();
                first = i + 1;
            }
        }

        pen.Close();
        EndArea(edges);
    }

    private void DrawBox(Vec2 a, Vec2 b)
    {
        AddBox(NewPath(), a, b);
        EndArea(null);
    }

    private void DrawEllipse(Vec2 center, Vec2 first, Vec2 second)
    {
        PathPen pen = NewPath();
        pen.MoveTo(first);
        pen.EllipseTo(center, first - center, second - center, 0, 2 * Math.PI);
        pen.Close();
        EndArea(null);
    }

    private void DrawClosedThrough(CircularArc3PointClose x)
    {
        (Vec2 start, Vec2 middle, Vec2 end) = (V(x.Start), V(x.Intermediate), V(x.End));
        if (ConicArcs.TryThrough(start, middle, end, out ConicArcs.Arc arc))
        {
            DrawClosedArc(arc, x.Closure);
        }
        else
        {
            DrawPolygon([x.Start, x.Intermediate, x.End]);
        }
    }

    private void DrawClosedArc(in ConicArcs.Arc arc, ClosureType closure)
    {
        PathPen pen = NewPath();
        AddArc(pen, arc);
        Close(pen, arc.Center, closure);
    }

    private void DrawClosedEllipticalArc(EllipticalArcClose x)
    {
        PathPen pen = NewPath();
        AddEllipticalArc(pen, x);
        Close(pen, V(x.Centre), x.Closure);
    }

    private void Close(in PathPen pen, Vec2 center, ClosureType closure)
    {
        if (closure == ClosureType.Pie)
        {
            pen.LineTo(center);
        }

        pen.Close();
        EndArea(null);
    }

    /// <summary>Draws the scratch path as a line, or makes it a part of what is being collected.</summary>
    private void EndLine()
    {
        if (_collecting == Collecting.Nothing)
        {
            Stroke(_path, isEdge: false);
            return;
        }

        bool connects = _connects;
        _connects = false;
        if (_collecting == Collecting.Figure)
        {
            Join(_edges, _path, connects);
        }

        Join(_figure, _path, joins: _collecting != Collecting.CompoundLine);
    }

    /// <summary>Fills the scratch path, or makes it a part of what is being collected.</summary>
    private void EndArea(PathBuffer? edges)
    {
        if (_collecting == Collecting.Nothing)
        {
            FillArea(_path, edges ?? _path);
            return;
        }

        _figure.AppendMapped(_path, Affine3.Identity, 0);
        _edges.AppendMapped(edges ?? _path, Affine3.Identity, 0);
    }

    /// <summary>Adds a line to a path; a gap between them is joined or starts a new subpath.</summary>
    private static void Join(PathBuffer target, PathBuffer line, bool joins)
    {
        ReadOnlySpan<double> c = line.Coords;
        bool open = !target.IsEmpty && target.Verbs[^1] != PathVerb.Close;
        int at = 0;
        foreach (PathVerb verb in line.Verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    var start = new Vec2(c[at], c[at + 1]);
                    at += 2;
                    if (!open || (at > 2 && !joins) || (!joins && target.Current != start))
                    {
                        target.MoveTo(start);
                    }
                    else if (target.Current != start)
                    {
                        target.LineTo(start);
                    }

                    open = true;
                    break;
                case PathVerb.Line:
                    target.LineTo(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    target.CurveTo(
                        new Vec2(c[at], c[at + 1]), new Vec2(c[at + 2], c[at + 3]), new Vec2(c[at + 4], c[at + 5]));
                    at += 6;
                    break;
                default:
                    target.Close();
                    open = false;
                    break;
            }
        }
    }

    private void BeginCollecting(Collecting what, int region)
    {
        _collecting = what;
        _regionIndex = region;
        _figure.Clear();
        _edges.Clear();
        _connects = false;
    }

    private PathBuffer EndCollecting(Collecting what)
    {
        var path = new PathBuffer();
        if (_collecting == what)
        {
            CloseRegion();
            path.AppendMapped(_figure, Affine3.Identity, 0);
        }

        _collecting = Collecting.Nothing;
        return path;
    }

    private void CloseRegion()
    {
        if (_collecting is Collecting.Figure or Collecting.Region)
        {
            _figure.Close();
            if (_connects)
            {
                _edges.Close();
                _connects = false;
            }
        }
    }

    private void EndFigure()
    {
        PathBuffer area = EndCollecting(Collecting.Figure);
        FillArea(area, _edges);
    }

    private void EndCompoundLine()
    {
        Stroke(EndCollecting(Collecting.CompoundLine), isEdge: false);
    }

    private void EndTextPath()
    {
        EndCollecting(Collecting.TextPath);
        Skip("compound text path; its texts are drawn straight");
    }
}
