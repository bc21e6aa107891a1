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

    // A pixel is covered by shares of the samples in it.
    private const int SubRows = 15;
    private const int SubColumns = 16;
    private const int Samples = SubRows * SubColumns;
    private const int MaxCells = 2 << 20;
    private const int MaxCurveLines = 256;

    private readonly ThinLinePainter _pixels;
    private readonly RowRange _rows;
    private readonly List<Edge> _edges = [];
    private short[] _crossings = [];
    private (int First, int End)[] _spans = [];
    private ushort[] _sums = [];
    private byte[] _coverage = [];
    private int _left;
    private int _cells;

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
    internal void Fill(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, in Bounds2 clip, bool evenOdd,
        Rgba color, double tolerance)
    {
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
        AddEdges(verbs, coords, map, tolerance, top, bottom);
        int height = Math.Clamp(MaxCells / (_cells * SubRows), 1, bottom - top);
        MakeRoom(height * SubRows, right - _left);
        for (int first = top; first < bottom; first += height)
        {
            int end = Math.Min(first + height, bottom);
            CountCrossings(first * SubRows, end * SubRows);
            for (int y = first; y < end; y++)
            {
                FillRow(y, (y - first) * SubRows, evenOdd, color);
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

        if (_sums.Length < width || _spans.Length < subRows)
        {
            _sums = new ushort[width];
            _coverage = new byte[width];
            _spans = new (int, int)[subRows];
        }

        Array.Fill(_spans, (int.MaxValue, 0));
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
        int first = (int)Math.Ceiling((Math.Max(upper.Y, top) * SubRows) - 0.5);
        int end = (int)Math.Ceiling((Math.Min(lower.Y, bottom) * SubRows) - 0.5);
        if (first >= end)
        {
            return;
        }

        double step = (lower.X - upper.X) / (lower.Y - upper.Y) / SubRows;
        double x = upper.X + ((first + 0.5 - (upper.Y * SubRows)) * step);

        // A cell is inside if its middle is.
        _edges.Add(new Edge(
            first, end, ((x - _left) * SubColumns) + 0.5, step * SubColumns, (short)(a.Y <= b.Y ? 1 : -1)));
    }

    private void CountCrossings(int first, int end)
    {
        foreach (ref readonly Edge edge in CollectionsMarshal.AsSpan(_edges))
        {
            int from = Math.Max(edge.First, first);
            int to = Math.Min(edge.End, end);
            if (from >= to)
            {
                continue;
            }

            Budget.Check();
            double x = edge.X + ((from - edge.First) * edge.Step);
            int row = (from - first) * (_cells + 1);
            for (int s = from; s < to; s++, x += edge.Step, row += _cells + 1)
            {
                int cell = (int)Math.Clamp(x, 0, _cells);
                _crossings[row + cell] += edge.Direction;
                ref (int First, int End) span = ref _spans[s - first];
                span.First = Math.Min(span.First, cell);
                span.End = Math.Max(span.End, cell);
            }
        }
    }

    private void FillRow(int y, int firstSubRow, bool evenOdd, Rgba color)
    {
        int mask = evenOdd ? 1 : -1;
        int least = int.MaxValue;
        int most = 0;
        for (int s = firstSubRow; s < firstSubRow + SubRows; s++)
        {
            (int first, int end) = _spans[s];
            if (first <= end)
            {
                _spans[s] = (int.MaxValue, 0);
                SumCells(_crossings.AsSpan(s * (_cells + 1), _cells + 1), first, end, mask);
                (least, most) = (Math.Min(least, first), Math.Max(most, end));
            }
        }

        if (least > most)
        {
            return;
        }

        int left = least / SubColumns;
        int right = Math.Min((most / SubColumns) + 1, _cells / SubColumns);
        for (int x = left; x < right; x++)
        {
            _coverage[x] = (byte)(((_sums[x] * 255) + (Samples / 2)) / Samples);
            _sums[x] = 0;
        }

        if (left < right)
        {
            _pixels.BlendRow(_left + left, y, _coverage.AsSpan(left, right - left), color);
        }
    }

    private void SumCells(Span<short> crossings, int first, int end, int mask)
    {
        int winding = 0;
        for (int cell = first; cell < end; cell++)
        {
            winding += crossings[cell];
            crossings[cell] = 0;
            _sums[cell / SubColumns] += (ushort)((winding & mask) != 0 ? 1 : 0);
        }

        crossings[end] = 0;
    }

    /// <summary>A line between rows of samples.</summary>
    /// <param name="First">The first row of samples.</param>
    /// <param name="End">The row after the last one.</param>
    /// <param name="X">The place in the first row, in cells.</param>
    /// <param name="Step">How far the place moves from row to row.</param>
    /// <param name="Direction">1 down the page, -1 up.</param>
    private readonly record struct Edge(int First, int End, double X, double Step, short Direction);
}
