using System;
using System.Collections.Generic;
using System.Numerics;
using System.Runtime.CompilerServices;

namespace Korvan.CAD.DisplayList;

/// <summary>
/// Ranges of values, one after the other, in blocks that the runtime doesn't count as large objects: an array that
/// grows with the page would cause a collection of all generations each time that it doubles.
/// </summary>
/// <typeparam name="T">The type of the values.</typeparam>
internal sealed class BlockStore<T>
    where T : struct
{
    private const int BlockBytes = 65_536;
    private const int FirstBytes = 4_096; // of the first block, for lists with little in them
    private const int BlocksPerCheck = 32;

    private static readonly int Bits = BitOperations.Log2((uint)(BlockBytes / Unsafe.SizeOf<T>()));
    private static readonly int BlockLength = 1 << Bits;

    private readonly List<T[]?> _blocks = [];

    /// <summary>Gets the position after the last range, which counts what is left free in blocks as well.</summary>
    internal int End { get; private set; }

    /// <summary>Gets the first value of a range.</summary>
    internal ref readonly T this[int position] => ref _blocks[position >> Bits]![position & (BlockLength - 1)];

    /// <summary>Gets what is stored from a position on: a range, and what else its block has.</summary>
    internal ReadOnlySpan<T> From(int position) =>
        position == End ? default : _blocks[position >> Bits].AsSpan(position & (BlockLength - 1));

    /// <summary>Stores a range, which lies in one block however long it is, and returns its position.</summary>
    internal int Add(ReadOnlySpan<T> values)
    {
        int offset = End & (BlockLength - 1);
        if (offset > 0 && offset + values.Length > BlockLength)
        {
            End += BlockLength - offset;
            offset = 0;
        }

        int position = End;
        values.CopyTo(Room(position >> Bits, offset, values.Length));
        End = offset + values.Length <= BlockLength
            ? position + values.Length
            : checked(position + ((values.Length + BlockLength - 1) >> Bits << Bits));
        return position;
    }

    /// <summary>Removes what was stored at a position and after it; blocks are kept for what follows.</summary>
    internal void RemoveFrom(int position) => End = position;

    private Span<T> Room(int index, int used, int length)
    {
        while (_blocks.Count <= index)
        {
            _blocks.Add(null);
        }

        T[]? block = _blocks[index];
        int needed = used + length;
        if (block is null || block.Length < needed)
        {
            int grown = index > 0 || needed > BlockLength
                ? Math.Max(BlockLength, needed)
                : Math.Clamp(2 * (block?.Length ?? 0), FirstBytes / Unsafe.SizeOf<T>(), BlockLength);
            block = Resized(block, used, Math.Max(grown, needed));
            _blocks[index] = block;
        }

        return block.AsSpan(used);
    }

    private T[] Resized(T[]? block, int used, int length)
    {
        if (length > BlockLength || _blocks.Count % BlocksPerCheck == 0)
        {
            Budget.VerifyRoom((long)Math.Max(length, BlocksPerCheck * BlockLength) * Unsafe.SizeOf<T>());
        }

        var resized = new T[length];
        block?.AsSpan(0, used).CopyTo(resized);
        return resized;
    }
}
