namespace Korvan.CAD;

/// <summary>Takes pixels in blocks, as 32-bit numbers.</summary>
public interface IPartialArgb32PixelLoader
{
    /// <summary>Takes a block.</summary>
    /// <param name="pixelsRectangle">Where it belongs.</param>
    /// <param name="pixels">Its pixels, row by row.</param>
    void Process(Rectangle pixelsRectangle, int[] pixels);
}
