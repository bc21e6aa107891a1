namespace Korvan.CAD.FileFormats;

/// <summary>The direction that a drawing is looked at from, as turns about the axes of the world.</summary>
public class ObserverPoint
{
    /// <summary>Creates the plan view: from above, X to the right.</summary>
    public ObserverPoint()
    {
    }

    /// <summary>Creates a view.</summary>
    /// <param name="rotationAngleX">The turn about X, in degrees.</param>
    /// <param name="rotationAngleY">The turn about Y, in degrees.</param>
    /// <param name="rotationAngleZ">The turn about Z, in degrees.</param>
    public ObserverPoint(float rotationAngleX, float rotationAngleY, float rotationAngleZ)
    {
        RotationAngleX = rotationAngleX;
        RotationAngleY = rotationAngleY;
        RotationAngleZ = rotationAngleZ;
    }

    /// <summary>Gets or sets the turn about X, in degrees; the first that is made.</summary>
    public float RotationAngleX { get; set; }

    /// <summary>Gets or sets the turn about Y, in degrees; the second.</summary>
    public float RotationAngleY { get; set; }

    /// <summary>Gets or sets the turn about Z, in degrees; the third.</summary>
    public float RotationAngleZ { get; set; }
}
