using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Primitives;

namespace Korvan.CAD;

/// <summary>What is asked of things that take a room in space: the base of those whose room is known.</summary>
public abstract class ObjectWithBounds : IObjectWithBounds
{
    internal ObjectWithBounds()
    {
    }

    /// <inheritdoc/>
    public abstract Point3D MinPoint { get; }

    /// <inheritdoc/>
    public abstract Point3D MaxPoint { get; }

    /// <summary>Gets the extent along X.</summary>
    public double SizeX => MaxPoint.X - MinPoint.X;

    /// <summary>Gets the extent along Y.</summary>
    public double SizeY => MaxPoint.Y - MinPoint.Y;

    /// <summary>Gets the extent along Z.</summary>
    public double SizeZ => MaxPoint.Z - MinPoint.Z;

    /// <summary>Gets the middle of the room.</summary>
    public Point3D Center => MinPoint.Between(MaxPoint, 0.5);

    /// <summary>Tells whether a point lies in the room or on its sides.</summary>
    /// <param name="point">The point.</param>
    /// <returns>Whether a point lies in the room or on its sides.</returns>
    public bool ContainsPoint(Point3D point)
    {
        Verify.NotNull(point);
        (Point3D min, Point3D max) = (MinPoint, MaxPoint);
        return point.X >= min.X && point.X <= max.X && point.Y >= min.Y && point.Y <= max.Y
            && point.Z >= min.Z && point.Z <= max.Z;
    }

    /// <summary>Tells whether the room touches that of something else.</summary>
    /// <param name="other">The other thing.</param>
    /// <returns>Whether the room touches that of something else.</returns>
    public bool BoundsIntersect(IObjectWithBounds other)
    {
        Verify.NotNull(other);
        (Point3D min, Point3D max) = (MinPoint, MaxPoint);
        (Point3D from, Point3D to) = (other.MinPoint, other.MaxPoint);
        return from.X <= max.X && to.X >= min.X && from.Y <= max.Y && to.Y >= min.Y && from.Z <= max.Z && to.Z >= min.Z;
    }
}
