using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Paths: to cairo, and which of them show.</content>
internal sealed unsafe partial class CairoPainter
{
    /// <summary>How far the sides of a box may be from upright, in pixels.</summary>
    private const double BoxTolerance = 0.05;

    /// <summary>Paths with fewer parts have few edges in any row.</summary>
    private const int MinVerbsOfDensePath = 512;

    /// <summary>The edges in a row from which on each of them takes the longest to be sorted.</summary>
    private const double EdgesOfDenseRow = 2048;

    /// <summary>The edges of fills in dense rows that take about as long as one step of the budget.</summary>
    private const int FillEdgesPerStep = 36;

    /// <summary>Rows of pixels that edges cross in about the time of one step, where few are in a row.</summary>
    private const double EdgeRowsPerStep = 120;

    /// <summary>The same for edges of strokes, whose outlines have to be made, too.</summary>
    private const int StrokeEdgesPerStep = 16;

    /// <summary>The edges in a row from which on they are not kept in their order.</summary>
    private const double EdgesOfCountedRow = 256;

    /// <summary>The same for rows whose edges are so close to each other that few samples do.</summary>
    private const double EdgesOfCoarseRow = 1024;

    /// <summary>The crossings of edges and rows of samples that take about as long as one step of the budget.</summary>
    private const int CrossingsPerStep = 1500;

    /// <summary>The pixels of rows with such edges, for each of which all samples are looked at.</summary>
    private const int CountedPixelsPerStep = 64;

    /// <summary>The pixels of a gradient that take about as long as one step of the budget.</summary>
    private const int GradientPixelsPerStep = 500;

    /// <summary>Counts the work of filling a path, or the outline of its stroke.</summary>
    private void CountWork(in DisplayItem item, int edgesPerSegment, int edgesPerStep)
    {
        double edges = EdgesOf(item, out double rows) * edgesPerSegment;
        Budget.Step(1 + (item.VerbCount / VerbsPerStep) + (long)(edges / EdgeRowsPerStep));
        if (item.VerbCount < MinVerbsOfDensePath)
        {
            return;
        }

        double density = edges / rows / EdgesOfDenseRow;
        Budget.Step((long)(edges / edgesPerStep * Math.Min(1, density)));
    }

    /// <summary>Counts the pixels of the box around a gradient, each of which has a colour of its own.</summary>
    private void CountGradient(in DisplayItem item)
    {
        Bounds2 page = Bounds2.Of(0, _rows.First, _target.ThinLines.Width, _rows.End);
        Bounds2 shown = AroundPath(item).Clip(_clip.Box).Clip(page);
        Budget.Step((long)(Math.Max(0, shown.Width) * Math.Max(0, shown.Height) / GradientPixelsPerStep));
    }

    /// <summary>Fills a path with many edges in each row.</summary>
    private bool TryFillDense(in DisplayItem item)
    {
        int width = _target.ThinLines.Width;
        if (item.VerbCount < MinVerbsOfDensePath || !_clip.IsBox || _settings.Sharp || width > DenseFiller.MaxWidth)
        {
            return false;
        }

        double edges = EdgesOf(item, out double rows);
        if (edges < rows * EdgesOfCountedRow)
        {
            return false;
        }

        int subRows = SubRowsOf(edges, rows);
        CountDense(edges, rows, subRows, width);
        UsePixels();
        _denseFiller ??= new DenseFiller(_target.ThinLines, _rows);
        _denseFiller.Fill(
            List.VerbsOf(item), List.CoordsOf(item), _map, _clip.Box, item.EvenOdd, item.Color,
            DefaultTolerance * _settings.Coarseness, subRows);
        return true;
    }

    private static int SubRowsOf(double edges, double rows) =>
        edges < rows * EdgesOfCoarseRow ? DenseFiller.FineSubRows : DenseFiller.CoarseSubRows;

    private static void CountDense(double edges, double rows, int subRows, int width) =>
        Budget.Step(1 + (long)((edges * subRows / CrossingsPerStep) + (rows * width / CountedPixelsPerStep)));

    /// <summary>Sums up the edges of all rows of a path.</summary>
    private double EdgesOf(in DisplayItem item, out double rows)
    {
        ReadOnlySpan<double> c = List.CoordsOf(item);
        int count = CoordCount(item);
        double edges = 0;
        double last = RowOf(c, 0);
        double top = last;
        double bottom = last;
        for (int at = 2; at < count; at += 2)
        {
            double row = RowOf(c, at);
            edges += Math.Abs(row - last);
            (top, bottom, last) = (Math.Min(top, row), Math.Max(bottom, row), row);
        }

        rows = Math.Max(1, bottom - top);
        return edges;
    }

    private double RowOf(ReadOnlySpan<double> c, int at) => Math.Clamp(
        (_map.Yx * c[at]) + (_map.Yy * c[at + 1]) + _map.Y0, _rows.First, _rows.End);

    /// <summary>Returns whether a path reaches into the rows that are painted.</summary>
    private bool Crosses(in DisplayItem item, double border)
    {
        ReadOnlySpan<double> c = List.CoordsOf(item);
        int count = CoordCount(item);
        double top = double.MaxValue;
        double bottom = double.MinValue;
        for (int at = 0; at < count; at += 2)
        {
            double y = (_map.Yx * c[at]) + (_map.Yy * c[at + 1]) + _map.Y0;
            top = Math.Min(top, y);
            bottom = Math.Max(bottom, y);
        }

        return bottom + border >= _rows.First - 1 && top - border <= _rows.End + 1;
    }

    private int CoordCount(in DisplayItem item)
    {
        int count = 0;
        foreach (PathVerb verb in List.VerbsOf(item))
        {
            count += verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 };
        }

        return count;
    }

    /// <summary>The box of a path on the page, and whether the path is that box.</summary>
    private Bounds2 BoxOf(in DisplayItem item, out bool isBox)
    {
        ReadOnlySpan<PathVerb> verbs = List.VerbsOf(item);
        ReadOnlySpan<double> c = List.CoordsOf(item);
        isBox = verbs.Length is 4 or 5 or 6 && verbs[0] == PathVerb.Move
            && verbs[1..4].IndexOfAnyExcept(PathVerb.Line) < 0 && verbs[4..].IndexOf(PathVerb.Move) < 0;
        Bounds2 box = Bounds2.Empty;
        Vec2 last = default;
        for (int i = 0; i < 4 && isBox; i++)
        {
            Vec2 p = _map.Point(c[2 * i], c[(2 * i) + 1]);
            isBox &= i == 0 || Math.Abs(p.X - last.X) < BoxTolerance || Math.Abs(p.Y - last.Y) < BoxTolerance;
            box.Add(p.X, p.Y);
            last = p;
        }

        if (verbs.Length > 4 && verbs[4] == PathVerb.Line)
        {
            isBox &= c[8] == c[0] && c[9] == c[1];
        }

        return isBox ? box : Bounds2.Of(-FarAway, -FarAway, FarAway, FarAway);
    }

    private void Trace(in DisplayItem item)
    {
        UseCairo();
        Cairo.NewPath(_cr);
        Trace(List.VerbsOf(item), List.CoordsOf(item), _map);
    }

    private void Trace(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map)
    {
        int at = 0;
        foreach (PathVerb verb in verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Map(map, c, at, out double mx, out double my);
                    Cairo.MoveTo(_cr, mx, my);
                    at += 2;
                    break;
                case PathVerb.Line:
                    Map(map, c, at, out double lx, out double ly);
                    Cairo.LineTo(_cr, lx, ly);
                    at += 2;
                    break;
                case PathVerb.Curve:
                    Map(map, c, at, out double x1, out double y1);
                    Map(map, c, at + 2, out double x2, out double y2);
                    Map(map, c, at + 4, out double x3, out double y3);
                    Cairo.CurveTo(_cr, x1, y1, x2, y2, x3, y3);
                    at += 6;
                    break;
                default:
                    Cairo.ClosePath(_cr);
                    break;
            }
        }
    }

    private static void Map(in Affine2 map, ReadOnlySpan<double> c, int at, out double x, out double y)
    {
        double u = c[at];
        double v = c[at + 1];
        x = Math.Clamp((map.Xx * u) + (map.Xy * v) + map.X0, -FarAway, FarAway);
        y = Math.Clamp((map.Yx * u) + (map.Yy * v) + map.Y0, -FarAway, FarAway);
    }
}
