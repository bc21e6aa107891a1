using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>A fraction of two unsigned numbers of 32 bits.</summary>
public class TiffRational : IEquatable<TiffRational>
{
    private const double Precision = 1e-9;

    /// <summary>Creates a fraction.</summary>
    /// <param name="numerator">The upper number.</param>
    /// <param name="denominator">The lower number; 0 makes the value infinite or no number.</param>
    public TiffRational(long numerator, long denominator)
    {
        Numerator = Verified(numerator, nameof(numerator));
        Denominator = Verified(denominator, nameof(denominator));
    }

    /// <summary>Gets the upper number.</summary>
    public long Numerator { get; }

    /// <summary>Gets the lower number.</summary>
    public long Denominator { get; }

    /// <summary>Gets the value of the fraction.</summary>
    public double Value => (double)Numerator / Denominator;

    /// <summary>Makes the fraction nearest to a number, by continued fractions.</summary>
    /// <param name="value">The number, finite and in the range of the parts.</param>
    /// <returns>The fraction nearest to a number, by continued fractions.</returns>
    public static TiffRational FromDouble(double value)
    {
        if (!(value >= 0 && value <= int.MaxValue))
        {
            throw Verify.OutOfRange("number", value, "It has no place in a fraction of 32 bits.");
        }

        (long numerator, long denominator) = Fractions.Nearest(value, Precision, int.MaxValue);
        return new TiffRational(numerator, denominator);
    }

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The fraction to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public bool Equals(TiffRational? other) =>
        other is not null && Numerator == other.Numerator && Denominator == other.Denominator;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as TiffRational);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Numerator, Denominator);

    /// <inheritdoc/>
    public override string ToString() => $"{Numerator}/{Denominator}";

    private static long Verified(long value, string name)
    {
        Verify.InRange(value, 0, uint.MaxValue, name);
        return value;
    }
}
