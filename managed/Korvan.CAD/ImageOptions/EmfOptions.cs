namespace Korvan.CAD.ImageOptions;

/// <summary>Options for enhanced metafiles (EMF), which office programs read.</summary>
public class EmfOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with default values.</summary>
    public EmfOptions()
        : base(FileFormat.Emf)
    {
    }

    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts. Off by default. Text that is stretched, slanted or mirrored always is, since many readers show
    /// it otherwise.</summary>
    public bool TextAsShapes { get; set; }
}
