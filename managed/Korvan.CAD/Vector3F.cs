using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A vector in space.</summary>
public struct Vector3F : IEquatable<Vector3F>
{
    /// <summary>Creates the vector from its parts.</summary>
    /// <param name="x">The part along X.</param>
    /// <param name="y">The part along Y.</param>
    /// <param name="z">The part along Z.</param>
    public Vector3F(float x, float y, float z)
    {
        X = x;
        Y = y;
        Z = z;
    }

    /// <summary>Gets the vector whose parts are zero.</summary>
    public static Vector3F Empty => default;

    /// <summary>Gets or sets the part along X.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the part along Y.</summary>
    public float Y { get; set; }

    /// <summary>Gets or sets the part along Z.</summary>
    public float Z { get; set; }

    /// <summary>Gets whether all parts are zero.</summary>
    public readonly bool IsEmpty => this == Empty;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Size;

    // In double precision, where squares of all numbers have room.
    private readonly double Size => Math.Sqrt(((double)X * X) + ((double)Y * Y) + ((double)Z * Z));

    /// <summary>Gets a part by its place, from 0.</summary>
    /// <param name="index">The place, 0 to 2.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such part.</exception>
    public readonly float this[int index] => index switch
    {
        0 => X,
        1 => Y,
        2 => Z,
        _ => throw Verify.OutOfRange(nameof(index), index, "A Vector3F has 3 parts."),
    };

    /// <summary>Compares two vectors part by part.</summary>
    public static bool operator ==(Vector3F left, Vector3F right) => left.Equals(right);

    /// <summary>Compares two vectors part by part.</summary>
    public static bool operator !=(Vector3F left, Vector3F right) => !left.Equals(right);

    /// <summary>Gives the sum of the products of the parts.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The sum of the products of the parts.</returns>
    public static float Dot(Vector3F a, Vector3F b) => (a.X * b.X) + (a.Y * b.Y) + (a.Z * b.Z);

    /// <summary>Gives the vector that stands upright on two others, right-handed.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The vector that stands upright on two others, right-handed.</returns>
    public static Vector3F Cross(Vector3F a, Vector3F b)
    {
        return new Vector3F((a.Y * b.Z) - (a.Z * b.Y), (a.Z * b.X) - (a.X * b.Z), (a.X * b.Y) - (a.Y * b.X));
    }

    /// <summary>Gives the vector with a fourth, homogeneous, part: 1 for a place, 0 for a direction.</summary>
    /// <param name="w">The fourth part.</param>
    /// <returns>The vector with a fourth, homogeneous, part.</returns>
    public readonly Vector4F ToVector4F(float w) => new(X, Y, Z, w);

    /// <summary>Gives the vector of the same direction and of length 1.</summary>
    /// <returns>The vector of the same direction and of length 1.</returns>
    /// <exception cref="InvalidOperationException">The length is 0, so that there is no direction.</exception>
    public readonly Vector3F Normalize()
    {
        double length = Size;
        return length == 0
            ? throw new InvalidOperationException("A vector of length 0 has no direction.")
            : new Vector3F((float)(X / length), (float)(Y / length), (float)(Z / length));
    }

    /// <summary>Tells whether all parts are the same.</summary>
    /// <param name="other">The vector to compare with.</param>
    /// <returns>Whether all parts are the same.</returns>
    public readonly bool Equals(Vector3F other) => X == other.X && Y == other.Y && Z == other.Z;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector3F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y, Z);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector3F({X}, {Y}, {Z})");
}
