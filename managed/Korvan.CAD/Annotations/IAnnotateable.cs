using Korvan.CAD.Primitives;

namespace Korvan.CAD.Annotations;

/// <summary>An entity that can be annotated.</summary>
public interface IAnnotateable : IDrawingEntity
{
    /// <summary>Returns the point for the arrow of an annotation, in world coordinates.</summary>
    Point3D GetAnnotationPoint();
}
