namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a published drawing whose pages are fixed pages (ECMA-388), one for each layout.</summary>
public class DwfxOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public DwfxOptions()
        : base(FileFormat.Dwfx)
    {
    }

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
