using Korvan.CAD.Primitives;

namespace Korvan.CAD.Annotations;

/// <summary>Something in a drawing that an annotation can speak of.</summary>
public interface IAnnotateable : IDrawingEntity
{
    /// <summary>Gives the point that an annotation points to, in world coordinates.</summary>
    Point3D GetAnnotationPoint();
}
