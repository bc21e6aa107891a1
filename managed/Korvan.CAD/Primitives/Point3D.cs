using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Primitives;

/// <summary>A point in space, with double-precision coordinates.</summary>
public class Point3D : Point2D, IEquatable<Point3D>
{
    /// <summary>Creates the origin.</summary>
    public Point3D()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The X coordinate.</param>
    /// <param name="y">The Y coordinate.</param>
    /// <param name="z">The Z coordinate.</param>
    public Point3D(double x, double y, double z)
        : base(x, y) => Z = z;

    /// <summary>Gets or sets the Z coordinate.</summary>
    public double Z { get; set; }

    /// <summary>Returns the distance between two points.</summary>
    /// <param name="a">One point.</param>
    /// <param name="b">The other point.</param>
    /// <returns>The distance.</returns>
    public static double Distance(Point3D a, Point3D b)
    {
        Verify.NotNull(a);
        Verify.NotNull(b);
        double dx = b.X - a.X;
        double dy = b.Y - a.Y;
        double dz = b.Z - a.Z;
        return Math.Sqrt((dx * dx) + (dy * dy) + (dz * dz));
    }

    /// <summary>Returns the distance to another point.</summary>
    /// <param name="other">The other point.</param>
    /// <returns>The distance.</returns>
    public double Distance(Point3D other) => Distance(this, other);

    /// <summary>Interpolates linearly between this point and another one.</summary>
    /// <param name="other">The other point.</param>
    /// <param name="part">The fraction of the distance: 0 for this point, 1 for the other one.</param>
    /// <returns>The interpolated point.</returns>
    public Point3D Between(Point3D other, double part)
    {
        Verify.NotNull(other);
        return new Point3D(X + ((other.X - X) * part), Y + ((other.Y - Y) * part), Z + ((other.Z - Z) * part));
    }

    /// <summary>Returns the projection of the point to the XY plane.</summary>
    /// <returns>The projected point.</returns>
    public Point2D ToPoint2D() => new(X, Y);

    /// <summary>Returns whether another point has the same coordinates.</summary>
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
