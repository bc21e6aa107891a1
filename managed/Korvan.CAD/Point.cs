using System;

namespace Korvan.CAD;

/// <summary>A point with whole coordinates.</summary>
public struct Point : IEquatable<Point>
{
    /// <summary>Creates the value from its two parts.</summary>
    /// <param name="x">The abscissa.</param>
    /// <param name="y">The ordinate.</param>
    public Point(int x, int y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the value whose parts are zero.</summary>
    public static Point Empty => default;

    /// <summary>Gets or sets the abscissa.</summary>
    public int X { get; set; }

    /// <summary>Gets or sets the ordinate.</summary>
    public int Y { get; set; }

    /// <summary>Gets whether both parts are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0;

    /// <summary>Compares two values part by part.</summary>
    public static bool operator ==(Point left, Point right) => left.Equals(right);

    /// <summary>Compares two values part by part.</summary>
    public static bool operator !=(Point left, Point right) => !left.Equals(right);

    /// <summary>Gives the same point with coordinates that can have fractions.</summary>
    public static explicit operator PointF(Point value) => new(value.X, value.Y);

    /// <summary>Gives the coordinates as a width and a height.</summary>
    public static explicit operator Size(Point value) => new(value);

    /// <summary>Tells whether both parts are the same.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether both parts are the same.</returns>
    public readonly bool Equals(Point other) => X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is Point other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"Point({X}, {Y})");
}
