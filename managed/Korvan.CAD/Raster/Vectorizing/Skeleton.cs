using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Raster.Vectorizing;

/// <summary>A stroke: points at pixel centres, y down, and its mean width in pixels.</summary>
internal sealed record TracedStroke(List<Vec2> Points, double Width, bool IsClosed);

/// <summary>Thins strokes to lines of one pixel (T. Y. Zhang and C. Y. Suen, "A fast parallel algorithm for thinning
/// digital patterns", 1984) and follows them between ends and junctions.</summary>
internal sealed class Skeleton
{
    private const int MaxRounds = 200;

    private readonly ForegroundMask _mask;
    private readonly int[] _around;
    private readonly ushort[] _depth;
    private readonly HashSet<(int, int)> _walked = [];

    private Skeleton(ForegroundMask mask)
    {
        _mask = mask;
        int s = mask.Stride;
        _around = [-s, -s + 1, 1, s + 1, s, s - 1, -1, -s - 1];
        _depth = Depths(mask);
    }

    /// <summary>Returns the strokes without spurs below a length. The mask is consumed.</summary>
    internal static List<TracedStroke> Trace(ForegroundMask mask, double minSpur)
    {
        var skeleton = new Skeleton(mask);
        skeleton.Thin();
        return skeleton.Follow(minSpur);
    }

    /// <summary>Returns the chessboard distance of each foreground pixel from the background, in two passes.</summary>
    private static ushort[] Depths(ForegroundMask mask)
    {
        ReadOnlySpan<byte> cells = mask.Cells;
        var depth = new ushort[cells.Length];
        int s = mask.Stride;
        for (int i = s + 1; i < cells.Length - s - 1; i++)
        {
            int nearest = Math.Min(Math.Min(depth[i - 1], depth[i - s]), Math.Min(depth[i - s - 1], depth[i - s + 1]));
            depth[i] = cells[i] == 0 ? (ushort)0 : (ushort)Math.Min(nearest + 1, ushort.MaxValue);
        }

        for (int i = cells.Length - s - 2; i > s; i--)
        {
            int nearest = Math.Min(Math.Min(depth[i + 1], depth[i + s]), Math.Min(depth[i + s + 1], depth[i + s - 1]));
            depth[i] = (ushort)Math.Min(depth[i], cells[i] == 0 ? 0 : nearest + 1);
        }

        return depth;
    }

    private void Thin()
    {
        Span<byte> cells = _mask.Cells;
        List<int> foreground = [];
        for (int i = 0; i < cells.Length; i++)
        {
            if (cells[i] != 0)
            {
                foreground.Add(i);
            }
        }

        List<int> removed = [];
        for (int round = 0; round < MaxRounds; round++)
        {
            int before = foreground.Count;
            for (int phase = 0; phase < 2; phase++)
            {
                removed.Clear();
                foreach (int cell in foreground)
                {
                    if (IsRemovable(cells, cell, phase))
                    {
                        removed.Add(cell);
                    }
                }

                foreach (int cell in removed)
                {
                    cells[cell] = 0;
                }

                foreground.RemoveAll(cell => _mask.Cells[cell] == 0);
            }

            if (foreground.Count == before)
            {
                return;
            }
        }
    }

    /// <summary>Returns whether a pixel can be removed; neighbours p2 to p9 run clockwise from above.</summary>
    private bool IsRemovable(ReadOnlySpan<byte> cells, int cell, int phase)
    {
        int count = 0;
        int changes = 0;
        for (int i = 0; i < 8; i++)
        {
            int here = cells[cell + _around[i]];
            count += here;
            changes += here == 0 && cells[cell + _around[(i + 1) % 8]] == 1 ? 1 : 0;
        }

        if (count is < 2 or > 6 || changes != 1)
        {
            return false;
        }

        (int up, int right) = (cells[cell + _around[0]], cells[cell + _around[2]]);
        (int down, int left) = (cells[cell + _around[4]], cells[cell + _around[6]]);
        return phase == 0
            ? up * right * down == 0 && right * down * left == 0
            : up * right * left == 0 && up * down * left == 0;
    }

    private List<TracedStroke> Follow(double minSpur)
    {
        List<TracedStroke> strokes = [];
        Span<byte> cells = _mask.Cells;
        for (int pass = 0; pass < 2; pass++)
        {
            for (int i = 0; i < cells.Length; i++)
            {
                // Ends and junctions first; closed loops remain.
                while (cells[i] == 1 && (pass == 1 || Neighbours(i) != 2) && Walk(i) is { } line)
                {
                    bool free = !line.IsClosed && (line.StartsFree || line.EndsFree);
                    if (!free || Length(line.Cells) >= minSpur)
                    {
                        strokes.Add(Stroke(line.Cells, line.IsClosed));
                    }
                }
            }
        }

        return strokes;
    }

    private int Neighbours(int cell)
    {
        int count = 0;
        foreach (int step in _around)
        {
            count += _mask.Cells[cell + step] != 0 && !IsShortcut(cell, step) ? 1 : 0;
        }

        return count;
    }

    /// <summary>Returns whether a diagonal step is redundant: a straight neighbour joins both ends.</summary>
    private bool IsShortcut(int cell, int step)
    {
        int s = _mask.Stride;
        ReadOnlySpan<(int, int, int)> diagonals = [(-s + 1, 1, -s), (s + 1, 1, s), (s - 1, -1, s), (-s - 1, -1, -s)];
        foreach ((int diagonal, int across, int along) in diagonals)
        {
            if (step == diagonal)
            {
                return _mask.Cells[cell + across] != 0 || _mask.Cells[cell + along] != 0;
            }
        }

        return false;
    }

    private sealed record TracedPath(List<int> Cells, bool IsClosed, bool StartsFree, bool EndsFree);

    /// <summary>Follows one path that is not yet traced; null where there is none.</summary>
    private TracedPath? Walk(int start)
    {
        List<int> line = [start];
        int next = Unwalked(start);
        while (next >= 0)
        {
            _walked.Add((Math.Min(line[^1], next), Math.Max(line[^1], next)));
            line.Add(next);
            next = next == start || Neighbours(next) != 2 ? -1 : Unwalked(next);
        }

        return line.Count < 2
            ? null : new TracedPath(line, line[^1] == start, Neighbours(start) == 1, Neighbours(line[^1]) == 1);
    }

    private int Unwalked(int cell)
    {
        foreach (int step in _around)
        {
            int next = cell + step;
            if (_mask.Cells[next] != 0 && !IsShortcut(cell, step)
                && !_walked.Contains((Math.Min(cell, next), Math.Max(cell, next))))
            {
                return next;
            }
        }

        return -1;
    }

    private double Length(List<int> cells)
    {
        double length = 0;
        for (int i = 1; i < cells.Count; i++)
        {
            int step = Math.Abs(cells[i] - cells[i - 1]);
            length += step == 1 || step == _mask.Stride ? 1 : Math.Sqrt(2);
        }

        return length;
    }

    private TracedStroke Stroke(List<int> cells, bool closed)
    {
        double depths = 0;
        List<Vec2> points = new(cells.Count);
        foreach (int cell in cells)
        {
            depths += _depth[cell];
            points.Add(new Vec2((cell % _mask.Stride) - 0.5, (cell / _mask.Stride) - 0.5));
        }

        if (closed)
        {
            points.RemoveAt(points.Count - 1);
        }

        return new TracedStroke(points, Math.Max(1, (2 * depths / cells.Count) - 1), closed);
    }
}
