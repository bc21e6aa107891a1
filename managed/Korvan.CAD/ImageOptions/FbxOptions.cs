namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the faces of a drawing are written as a scene.</summary>
public class FbxOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public FbxOptions()
        : base(FileFormat.Fbx)
    {
    }

    /// <summary>Gets or sets whether the scene is written as bytes instead of words. On by default.</summary>
    public bool Binary { get; set; } = true;
}
