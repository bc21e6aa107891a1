namespace Korvan.CAD;

/// <summary>Changes pixel bytes in place.</summary>
public interface IBufferProcessor
{
    /// <summary>Changes pixels in place.</summary>
    /// <param name="buffer">Pixels of four bytes: blue, green, red, alpha.</param>
    /// <param name="processedLength">The number of bytes to change.</param>
    void ProcessBuffer(byte[] buffer, int processedLength);
}
