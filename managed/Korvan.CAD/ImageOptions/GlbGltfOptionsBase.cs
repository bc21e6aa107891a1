namespace Korvan.CAD.ImageOptions;

/// <summary>Options that both forms of the GL transmission format share.</summary>
public abstract class GlbGltfOptionsBase : ImageOptionsBase
{
    internal GlbGltfOptionsBase(FileFormat targetFormat)
        : base(targetFormat)
    {
    }

    /// <summary>Gets or sets whether all faces of a layer are joined into one mesh. On by default; otherwise each
    /// entity has its own mesh.</summary>
    public bool MergeLayers { get; set; } = true;

    /// <summary>Gets or sets whether faces are double-sided. On by default, as drawings do not define the front of a
    /// face.</summary>
    public bool DoubleSided { get; set; } = true;
}
