using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// An edge from its left to its right point. <paramref name="Winding"/> is what the winding number rises by from below
/// the edge to above it; <paramref name="Ring"/> is the ring that it belongs to, or -1 for several; and
/// <paramref name="Source"/> is the input corner where the input edge begins of which this is a part.
/// </summary>
internal record struct GraphEdge(int Left, int Right, int Winding, int Ring, int Source);

/// <summary>The edges of rings, between points of which no two lie at the same place.</summary>
internal sealed class PlanarGraph
{
    internal const int SeveralRings = -1;

    private readonly List<Vec2> _points = [];
    private readonly List<GraphEdge> _edges = [];
    private readonly Dictionary<Vec2, int> _places = [];

    internal PlanarGraph(IReadOnlyList<Vec2[]> rings)
    {
        int source = 0;
        for (int ring = 0; ring < rings.Count; ring++)
        {
            Vec2[] corners = rings[ring];
            for (int i = 0; i < corners.Length; i++)
            {
                AddRingEdge(Place(corners[i]), Place(corners[(i + 1) % corners.Length]), ring, source + i);
            }

            source += corners.Length;
        }
    }

    internal ReadOnlySpan<Vec2> Points => CollectionsMarshal.AsSpan(_points);

    /// <summary>Gets the edges; adding one ends the life of the span.</summary>
    internal Span<GraphEdge> Edges => CollectionsMarshal.AsSpan(_edges);

    /// <summary>The point at a place, which is new where there was none.</summary>
    internal int Place(Vec2 at)
    {
        ref int place = ref CollectionsMarshal.GetValueRefOrAddDefault(_places, at, out bool known);
        if (!known)
        {
            place = _points.Count;
            _points.Add(at);
        }

        return place;
    }

    internal bool IsPlace(Vec2 at) => _places.ContainsKey(at);

    internal int Add(GraphEdge edge)
    {
        _edges.Add(edge);
        return _edges.Count - 1;
    }

    /// <summary>1 where the point lies above an edge or left of one that rises straight, -1 below, 0 on its
    /// line.</summary>
    internal int Side(int edge, int point)
    {
        GraphEdge e = _edges[edge];
        return Orientation.Sign(_points[e.Left], _points[e.Right], _points[point]);
    }

    /// <summary>Where the point comes in the sweep, beside another one.</summary>
    internal int Compare(int a, int b) => Orientation.Compare(_points[a], _points[b]);

    /// <summary>Makes one edge of those between the same points, and drops what bounds nothing under the
    /// rule.</summary>
    internal void Merge(FillRule rule)
    {
        Dictionary<(int, int), int> kept = [];
        Span<GraphEdge> edges = Edges;
        int count = 0;
        for (int i = 0; i < edges.Length; i++)
        {
            ref int place = ref CollectionsMarshal.GetValueRefOrAddDefault(
                kept, (edges[i].Left, edges[i].Right), out bool known);
            if (!known)
            {
                place = count;
                edges[count++] = edges[i];
                continue;
            }

            ref GraphEdge same = ref edges[place];
            same.Winding += edges[i].Winding;
            same.Ring = same.Ring == edges[i].Ring ? same.Ring : SeveralRings;
        }

        _edges.RemoveRange(count, _edges.Count - count);
        _edges.RemoveAll(e => rule == FillRule.EvenOdd ? e.Winding % 2 == 0 : e.Winding == 0);
    }

    private void AddRingEdge(int from, int to, int ring, int source)
    {
        int order = Compare(from, to);
        if (order != 0)
        {
            _edges.Add(order < 0 ? new(from, to, 1, ring, source) : new(to, from, -1, ring, source));
        }
    }
}
