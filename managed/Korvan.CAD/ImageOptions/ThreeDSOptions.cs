namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the faces of a drawing are written as meshes of at most 65,535 points.</summary>
public class ThreeDSOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public ThreeDSOptions()
        : base(FileFormat.ThreeDS)
    {
    }

    /// <summary>Gets or sets the factor from drawing units to units of the file. 1 by default.</summary>
    public float MasterScale { get; set; } = 1;
}
