namespace Korvan.CAD.ImageOptions;

/// <summary>Options for Windows metafiles (WMF), for programs that do not read EMF. Coordinates are 16-bit
/// integers.</summary>
public class WmfOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with default values.</summary>
    public WmfOptions()
        : base(FileFormat.Wmf)
    {
    }

    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
