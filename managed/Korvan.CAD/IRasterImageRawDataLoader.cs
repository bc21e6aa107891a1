namespace Korvan.CAD;

/// <summary>Gives pixels as bytes.</summary>
public interface IRasterImageRawDataLoader
{
    /// <summary>Gets whether bytes can be had.</summary>
    bool IsRawDataAvailable { get; }

    /// <summary>Gets the form that costs no conversion.</summary>
    RawDataSettings RawDataSettings { get; }

    /// <summary>Gives a block of pixels as bytes, row by row.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="settings">The form of the bytes.</param>
    byte[] LoadRawData(Rectangle rectangle, RawDataSettings settings);
}
