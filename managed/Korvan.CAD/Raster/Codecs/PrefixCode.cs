using System;
using System.Collections.Generic;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>A canonical prefix code of symbols, by how often each occurs (RFC 9649, section 3.7.2).</summary>
internal sealed class PrefixCode
{
    /// <summary>The most bits of a symbol.</summary>
    internal const int MaxLength = 15;

    private PrefixCode(byte[] lengths)
    {
        Lengths = lengths;
        Bits = Assign(lengths);
    }

    /// <summary>Gets how many bits each symbol has; 0 for one that does not occur.</summary>
    internal byte[] Lengths { get; }

    /// <summary>Gets the bits of each symbol, the first one lowest.</summary>
    internal ushort[] Bits { get; }

    /// <summary>Makes the code. A symbol that is the only one has no bits.</summary>
    internal static PrefixCode Of(ReadOnlySpan<long> counts, int maxLength = MaxLength)
    {
        for (long least = 1; ; least *= 2)
        {
            byte[] lengths = TreeDepths(counts, least, out int deepest);
            if (deepest <= maxLength)
            {
                return new PrefixCode(lengths);
            }
        }
    }

    // Counts below the least are taken as that, which makes the tree flatter.
    private static byte[] TreeDepths(ReadOnlySpan<long> counts, long least, out int deepest)
    {
        var queue = new PriorityQueue<int, (long Count, int Index)>();
        for (int i = 0; i < counts.Length; i++)
        {
            if (counts[i] > 0)
            {
                queue.Enqueue(i, (Math.Max(counts[i], least), i));
            }
        }

        var parents = new int[counts.Length * 2];
        int next = counts.Length;
        while (queue.Count > 1)
        {
            queue.TryDequeue(out int a, out (long Count, int) first);
            queue.TryDequeue(out int b, out (long Count, int) second);
            (parents[a], parents[b]) = (next, next);
            queue.Enqueue(next, (first.Count + second.Count, next));
            next++;
        }

        var depths = new byte[counts.Length * 2];
        deepest = 0;
        for (int node = next - 2; node >= 0; node--)
        {
            if (parents[node] > 0)
            {
                depths[node] = (byte)Math.Min(depths[parents[node]] + 1, byte.MaxValue);
                deepest = Math.Max(deepest, depths[node]);
            }
        }

        return depths[..counts.Length];
    }

    private static ushort[] Assign(byte[] lengths)
    {
        var bits = new ushort[lengths.Length];
        int code = 0;
        for (int length = 1; length <= MaxLength; length++, code <<= 1)
        {
            for (int i = 0; i < lengths.Length; i++)
            {
                if (lengths[i] == length)
                {
                    bits[i] = Reverse(code++, length);
                }
            }
        }

        return bits;
    }

    private static ushort Reverse(int code, int length)
    {
        int reversed = 0;
        for (int i = 0; i < length; i++, code >>= 1)
        {
            reversed = (reversed << 1) | (code & 1);
        }

        return (ushort)reversed;
    }
}
