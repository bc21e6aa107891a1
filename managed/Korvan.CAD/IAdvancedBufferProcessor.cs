namespace Korvan.CAD;

/// <summary>Changes bytes of pixels in place, knowing where their rows begin.</summary>
public interface IAdvancedBufferProcessor : IBufferProcessor
{
    /// <summary>Changes a block of pixels in place.</summary>
    /// <param name="buffer">Pixels of four bytes: blue, green, red, opacity.</param>
    /// <param name="rectangle">The block, in pixels from the first one.</param>
    /// <param name="stride">How many bytes lie between the beginnings of two rows.</param>
    void ProcessBlock(byte[] buffer, Rectangle rectangle, int stride);
}
