using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Fills paths that have hundreds of edges in each row. General scan converters keep the edges of a row in their order,
/// which takes nearly all of the time for such paths. Here an edge is counted in the cells that it passes through, and
/// one walk over the cells of a row tells what is inside: the time is in proportion to the crossings.
/// </summary>
internal sealed class DenseFiller
{
    /// <summary>The widest page whose cells of a row take little memory.</summary>
    internal const int MaxWidth = 16_384;

    /// <summary>The rows of samples in a row of pixels, and as many as do where edges lie close to each
    /// other.</summary>
    internal const int FineSubRows = 15;
    internal const int CoarseSubRows = 5;

    private const int SubColumns = 16;

    /// <summary>The cells for each crossing of a row from which on a search for the next one is faster than a
    /// walk.</summary>
    private const int CellsOfCrossing = 8;

    /// <summary>The cells of a few rows, which stay in the cache of the processor.</summary>
    private const int MaxCells = 1 << 19;
    private const int MaxCurveLines = 256;
    private const int FractionBits = 16;

    private readonly ThinLinePainter _pixels;
    private readonly RowRange _rows;
    private readonly List<Edge> _edges = [];
    private readonly List<Edge> _active = [];
    private short[] _crossings = [];
    private ushort[] _sums = [];
    private byte[] _coverage = [];
    private int _subRows;
    private int _left;
    private int _cells;
    private int _firstCell;
    private int _endCell;
    private bool _isSparse;

    /// <summary>A filler of rows of a page.</summary>
    /// <param name="pixels">Receives the coverage of pixels.</param>
    /// <param name="rows">The rows.</param>
    internal DenseFiller(ThinLinePainter pixels, RowRange rows) => (_pixels, _rows) = (pixels, rows);

    /// <summary>Fills a path.</summary>
    /// <param name="verbs">The verbs of the path.</param>
    /// <param name="coords">Its coordinates.</param>
    /// <param name="map">The map to pixels of the page.</param>
    /// <param name="clip">The part of the page that can be drawn on, in pixels.</param>
    /// <param name="evenOdd">Whether the even-odd rule holds, not the one of the winding number.</param>
    /// <param name="color">The colour.</param>
    /// <param name="tolerance">How far chords may lie from curves, in pixels.</param>
    /// <param name="subRows">The rows of samples in a row of pixels.</param>
    internal void Fill(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, in Bounds2 clip, bool evenOdd,
        Rgba color, double tolerance, int subRows)
    {
        _subRows = subRows;
        int top = (int)Math.Max(_rows.First, Math.Round(clip.MinY));
        int bottom = (int)Math.Min(_rows.End, Math.Round(clip.MaxY));
        _left = (int)Math.Max(0, Math.Round(clip.MinX));
        int right = (int)Math.Min(_pixels.Width, Math.Round(clip.MaxX));
        if (_left >= right || top >= bottom)
        {
            return;
        }

        _cells = (right - _left) * SubColumns;
        _edges.Clear();
        _active.Clear();
        AddEdges(verbs, coords, map, tolerance, top, bottom);
        _edges.Sort(static (a, b) => a.First.CompareTo(b.First));
        int height = Math.Clamp(MaxCells / (_cells * subRows), 1, bottom - top);
        MakeRoom(height * subRows, right - _left);
        int next = 0;
        for (int first = top; first < bottom; first += height)
        {
            int end = Math.Min(first + height, bottom);
            while (next < _edges.Count && _edges[next].First < end * subRows)
            {
                _active.Add(_edges[next++]);
            }

            (_firstCell, _endCell) = (int.MaxValue, 0);
            _isSparse = _active.Count < _cells / CellsOfCrossing;
            CountCrossings(first * subRows, end * subRows);
            for (int y = first; y < end && _firstCell <= _endCell; y++)
            {
                FillRow(y, (y - first) * subRows, evenOdd, color);
            }
        }
    }

    private void MakeRoom(int subRows, int width)
    {
        int cells = subRows * (_cells + 1);
        if (_crossings.Length < cells)
        {
            _crossings = new short[cells];
        }

        if (_sums.Length < width)
        {
            _sums = new ushort[width];
            _coverage = new byte[width];
        }
    }

    private void AddEdges(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map, double tolerance, int top, int bottom)
    {
        Vec2 start = default;
        Vec2 at = default;
        int i = 0;
        foreach (PathVerb verb in verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Add(at, start, top, bottom);
                    start = at = map.Point(c[i], c[i + 1]);
                    i += 2;
                    break;
                case PathVerb.Line:
                    Vec2 to = map.Point(c[i], c[i + 1]);
                    Add(at, to, top, bottom);
                    at = to;
                    i += 2;
                    break;
                case PathVerb.Curve:
                    Vec2 last = map.Point(c[i + 4], c[i + 5]);
                    Flatten(
                        at, map.Point(c[i], c[i + 1]), map.Point(c[i + 2], c[i + 3]), last, tolerance, top, bottom);
                    at = last;
                    i += 6;
                    break;
                default:
                    Add(at, start, top, bottom);
                    at = start;
                    break;
            }
        }

        Add(at, start, top, bottom);
    }

    private void Flatten(Vec2 a, Vec2 b, Vec2 c, Vec2 d, double tolerance, int top, int bottom)
    {
        // The distance of a chord from a cubic is at most an eighth of its second derivative.
        double bend = Math.Max((a - (b * 2) + c).Length, (b - (c * 2) + d).Length);
        double parts = Math.Ceiling(Math.Sqrt(6 * bend / (8 * tolerance)));
        int count = parts < MaxCurveLines ? Math.Max(1, (int)parts) : MaxCurveLines;
        Vec2 from = a;
        for (int i = 1; i <= count; i++)
        {
            double t = (double)i / count;
            double s = 1 - t;
            Vec2 to = (a * (s * s * s)) + (b * (3 * s * s * t)) + (c * (3 * s * t * t)) + (d * (t * t * t));
            Add(from, to, top, bottom);
            from = to;
        }
    }

    private void Add(Vec2 a, Vec2 b, int top, int bottom)
    {
        if (!double.IsFinite(a.X + a.Y + b.X + b.Y))
        {
            return;
        }

        (Vec2 upper, Vec2 lower) = a.Y <= b.Y ? (a, b) : (b, a);
        int first = (int)Math.Ceiling((Math.Max(upper.Y, top) * _subRows) - 0.5);
        int end = (int)Math.Ceiling((Math.Min(lower.Y, bottom) * _subRows) - 0.5);
        if (first >= end)
        {
            return;
        }

        double step = (lower.X - upper.X) / (lower.Y - upper.Y) / _subRows;
        double x = upper.X + ((first + 0.5 - (upper.Y * _subRows)) * step);

        // A cell is inside if its middle is.
        _edges.Add(new Edge(
            first, end, ((x - _left) * SubColumns) + 0.5, step * SubColumns, (short)(a.Y <= b.Y ? 1 : -1)));
    }

    private void CountCrossings(int first, int end)
    {
        Span<Edge> active = CollectionsMarshal.AsSpan(_active);
        int kept = 0;
        foreach (Edge edge in active)
        {
            Budget.Check();
            int from = Math.Max(edge.First, first);
            int to = Math.Min(edge.End, end);
            double x = edge.X + ((from - edge.First) * edge.Step);
            Cross(x, edge.Step, to - from, (from - first) * (_cells + 1), edge.Direction);
            if (edge.End > end)
            {
                active[kept++] = edge;
            }
        }

        _active.RemoveRange(kept, _active.Count - kept);
    }

    private void Cross(double x, double step, int count, int row, short direction)
    {
        double last = x + ((count - 1) * step);
        double least = Math.Min(x, last);
        double most = Math.Max(x, last);
        _firstCell = Math.Min(_firstCell, (int)Math.Clamp(least, 0, _cells));
        _endCell = Math.Max(_endCell, (int)Math.Clamp(most, 0, _cells));
        int stride = _cells + 1;
        if (least < 1 || most > _cells - 1)
        {
            for (int i = 0; i < count; i++, row += stride)
            {
                _crossings[row + (int)Math.Clamp(x + (i * step), 0, _cells)] += direction;
            }

            return;
        }

        long place = (long)(x * (1 << FractionBits));
        long move = (long)(step * (1 << FractionBits));
        short[] crossings = _crossings;
        for (int i = 0; i < count; i++, row += stride, place += move)
        {
            crossings[row + (int)(place >> FractionBits)] += direction;
        }
    }

    private void FillRow(int y, int firstSubRow, bool evenOdd, Rgba color)
    {
        int mask = evenOdd ? 1 : -1;
        for (int s = firstSubRow; s < firstSubRow + _subRows; s++)
        {
            Span<short> crossings = _crossings.AsSpan(s * (_cells + 1), _cells + 1);
            if (_isSparse)
            {
                SumRuns(crossings, mask);
            }
            else
            {
                SumCells(crossings, mask);
            }
        }

        int samples = _subRows * SubColumns;
        int left = _firstCell / SubColumns;
        int right = Math.Min((_endCell / SubColumns) + 1, _cells / SubColumns);
        for (int x = left; x < right; x++)
        {
            _coverage[x] = (byte)(((_sums[x] * 255) + (samples / 2)) / samples);
            _sums[x] = 0;
        }

        if (left < right)
        {
            _pixels.BlendRow(_left + left, y, _coverage.AsSpan(left, right - left), color);
        }
    }

    private void SumCells(Span<short> crossings, int mask)
    {
        int winding = 0;
        for (int cell = _firstCell; cell < _endCell; cell++)
        {
            winding += crossings[cell];
            crossings[cell] = 0;
            _sums[cell / SubColumns] += (ushort)((winding & mask) != 0 ? 1 : 0);
        }

        crossings[_endCell] = 0;
    }

    /// <summary>The same for rows whose crossings are far from each other.</summary>
    private void SumRuns(Span<short> crossings, int mask)
    {
        int winding = 0;
        for (int from = _firstCell, at = from; ; at = from + 1)
        {
            int gap = crossings[at.._endCell].IndexOfAnyExcept((short)0);
            int next = gap < 0 ? _endCell : at + gap;
            if ((winding & mask) != 0)
            {
                AddRun(from, next);
            }

            if (gap < 0)
            {
                break;
            }

            winding += crossings[next];
            crossings[next] = 0;
            from = next;
        }

        crossings[_endCell] = 0;
    }

    private void AddRun(int from, int to)
    {
        int first = from / SubColumns;
        int last = to / SubColumns;
        if (first == last)
        {
            _sums[first] += (ushort)(to - from);
            return;
        }

        _sums[first] += (ushort)(SubColumns - (from % SubColumns));
        foreach (ref ushort sum in _sums.AsSpan(first + 1, last - first - 1))
        {
            sum += SubColumns;
        }

        if (to % SubColumns != 0)
        {
            _sums[last] += (ushort)(to % SubColumns);
        }
    }

    /// <summary>A line between rows of samples.</summary>
    /// <param name="First">The first row of samples.</param>
    /// <param name="End">The row after the last one.</param>
    /// <param name="X">The place in the first row, in cells.</param>
    /// <param name="Step">How far the place moves from row to row.</param>
    /// <param name="Direction">1 down the page, -1 up.</param>
    private readonly record struct Edge(int First, int End, double X, double Step, short Direction);
}
