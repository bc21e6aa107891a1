using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>A fraction of two signed 32-bit integers.</summary>
public class TiffSRational : IEquatable<TiffSRational>
{
    private const double Precision = 1e-9;

    /// <summary>Creates a fraction.</summary>
    /// <param name="numerator">The numerator.</param>
    /// <param name="denominator">The denominator; 0 makes the value infinite or NaN.</param>
    public TiffSRational(int numerator, int denominator)
    {
        Numerator = numerator;
        Denominator = denominator;
    }

    /// <summary>Gets the numerator.</summary>
    public int Numerator { get; }

    /// <summary>Gets the denominator.</summary>
    public int Denominator { get; }

    /// <summary>Gets the value of the fraction.</summary>
    public double Value => (double)Numerator / Denominator;

    /// <summary>Returns the fraction nearest to a number, by continued fractions.</summary>
    /// <param name="value">The number, finite and within the range of numerator and denominator.</param>
    /// <returns>The fraction.</returns>
    public static TiffSRational FromDouble(double value)
    {
        if (!(value >= -int.MaxValue && value <= int.MaxValue))
        {
            throw Verify.OutOfRange("number", value, "It cannot be stored as a fraction of 32-bit integers.");
        }

        (long numerator, long denominator) = Fractions.Nearest(value, Precision, int.MaxValue);
        return new TiffSRational((int)numerator, (int)denominator);
    }

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The fraction to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public bool Equals(TiffSRational? other) =>
        other is not null && Numerator == other.Numerator && Denominator == other.Denominator;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as TiffSRational);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Numerator, Denominator);

    /// <inheritdoc/>
    public override string ToString() => $"{Numerator}/{Denominator}";
}
