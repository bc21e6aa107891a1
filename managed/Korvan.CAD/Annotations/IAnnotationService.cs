namespace Korvan.CAD.Annotations;

/// <summary>The annotations of a drawing. They are a text and a leader in model space, which every program shows, and
/// are found again when the drawing has been saved and loaded.</summary>
public interface IAnnotationService
{
    /// <summary>Gets how many annotations there are.</summary>
    int Count { get; }

    /// <summary>Gives the annotations, in drawing order.</summary>
    AnnotationEntity[] GetAnnotations();

    /// <summary>Gives the annotations of an entity, in drawing order.</summary>
    /// <param name="target">The entity.</param>
    AnnotationEntity[] GetAnnotationsOf(IAnnotateable target);

    /// <summary>Adds an annotation to model space.</summary>
    /// <param name="annotation">The annotation, from an <see cref="AnnotationEntityBuilder"/>.</param>
    /// <exception cref="CadExceptions.DataMissmatchError">It stands in a drawing already.</exception>
    void Add(AnnotationEntity annotation);

    /// <summary>Removes an annotation with its leader.</summary>
    /// <param name="annotation">The annotation.</param>
    /// <returns>Whether it was there.</returns>
    bool Remove(AnnotationEntity annotation);

    /// <summary>Removes all annotations.</summary>
    void Clear();
}
