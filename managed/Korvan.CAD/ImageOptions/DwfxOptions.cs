namespace Korvan.CAD.ImageOptions;

/// <summary>Says how a published drawing is written whose pages are fixed pages (ECMA-388).</summary>
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
