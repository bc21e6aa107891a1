namespace Korvan.CAD.Annotations;

/// <summary>The annotations of a drawing. Each consists of a text and a leader in model space, which every program
/// displays, and is recognised after saving and loading.</summary>
public interface IAnnotationService
{
    /// <summary>Gets the number of annotations.</summary>
    int Count { get; }

    /// <summary>Returns the annotations, in drawing order.</summary>
    AnnotationEntity[] GetAnnotations();

    /// <summary>Returns the annotations of an entity, in drawing order.</summary>
    /// <param name="target">The entity.</param>
    AnnotationEntity[] GetAnnotationsOf(IAnnotateable target);

    /// <summary>Adds an annotation to model space.</summary>
    /// <param name="annotation">The annotation, from an <see cref="AnnotationEntityBuilder"/>.</param>
    /// <exception cref="CadExceptions.DataMissmatchError">The annotation already belongs to a drawing.</exception>
    void Add(AnnotationEntity annotation);

    /// <summary>Removes an annotation with its leader.</summary>
    /// <param name="annotation">The annotation.</param>
    /// <returns>Whether it was found.</returns>
    bool Remove(AnnotationEntity annotation);

    /// <summary>Removes all annotations.</summary>
    void Clear();
}
