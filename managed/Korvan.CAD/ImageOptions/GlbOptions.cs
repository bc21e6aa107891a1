namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing in the GL transmission format 2.0, as one binary file (GLB).</summary>
public class GlbOptions : GlbGltfOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public GlbOptions()
        : base(FileFormat.Glb)
    {
    }
}
