using System;

namespace Korvan.CAD;

/// <summary>A width and a height in whole numbers.</summary>
public struct Size : IEquatable<Size>
{
    /// <summary>Creates the size of the rectangle from the origin to a point.</summary>
    /// <param name="point">The point.</param>
    public Size(Point point)
        : this(point.X, point.Y)
    {
    }

    /// <summary>Creates the value from its two parts.</summary>
    /// <param name="width">The width.</param>
    /// <param name="height">The height.</param>
    public Size(int width, int height)
    {
        Width = width;
        Height = height;
    }

    /// <summary>Gets the value whose parts are zero.</summary>
    public static Size Empty => default;

    /// <summary>Gets or sets the width.</summary>
    public int Width { get; set; }

    /// <summary>Gets or sets the height.</summary>
    public int Height { get; set; }

    /// <summary>Gets whether both parts are zero.</summary>
    public readonly bool IsEmpty => Width == 0 && Height == 0;

    /// <summary>Compares two values part by part.</summary>
    public static bool operator ==(Size left, Size right) => left.Equals(right);

    /// <summary>Compares two values part by part.</summary>
    public static bool operator !=(Size left, Size right) => !left.Equals(right);

    /// <summary>Gives the same size with sides that can have fractions.</summary>
    public static explicit operator SizeF(Size value) => new(value.Width, value.Height);

    /// <summary>Gives the sides as coordinates.</summary>
    public static explicit operator Point(Size value) => new(value.Width, value.Height);

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public readonly bool Equals(Size other) => Width == other.Width && Height == other.Height;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Size other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(Width, Height);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Size({Width}, {Height})");
}
