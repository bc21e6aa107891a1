using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>
/// Clips pattern lines to an even-odd area. Each edge of the area adds one crossing to each line that it crosses, so
/// the work is that of the crossings, however many lines and edges there are.
/// </summary>
internal sealed class PatternFill
{
    /// <summary>Segments and crossings that one hatch may ask for; past it the hatch is shown as a tint.</summary>
    internal const int MaxSegments = 1_000_000;

    /// <summary>Edges, dashes and gaps that one hatch may ask for, seen or not; a crossing, which is sorted, counts as
    /// several.</summary>
    private const long MaxWork = 40_000_000;
    private const int WorkPerCrossing = 8;
    private const int WorkPerStep = 256;

    private readonly List<(int Line, double At)> _crossings = [];
    private readonly PathBuffer _target;
    private readonly Vec2[]? _window;
    private int _segments;
    private long _work;
    private double _firstRow;
    private double _lastRow;
    private double _start;
    private double _end;

    private PatternFill(PathBuffer target, Vec2[]? window)
    {
        _target = target;
        _window = window;
    }

    /// <summary>
    /// Adds the lines of the pattern to <paramref name="target"/>, in the coordinates of the rings. Returns false,
    /// with the target in no useful state, when the pattern is too dense to be drawn line by line. Where corners of a
    /// window are given, lines outside of it may be left out.
    /// </summary>
    internal static bool TryFill(
        IReadOnlyList<Vec2[]> rings, IReadOnlyList<HatchLine> lines, PathBuffer target, Vec2[]? window = null)
    {
        var fill = new PatternFill(target, window);
        foreach (HatchLine line in lines)
        {
            if (!fill.TryAdd(rings, line))
            {
                return false;
            }
        }

        return true;
    }

    private bool TryAdd(IReadOnlyList<Vec2[]> rings, in HatchLine line)
    {
        Vec2 along = Vec2.Polar(line.Angle);
        double spacing = Vec2.Dot(line.Offset, along.Left);
        if (!double.IsFinite(spacing) || Math.Abs(spacing) < 1e-12)
        {
            return spacing == 0 || double.IsNaN(spacing);
        }

        _crossings.Clear();
        Limit(line, along, spacing);
        foreach (Vec2[] ring in rings)
        {
            if (!TryCross(ring, line.Base, along, spacing))
            {
                return false;
            }
        }

        _crossings.Sort();
        double shift = Vec2.Dot(line.Offset, along);
        for (int i = 0; i + 1 < _crossings.Count; i += 2)
        {
            (int index, double from) = _crossings[i];
            (int other, double to) = _crossings[i + 1];
            if (index != other)
            {
                // A crossing lost to rounding: skip it and pair the rest of this line anew.
                i--;
                continue;
            }

            Vec2 origin = line.Base + (along.Left * (index * spacing)) + (along * (index * shift));
            (from, to) = (Math.Max(from, _start), Math.Min(to, _end));
            if (to >= from && !TryDash(origin, along, from - (index * shift), to - (index * shift), line.Dashes))
            {
                return false;
            }
        }

        return true;
    }

    /// <summary>Finds the rows that cross the window, and the part of them in it.</summary>
    private void Limit(in HatchLine line, Vec2 along, double spacing)
    {
        (_firstRow, _lastRow) = (double.NegativeInfinity, double.PositiveInfinity);
        (_start, _end) = (double.NegativeInfinity, double.PositiveInfinity);
        if (_window is null)
        {
            return;
        }

        (_firstRow, _lastRow, _start, _end) = (_lastRow, _firstRow, _end, _start);
        foreach (Vec2 corner in _window)
        {
            Vec2 at = corner - line.Base;
            double row = Vec2.Dot(at, along.Left) / spacing;
            double place = Vec2.Dot(at, along);
            (_firstRow, _lastRow) = (Math.Min(_firstRow, row - 1), Math.Max(_lastRow, row + 1));
            (_start, _end) = (Math.Min(_start, place), Math.Max(_end, place));
        }
    }

    private bool TryWork(long count)
    {
        long before = _work / WorkPerStep;
        _work += count;
        Workload.Step((_work / WorkPerStep) - before);
        return _work <= MaxWork;
    }

    // Edges are half open in the direction across the lines, so that a vertex on a line counts once.
    private bool TryCross(Vec2[] ring, Vec2 origin, Vec2 along, double spacing)
    {
        Vec2 a = ring[^1] - origin;
        double rowA = Vec2.Dot(a, along.Left) / spacing;
        foreach (Vec2 point in ring)
        {
            Vec2 b = point - origin;
            double rowB = Vec2.Dot(b, along.Left) / spacing;
            double first = Math.Ceiling(Math.Max(Math.Min(rowA, rowB), _firstRow));
            double last = Math.Min(Math.Ceiling(Math.Max(rowA, rowB)) - 1, Math.Floor(_lastRow));
            if (!TryWork(1))
            {
                return false;
            }

            if (first > last)
            {
                (a, rowA) = (b, rowB);
                continue;
            }

            if (!(last - first < MaxSegments) || Math.Abs(first) > int.MaxValue || Math.Abs(last) > int.MaxValue)
            {
                return false;
            }

            double ta = Vec2.Dot(a, along);
            double slope = rowB == rowA ? 0 : (Vec2.Dot(b, along) - ta) / (rowB - rowA);
            for (int row = (int)first; row <= (int)last; row++)
            {
                _crossings.Add((row, ta + ((row - rowA) * slope)));
            }

            if (_crossings.Count > 2 * MaxSegments || !TryWork(WorkPerCrossing * (long)(last - first)))
            {
                return false;
            }

            (a, rowA) = (b, rowB);
        }

        return true;
    }

    private bool TryDash(Vec2 origin, Vec2 along, double from, double to, IReadOnlyList<double> dashes)
    {
        double period = 0;
        foreach (double dash in dashes)
        {
            period += Math.Abs(dash);
        }

        if (dashes.Count == 0 || !(period > 0))
        {
            return TryLine(origin, along, from, to);
        }

        if (!((to - from) / period * dashes.Count < MaxSegments))
        {
            return false;
        }

        // Counted, not added up: far from the origin a period may be lost to rounding.
        double first = Math.Floor(from / period);
        for (int i = 0; first + i < to / period && TryWork(dashes.Count); i++)
        {
            double at = (first + i) * period;
            foreach (double dash in dashes)
            {
                double next = at + Math.Abs(dash);
                bool visible = dash > 0 ? next > from && at < to : dash == 0 && at >= from && at <= to;
                if (visible && !TryLine(origin, along, Math.Max(at, from), Math.Min(next, to)))
                {
                    return false;
                }

                at = next;
            }
        }

        return _work <= MaxWork;
    }

    private bool TryLine(Vec2 origin, Vec2 along, double from, double to)
    {
        _target.MoveTo(origin + (along * from));
        _target.LineTo(origin + (along * to));
        return ++_segments <= MaxSegments;
    }
}
