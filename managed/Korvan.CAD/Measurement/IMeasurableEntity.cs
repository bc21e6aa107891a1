namespace Korvan.CAD.Measurement;

/// <summary>Something in a drawing that can be measured.</summary>
public interface IMeasurableEntity : IDrawingEntity
{
    /// <summary>Gives the length of a line or curve, or of the outline of an area, in drawing units; nothing for what has
    /// no length.</summary>
    double? GetLength();

    /// <summary>Gives the area of what is closed, in square drawing units; nothing for what encloses none.</summary>
    double? GetArea();
}
