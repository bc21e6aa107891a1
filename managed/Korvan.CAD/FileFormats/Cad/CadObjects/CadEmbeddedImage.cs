namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An image within the data of an embedded document.</summary>
public sealed class CadEmbeddedImage
{
    internal CadEmbeddedImage(string fileExtension, byte[] data, CadSize size)
    {
        FileExtension = fileExtension;
        Data = data;
        Size = size;
    }

    /// <summary>Gets the extension of a file of this format: ".bmp", ".emf" or ".wmf".</summary>
    public string FileExtension { get; }

    /// <summary>Gets the image as a file of its format.</summary>
    public byte[] Data { get; }

    /// <summary>Gets the width and height: of a bitmap in pixels, of a metafile in hundredths of a millimetre; 0 by 0
    /// where the data does not state them.</summary>
    public CadSize Size { get; }
}
