namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a Windows metafile, for programs that read no newer one. Coordinates are whole numbers of 16 bits.</summary>
public class WmfOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public WmfOptions()
        : base(FileFormat.Wmf)
    {
    }

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
