using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Primitives;

/// <summary>A point in space, in double precision.</summary>
public class Point3D : Point2D, IEquatable<Point3D>
{
    /// <summary>Creates the origin.</summary>
    public Point3D()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The abscissa.</param>
    /// <param name="y">The ordinate.</param>
    /// <param name="z">The elevation.</param>
    public Point3D(double x, double y, double z)
        : base(x, y) => Z = z;

    /// <summary>Gets or sets the elevation.</summary>
    public double Z { get; set; }

    /// <summary>Gives how far two points lie apart.</summary>
    /// <param name="a">One point.</param>
    /// <param name="b">The other.</param>
    /// <returns>How far two points lie apart.</returns>
    public static double Distance(Point3D a, Point3D b)
    {
        Verify.NotNull(a);
        Verify.NotNull(b);
        double dx = b.X - a.X;
        double dy = b.Y - a.Y;
        double dz = b.Z - a.Z;
        return Math.Sqrt((dx * dx) + (dy * dy) + (dz * dz));
    }

    /// <summary>Gives how far another point lies away.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>How far another point lies away.</returns>
    public double Distance(Point3D other) => Distance(this, other);

    /// <summary>Gives the point between this one and another.</summary>
    /// <param name="other">The other point.</param>
    /// <param name="part">How far towards it: 0 is here, 1 is there.</param>
    /// <returns>The point between this one and another.</returns>
    public Point3D Between(Point3D other, double part)
    {
        Verify.NotNull(other);
        return new Point3D(X + ((other.X - X) * part), Y + ((other.Y - Y) * part), Z + ((other.Z - Z) * part));
    }

    /// <summary>Gives the point above or below in the plane of X and Y.</summary>
    /// <returns>The point above or below in the plane of X and Y.</returns>
    public Point2D ToPoint2D() => new(X, Y);

    /// <summary>Tells whether another point has the same coordinates.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>Whether another point has the same coordinates.</returns>
    public bool Equals(Point3D? other) => other is not null && X == other.X && Y == other.Y && Z == other.Z;

    /// <inheritdoc/>
    public override bool Equals(Point2D? other) => Equals(other as Point3D);

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as Point3D);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(X, Y, Z);

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"Point3D({X}, {Y}, {Z})");
}
