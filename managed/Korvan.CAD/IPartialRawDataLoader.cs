namespace Korvan.CAD;

/// <summary>Takes pixels in blocks, as bytes.</summary>
public interface IPartialRawDataLoader
{
    /// <summary>Takes a block.</summary>
    /// <param name="dataRectangle">Where it belongs.</param>
    /// <param name="data">Its bytes, row by row.</param>
    /// <param name="settings">What the bytes mean.</param>
    void ProcessRawData(Rectangle dataRectangle, byte[] data, RawDataSettings settings);
}
