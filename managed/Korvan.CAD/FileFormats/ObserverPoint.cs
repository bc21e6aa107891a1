namespace Korvan.CAD.FileFormats;

/// <summary>The viewpoint of a drawing, as rotations about the axes of the world coordinate system.</summary>
public class ObserverPoint
{
    /// <summary>Creates the plan view: from above, with X to the right.</summary>
    public ObserverPoint()
    {
    }

    /// <summary>Creates a view.</summary>
    /// <param name="rotationAngleX">The rotation about X, in degrees.</param>
    /// <param name="rotationAngleY">The rotation about Y, in degrees.</param>
    /// <param name="rotationAngleZ">The rotation about Z, in degrees.</param>
    public ObserverPoint(float rotationAngleX, float rotationAngleY, float rotationAngleZ)
    {
        RotationAngleX = rotationAngleX;
        RotationAngleY = rotationAngleY;
        RotationAngleZ = rotationAngleZ;
    }

    /// <summary>Gets or sets the rotation about X, in degrees; it is applied first.</summary>
    public float RotationAngleX { get; set; }

    /// <summary>Gets or sets the rotation about Y, in degrees; it is applied second.</summary>
    public float RotationAngleY { get; set; }

    /// <summary>Gets or sets the rotation about Z, in degrees; it is applied third.</summary>
    public float RotationAngleZ { get; set; }
}
