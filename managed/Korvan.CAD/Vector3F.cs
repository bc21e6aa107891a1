using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A three-dimensional vector.</summary>
public struct Vector3F : IEquatable<Vector3F>
{
    /// <summary>Creates the vector from its components.</summary>
    /// <param name="x">The x component.</param>
    /// <param name="y">The y component.</param>
    /// <param name="z">The z component.</param>
    public Vector3F(float x, float y, float z)
    {
        X = x;
        Y = y;
        Z = z;
    }

    /// <summary>Gets the vector with all components zero.</summary>
    public static Vector3F Empty => default;

    /// <summary>Gets or sets the x component.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the y component.</summary>
    public float Y { get; set; }

    /// <summary>Gets or sets the z component.</summary>
    public float Z { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => this == Empty;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Size;

    // In double precision, where squares of all numbers have room.
    private readonly double Size => Math.Sqrt(((double)X * X) + ((double)Y * Y) + ((double)Z * Z));

    /// <summary>Gets a component by its index, from 0.</summary>
    /// <param name="index">The index, 0 to 2.</param>
    /// <exception cref="ArgumentOutOfRangeException">The index is out of range.</exception>
    public readonly float this[int index] => index switch
    {
        0 => X,
        1 => Y,
        2 => Z,
        _ => throw Verify.OutOfRange(nameof(index), index, "A Vector3F has 3 parts."),
    };

    /// <summary>Compares two vectors component by component.</summary>
    public static bool operator ==(Vector3F left, Vector3F right) => left.Equals(right);

    /// <summary>Compares two vectors component by component.</summary>
    public static bool operator !=(Vector3F left, Vector3F right) => !left.Equals(right);

    /// <summary>Returns the dot product of two vectors.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The dot product.</returns>
    public static float Dot(Vector3F a, Vector3F b) => (a.X * b.X) + (a.Y * b.Y) + (a.Z * b.Z);

    /// <summary>Returns the cross product of two vectors, right-handed.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The cross product.</returns>
    public static Vector3F Cross(Vector3F a, Vector3F b)
    {
        return new Vector3F((a.Y * b.Z) - (a.Z * b.Y), (a.Z * b.X) - (a.X * b.Z), (a.X * b.Y) - (a.Y * b.X));
    }

    /// <summary>Returns homogeneous coordinates: w is 1 for a point, 0 for a direction.</summary>
    /// <param name="w">The w component.</param>
    /// <returns>The vector.</returns>
    public readonly Vector4F ToVector4F(float w) => new(X, Y, Z, w);

    /// <summary>Returns the unit vector of the same direction.</summary>
    /// <returns>The unit vector.</returns>
    /// <exception cref="InvalidOperationException">The length is 0.</exception>
    public readonly Vector3F Normalize()
    {
        double length = Size;
        return length == 0
            ? throw new InvalidOperationException("A vector of length 0 has no direction.")
            : new Vector3F((float)(X / length), (float)(Y / length), (float)(Z / length));
    }

    /// <summary>Determines whether two vectors are equal component by component.</summary>
    /// <param name="other">The vector to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(Vector3F other) => X == other.X && Y == other.Y && Z == other.Z;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector3F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y, Z);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector3F({X}, {Y}, {Z})");
}
