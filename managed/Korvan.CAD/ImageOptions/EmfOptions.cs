namespace Korvan.CAD.ImageOptions;

/// <summary>Writes an enhanced metafile, for office programs.</summary>
public class EmfOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public EmfOptions()
        : base(FileFormat.Emf)
    {
    }

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
