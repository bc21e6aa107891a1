namespace Korvan.CAD.ImageOptions;

/// <summary>What the two forms of the GL transmission format have in common.</summary>
public abstract class GlbGltfOptionsBase : ImageOptionsBase
{
    internal GlbGltfOptionsBase(FileFormat targetFormat)
        : base(targetFormat)
    {
    }

    /// <summary>Gets or sets whether all faces of a layer become one mesh. On by default; otherwise each entity is a mesh
    /// of its own.</summary>
    public bool MergeLayers { get; set; } = true;

    /// <summary>Gets or sets whether faces are seen from behind, too. On by default, as drawings do not care which side of
    /// a face is its front.</summary>
    public bool DoubleSided { get; set; } = true;
}
