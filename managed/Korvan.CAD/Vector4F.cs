using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A four-dimensional vector, such as homogeneous coordinates.</summary>
public struct Vector4F : IEquatable<Vector4F>
{
    /// <summary>Creates the vector from its components.</summary>
    /// <param name="x">The x component.</param>
    /// <param name="y">The y component.</param>
    /// <param name="z">The z component.</param>
    /// <param name="w">The w component, the homogeneous coordinate.</param>
    public Vector4F(float x, float y, float z, float w)
    {
        X = x;
        Y = y;
        Z = z;
        W = w;
    }

    /// <summary>Gets the vector with all components zero.</summary>
    public static Vector4F Empty => default;

    /// <summary>Gets or sets the x component.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the y component.</summary>
    public float Y { get; set; }

    /// <summary>Gets or sets the z component.</summary>
    public float Z { get; set; }

    /// <summary>Gets or sets the w component, the homogeneous coordinate.</summary>
    public float W { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => this == Empty;

    /// <summary>Gets the Euclidean length.</summary>
    public readonly float Length => (float)Size;

    // In double precision, where squares of all numbers have room.
    private readonly double Size => Math.Sqrt(((double)X * X) + ((double)Y * Y) + ((double)Z * Z) + ((double)W * W));

    /// <summary>Gets a component by its index, from 0.</summary>
    /// <param name="index">The index, 0 to 3.</param>
    /// <exception cref="ArgumentOutOfRangeException">The index is out of range.</exception>
    public readonly float this[int index] => index switch
    {
        0 => X,
        1 => Y,
        2 => Z,
        3 => W,
        _ => throw Verify.OutOfRange(nameof(index), index, "A Vector4F has 4 parts."),
    };

    /// <summary>Compares two vectors component by component.</summary>
    public static bool operator ==(Vector4F left, Vector4F right) => left.Equals(right);

    /// <summary>Compares two vectors component by component.</summary>
    public static bool operator !=(Vector4F left, Vector4F right) => !left.Equals(right);

    /// <summary>Returns the dot product of two vectors.</summary>
    /// <param name="a">One vector.</param>
    /// <param name="b">The other.</param>
    /// <returns>The dot product.</returns>
    public static float Dot(Vector4F a, Vector4F b) => (a.X * b.X) + (a.Y * b.Y) + (a.Z * b.Z) + (a.W * b.W);

    /// <summary>Returns the point of the homogeneous coordinates: x, y and z divided by w.</summary>
    /// <returns>The point.</returns>
    /// <exception cref="InvalidOperationException">The w component is 0.</exception>
    public readonly Vector3F ToVector3F()
    {
        return W == 0
            ? throw new InvalidOperationException("A vector whose W is 0 is a direction, not a point.")
            : new Vector3F(X / W, Y / W, Z / W);
    }

    /// <summary>Returns the unit vector of the same direction.</summary>
    /// <returns>The unit vector.</returns>
    /// <exception cref="InvalidOperationException">The length is 0.</exception>
    public readonly Vector4F Normalize()
    {
        double length = Size;
        return length == 0
            ? throw new InvalidOperationException("A vector of length 0 has no direction.")
            : new Vector4F((float)(X / length), (float)(Y / length), (float)(Z / length), (float)(W / length));
    }

    /// <summary>Determines whether two vectors are equal component by component.</summary>
    /// <param name="other">The vector to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(Vector4F other) => X == other.X && Y == other.Y && Z == other.Z && W == other.W;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Vector4F other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y, Z, W);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Vector4F({X}, {Y}, {Z}, {W})");
}
