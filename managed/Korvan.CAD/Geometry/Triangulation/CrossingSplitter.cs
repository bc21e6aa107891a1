using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// Splits edges where they cross or touch (J. L. Bentley and T. A. Ottmann, Algorithms for reporting and counting
/// geometric intersections, 1979). Crossings are rounded to a grid, and an edge that runs past a point more closely
/// than
/// that is drawn to it: edges that nearly coincide become one. What rounding hides from this sweep is found when the
/// split edges are swept once more.
/// </summary>
internal sealed class CrossingSplitter
{
    /// <summary>Past this many crossings the input is not split: it is no outline of anything.</summary>
    internal const int MaxSplits = 1_000_000;

    private const int None = SweepStatus.None;
    private const int PointsPerStep = 2;

    // Four digits of a number are left below the grid.
    private const int GridDigits = 48;

    private readonly PlanarGraph _graph;
    private readonly double _grid;
    private readonly SweepStatus _status;
    private readonly PriorityQueue<int, Vec2> _events = new(Comparer<Vec2>.Create(Orientation.Compare));
    private readonly List<List<int>?> _edgesAt = [];
    private readonly List<(int Edge, int Point)> _missed = [];
    private readonly List<int> _starts = [];
    private int _splits;
    private int _visits;

    private CrossingSplitter(PlanarGraph graph)
    {
        _graph = graph;
        _status = new SweepStatus(graph);
        double farthest = double.Epsilon;
        foreach (Vec2 p in graph.Points)
        {
            farthest = Math.Max(farthest, Math.Max(Math.Abs(p.X), Math.Abs(p.Y)));
        }

        _grid = Math.ScaleB(1, Math.ILogB(farthest) - GridDigits);
        for (int i = 0; i < graph.Edges.Length; i++)
        {
            Register(graph.Edges[i].Left, i);
            Register(graph.Edges[i].Right, i);
        }
    }

    /// <summary>Splits the edges of a graph. False when there are too many crossings.</summary>
    internal static bool TrySplit(PlanarGraph graph)
    {
        var splitter = new CrossingSplitter(graph);
        while (splitter._splits <= MaxSplits && splitter._events.TryDequeue(out int point, out _))
        {
            Workload.Count(ref splitter._visits, PointsPerStep);
            splitter.Visit(point);
        }

        splitter.SplitMissed();
        return splitter._splits <= MaxSplits;
    }

    private void Register(int point, int edge)
    {
        while (_edgesAt.Count <= point)
        {
            _edgesAt.Add(null);
        }

        if (_edgesAt[point] is not { } edges)
        {
            _edgesAt[point] = edges = [];
            _events.Enqueue(point, _graph.Points[point]);
        }

        edges.Add(edge);
    }

    private void Visit(int point)
    {
        List<int> edges = _edgesAt[point]!;
        foreach (int edge in edges)
        {
            if (_status.Contains(edge) && _graph.Edges[edge].Right == point)
            {
                _status.Remove(edge);
            }
        }

        int below = FindBelow(point, out int touched);
        while (touched != None)
        {
            _status.Remove(touched);
            Split(touched, point);
            below = FindBelow(point, out touched);
        }

        _starts.Clear();
        _starts.AddRange(edges.FindAll(edge => _graph.Edges[edge].Left == point));
        _starts.Sort((a, b) => a == b ? 0 : _graph.Side(b, _graph.Edges[a].Right));
        int above = _status.Above(below);
        foreach (int edge in _starts)
        {
            _status.InsertAbove(below, edge);
            below = edge;
        }

        CheckNeighbours(point, above);
    }

    private int FindBelow(int point, out int touched)
    {
        int below = _status.FindBelow(point, out touched);
        if (touched == None)
        {
            int above = _status.Above(below);
            touched = IsNear(below, point) ? below : IsNear(above, point) ? above : None;
        }

        return below;
    }

    private bool IsNear(int edge, int point)
    {
        if (edge == None || !IsWithin(_graph.Edges[edge], point))
        {
            return false;
        }

        GraphEdge e = _graph.Edges[edge];
        Vec2 along = _graph.Points[e.Right] - _graph.Points[e.Left];
        Vec2 way = _graph.Points[point] - _graph.Points[e.Left];
        return Math.Abs(Vec2.Cross(along, way)) <= _grid * along.Length;
    }

    private bool IsWithin(in GraphEdge edge, int point) =>
        _graph.Compare(edge.Left, point) < 0 && _graph.Compare(point, edge.Right) < 0;

    private void CheckNeighbours(int point, int above)
    {
        int below = _starts.Count > 0 ? _status.Below(_starts[0]) : above == None ? None : _status.Below(above);
        foreach (int edge in _starts)
        {
            Check(below, edge, point);
            below = edge;
        }

        Check(below, above, point);
    }

    private void Check(int below, int above, int point)
    {
        if (below == None || above == None)
        {
            return;
        }

        (GraphEdge low, GraphEdge high) = (_graph.Edges[below], _graph.Edges[above]);
        int lowRight = _graph.Side(above, low.Right);
        int highRight = _graph.Side(below, high.Right);
        bool lowFirst = _graph.Compare(low.Right, high.Right) < 0;
        if (low.Right == high.Right)
        {
            return;
        }

        if (lowFirst && lowRight == 0)
        {
            Split(above, low.Right);
        }
        else if (!lowFirst && highRight == 0)
        {
            Split(below, high.Right);
        }
        else if (lowRight * _graph.Side(above, low.Left) < 0 && highRight * _graph.Side(below, high.Left) < 0)
        {
            SplitBoth(below, above, Crossing(low, high), point);
        }
    }

    /// <summary>The point where two edges cross, rounded, within what of the sweep both of them see.</summary>
    private int Crossing(in GraphEdge a, in GraphEdge b)
    {
        ReadOnlySpan<Vec2> points = _graph.Points;
        int first = _graph.Compare(a.Left, b.Left) < 0 ? b.Left : a.Left;
        int last = _graph.Compare(a.Right, b.Right) < 0 ? a.Right : b.Right;
        Vec2 along = points[a.Right] - points[a.Left];
        Vec2 other = points[b.Right] - points[b.Left];
        double share = Vec2.Cross(points[b.Left] - points[a.Left], other) / Vec2.Cross(along, other);
        Vec2 at = points[a.Left] + (along * (double.IsFinite(share) ? Math.Clamp(share, 0, 1) : 0.5));
        at = new Vec2(Math.Round(at.X / _grid) * _grid, Math.Round(at.Y / _grid) * _grid);
        return Orientation.Compare(at, points[first]) <= 0 ? first
            : Orientation.Compare(at, points[last]) >= 0 ? last
            : _graph.Place(at);
    }

    private void SplitBoth(int below, int above, int crossing, int point)
    {
        if (_graph.Compare(crossing, point) > 0)
        {
            Split(below, crossing);
            Split(above, crossing);
            return;
        }

        // The sweep is past it already, by rounding.
        _splits++;
        _missed.Add((below, crossing));
        _missed.Add((above, crossing));
    }

    private void Split(int edge, int point)
    {
        GraphEdge whole = _graph.Edges[edge];
        if (!IsWithin(whole, point))
        {
            return;
        }

        _splits++;
        _graph.Edges[edge].Right = point;
        int rest = _graph.Add(whole with { Left = point });
        Register(point, edge);
        Register(point, rest);
        Register(whole.Right, rest);
    }

    private void SplitMissed()
    {
        foreach ((int edge, int point) in _missed)
        {
            Split(edge, point);
        }
    }
}
