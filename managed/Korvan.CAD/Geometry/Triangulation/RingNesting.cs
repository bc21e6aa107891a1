using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// How many rings lie around each of many, in O(n log n) for n corners. A ring that crosses others lies where most of
/// its
/// length does.
/// </summary>
internal sealed class RingNesting : RegionSweep
{
    /// <summary>Depths from here on are not told apart.</summary>
    internal const int MaxDepth = 2;

    private readonly double[,] _lengths;

    private RingNesting(PlanarGraph graph, int rings)
        : base(graph) => _lengths = new double[rings, MaxDepth + 1];

    /// <summary>The depth of each ring; nothing where rings cross too often, or are not finite.</summary>
    internal static int[]? TryDepths(IReadOnlyList<Vec2[]> rings)
    {
        var counterclockwise = new Vec2[rings.Count][];
        for (int i = 0; i < rings.Count; i++)
        {
            double area = Polygons.SignedArea(rings[i]);
            if (!double.IsFinite(area))
            {
                return null;
            }

            counterclockwise[i] = [.. rings[i]];
            if (area < 0)
            {
                Array.Reverse(counterclockwise[i]);
            }
        }

        // Rings run one way round, so that the winding number of a region counts the rings around it.
        var graph = new PlanarGraph(counterclockwise);
        RingNesting? sweep = PolygonTriangulator.Sweep(
            graph, FillRule.NonZero, () => new RingNesting(graph, rings.Count));
        return sweep?.Depths();
    }

    protected override void Visit(int point, int below, int low, int high, ReadOnlySpan<int> starts)
    {
        foreach (int start in starts)
        {
            GraphEdge edge = Graph.Edges[start];
            if (edge.Ring != PlanarGraph.SeveralRings)
            {
                int depth = WindingAbove(start) - Math.Max(0, edge.Winding);
                double length = (Graph.Points[edge.Right] - Graph.Points[edge.Left]).Length;
                _lengths[edge.Ring, Math.Clamp(depth, 0, MaxDepth)] += length;
            }
        }
    }

    private int[] Depths()
    {
        int[] depths = new int[_lengths.GetLength(0)];
        for (int ring = 0; ring < depths.Length; ring++)
        {
            for (int depth = 1; depth <= MaxDepth; depth++)
            {
                depths[ring] = _lengths[ring, depth] > _lengths[ring, depths[ring]] ? depth : depths[ring];
            }
        }

        return depths;
    }
}
