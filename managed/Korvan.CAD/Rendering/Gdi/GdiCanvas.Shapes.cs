using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>How the ends of an arc are joined.</summary>
internal enum ArcKind
{
    Open,
    Chord,
    Pie,

    /// <summary>The arc goes on from the position of the moment.</summary>
    Continued,
}

/// <content>Lines, polygons, curves and arcs.</content>
internal sealed partial class GdiCanvas
{
    internal void MoveTo(Vec2 point)
    {
        State.Position = point;
        _isFigureOpen = false;
    }

    /// <summary>Draws on from the position of the moment: lines, or Bézier curves of three points each.</summary>
    internal void LinesTo(ReadOnlySpan<Vec2> points, bool areCurves = false)
    {
        if (points.Length == 0)
        {
            return;
        }

        PathBuffer path = _isPathOpen ? _path! : Cleared();
        var pen = new PathPen(path, Flat(Map));
        if (!_isPathOpen || !_isFigureOpen)
        {
            pen.MoveTo(State.Position);
        }

        Add(pen, points, areCurves);
        State.Position = points[^1];
        _isFigureOpen = true;
        if (!_isPathOpen)
        {
            Paint(path, fill: false, stroke: true);
        }
    }

    /// <summary>Draws one or more figures: open lines, polygons, or curves.</summary>
    internal void Figures(ReadOnlySpan<Vec2> points, ReadOnlySpan<int> counts, bool closed, bool areCurves = false)
    {
        var pen = new PathPen(Cleared(), Flat(Map));
        foreach (int count in counts)
        {
            int used = Math.Clamp(count, 0, points.Length);
            if (used > 1)
            {
                pen.MoveTo(points[0]);
                Add(pen, points[1..used], areCurves);
                if (closed)
                {
                    pen.Close();
                }
            }

            points = points[used..];
        }

        Paint(_scratch, fill: closed, stroke: true);
    }

    internal void Rectangle(double left, double top, double right, double bottom)
    {
        AddBox(new PathPen(Cleared(), Flat(Map)), left, top, right, bottom);
        Paint(_scratch, fill: true, stroke: true);
    }

    /// <summary>Fills a rectangle with the brush alone.</summary>
    internal void FillBox(double left, double top, double right, double bottom)
    {
        AddBox(new PathPen(Cleared(), Flat(Map)), left, top, right, bottom);
        Paint(_scratch, fill: true, stroke: false);
    }

    /// <summary>The rectangle as a path on the page, for clips.</summary>
    internal PathBuffer Box(double left, double top, double right, double bottom)
    {
        var path = new PathBuffer();
        AddBox(new PathPen(path, Flat(Map)), left, top, right, bottom);
        return path;
    }

    /// <summary>Rectangles in units of the device as a path on the page, as regions have them.</summary>
    internal PathBuffer Region(ReadOnlySpan<(double Left, double Top, double Right, double Bottom)> boxes)
    {
        var path = new PathBuffer();
        var pen = new PathPen(path, Flat(_deviceToPage));
        foreach ((double left, double top, double right, double bottom) in boxes)
        {
            AddBox(pen, left, top, right, bottom);
        }

        return path;
    }

    internal void RoundRectangle(double left, double top, double right, double bottom, double width, double height)
    {
        Vec2 x = new(Math.Min(Math.Abs(width), Math.Abs(right - left)) / 2, 0);
        Vec2 y = new(0, Math.Min(Math.Abs(height), Math.Abs(bottom - top)) / 2);
        (left, right) = (Math.Min(left, right), Math.Max(left, right));
        (top, bottom) = (Math.Min(top, bottom), Math.Max(top, bottom));
        var pen = new PathPen(Cleared(), Flat(Map));
        pen.MoveTo(new Vec2(right, top) + y);
        const double quarter = Math.PI / 2;
        pen.LineTo(new Vec2(right, bottom) - y);
        pen.EllipseTo(new Vec2(right, bottom) - x - y, x, y, 0, quarter);
        pen.LineTo(new Vec2(left, bottom) + x);
        pen.EllipseTo(new Vec2(left, bottom) + x - y, x, y, quarter, quarter);
        pen.LineTo(new Vec2(left, top) + y);
        pen.EllipseTo(new Vec2(left, top) + x + y, x, y, 2 * quarter, quarter);
        pen.LineTo(new Vec2(right, top) - x);
        pen.EllipseTo(new Vec2(right, top) - x + y, x, y, 3 * quarter, quarter);
        pen.Close();
        Paint(_scratch, fill: true, stroke: true);
    }

    internal void Ellipse(double left, double top, double right, double bottom)
    {
        (Vec2 center, Vec2 x, Vec2 y) = EllipseIn(left, top, right, bottom);
        var pen = new PathPen(Cleared(), Flat(Map));
        pen.MoveTo(center + x);
        pen.EllipseTo(center, x, y, 0, Math.Tau);
        pen.Close();
        Paint(_scratch, fill: true, stroke: true);
    }

    /// <summary>Draws an arc of the ellipse in a box, between the rays to two points.</summary>
    internal void Arc(
        double left, double top, double right, double bottom, Vec2 from, Vec2 to, ArcKind kind)
    {
        (Vec2 center, Vec2 x, Vec2 y) = EllipseIn(left, top, right, bottom);
        double AngleOf(Vec2 point) => Math.Atan2(
            Vec2.Dot(point - center, y) / Vec2.Dot(y, y), Vec2.Dot(point - center, x) / Vec2.Dot(x, x));
        if (x.Length > 0 && y.Length > 0)
        {
            double start = AngleOf(from);
            double sweep = AngleOf(to) - start;
            sweep += State.ArcsAreClockwise ? (sweep >= 0 ? -Math.Tau : 0) : (sweep <= 0 ? Math.Tau : 0);
            Arc(center, x, y, start, sweep, kind);
        }
    }

    /// <summary>Draws on along a circle, from an angle in radians; angles run counterclockwise on the page.</summary>
    internal void AngleArc(Vec2 center, double radius, double start, double sweep)
    {
        (_, Vec2 x, Vec2 y) = EllipseIn(center.X - radius, center.Y - radius, center.X + radius, center.Y + radius);
        Arc(center, x, y, start, sweep, ArcKind.Continued);
    }

    private void Arc(Vec2 center, Vec2 x, Vec2 y, double start, double sweep, ArcKind kind)
    {
        Vec2 first = center + (x * Math.Cos(start)) + (y * Math.Sin(start));
        if (kind == ArcKind.Continued)
        {
            LinesTo([first]);
            State.Position = center + (x * Math.Cos(start + sweep)) + (y * Math.Sin(start + sweep));
        }

        bool goesOn = kind == ArcKind.Continued && _isPathOpen;
        PathBuffer path = goesOn ? _path! : Cleared();
        var pen = new PathPen(path, Flat(Map));
        if (!goesOn)
        {
            pen.MoveTo(first);
        }

        pen.EllipseTo(center, x, y, start, sweep);
        if (kind == ArcKind.Pie)
        {
            pen.LineTo(center);
        }

        if (kind is ArcKind.Pie or ArcKind.Chord)
        {
            pen.Close();
        }

        if (!goesOn)
        {
            Paint(path, fill: kind is ArcKind.Pie or ArcKind.Chord, stroke: true);
        }
    }

    // The second axis is up on the device, so that angles run counterclockwise there.
    private (Vec2 Center, Vec2 X, Vec2 Y) EllipseIn(double left, double top, double right, double bottom)
    {
        Vec2 scale = PageScale;
        return (
            new Vec2((left + right) / 2, (top + bottom) / 2),
            new Vec2(Math.CopySign((right - left) / 2, scale.X), 0),
            new Vec2(0, Math.CopySign((bottom - top) / 2, -scale.Y)));
    }

    private PathBuffer Cleared()
    {
        _scratch.Clear();
        return _scratch;
    }

    private static void Add(in PathPen pen, ReadOnlySpan<Vec2> points, bool areCurves)
    {
        if (!areCurves)
        {
            foreach (Vec2 point in points)
            {
                pen.LineTo(point);
            }

            return;
        }

        for (int i = 0; i + 2 < points.Length; i += 3)
        {
            pen.CurveTo(points[i], points[i + 1], points[i + 2]);
        }
    }
}
