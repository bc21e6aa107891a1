namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing as meshes of at most 65,535 vertices each.</summary>
public class ThreeDSOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public ThreeDSOptions()
        : base(FileFormat.ThreeDS)
    {
    }

    /// <summary>Gets or sets the scale from drawing units to units of the file. 1 by default.</summary>
    public float MasterScale { get; set; } = 1;
}
