using System;

namespace Korvan.CAD;

/// <summary>An integer width and height.</summary>
public struct Size : IEquatable<Size>
{
    /// <summary>Creates the size of the rectangle from the origin to a point.</summary>
    /// <param name="point">The point.</param>
    public Size(Point point)
        : this(point.X, point.Y)
    {
    }

    /// <summary>Creates the value from its components.</summary>
    /// <param name="width">The width.</param>
    /// <param name="height">The height.</param>
    public Size(int width, int height)
    {
        Width = width;
        Height = height;
    }

    /// <summary>Gets the value with all components zero.</summary>
    public static Size Empty => default;

    /// <summary>Gets or sets the width.</summary>
    public int Width { get; set; }

    /// <summary>Gets or sets the height.</summary>
    public int Height { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => Width == 0 && Height == 0;

    /// <summary>Compares two values component by component.</summary>
    public static bool operator ==(Size left, Size right) => left.Equals(right);

    /// <summary>Compares two values component by component.</summary>
    public static bool operator !=(Size left, Size right) => !left.Equals(right);

    /// <summary>Converts to floating-point sides.</summary>
    public static explicit operator SizeF(Size value) => new(value.Width, value.Height);

    /// <summary>Converts the sides to coordinates.</summary>
    public static explicit operator Point(Size value) => new(value.Width, value.Height);

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(Size other) => Width == other.Width && Height == other.Height;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Size other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(Width, Height);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Size({Width}, {Height})");
}
