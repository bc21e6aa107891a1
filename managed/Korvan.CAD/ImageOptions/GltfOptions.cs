namespace Korvan.CAD.ImageOptions;

/// <summary>Writes the faces of a drawing in the GL transmission format 2.0, as text that carries its data.</summary>
public class GltfOptions : GlbGltfOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public GltfOptions()
        : base(FileFormat.Gltf)
    {
    }

    /// <summary>Gets or sets whether the text has line breaks and indents. Off by default.</summary>
    public bool Indented { get; set; }
}
