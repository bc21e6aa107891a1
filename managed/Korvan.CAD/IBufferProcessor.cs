namespace Korvan.CAD;

/// <summary>Changes bytes of pixels in place.</summary>
public interface IBufferProcessor
{
    /// <summary>Changes pixels in place.</summary>
    /// <param name="buffer">Pixels of four bytes: blue, green, red, opacity.</param>
    /// <param name="processedLength">How many bytes of the buffer are meant.</param>
    void ProcessBuffer(byte[] buffer, int processedLength);
}
