using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An embedded or linked document of another program.</summary>
[CadSequence]
[CadObject("OLE2FRAME", Subclass = "AcDbOle2Frame")]
[CadBits("BS OleVersion", "2000+ BS TileMode", "ExchangeData()", "2000+ RC")]
public partial class CadOle2Frame : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadOle2Frame()
    {
    }

    /// <summary>Gets or sets the version of the embedding. Group code 70.</summary>
    [CadShort(70)]
    public short OleVersion { get; set; } = 2;

    /// <summary>Gets or sets the kind of the document, as its program names it. Group code 3.</summary>
    [CadString(3)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the upper left corner, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint UpperLeftPoint { get; set; } = new();

    /// <summary>Gets or sets the lower right corner, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint LowerRightPoint { get; set; } = new();

    /// <summary>Gets or sets the kind of the embedding: 1 a link, 2 embedded, 3 static. Group code 71.</summary>
    [CadShort(71)]
    public short ObjectType { get; set; } = 2;

    /// <summary>Gets or sets the space: 0 model space, 1 paper space. Group code 72.</summary>
    [CadShort(72)]
    public short TileMode { get; set; }

    /// <summary>Gets or sets whether the proportions are kept: 0 no, 1 yes; -1 where the file does not state it. Group
    /// code 73.</summary>
    [CadShort(73, Optional = true)]
    public short LockAspect { get; set; } = -1;

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

    // Drawing databases state the corners in the data alone.
    private void ExchangeData(BitExchange fields)
    {
        if (!fields.IsReading)
        {
            fields.Block(OleCorners.With(Data, UpperLeftPoint, LowerRightPoint));
            return;
        }

        Data = fields.Block(Data);
        if (OleCorners.Read(Data) is var (upperLeft, lowerRight))
        {
            (UpperLeftPoint, LowerRightPoint) = (upperLeft, lowerRight);
        }
    }
}
