using System;
using System.Text;

namespace Korvan.CAD;

/// <summary>Lets an encoding write letters that it lacks as <c>\U+XXXX</c>, as drawings do.</summary>
/// <remarks>A letter beyond the basic plane becomes two sequences, one for each of its UTF-16 units.</remarks>
public class CifReplacingEncoderFallback : EncoderFallback
{
    /// <summary>Creates the fallback.</summary>
    public CifReplacingEncoderFallback()
    {
    }

    /// <summary>Gets the most letters that stand for one: two sequences of seven.</summary>
    public override int MaxCharCount => 2 * CifReplacingEncoderFallbackBuffer.SequenceLength;

    /// <summary>Makes what writes the sequences, one letter after the other.</summary>
    /// <returns>What writes the sequences, one letter after the other.</returns>
    public override CifReplacingEncoderFallbackBuffer CreateFallbackBuffer() => new();

    /// <inheritdoc/>
    public override bool Equals(object? obj) => obj is CifReplacingEncoderFallback;

    /// <inheritdoc/>
    public override int GetHashCode() => typeof(CifReplacingEncoderFallback).GetHashCode();
}
