using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Decompresses pages of release 2004 and of 2010 and later. Source: Open Design Specification for .dwg files,
/// 5.4.1, chapter 4.7.</summary>
internal static class Lz77
{
    /// <summary>No byte of input stands for more bytes than this.</summary>
    internal const int MaxRatio = 256;

    private const int EndOfData = 0x11;
    private const int FarOffset = 0x3FFF;
    private const int TooFar = int.MaxValue / 2; // the distance of a match that the input cuts
    private const int Run = 16; // the length of the copies that short matches and literals are made with

    /// <summary>Decompresses a page.</summary>
    /// <param name="source">The compressed bytes.</param>
    /// <param name="target">Where the page goes; what it does not fill stays as it is.</param>
    /// <returns>The number of bytes that were decompressed; -1 if the input is damaged, or longer than the
    /// target.</returns>
    internal static int Decompress(ReadOnlySpan<byte> source, Span<byte> target)
    {
        int from = 0;
        int to = 0;
        int literals = LiteralLength(source, ref from);
        while (true)
        {
            if ((uint)literals > (uint)(source.Length - from) || literals > target.Length - to)
            {
                return -1;
            }

            CopyLiterals(source, from, target, to, literals);
            from += literals;
            to += literals;
            if (from >= source.Length)
            {
                return to;
            }

            int opcode = source[from++];
            if (opcode == EndOfData)
            {
                return to;
            }

            if (!ReadMatch(source, ref from, opcode, out int length, out int distance, out literals)
                || distance > to || length > target.Length - to)
            {
                return -1;
            }

            CopyMatch(target, to, distance, length);
            to += length;
        }
    }

    private static bool ReadMatch(
        ReadOnlySpan<byte> source, ref int from, int opcode, out int length, out int distance, out int literals)
    {
        distance = 1;
        if (opcode >= 0x40)
        {
            length = (opcode >> 4) - 1;
            distance += from < source.Length ? (source[from++] << 2) | ((opcode & 0x0C) >> 2) : TooFar;
            literals = opcode & 3;
        }
        else if (opcode >= 0x20)
        {
            length = opcode == 0x20 ? LongLength(source, ref from) + 0x21 : opcode - 0x1E;
            distance += TwoByteOffset(source, ref from, out literals);
        }
        else if (opcode >= 0x10)
        {
            length = opcode == 0x10 ? LongLength(source, ref from) + 9 : (opcode & 0x0F) + 2;
            distance += TwoByteOffset(source, ref from, out literals) + FarOffset;
        }
        else
        {
            length = literals = 0;
            return false;
        }

        literals = literals == 0 ? LiteralLength(source, ref from) : literals;
        return length > 0;
    }

    private static int TwoByteOffset(ReadOnlySpan<byte> source, ref int from, out int literals)
    {
        if (from + 2 > source.Length)
        {
            literals = 0;
            return TooFar;
        }

        int first = source[from++];
        literals = first & 3;
        return (first >> 2) | (source[from++] << 6);
    }

    // A byte with any of the upper four bits set is not a length, but the next opcode.
    private static int LiteralLength(ReadOnlySpan<byte> source, ref int from)
    {
        if (from >= source.Length || (source[from] & 0xF0) != 0)
        {
            return 0;
        }

        int length = source[from++];
        return (length == 0 ? 0x0F + TailLength(source, ref from) : length) + 3;
    }

    private static int LongLength(ReadOnlySpan<byte> source, ref int from)
    {
        int first = from < source.Length ? source[from++] : 0;
        return first == 0 ? 0xFF + TailLength(source, ref from) : first;
    }

    // Each zero adds 255; the input ends before the sum can overflow.
    private static int TailLength(ReadOnlySpan<byte> source, ref int from)
    {
        long sum = 0;
        while (from < source.Length && source[from] == 0)
        {
            sum += 0xFF;
            from++;
        }

        sum += from < source.Length ? source[from++] : 0;
        return (int)Math.Min(sum, int.MaxValue / 2);
    }

    private static void CopyLiterals(ReadOnlySpan<byte> source, int from, Span<byte> target, int to, int length)
    {
        // A copy of fixed length is faster; what it writes beyond the literals is written again.
        if (length <= Run && from + Run <= source.Length && to + Run <= target.Length)
        {
            source.Slice(from, Run).CopyTo(target[to..]);
            return;
        }

        source.Slice(from, length).CopyTo(target[to..]);
    }

    private static void CopyMatch(Span<byte> target, int to, int distance, int length)
    {
        if (distance >= Run && length <= Run && to + Run <= target.Length)
        {
            target.Slice(to - distance, Run).CopyTo(target[to..]);
        }
        else if (distance >= length)
        {
            target.Slice(to - distance, length).CopyTo(target[to..]);
        }
        else if (distance == 1)
        {
            target.Slice(to, length).Fill(target[to - 1]);
        }
        else
        {
            for (int i = to; i < to + length; i++)
            {
                target[i] = target[i - distance];
            }
        }
    }
}
