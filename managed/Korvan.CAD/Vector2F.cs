using System;

namespace Korvan.CAD;

/// <summary>A two-dimensional vector.</summary>
public struct Vector2F : IEquatable<Vector2F>
{
    /// <summary>Creates the value from its components.</summary>
    /// <param name="x">The x component.</param>
    /// <param name="y">The y component.</param>
    public Vector2F(float x, float y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value with all components zero.</summary>
    public static Vector2F Empty => default;

    /// <summary>Gets or sets the x component.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the y component.</summary>
    public float Y { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Math.Sqrt(((double)X * X) + ((double)Y * Y));

    /// <summary>Compares two values component by component.</summary>
    public static bool operator ==(Vector2F left, Vector2F right) => left.Equals(right);

    /// <summary>Compares two values component by component.</summary>
    public static bool operator !=(Vector2F left, Vector2F right) => !left.Equals(right);

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(Vector2F other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector2F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector2F({X}, {Y})");
}
