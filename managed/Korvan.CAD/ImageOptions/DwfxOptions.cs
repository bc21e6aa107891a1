namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a published drawing with fixed pages (ECMA-388).</summary>
public class DwfxOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with default values.</summary>
    public DwfxOptions()
        : base(FileFormat.Dwfx)
    {
    }

    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
