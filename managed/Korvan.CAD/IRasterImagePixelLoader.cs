namespace Korvan.CAD;

/// <summary>Gives pixels as colours, also in bands.</summary>
public interface IRasterImagePixelLoader
{
    /// <summary>Hands a block of pixels on in bands.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">What takes the bands.</param>
    void LoadPartialPixels(Rectangle rectangle, IPartialPixelLoader partialPixelLoader);
}
