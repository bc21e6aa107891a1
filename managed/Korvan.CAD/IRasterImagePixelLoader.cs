namespace Korvan.CAD;

/// <summary>Provides pixels as colours, in bands.</summary>
public interface IRasterImagePixelLoader
{
    /// <summary>Passes a block of pixels on in bands.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">The receiver of the bands.</param>
    void LoadPartialPixels(Rectangle rectangle, IPartialPixelLoader partialPixelLoader);
}
