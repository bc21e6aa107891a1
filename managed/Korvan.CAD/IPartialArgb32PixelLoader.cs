namespace Korvan.CAD;

/// <summary>Receives pixels in blocks, as 32-bit ARGB values.</summary>
public interface IPartialArgb32PixelLoader
{
    /// <summary>Receives a block.</summary>
    /// <param name="pixelsRectangle">The position of the block in the image.</param>
    /// <param name="pixels">Its pixels, row by row.</param>
    void Process(Rectangle pixelsRectangle, int[] pixels);
}
