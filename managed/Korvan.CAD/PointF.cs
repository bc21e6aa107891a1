using System;

namespace Korvan.CAD;

/// <summary>A point with floating-point coordinates.</summary>
public struct PointF : IEquatable<PointF>
{
    /// <summary>Creates the value from its components.</summary>
    /// <param name="x">The x coordinate.</param>
    /// <param name="y">The y coordinate.</param>
    public PointF(float x, float y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value with all components zero.</summary>
    public static PointF Empty => default;

    /// <summary>Gets or sets the x coordinate.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the y coordinate.</summary>
    public float Y { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Compares two values component by component.</summary>
    public static bool operator ==(PointF left, PointF right) => left.Equals(right);

    /// <summary>Compares two values component by component.</summary>
    public static bool operator !=(PointF left, PointF right) => !left.Equals(right);

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(PointF other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is PointF other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"PointF({X}, {Y})");
}
