using Korvan.CAD.Primitives;

namespace Korvan.CAD;

/// <summary>Something that takes a room in space.</summary>
public interface IObjectWithBounds
{
    /// <summary>Gets the corner of the room with the smallest coordinates.</summary>
    Point3D MinPoint { get; }

    /// <summary>Gets the corner of the room with the largest coordinates.</summary>
    Point3D MaxPoint { get; }
}
