using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A run of whole numbers, such as pages.</summary>
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
    /// <param name="end">The last number; it belongs to the range.</param>
    /// <exception cref="ArgumentOutOfRangeException">The end lies before the begin.</exception>
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

    /// <summary>Gets the last number; it belongs to the range.</summary>
    public int End { get; }

    /// <summary>Gets how many numbers there are.</summary>
    public long Count => (long)End - Begin + 1;

    /// <summary>Tells whether a number lies in the range.</summary>
    /// <param name="value">The number.</param>
    /// <returns>Whether a number lies in the range.</returns>
    public bool Contains(int value) => value >= Begin && value <= End;

    /// <summary>Gives the part that another range shares; nothing when they have no number in common.</summary>
    /// <param name="other">The other range.</param>
    /// <returns>The part that another range shares.</returns>
    public IntRange? Intersect(IntRange other)
    {
        Verify.NotNull(other);
        int begin = Math.Max(Begin, other.Begin);
        int end = Math.Min(End, other.End);
        return begin <= end ? new IntRange(begin, end) : null;
    }

    /// <summary>Gives all numbers, in order.</summary>
    /// <returns>All numbers, in order.</returns>
    /// <exception cref="InvalidOperationException">There are more than 16 million.</exception>
    public int[] ToArray()
    {
        const int most = 1 << 24;
        if (Count > most)
        {
            throw new InvalidOperationException($"{this} holds {Count} numbers; at most {most} are listed.");
        }

        var numbers = new int[Count];
        for (int i = 0; i < numbers.Length; i++)
        {
            numbers[i] = Begin + i;
        }

        return numbers;
    }

    /// <summary>Tells whether another range has the same numbers.</summary>
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
