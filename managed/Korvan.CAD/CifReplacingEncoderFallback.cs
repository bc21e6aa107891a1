using System.Text;

namespace Korvan.CAD;

/// <summary>An encoder fallback that replaces characters which the encoding lacks by escape sequences <c>\U+XXXX</c>,
/// as in drawings.</summary>
/// <remarks>A character outside of the Basic Multilingual Plane becomes two sequences, one for each UTF-16 code
/// unit.</remarks>
public class CifReplacingEncoderFallback : EncoderFallback
{
    /// <summary>Creates the fallback.</summary>
    public CifReplacingEncoderFallback()
    {
    }

    /// <summary>Gets the maximum number of replacement characters for one character: two sequences of seven.</summary>
    public override int MaxCharCount => 2 * CifReplacingEncoderFallbackBuffer.SequenceLength;

    /// <summary>Creates the buffer that returns the sequences.</summary>
    /// <returns>The buffer.</returns>
    public override CifReplacingEncoderFallbackBuffer CreateFallbackBuffer() => new();

    /// <inheritdoc/>
    public override bool Equals(object? obj) => obj is CifReplacingEncoderFallback;

    /// <inheritdoc/>
    public override int GetHashCode() => typeof(CifReplacingEncoderFallback).GetHashCode();
}
