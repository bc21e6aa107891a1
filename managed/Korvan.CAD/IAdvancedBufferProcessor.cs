namespace Korvan.CAD;

/// <summary>Changes a block of pixel bytes in place.</summary>
public interface IAdvancedBufferProcessor : IBufferProcessor
{
    /// <summary>Changes a block of pixels in place.</summary>
    /// <param name="buffer">Pixels of four bytes: blue, green, red, alpha.</param>
    /// <param name="rectangle">The block in pixels, relative to the first pixel of the buffer.</param>
    /// <param name="stride">The distance from one row to the next in bytes.</param>
    void ProcessBlock(byte[] buffer, Rectangle rectangle, int stride);
}
