namespace Korvan.CAD;

/// <summary>Takes pixels in blocks, as colours.</summary>
public interface IPartialPixelLoader
{
    /// <summary>Takes a block.</summary>
    /// <param name="pixelsRectangle">Where it belongs.</param>
    /// <param name="pixels">Its colours, row by row.</param>
    void ProcessColors(Rectangle pixelsRectangle, Color[] pixels);
}
