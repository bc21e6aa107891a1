using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Primitives;

/// <summary>A point in the plane, with double-precision coordinates.</summary>
public class Point2D : IEquatable<Point2D>
{
    /// <summary>Creates the origin.</summary>
    public Point2D()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The X coordinate.</param>
    /// <param name="y">The Y coordinate.</param>
    public Point2D(double x, double y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets or sets the X coordinate.</summary>
    public double X { get; set; }

    /// <summary>Gets or sets the Y coordinate.</summary>
    public double Y { get; set; }

    /// <summary>Returns the distance between two points.</summary>
    /// <param name="a">One point.</param>
    /// <param name="b">The other point.</param>
    /// <returns>The distance.</returns>
    public static double Distance(Point2D a, Point2D b)
    {
        Verify.NotNull(a);
        Verify.NotNull(b);
        double dx = b.X - a.X;
        double dy = b.Y - a.Y;
        return Math.Sqrt((dx * dx) + (dy * dy));
    }

    /// <summary>Returns the distance to another point.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>The distance.</returns>
    public double Distance(Point2D other) => Distance(this, other);

    /// <summary>Interpolates linearly between this point and another one.</summary>
    /// <param name="other">The other point.</param>
    /// <param name="part">The fraction of the distance: 0 for this point, 1 for the other one.</param>
    /// <returns>The interpolated point.</returns>
    public Point2D Between(Point2D other, double part)
    {
        Verify.NotNull(other);
        return new Point2D(X + ((other.X - X) * part), Y + ((other.Y - Y) * part));
    }

    /// <summary>Returns the point in space with a Z coordinate.</summary>
    /// <param name="z">The Z coordinate.</param>
    /// <returns>The point.</returns>
    public Point3D ToPoint3D(double z) => new(X, Y, z);

    /// <summary>Returns whether another point has the same dimension and coordinates.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>Whether another point has the same coordinates.</returns>
    public virtual bool Equals(Point2D? other) =>
        other is not null && other.GetType() == GetType() && X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as Point2D);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"Point2D({X}, {Y})");
}
