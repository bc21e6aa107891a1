namespace Korvan.CAD;

/// <summary>Provides pixels as bytes.</summary>
public interface IRasterImageRawDataLoader
{
    /// <summary>Gets whether bytes are available.</summary>
    bool IsRawDataAvailable { get; }

    /// <summary>Gets the native format, which needs no conversion.</summary>
    RawDataSettings RawDataSettings { get; }

    /// <summary>Returns a block of pixels as bytes, row by row.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="settings">The format of the bytes.</param>
    byte[] LoadRawData(Rectangle rectangle, RawDataSettings settings);
}
