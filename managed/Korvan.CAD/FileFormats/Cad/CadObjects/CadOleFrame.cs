using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An embedded document of another program, as drawings up to release 13 have it.</summary>
[CadSequence]
[CadObject("OLEFRAME", Subclass = "AcDbOleFrame")]
[CadBits("BS OleVersion", "2000+ BS", "ExchangeData()")]
public partial class CadOleFrame : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadOleFrame()
    {
    }

    /// <summary>Gets or sets the version of the embedding. Group code 70.</summary>
    [CadShort(70)]
    public short OleVersion { get; set; } = 1;

    /// <summary>Gets or sets the number of bytes, which follows from the data. Group code 90.</summary>
    [CadInt(90)]
    internal int DataSize
    {
        get => Data.Length;
        set => _ = value;
    }

    /// <summary>Gets or sets the embedded document. Group code 310.</summary>
    [CadBinary(310)]
    public byte[] Data { get; set; } = [];

    /// <summary>Gets or sets the end of the data. Group code 1.</summary>
    [CadString(1)]
    internal string EndMark { get; set; } = "OLE";

    /// <summary>Gets the preview image; null where the data has none that the library reads: a bitmap without
    /// compression, or a metafile of Windows.</summary>
    /// <returns>The image.</returns>
    public CadEmbeddedImage? GetPreview() => OleContent.FindPreview(Data);

    private void ExchangeData(BitExchange fields) => Data = fields.Block(Data);
}
