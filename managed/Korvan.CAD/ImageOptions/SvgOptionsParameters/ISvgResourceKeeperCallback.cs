namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Stores the fonts and images of an SVG document that are not embedded.</summary>
public interface ISvgResourceKeeperCallback
{
    /// <summary>Stores a font of the document.</summary>
    /// <param name="args">The font; the callback sets <see cref="FontStoringArgs.FontFileUri"/> to its URI.</param>
    void OnFontResourceReady(FontStoringArgs args);

    /// <summary>Stores an image of the document.</summary>
    /// <param name="imageData">The encoded image.</param>
    /// <param name="imageType">Its format.</param>
    /// <param name="suggestedFileName">A file name that no other image of the document has.</param>
    /// <returns>The URI of the image as the document states it; empty to embed it.</returns>
    string OnImageResourceReady(byte[] imageData, SvgImageType imageType, string suggestedFileName);
}
