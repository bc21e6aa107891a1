namespace Korvan.CAD;

/// <summary>Gives pixels as 32-bit numbers, also in bands.</summary>
public interface IRasterImageArgb32PixelLoader : IRasterImageRawDataLoader
{
    /// <summary>Hands a block of pixels on in bands.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">What takes the bands.</param>
    void LoadPartialArgb32Pixels(Rectangle rectangle, IPartialArgb32PixelLoader partialPixelLoader);
}
