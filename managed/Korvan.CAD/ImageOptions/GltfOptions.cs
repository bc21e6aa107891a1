namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing in the GL transmission format 2.0, as JSON with embedded data
/// (glTF).</summary>
public class GltfOptions : GlbGltfOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public GltfOptions()
        : base(FileFormat.Gltf)
    {
    }

    /// <summary>Gets or sets whether the JSON is indented. Off by default.</summary>
    public bool Indented { get; set; }
}
