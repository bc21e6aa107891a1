using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// Sweeps the regions between edges from left to right, in O(n log n). Edges may meet at their ends only: neighbours
/// in the status are tested for it (M. I. Shamos and D. Hoey, Geometric intersection problems, 1976), so that the first
/// crossing ends the sweep.
/// </summary>
internal abstract class RegionSweep(PlanarGraph graph)
{
    private const int None = SweepStatus.None;
    private const int PointsPerStep = 4;

    private readonly SweepStatus _status = new(graph);
    private readonly int[] _windings = new int[graph.Edges.Length];
    private readonly int[] _starts = new int[graph.Edges.Length];
    private readonly int[] _firstStarts = new int[graph.Points.Length + 1];
    private readonly int[] _ends = new int[graph.Points.Length];

    /// <summary>Gets how often a point was compared with an edge.</summary>
    internal long Comparisons => _status.Comparisons;

    protected PlanarGraph Graph => graph;

    /// <summary>Sweeps all points. False where edges cross, touch or overlap each other.</summary>
    internal bool TryRun()
    {
        SortEdges();
        int visits = 0;
        foreach (int point in SortedPoints())
        {
            Workload.Count(ref visits, PointsPerStep);
            if (!TryVisit(point))
            {
                return false;
            }
        }

        return true;
    }

    /// <summary>What a point changes: the regions to its left, then those to its right.</summary>
    /// <param name="point">The point.</param>
    /// <param name="below">The edge below the point.</param>
    /// <param name="low">The lowest of the edges that end here.</param>
    /// <param name="high">The highest of them.</param>
    /// <param name="starts">Edges that start here, from the lowest on.</param>
    protected abstract void Visit(int point, int below, int low, int high, ReadOnlySpan<int> starts);

    /// <summary>The winding number of the region above an edge.</summary>
    protected int WindingAbove(int edge) => edge == None ? 0 : _windings[edge];

    protected int Above(int edge) => _status.Above(edge);

    private void SortEdges()
    {
        Span<GraphEdge> edges = graph.Edges;
        Array.Fill(_ends, None);
        for (int i = 0; i < edges.Length; i++)
        {
            _firstStarts[edges[i].Left + 1]++;
            _ends[edges[i].Right] = i;
        }

        for (int i = 1; i < _firstStarts.Length; i++)
        {
            _firstStarts[i] += _firstStarts[i - 1];
        }

        int[] next = _firstStarts[..^1];
        for (int i = 0; i < edges.Length; i++)
        {
            _starts[next[edges[i].Left]++] = i;
        }
    }

    private List<int> SortedPoints()
    {
        List<int> points = [];
        for (int i = 0; i < _ends.Length; i++)
        {
            if (_ends[i] != None || _firstStarts[i] < _firstStarts[i + 1])
            {
                points.Add(i);
            }
        }

        points.Sort(graph.Compare);
        return points;
    }

    private bool TryVisit(int point)
    {
        Span<int> starts = _starts.AsSpan(_firstStarts[point].._firstStarts[point + 1]);
        int low = _ends[point];
        int high = low;
        int below;
        if (low == None)
        {
            below = _status.FindBelow(point, out int touched);
            if (touched != None)
            {
                return false;
            }
        }
        else
        {
            below = Widen(point, ref low, ref high);
        }

        if (!TrySort(starts))
        {
            return false;
        }

        int above = high == None ? _status.Above(below) : _status.Above(high);
        SetWindings(below, starts);
        Visit(point, below, low, high, starts);
        Exchange(below, above, starts);
        return starts.Length == 0 ? AreApart(below, above) : AreApart(below, starts[0]) && AreApart(starts[^1], above);
    }

    /// <summary>Finds all edges that end at the point, from one of them; gives the edge below.</summary>
    private int Widen(int point, ref int low, ref int high)
    {
        int below = _status.Below(low);
        while (below != None && graph.Edges[below].Right == point)
        {
            low = below;
            below = _status.Below(low);
        }

        int above = _status.Above(high);
        while (above != None && graph.Edges[above].Right == point)
        {
            high = above;
            above = _status.Above(high);
        }

        return below;
    }

    /// <summary>Sorts edges that start at one point from the lowest on; false where two of them overlap.</summary>
    private bool TrySort(Span<int> starts)
    {
        if (starts.Length < 2)
        {
            return true;
        }

        starts.Sort((a, b) => a == b ? 0 : graph.Side(b, graph.Edges[a].Right));
        for (int i = 1; i < starts.Length; i++)
        {
            if (graph.Side(starts[i - 1], graph.Edges[starts[i]].Right) <= 0)
            {
                return false;
            }
        }

        return true;
    }

    private void SetWindings(int below, ReadOnlySpan<int> starts)
    {
        int winding = WindingAbove(below);
        foreach (int edge in starts)
        {
            winding += graph.Edges[edge].Winding;
            _windings[edge] = winding;
        }
    }

    private void Exchange(int below, int above, ReadOnlySpan<int> starts)
    {
        for (int edge = _status.Above(below); edge != above; edge = _status.Above(below))
        {
            _status.Remove(edge);
        }

        foreach (int edge in starts)
        {
            _status.InsertAbove(below, edge);
            below = edge;
        }
    }

    /// <summary>Whether two neighbours keep their order until the first of them ends.</summary>
    private bool AreApart(int below, int above)
    {
        if (below == None || above == None)
        {
            return true;
        }

        (int low, int high) = (graph.Edges[below].Right, graph.Edges[above].Right);
        return low == high
            || (graph.Compare(low, high) < 0 ? graph.Side(above, low) < 0 : graph.Side(below, high) > 0);
    }
}
