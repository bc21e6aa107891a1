namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Is asked where the fonts and pictures of a scalable graphic are kept that do not stand in the document
/// itself.</summary>
public interface ISvgResourceKeeperCallback
{
    /// <summary>Takes a font that the document uses.</summary>
    /// <param name="args">The font; the callback sets <see cref="FontStoringArgs.FontFileUri"/> to where it has put
    /// it.</param>
    void OnFontResourceReady(FontStoringArgs args);

    /// <summary>Takes a picture that the document shows.</summary>
    /// <param name="imageData">The picture, encoded.</param>
    /// <param name="imageType">Its format.</param>
    /// <param name="suggestedFileName">A name that no other picture of the document has.</param>
    /// <returns>Where the picture is, as the document shall say it; empty to keep it in the document.</returns>
    string OnImageResourceReady(byte[] imageData, SvgImageType imageType, string suggestedFileName);
}
