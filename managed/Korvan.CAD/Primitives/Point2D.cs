using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Primitives;

/// <summary>A point in the plane, in double precision.</summary>
public class Point2D : IEquatable<Point2D>
{
    /// <summary>Creates the origin.</summary>
    public Point2D()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The abscissa.</param>
    /// <param name="y">The ordinate.</param>
    public Point2D(double x, double y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets or sets the abscissa.</summary>
    public double X { get; set; }

    /// <summary>Gets or sets the ordinate.</summary>
    public double Y { get; set; }

    /// <summary>Gives how far two points lie apart.</summary>
    /// <param name="a">One point.</param>
    /// <param name="b">The other.</param>
    /// <returns>How far two points lie apart.</returns>
    public static double Distance(Point2D a, Point2D b)
    {
        Verify.NotNull(a);
        Verify.NotNull(b);
        double dx = b.X - a.X;
        double dy = b.Y - a.Y;
        return Math.Sqrt((dx * dx) + (dy * dy));
    }

    /// <summary>Gives how far another point lies away.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>How far another point lies away.</returns>
    public double Distance(Point2D other) => Distance(this, other);

    /// <summary>Gives the point between this one and another.</summary>
    /// <param name="other">The other point.</param>
    /// <param name="part">How far towards it: 0 is here, 1 is there.</param>
    /// <returns>The point between this one and another.</returns>
    public Point2D Between(Point2D other, double part)
    {
        Verify.NotNull(other);
        return new Point2D(X + ((other.X - X) * part), Y + ((other.Y - Y) * part));
    }

    /// <summary>Gives the point in space.</summary>
    /// <param name="z">The elevation.</param>
    /// <returns>The point in space.</returns>
    public Point3D ToPoint3D(double z) => new(X, Y, z);

    /// <summary>Tells whether another point has the same coordinates, in as many dimensions.</summary>
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
