using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// Splits the inside of edges into monotone polygons and triangulates those while they grow (M. R. Garey, D. S.
/// Johnson,
/// F. P. Preparata and R. E. Tarjan, Triangulating a simple polygon, 1978).
/// </summary>
internal sealed class MonotoneTriangulation : RegionSweep
{
    private const int None = -1;

    private readonly FillRule _rule;
    private readonly Region[] _regions;
    private readonly List<Polygon> _polygons = [];
    private readonly List<(int Point, int Next)> _chains = [];

    internal MonotoneTriangulation(PlanarGraph graph, FillRule rule)
        : base(graph)
    {
        _rule = rule;
        _regions = new Region[graph.Edges.Length];
    }

    /// <summary>Gets the corners of triangles, three for each, counterclockwise.</summary>
    internal List<int> Triangles { get; } = [];

    protected override void Visit(int point, int below, int low, int high, ReadOnlySpan<int> starts)
    {
        if (low == None)
        {
            if (IsInside(below))
            {
                Split(below, starts[^1], point);
            }
        }
        else
        {
            Close(point, below, low, high);
            if (starts.Length > 0)
            {
                _regions[starts[^1]] = _regions[high];
            }
            else if (IsInside(below))
            {
                // The point joins two regions; the next one that the sweep meets in them is joined to it.
                _regions[below].Upper = _regions[high].Lower;
            }
        }

        foreach (int edge in starts.Length > 0 ? starts[..^1] : [])
        {
            _regions[edge] = new Region(Begin(point));
        }
    }

    private bool IsInside(int edge) =>
        _rule == FillRule.EvenOdd ? WindingAbove(edge) % 2 != 0 : WindingAbove(edge) != 0;

    /// <summary>Ends the regions between edges that end here, and those below and above get one more corner.</summary>
    private void Close(int point, int below, int low, int high)
    {
        for (int edge = low; edge != high; edge = Above(edge))
        {
            if (IsInside(edge))
            {
                Finish(_regions[edge].Lower, point);
                Finish(_regions[edge].Upper, point);
            }
        }

        if (IsInside(below))
        {
            Finish(_regions[below].Upper, point);
            Append(_regions[below].Lower, point, lower: false);
            _regions[below].Upper = None;
        }

        if (IsInside(high))
        {
            ref Region region = ref _regions[high];
            if (region.Upper != None)
            {
                Finish(region.Lower, point);
                region = new Region(region.Upper);
            }

            Append(region.Lower, point, lower: true);
        }
    }

    /// <summary>The point divides the region above an edge into one below and one above.</summary>
    private void Split(int below, int above, int point)
    {
        Region region = _regions[below];
        int upper = region.Upper;
        int lower = region.Lower;
        if (upper != None)
        {
            Append(lower, point, lower: false);
            Append(upper, point, lower: true);
        }
        else if (_polygons[lower].OnLower)
        {
            // A diagonal to the last corner, which the lower chain has: what is above goes on, what is below is new.
            upper = lower;
            lower = Begin(Top(upper));
            Append(lower, point, lower: false);
            Append(upper, point, lower: true);
        }
        else
        {
            upper = Begin(Top(lower));
            Append(upper, point, lower: true);
            Append(lower, point, lower: false);
        }

        _regions[below] = new Region(lower);
        _regions[above] = new Region(upper);
    }

    private int Top(int polygon) => _chains[_polygons[polygon].Chain].Point;

    private int Begin(int point)
    {
        _polygons.Add(new Polygon(Push(point, None), OnLower: true));
        return _polygons.Count - 1;
    }

    private int Push(int point, int next)
    {
        _chains.Add((point, next));
        return _chains.Count - 1;
    }

    private void Append(int polygon, int point, bool lower)
    {
        (int chain, bool onLower) = _polygons[polygon];
        if (_chains[chain].Next == None || onLower == lower)
        {
            chain = CutConvex(chain, point, lower);
        }
        else
        {
            Fan(chain, point, onLower);
            chain = Push(_chains[chain].Point, None);
        }

        _polygons[polygon] = new Polygon(Push(point, chain), lower);
    }

    private void Finish(int polygon, int point)
    {
        if (polygon != None)
        {
            Fan(_polygons[polygon].Chain, point, _polygons[polygon].OnLower);
        }
    }

    /// <summary>Cuts off the corners that the new one sees past; gives what is left of the chain.</summary>
    private int CutConvex(int chain, int point, bool lower)
    {
        ReadOnlySpan<Vec2> points = Graph.Points;
        for (int next = _chains[chain].Next; next != None; next = _chains[chain].Next)
        {
            (int a, int b) = (_chains[next].Point, _chains[chain].Point);
            if (Orientation.Sign(points[a], points[b], points[point]) != (lower ? 1 : -1))
            {
                break;
            }

            AddTriangle(a, b, point, lower);
            chain = next;
        }

        return chain;
    }

    private void Fan(int chain, int point, bool onLower)
    {
        for (int next = _chains[chain].Next; next != None; next = _chains[chain].Next)
        {
            AddTriangle(_chains[next].Point, _chains[chain].Point, point, onLower);
            chain = next;
        }
    }

    private void AddTriangle(int a, int b, int c, bool counterclockwise) =>
        Triangles.AddRange(counterclockwise ? [a, b, c] : [a, c, b]);

    /// <summary>The polygon that grows in a region; two of them after a point has joined two regions.</summary>
    private record struct Region(int Lower, int Upper = None);

    /// <summary>The corners that are not cut off yet, the last one first; all but the first lie on one chain.</summary>
    private readonly record struct Polygon(int Chain, bool OnLower);
}
