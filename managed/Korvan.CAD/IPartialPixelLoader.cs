namespace Korvan.CAD;

/// <summary>Receives pixels in blocks, as colours.</summary>
public interface IPartialPixelLoader
{
    /// <summary>Receives a block.</summary>
    /// <param name="pixelsRectangle">The position of the block in the image.</param>
    /// <param name="pixels">Its colours, row by row.</param>
    void ProcessColors(Rectangle pixelsRectangle, Color[] pixels);
}
