using System;

namespace Korvan.CAD;

/// <summary>A point with integer coordinates.</summary>
public struct Point : IEquatable<Point>
{
    /// <summary>Creates the value from its components.</summary>
    /// <param name="x">The x coordinate.</param>
    /// <param name="y">The y coordinate.</param>
    public Point(int x, int y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value with all components zero.</summary>
    public static Point Empty => default;

    /// <summary>Gets or sets the x coordinate.</summary>
    public int X { get; set; }

    /// <summary>Gets or sets the y coordinate.</summary>
    public int Y { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Compares two values component by component.</summary>
    public static bool operator ==(Point left, Point right) => left.Equals(right);

    /// <summary>Compares two values component by component.</summary>
    public static bool operator !=(Point left, Point right) => !left.Equals(right);

    /// <summary>Converts to floating-point coordinates.</summary>
    public static explicit operator PointF(Point value) => new(value.X, value.Y);

    /// <summary>Converts the coordinates to a width and a height.</summary>
    public static explicit operator Size(Point value) => new(value);

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(Point other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Point other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Point({X}, {Y})");
}
