namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a scene of the faces of a drawing.</summary>
public class FbxOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public FbxOptions()
        : base(FileFormat.Fbx)
    {
    }

    /// <summary>Gets or sets whether the scene is written in binary form instead of text. On by default.</summary>
    public bool Binary { get; set; } = true;
}
