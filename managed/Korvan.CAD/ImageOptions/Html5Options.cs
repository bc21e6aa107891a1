namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a web page whose script draws on a canvas.</summary>
public class Html5Options : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with default values.</summary>
    public Html5Options()
        : base(FileFormat.Html5Canvas)
    {
    }

    /// <summary>Gets or sets the identifier of the canvas element. "drawing" by default.</summary>
    public string CanvasTagId { get; set; } = "drawing";

    /// <summary>Gets or sets whether a whole page is written; otherwise only the canvas and its script, for embedding
    /// in a page. On by default.</summary>
    public bool FullHtmlPage { get; set; } = true;

    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts. Off by default.</summary>
    public bool TextAsShapes { get; set; }
}
