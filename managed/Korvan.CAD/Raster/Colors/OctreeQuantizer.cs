using System;
using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Octree quantization: merges colours in a tree by their leading bits, the rarest and deepest
/// first.</summary>
internal static class OctreeQuantizer
{
    private const int Depth = 7;

    internal static int[] Choose(KeyValuePair<int, long>[] colors, int maxColors)
    {
        var root = new Node();
        var levels = new List<Node>[Depth + 1];
        for (int i = 0; i <= Depth; i++)
        {
            levels[i] = [];
        }

        foreach ((int color, long count) in colors)
        {
            Insert(root, color, count, levels);
        }

        int leaves = levels[Depth].Count;
        for (int level = Depth - 1; level >= 0 && leaves > maxColors; level--)
        {
            levels[level].Sort(static (a, b) => a.Count.CompareTo(b.Count));
            foreach (Node node in levels[level])
            {
                if (leaves <= maxColors)
                {
                    break;
                }

                leaves -= node.Merge() - 1;
            }
        }

        List<Node> chosen = [];
        Collect(root, chosen);
        Join(chosen, maxColors);
        int[] means = [.. chosen.ConvertAll(static node => node.Mean())];
        Array.Sort(means);
        return means;
    }

    private static void Insert(Node root, int color, long count, List<Node>[] levels)
    {
        Node node = root;
        node.Add(color, count);
        for (int level = 0; level <= Depth; level++)
        {
            int bit = 7 - level;
            int index = (((color >> (16 + bit)) & 1) << 2) | (((color >> (8 + bit)) & 1) << 1) | ((color >> bit) & 1);
            ref Node? child = ref node.Children[index];
            if (child == null)
            {
                child = new Node();
                levels[level].Add(child);
            }

            node = child;
            node.Add(color, count);
        }
    }

    // The first level has eight branches; for fewer colours the rarest is merged with its nearest.
    private static void Join(List<Node> chosen, int maxColors)
    {
        while (chosen.Count > maxColors)
        {
            chosen.Sort(static (a, b) => a.Count.CompareTo(b.Count));
            Node rarest = chosen[0];
            chosen.RemoveAt(0);
            int color = rarest.Mean();
            Node? nearest =
                chosen.MinBy(node => PaletteLookup.Distance(color, node.Mean(), ColorCompareMethod.Euclidean));
            nearest!.Absorb(rarest);
        }
    }

    private static void Collect(Node node, List<Node> chosen)
    {
        bool leaf = true;
        foreach (Node? child in node.Children)
        {
            if (child != null)
            {
                leaf = false;
                Collect(child, chosen);
            }
        }

        if (leaf)
        {
            chosen.Add(node);
        }
    }

    private sealed class Node
    {
        private readonly long[] _sums = new long[4];

        internal Node?[] Children { get; } = new Node?[8];

        internal long Count { get; private set; }

        internal void Add(int color, long count)
        {
            for (int i = 0; i < 4; i++)
            {
                _sums[i] += ((color >> (8 * i)) & 255) * count;
            }

            Count += count;
        }

        internal void Absorb(Node other)
        {
            for (int i = 0; i < 4; i++)
            {
                _sums[i] += other._sums[i];
            }

            Count += other.Count;
        }

        /// <summary>Merges the children, which are leaves, into this node; returns how many there were.</summary>
        internal int Merge()
        {
            int under = 0;
            foreach (Node? child in Children)
            {
                under += child == null ? 0 : 1;
            }

            Array.Clear(Children);
            return under;
        }

        internal int Mean()
        {
            int mean = 0;
            for (int i = 0; i < 4; i++)
            {
                mean |= (int)((_sums[i] + (Count / 2)) / Count) << (8 * i);
            }

            return mean;
        }
    }
}
