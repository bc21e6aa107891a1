namespace Korvan.CAD.ImageOptions;

/// <summary>Writes the faces of a drawing in the GL transmission format 2.0, everything in one binary file.</summary>
public class GlbOptions : GlbGltfOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public GlbOptions()
        : base(FileFormat.Glb)
    {
    }
}
