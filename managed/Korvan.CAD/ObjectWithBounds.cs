using Korvan.CAD.Binding;
using Korvan.CAD.Primitives;

namespace Korvan.CAD;

/// <summary>The base of objects with a known bounding box.</summary>
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

    /// <summary>Gets the centre of the bounding box.</summary>
    public Point3D Center => MinPoint.Between(MaxPoint, 0.5);

    /// <summary>Returns whether a point is inside or on the bounding box.</summary>
    /// <param name="point">The point.</param>
    /// <returns>Whether the point is inside or on the bounding box.</returns>
    public bool ContainsPoint(Point3D point)
    {
        Verify.NotNull(point);
        (Point3D min, Point3D max) = (MinPoint, MaxPoint);
        return point.X >= min.X && point.X <= max.X && point.Y >= min.Y && point.Y <= max.Y
            && point.Z >= min.Z && point.Z <= max.Z;
    }

    /// <summary>Returns whether the bounding box intersects or touches that of another object.</summary>
    /// <param name="other">The other object.</param>
    /// <returns>Whether the bounding boxes intersect or touch.</returns>
    public bool BoundsIntersect(IObjectWithBounds other)
    {
        Verify.NotNull(other);
        (Point3D min, Point3D max) = (MinPoint, MaxPoint);
        (Point3D from, Point3D to) = (other.MinPoint, other.MaxPoint);
        return from.X <= max.X && to.X >= min.X && from.Y <= max.Y && to.Y >= min.Y && from.Z <= max.Z && to.Z >= min.Z;
    }
}
