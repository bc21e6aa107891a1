namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The resource of a thumbnail as old programs wrote it, number 1033; red and blue are swapped.</summary>
public class Thumbnail4Resource : ThumbnailResource
{
    internal const int OldNumber = 1033;

    /// <summary>Creates a block.</summary>
    /// <param name="jpegData">The thumbnail as a JPEG file.</param>
    public Thumbnail4Resource(byte[] jpegData)
        : base(OldNumber, jpegData)
    {
    }
}
