using System;
using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>What of a plane lies inside of rings.</summary>
internal enum FillRule
{
    /// <summary>Whatever an odd number of edges separates from outside.</summary>
    EvenOdd,

    /// <summary>Whatever the rings run around, more often one way than the other.</summary>
    NonZero,
}

/// <summary>A point where input edges cross or touch: a share of the way from one input corner to another.</summary>
internal readonly record struct AddedPoint(Vec2 At, int From, int To, double Share);

/// <summary>
/// Triangles of polygons, counterclockwise. Corners count through the rings in order; those behind the last of them are
/// <paramref name="Added"/>. Of corners at one place the first stands for all.
/// </summary>
internal sealed record TriangulatedPolygon(int[] Triangles, AddedPoint[] Added, long Comparisons);

/// <summary>
/// Triangulates polygons with holes, in O(n log n) for n corners and in O((n + k) log n) for k crossings. Rings may
/// touch,
/// overlap and cross each other and themselves, run either way, and repeat corners.
/// </summary>
internal static class PolygonTriangulator
{
    // Each round splits what rounding has moved in the one before; all but the worst tangles take one or two.
    private const int MaxRounds = 100;
    private const long MaxEdgesSwept = 10_000_000;

    /// <summary>Triangulates; nothing where a corner is not finite, or where rings cross too often to be
    /// split.</summary>
    internal static TriangulatedPolygon? TryTriangulate(IReadOnlyList<Vec2[]> rings, FillRule rule)
    {
        if (rings.Any(ring => ring.Any(p => !double.IsFinite(p.X) || !double.IsFinite(p.Y))))
        {
            return null;
        }

        var graph = new PlanarGraph(rings);
        MonotoneTriangulation? sweep = Sweep(graph, rule, () => new MonotoneTriangulation(graph, rule));
        return sweep is null ? null : Numbered(graph, sweep, rings);
    }

    /// <summary>Sweeps the regions of a graph once its edges meet at their ends only.</summary>
    internal static T? Sweep<T>(PlanarGraph graph, FillRule rule, Func<T> create)
        where T : RegionSweep
    {
        long swept = 0;
        for (int round = 0; round < MaxRounds && swept <= MaxEdgesSwept; round++)
        {
            graph.Merge(rule);
            swept += round == 0 ? 0 : graph.Edges.Length;
            T sweep = create();
            if (sweep.TryRun())
            {
                return sweep;
            }

            if (!CrossingSplitter.TrySplit(graph))
            {
                return null;
            }
        }

        return null;
    }

    /// <summary>Counts corners as the input does.</summary>
    private static TriangulatedPolygon Numbered(
        PlanarGraph graph, MonotoneTriangulation sweep, IReadOnlyList<Vec2[]> rings)
    {
        var corners = new int[graph.Points.Length];
        Array.Fill(corners, -1);
        int count = 0;
        foreach (Vec2 corner in rings.SelectMany(ring => ring))
        {
            ref int known = ref corners[graph.Place(corner)];
            known = known < 0 ? count : known;
            count++;
        }

        AddedPoint[] added = Added(graph, rings, corners, count);
        int[] triangles = [.. sweep.Triangles.Select(point => corners[point])];
        return new TriangulatedPolygon(triangles, added, sweep.Comparisons);
    }

    private static AddedPoint[] Added(PlanarGraph graph, IReadOnlyList<Vec2[]> rings, int[] corners, int count)
    {
        if (Array.IndexOf(corners, -1) < 0)
        {
            return [];
        }

        (Vec2 At, int Next)[] input = Input(rings);
        List<AddedPoint> added = [];
        foreach (GraphEdge edge in graph.Edges)
        {
            foreach (int point in (ReadOnlySpan<int>)[edge.Left, edge.Right])
            {
                if (corners[point] < 0)
                {
                    corners[point] = count + added.Count;
                    added.Add(OnEdge(graph.Points[point], input, edge.Source));
                }
            }
        }

        return [.. added];
    }

    private static AddedPoint OnEdge(Vec2 at, (Vec2 At, int Next)[] input, int from)
    {
        int to = input[from].Next;
        Vec2 along = input[to].At - input[from].At;
        double share = Vec2.Dot(at - input[from].At, along) / Vec2.Dot(along, along);
        return new AddedPoint(at, from, to, double.IsFinite(share) ? Math.Clamp(share, 0, 1) : 0);
    }

    private static (Vec2 At, int Next)[] Input(IReadOnlyList<Vec2[]> rings)
    {
        var input = new (Vec2, int)[rings.Sum(ring => ring.Length)];
        int first = 0;
        foreach (Vec2[] ring in rings)
        {
            for (int i = 0; i < ring.Length; i++)
            {
                input[first + i] = (ring[i], first + ((i + 1) % ring.Length));
            }

            first += ring.Length;
        }

        return input;
    }
}
