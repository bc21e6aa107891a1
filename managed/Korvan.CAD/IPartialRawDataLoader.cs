namespace Korvan.CAD;

/// <summary>Receives pixels in blocks, as bytes.</summary>
public interface IPartialRawDataLoader
{
    /// <summary>Receives a block.</summary>
    /// <param name="dataRectangle">The position of the block in the image.</param>
    /// <param name="data">Its bytes, row by row.</param>
    /// <param name="settings">The format of the bytes.</param>
    void ProcessRawData(Rectangle dataRectangle, byte[] data, RawDataSettings settings);
}
