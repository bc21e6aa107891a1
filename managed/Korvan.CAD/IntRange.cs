using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A range of integers, such as page numbers.</summary>
public class IntRange : IEquatable<IntRange>
{
    /// <summary>Creates a range of one number.</summary>
    /// <param name="value">The number.</param>
    public IntRange(int value)
        : this(value, value)
    {
    }

    /// <summary>Creates a range.</summary>
    /// <param name="begin">The first number.</param>
    /// <param name="end">The last number (inclusive).</param>
    /// <exception cref="ArgumentOutOfRangeException">The end is before the begin.</exception>
    public IntRange(int begin, int end)
    {
        if (end < begin)
        {
            throw Verify.OutOfRange(nameof(end), end, $"A range that begins with {begin} cannot end with {end}.");
        }

        Begin = begin;
        End = end;
    }

    /// <summary>Gets the first number.</summary>
    public int Begin { get; }

    /// <summary>Gets the last number (inclusive).</summary>
    public int End { get; }

    /// <summary>Gets the number of integers in the range.</summary>
    public long Count => (long)End - Begin + 1;

    /// <summary>Returns whether a number is in the range.</summary>
    /// <param name="value">The number.</param>
    /// <returns>Whether the number is in the range.</returns>
    public bool Contains(int value) => value >= Begin && value <= End;

    /// <summary>Returns the intersection with another range; <see langword="null"/> if it is empty.</summary>
    /// <param name="other">The other range.</param>
    /// <returns>The intersection.</returns>
    public IntRange? Intersect(IntRange other)
    {
        Verify.NotNull(other);
        int begin = Math.Max(Begin, other.Begin);
        int end = Math.Min(End, other.End);
        return begin <= end ? new IntRange(begin, end) : null;
    }

    /// <summary>Returns all numbers, in order.</summary>
    /// <returns>The numbers.</returns>
    /// <exception cref="InvalidOperationException">The range has more than 16 million numbers.</exception>
    public int[] ToArray()
    {
        const int max = 1 << 24;
        if (Count > max)
        {
            throw new InvalidOperationException($"{this} holds {Count} numbers; at most {max} are listed.");
        }

        var numbers = new int[Count];
        for (int i = 0; i < numbers.Length; i++)
        {
            numbers[i] = Begin + i;
        }

        return numbers;
    }

    /// <summary>Returns whether another range has the same numbers.</summary>
    /// <param name="other">The other range.</param>
    /// <returns>Whether another range has the same numbers.</returns>
    public bool Equals(IntRange? other) => other is not null && Begin == other.Begin && End == other.End;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as IntRange);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Begin, End);

    /// <inheritdoc/>
    public override string ToString() => $"IntRange({Begin}, {End})";
}
