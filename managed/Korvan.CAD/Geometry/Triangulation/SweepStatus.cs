using System;

namespace Korvan.CAD.Geometry.Triangulation;

/// <summary>
/// The edges that a sweep line crosses, from the lowest to the highest: a treap (R. Seidel and C. R. Aragon, Randomized
/// search trees, 1996), threaded in order.
/// </summary>
internal sealed class SweepStatus(PlanarGraph graph)
{
    internal const int None = -1;

    private Node[] _nodes = new Node[Math.Max(16, graph.Edges.Length)];
    private int _root = None;
    private int _lowest = None;
    private uint _random = 2463534242;

    /// <summary>Gets how often a point was compared with an edge.</summary>
    internal long Comparisons { get; private set; }

    internal bool Contains(int edge) => edge < _nodes.Length && _nodes[edge].IsActive;

    /// <summary>The edge above another one, or the lowest of all.</summary>
    internal int Above(int edge) => edge == None ? _lowest : _nodes[edge].Next;

    internal int Below(int edge) => _nodes[edge].Previous;

    /// <summary>The highest edge that lies below a point; <paramref name="touched"/> is one that runs through
    /// it.</summary>
    internal int FindBelow(int point, out int touched)
    {
        int below = None;
        int at = _root;
        touched = None;
        while (at != None)
        {
            Comparisons++;
            int side = graph.Side(at, point);
            if (side == 0)
            {
                touched = at;
                return None;
            }

            if (side > 0)
            {
                below = at;
            }

            at = side > 0 ? _nodes[at].Right : _nodes[at].Left;
        }

        return below;
    }

    /// <summary>Puts an edge right above another one, or below all.</summary>
    internal void InsertAbove(int below, int edge)
    {
        if (edge >= _nodes.Length)
        {
            Array.Resize(ref _nodes, Math.Max(edge + 1, _nodes.Length * 2));
        }

        int above = Above(below);
        _nodes[edge] = new Node
        {
            IsActive = true,
            Left = None,
            Right = None,
            Previous = below,
            Next = above,
            Priority = NextRandom(),
        };
        Hang(edge, below, above);
        Thread(below, edge);
        Thread(edge, above);
        while (_nodes[edge].Parent != None && _nodes[_nodes[edge].Parent].Priority < _nodes[edge].Priority)
        {
            RotateUp(edge);
        }
    }

    internal void Remove(int edge)
    {
        ref Node node = ref _nodes[edge];
        while (node.Left != None || node.Right != None)
        {
            bool left = node.Right == None
                || (node.Left != None && _nodes[node.Left].Priority > _nodes[node.Right].Priority);
            RotateUp(left ? node.Left : node.Right);
        }

        Replace(node.Parent, edge, None);
        Thread(node.Previous, node.Next);
        node.IsActive = false;
    }

    // One of both neighbours has no child on the side of the other.
    private void Hang(int edge, int below, int above)
    {
        bool right = below != None && _nodes[below].Right == None;
        int parent = right ? below : above;
        _nodes[edge].Parent = parent;
        if (parent == None)
        {
            _root = edge;
        }
        else if (right)
        {
            _nodes[parent].Right = edge;
        }
        else
        {
            _nodes[parent].Left = edge;
        }
    }

    private void Thread(int below, int above)
    {
        if (below == None)
        {
            _lowest = above;
        }
        else
        {
            _nodes[below].Next = above;
        }

        if (above != None)
        {
            _nodes[above].Previous = below;
        }
    }

    private void RotateUp(int edge)
    {
        int parent = _nodes[edge].Parent;
        int inner;
        if (_nodes[parent].Left == edge)
        {
            inner = _nodes[edge].Right;
            _nodes[parent].Left = inner;
            _nodes[edge].Right = parent;
        }
        else
        {
            inner = _nodes[edge].Left;
            _nodes[parent].Right = inner;
            _nodes[edge].Left = parent;
        }

        if (inner != None)
        {
            _nodes[inner].Parent = parent;
        }

        Replace(_nodes[parent].Parent, parent, edge);
        _nodes[edge].Parent = _nodes[parent].Parent;
        _nodes[parent].Parent = edge;
    }

    private void Replace(int parent, int child, int by)
    {
        if (parent == None)
        {
            _root = by;
        }
        else if (_nodes[parent].Left == child)
        {
            _nodes[parent].Left = by;
        }
        else
        {
            _nodes[parent].Right = by;
        }
    }

    // G. Marsaglia, Xorshift RNGs, 2003.
    private uint NextRandom()
    {
        _random ^= _random << 13;
        _random ^= _random >> 17;
        _random ^= _random << 5;
        return _random;
    }

    private struct Node
    {
        internal int Left;
        internal int Right;
        internal int Parent;
        internal int Previous;
        internal int Next;
        internal uint Priority;
        internal bool IsActive;
    }
}
