namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a page for browsers, whose script draws on a canvas.</summary>
public class Html5Options : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public Html5Options()
        : base(FileFormat.Html5Canvas)
    {
    }

    /// <summary>Gets or sets the name that the canvas has in the page. "drawing" by default.</summary>
    public string CanvasTagId { get; set; } = "drawing";

    /// <summary>Gets or sets whether a whole page is written; otherwise only the canvas and its script, to be put into a page. On
    /// by default.</summary>
    public bool FullHtmlPage { get; set; } = true;

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
