using Korvan.CAD.Primitives;

namespace Korvan.CAD;

/// <summary>An object with a bounding box.</summary>
public interface IObjectWithBounds
{
    /// <summary>Gets the corner of the bounding box with the smallest coordinates.</summary>
    Point3D MinPoint { get; }

    /// <summary>Gets the corner of the bounding box with the largest coordinates.</summary>
    Point3D MaxPoint { get; }
}
