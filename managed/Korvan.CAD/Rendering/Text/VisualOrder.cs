using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Text;

/// <summary>The order in which the pieces of a line are seen, by the rules P2, W7, N1, N2, I1, I2 and L2 of Unicode
/// Standard Annex 9 at the level of words; within a word, the shaper follows them.</summary>
internal static class VisualOrder
{
    private enum Direction : byte
    {
        Neutral,
        Left,
        Right,
        Number,
    }

    /// <summary>Determines whether a paragraph runs from right to left, as its first letter does.</summary>
    internal static bool IsRightToLeft(IReadOnlyList<LinePiece> pieces, int first, int count)
    {
        for (int i = first; i < first + count; i++)
        {
            if (Of(pieces[i]) is Direction.Left or Direction.Right)
            {
                return Of(pieces[i]) == Direction.Right;
            }
        }

        return false;
    }

    /// <summary>Returns the indices of pieces from left to right; null where that is the order of the text.</summary>
    internal static int[]? Of(IReadOnlyList<LinePiece> pieces, int first, int count, bool isRightToLeft)
    {
        var directions = new Direction[count];
        bool isMixed = isRightToLeft;
        for (int i = 0; i < count; i++)
        {
            directions[i] = Of(pieces[first + i]);
            isMixed |= directions[i] == Direction.Right;
        }

        return isMixed ? Reordered(Levels(pieces, directions, first, isRightToLeft), first) : null;
    }

    private static Direction Of(in LinePiece piece)
    {
        Direction found = Direction.Neutral;
        foreach (Rune character in piece.Kind is MTextTokenKind.Word or MTextTokenKind.Stack ? piece.Text ?? "" : "")
        {
            if (IsRight(character.Value))
            {
                return Direction.Right;
            }

            if (Rune.IsLetter(character))
            {
                return Direction.Left;
            }

            found = Rune.IsDigit(character) ? Direction.Number : found;
        }

        return found;
    }

    // The scripts from Hebrew to Arabic Extended-A with their presentation forms, and those of the first supplementary
    // plane.
    private static bool IsRight(int character) => character is (>= 0x590 and <= 0x8FF and not (>= 0x660 and <= 0x669))
        or 0x200F or (>= 0xFB1D and <= 0xFDFF) or (>= 0xFE70 and <= 0xFEFE) or (>= 0x10800 and <= 0x10FFF)
        or (>= 0x1E800 and <= 0x1EFFF);

    private static int[] Levels(
        IReadOnlyList<LinePiece> pieces, Direction[] directions, int first, bool isRightToLeft)
    {
        Direction start = isRightToLeft ? Direction.Right : Direction.Left;
        Direction strong = start;
        for (int i = 0; i < directions.Length; i++)
        {
            Direction own = pieces[first + i].Kind == MTextTokenKind.Tab ? start : directions[i];
            own = own == Direction.Number && strong == Direction.Left ? Direction.Left : own;
            strong = own is Direction.Left or Direction.Right ? own : strong;
            directions[i] = own;
        }

        var levels = new int[directions.Length];
        Direction before = start;
        for (int i = 0; i < directions.Length; i++)
        {
            Direction own = directions[i];
            if (own == Direction.Neutral)
            {
                own = before == After(directions, i, start) ? before : start;
            }
            else
            {
                before = own == Direction.Number ? Direction.Right : own;
            }

            levels[i] = own == Direction.Right ? 1 : own == Direction.Left && !isRightToLeft ? 0 : 2;
        }

        return levels;
    }

    private static Direction After(Direction[] directions, int index, Direction start)
    {
        int next = Array.FindIndex(directions, index, static direction => direction != Direction.Neutral);
        return next < 0 ? start : directions[next] == Direction.Number ? Direction.Right : directions[next];
    }

    private static int[] Reordered(int[] levels, int first)
    {
        var order = new int[levels.Length];
        for (int i = 0; i < order.Length; i++)
        {
            order[i] = i;
        }

        for (int level = 2; level > 0; level--)
        {
            for (int i = 0; i < order.Length; i++)
            {
                int end = i;
                while (end < order.Length && levels[order[end]] >= level)
                {
                    end++;
                }

                Array.Reverse(order, i, end - i);
                i = Math.Max(i, end - 1);
            }
        }

        return Array.ConvertAll(order, index => first + index);
    }
}
