using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A vector of four parts, as homogeneous coordinates have.</summary>
public struct Vector4F : IEquatable<Vector4F>
{
    /// <summary>Creates the vector from its parts.</summary>
    /// <param name="x">The part along X.</param>
    /// <param name="y">The part along Y.</param>
    /// <param name="z">The part along Z.</param>
    /// <param name="w">The part of the fourth, homogeneous, coordinate.</param>
    public Vector4F(float x, float y, float z, float w)
    {
        X = x;
        Y = y;
        Z = z;
        W = w;
    }

    /// <summary>Gets the vector whose parts are zero.</summary>
    public static Vector4F Empty => default;

    /// <summary>Gets or sets the part along X.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the part along Y.</summary>
    public float Y { get; set; }

    /// <summary>Gets or sets the part along Z.</summary>
    public float Z { get; set; }

    /// <summary>Gets or sets the part of the fourth, homogeneous, coordinate.</summary>
    public float W { get; set; }

    /// <summary>Gets whether all parts are zero.</summary>
    public readonly bool IsEmpty => this == Empty;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Size;

    // In double precision, where squares of all numbers have room.
    private readonly double Size => Math.Sqrt(((double)X * X) + ((double)Y * Y) + ((double)Z * Z) + ((double)W * W));

    /// <summary>Gets a part by its place, from 0.</summary>
    /// <param name="index">The place, 0 to 3.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such part.</exception>
    public readonly float this[int index] => index switch
    {
        0 => X,
        1 => Y,
        2 => Z,
        3 => W,
        _ => throw Verify.OutOfRange(nameof(index), index, "A Vector4F has 4 parts."),
    };

    /// <summary>Compares two vectors part by part.</summary>
    public static bool operator ==(Vector4F left, Vector4F right) => left.Equals(right);

    /// <summary>Compares two vectors part by part.</summary>
    public static bool operator !=(Vector4F left, Vector4F right) => !left.Equals(right);

    /// <summary>Gives the sum of the products of the parts.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The sum of the products of the parts.</returns>
    public static float Dot(Vector4F a, Vector4F b) => (a.X * b.X) + (a.Y * b.Y) + (a.Z * b.Z) + (a.W * b.W);

    /// <summary>Gives the place that the homogeneous coordinates stand for: the first three parts by the
    /// fourth.</summary>
    /// <returns>The place that the homogeneous coordinates stand for.</returns>
    /// <exception cref="InvalidOperationException">The fourth part is 0: a direction is no place.</exception>
    public readonly Vector3F ToVector3F()
    {
        return W == 0
            ? throw new InvalidOperationException("A vector whose W is 0 is a direction and has no place.")
            : new Vector3F(X / W, Y / W, Z / W);
    }

    /// <summary>Gives the vector of the same direction and of length 1.</summary>
    /// <returns>The vector of the same direction and of length 1.</returns>
    /// <exception cref="InvalidOperationException">The length is 0, so that there is no direction.</exception>
    public readonly Vector4F Normalize()
    {
        double length = Size;
        return length == 0
            ? throw new InvalidOperationException("A vector of length 0 has no direction.")
            : new Vector4F((float)(X / length), (float)(Y / length), (float)(Z / length), (float)(W / length));
    }

    /// <summary>Tells whether all parts are the same.</summary>
    /// <param name="other">The vector to compare with.</param>
    /// <returns>Whether all parts are the same.</returns>
    public readonly bool Equals(Vector4F other) => X == other.X && Y == other.Y && Z == other.Z && W == other.W;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector4F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y, Z, W);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector4F({X}, {Y}, {Z}, {W})");
}
