namespace Korvan.CAD.Measurement;

/// <summary>An entity that can be measured.</summary>
public interface IMeasurableEntity : IDrawingEntity
{
    /// <summary>Returns the length of a line or curve, or of the outline of an area, in drawing units;
    /// <see langword="null"/> for an entity without a length.</summary>
    double? GetLength();

    /// <summary>Returns the area of a closed entity, in square drawing units; <see langword="null"/> for an entity that
    /// encloses none.</summary>
    double? GetArea();
}
