namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The block of a small picture that old programs wrote, number 1033; red and blue are exchanged in
/// it.</summary>
public class Thumbnail4Resource : ThumbnailResource
{
    internal const int OldNumber = 1033;

    /// <summary>Creates a block.</summary>
    /// <param name="jpegData">The small picture, a JPEG file.</param>
    public Thumbnail4Resource(byte[] jpegData)
        : base(OldNumber, jpegData)
    {
    }
}
