using System;

namespace Korvan.CAD;

/// <summary>A point.</summary>
public struct PointF : IEquatable<PointF>
{
    /// <summary>Creates the value from its two parts.</summary>
    /// <param name="x">The abscissa.</param>
    /// <param name="y">The ordinate.</param>
    public PointF(float x, float y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value whose parts are zero.</summary>
    public static PointF Empty => default;

    /// <summary>Gets or sets the abscissa.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the ordinate.</summary>
    public float Y { get; set; }

    /// <summary>Gets whether both parts are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Compares two values part by part.</summary>
    public static bool operator ==(PointF left, PointF right) => left.Equals(right);

    /// <summary>Compares two values part by part.</summary>
    public static bool operator !=(PointF left, PointF right) => !left.Equals(right);

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public readonly bool Equals(PointF other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is PointF other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"PointF({X}, {Y})");
}
