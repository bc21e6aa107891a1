using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An entity of a program whose class is not at hand: its data and the graphics that the program left for
/// it.</summary>
[CadSequence]
[CadObject("ACAD_PROXY_ENTITY", Subclass = "AcDbProxyEntity")]
[CadBits(
    "BL ApplicationClassId", "-2013 BL DrawingFormat", "2018+ ExchangeFormat()", "2000+ B OriginalFormat",
    "ExchangeEntity()")]
public partial class CadAcadProxyEntity : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcadProxyEntity()
    {
    }

    /// <summary>Gets or sets the number of the class of proxies, always 498. Group code 90.</summary>
    [CadInt(90)]
    public int ProxyClassId { get; set; } = 498;

    /// <summary>Gets or sets the number of the class of the entity: 500 for the first of the section of classes. Group
    /// code 91.</summary>
    [CadInt(91, Optional = true)]
    public int ApplicationClassId { get; set; }

    /// <summary>Gets or sets the graphics. Group code 310, after their size in bytes: 92, or 160 from release 2010
    /// on.</summary>
    public byte[] GraphicsData { get; set; } = [];

    /// <summary>Gets or sets the number of bits of data. Group code 93, or 161 from release 2010 on.</summary>
    public int EntitySize { get; set; }

    /// <summary>Gets or sets the data of the entity. Group code 310.</summary>
    public byte[] EntityData { get; set; } = [];

    /// <summary>Gets or sets the format of the drawing when the entity became a proxy: the release in the lower 16
    /// bits, its maintenance release in the upper 16 bits; 0 where the file has none. Group code 95.</summary>
    public int DrawingFormat { get; set; }

    /// <summary>Gets or sets the format of the original: 0 a binary drawing, 1 a text file. Group code 70.</summary>
    public short OriginalFormat { get; set; }

    /// <summary>Gets the handles of the objects that the entity refers to, in the order of the file, each with its
    /// group code 330, 340, 350 or 360.</summary>
    /// <returns>The tags.</returns>
    public CadCodeValue[] GetObjectReferences() => [.. References];

    /// <summary>Gets the tags of the references.</summary>
    internal List<CadCodeValue> References { get; } = [];

    partial void OnExchange(ObjectExchange fields)
    {
        (DrawingFormat, OriginalFormat) = ProxyFields.ExchangeFormat(fields, true, DrawingFormat, OriginalFormat);
        ProxyFields.ExchangeSize(fields, 92, 160, GraphicsData.Length);
        GraphicsData = ProxyFields.ExchangeBytes(fields, GraphicsData);
        EntitySize = ProxyFields.ExchangeSize(fields, 93, 161, EntitySize);
        EntityData = ProxyFields.ExchangeBytes(fields, EntityData);
        ProxyFields.ExchangeReferences(fields, References);
        (DrawingFormat, OriginalFormat) =
            ProxyFields.ExchangeFormat(fields, fields.IsReading, DrawingFormat, OriginalFormat);
    }

    private void ExchangeFormat(BitExchange fields) =>
        DrawingFormat = ProxyFields.ExchangeFormat(fields, DrawingFormat);

    private void ExchangeEntity(BitExchange fields)
    {
        int bits = EntitySize;
        EntityData = fields.Rest(EntityData, ref bits);
        EntitySize = bits;
        fields.RestOfHandles(References);
    }
}
