using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>A fraction of two signed numbers of 32 bits.</summary>
public class TiffSRational : IEquatable<TiffSRational>
{
    private const double Precision = 1e-9;

    /// <summary>Creates a fraction.</summary>
    /// <param name="numerator">The upper number.</param>
    /// <param name="denominator">The lower number; 0 makes the value infinite or no number.</param>
    public TiffSRational(int numerator, int denominator)
    {
        Numerator = numerator;
        Denominator = denominator;
    }

    /// <summary>Gets the upper number.</summary>
    public int Numerator { get; }

    /// <summary>Gets the lower number.</summary>
    public int Denominator { get; }

    /// <summary>Gets the value of the fraction.</summary>
    public double Value => (double)Numerator / Denominator;

    /// <summary>Makes the fraction nearest to a number, by continued fractions.</summary>
    /// <param name="value">The number, finite and in the range of the parts.</param>
    /// <returns>The fraction nearest to a number, by continued fractions.</returns>
    public static TiffSRational FromDouble(double value)
    {
        if (!(value >= -int.MaxValue && value <= int.MaxValue))
        {
            throw Verify.OutOfRange("number", value, "It has no place in a fraction of 32 bits.");
        }

        (long numerator, long denominator) = Fractions.Nearest(value, Precision, int.MaxValue);
        return new TiffSRational((int)numerator, (int)denominator);
    }

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The fraction to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public bool Equals(TiffSRational? other) =>
        other is not null && Numerator == other.Numerator && Denominator == other.Denominator;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as TiffSRational);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Numerator, Denominator);

    /// <inheritdoc/>
    public override string ToString() => $"{Numerator}/{Denominator}";
}
