namespace Korvan.CAD;

/// <summary>Provides pixels as 32-bit ARGB values, in bands.</summary>
public interface IRasterImageArgb32PixelLoader : IRasterImageRawDataLoader
{
    /// <summary>Passes a block of pixels on in bands.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">The receiver of the bands.</param>
    void LoadPartialArgb32Pixels(Rectangle rectangle, IPartialArgb32PixelLoader partialPixelLoader);
}
