using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>Decompresses pages of release 2007, whose literals are stored in another order. Source: Open Design
/// Specification for .dwg files, 5.4.1, chapter 5.10.</summary>
internal static class PermutedLz77
{
    private const int MaxBlock = 32;

    // How blocks of each length are put together of parts: pairs of a length and an index.
    private static readonly int[][] Parts =
    [
        [], [1, 0], [1, 1, 1, 0], [1, 2, 1, 1, 1, 0], [4, 0], [1, 4, 4, 0], [1, 5, 4, 1, 1, 0], [2, 5, 4, 1, 1, 0],
        [8, 0], [1, 8, 8, 0], [1, 9, 8, 1, 1, 0], [2, 9, 8, 1, 1, 0], [4, 8, 8, 0], [1, 12, 4, 8, 8, 0],
        [1, 13, 4, 9, 8, 1, 1, 0], [2, 13, 4, 9, 8, 1, 1, 0], [8, 8, 8, 0], [8, 9, 1, 8, 8, 0], [1, 17, 16, 1, 1, 0],
        [3, 16, 16, 0], [4, 16, 16, 0], [1, 20, 4, 16, 16, 0], [2, 20, 4, 16, 16, 0], [3, 20, 4, 16, 16, 0],
        [8, 16, 16, 0], [8, 17, 1, 16, 16, 0], [1, 25, 8, 17, 1, 16, 16, 0], [2, 25, 8, 17, 1, 16, 16, 0],
        [4, 24, 8, 16, 16, 0], [1, 28, 4, 24, 8, 16, 16, 0], [2, 28, 4, 24, 8, 16, 16, 0],
        [1, 30, 4, 26, 8, 18, 16, 2, 2, 0], [16, 16, 16, 0],
    ];

    private static readonly byte[][] Orders = Array.ConvertAll(Parts, static parts => OrderOf(parts));

    /// <summary>Decompresses a page.</summary>
    /// <returns>The number of bytes that were decompressed; -1 if the input is damaged, or longer than the
    /// target.</returns>
    internal static int Decompress(ReadOnlySpan<byte> source, Span<byte> target)
    {
        if (source.IsEmpty)
        {
            return 0;
        }

        Input input = new(source);
        int to = 0;
        int opcode = input.Next();
        int literals = 0;
        if ((opcode & 0xF0) == 0x20)
        {
            input.Position += 2;
            literals = input.Next() & 7;
        }

        while (true)
        {
            literals = literals == 0 ? LiteralLength(ref input, opcode) : literals;
            if (literals > target.Length - to || literals > source.Length - input.Position)
            {
                return -1;
            }

            CopyLiterals(source.Slice(input.Position, literals), target[to..]);
            input.Position += literals;
            to += literals;
            if (input.Position >= source.Length)
            {
                return to;
            }

            opcode = input.Next();
            if (!CopyMatches(ref input, ref opcode, target, ref to, out literals) || input.Position > source.Length)
            {
                return -1;
            }

            if (input.Position >= source.Length)
            {
                return to;
            }
        }
    }

    // Matches follow each other until an opcode states literals.
    private static bool CopyMatches(ref Input input, ref int opcode, Span<byte> target, ref int to, out int literals)
    {
        literals = 0;
        while (true)
        {
            ReadMatch(ref input, ref opcode, out int length, out int distance);
            if (distance > to || distance <= 0 || length > target.Length - to)
            {
                return false;
            }

            CopyMatch(target, to, distance, length);
            to += length;
            literals = opcode & 7;
            if (literals != 0 || input.IsAtEnd)
            {
                return true;
            }

            opcode = input.Next();
            if (opcode >> 4 == 0)
            {
                return true;
            }

            opcode = opcode >> 4 == 15 ? opcode & 15 : opcode;
        }
    }

    private static void ReadMatch(ref Input input, ref int opcode, out int length, out int distance)
    {
        switch (opcode >> 4)
        {
            case 0:
                length = (opcode & 0xF) + 0x13;
                distance = input.Next();
                opcode = input.Next();
                length += (opcode >> 3) & 0x10;
                distance += ((opcode & 0x78) << 5) + 1;
                break;
            case 1:
                length = (opcode & 0xF) + 3;
                distance = input.Next();
                opcode = input.Next();
                distance += ((opcode & 0xF8) << 5) + 1;
                break;
            case 2:
                ReadLongMatch(ref input, ref opcode, out length, out distance);
                break;
            default:
                length = opcode >> 4;
                distance = opcode & 15;
                opcode = input.Next();
                distance += ((opcode & 0xF8) << 1) + 1;
                break;
        }
    }

    private static void ReadLongMatch(ref Input input, ref int opcode, out int length, out int distance)
    {
        distance = input.Next();
        distance |= input.Next() << 8;
        length = opcode & 7;
        if ((opcode & 8) == 0)
        {
            opcode = input.Next();
            length += opcode & 0xF8;
            return;
        }

        distance++;
        length += input.Next() << 3;
        opcode = input.Next();
        length += ((opcode & 0xF8) << 8) + 0x100;
    }

    private static int LiteralLength(ref Input input, int opcode)
    {
        long length = opcode + 8;
        if (length != 0x17)
        {
            return (int)length;
        }

        int more = input.Next();
        length += more;
        if (more == 0xFF)
        {
            do
            {
                more = input.Next();
                more |= input.Next() << 8;
                length += more;
            }
            while (more == 0xFFFF);
        }

        return (int)Math.Min(length, int.MaxValue);
    }

    private static void CopyLiterals(ReadOnlySpan<byte> source, Span<byte> target)
    {
        int at = 0;
        while (at < source.Length)
        {
            byte[] order = Orders[Math.Min(MaxBlock, source.Length - at)];
            ReadOnlySpan<byte> block = source.Slice(at, order.Length);
            for (int i = 0; i < order.Length; i++)
            {
                target[at + i] = block[order[i]];
            }

            at += order.Length;
        }
    }

    private static void CopyMatch(Span<byte> target, int to, int distance, int length)
    {
        if (distance >= length)
        {
            target.Slice(to - distance, length).CopyTo(target[to..]);
            return;
        }

        for (int i = to; i < to + length; i++)
        {
            target[i] = target[i - distance];
        }
    }

    // Parts of 2, 3 and 16 bytes are in another order themselves; those of 4 and 8 are not.
    private static byte[] OrderOf(int[] parts)
    {
        System.Collections.Generic.List<byte> order = [];
        for (int i = 0; i < parts.Length; i += 2)
        {
            int length = parts[i];
            for (int at = 0; at < length; at++)
            {
                int shifted = length switch
                {
                    2 or 3 => length - 1 - at,
                    16 => (at + 8) % 16,
                    _ => at,
                };
                order.Add((byte)(parts[i + 1] + shifted));
            }
        }

        return [.. order];
    }

    // Reads beyond the end give zero, which ends all loops.
    private ref struct Input(ReadOnlySpan<byte> data)
    {
        private readonly ReadOnlySpan<byte> _data = data;

        internal int Position { get; set; }

        internal readonly bool IsAtEnd => Position >= _data.Length;

        internal int Next()
        {
            int at = Position++;
            return at < _data.Length ? _data[at] : 0;
        }
    }
}
