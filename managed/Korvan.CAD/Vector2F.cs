using System;

namespace Korvan.CAD;

/// <summary>A vector in the plane.</summary>
public struct Vector2F : IEquatable<Vector2F>
{
    /// <summary>Creates the value from its two parts.</summary>
    /// <param name="x">The part along X.</param>
    /// <param name="y">The part along Y.</param>
    public Vector2F(float x, float y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value whose parts are zero.</summary>
    public static Vector2F Empty => default;

    /// <summary>Gets or sets the part along X.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the part along Y.</summary>
    public float Y { get; set; }

    /// <summary>Gets whether both parts are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Math.Sqrt(((double)X * X) + ((double)Y * Y));

    /// <summary>Compares two values part by part.</summary>
    public static bool operator ==(Vector2F left, Vector2F right) => left.Equals(right);

    /// <summary>Compares two values part by part.</summary>
    public static bool operator !=(Vector2F left, Vector2F right) => !left.Equals(right);

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public readonly bool Equals(Vector2F other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector2F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector2F({X}, {Y})");
}
