using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object of a program whose class is not at hand, with its data.</summary>
[CadSequence]
[CadObject("ACAD_PROXY_OBJECT", Subclass = "AcDbProxyObject")]
[CadBits(
    "BL ApplicationClassId", "-2013 BL DrawingFormat", "2018+ ExchangeFormat()", "2000+ B OriginalFormat",
    "ExchangeObject()")]
internal partial class CadAcadProxyObject : CadObjectBase
{
    /// <summary>Gets or sets the number of the class of proxies, always 499. Group code 90.</summary>
    [CadInt(90)]
    internal int ProxyClassId { get; set; } = 499;

    /// <summary>Gets or sets the number of the class of the object: 500 for the first of the section of classes. Group
    /// code 91.</summary>
    [CadInt(91, Optional = true)]
    internal int ApplicationClassId { get; set; }

    /// <summary>Gets or sets the number of bits of data. Group code 93, or 161 from release 2010 on.</summary>
    internal int DataSize { get; set; }

    /// <summary>Gets or sets the data. Group code 310.</summary>
    internal byte[] Data { get; set; } = [];

    /// <summary>Gets or sets the format of the drawing when the object became a proxy: the release in the lower 16
    /// bits, its maintenance release in the upper 16 bits; 0 where the file has none. Group code 95.</summary>
    internal int DrawingFormat { get; set; }

    /// <summary>Gets or sets the format of the original: 0 a binary drawing, 1 a text file. Group code 70.</summary>
    internal short OriginalFormat { get; set; }

    /// <summary>Gets the tags of the references.</summary>
    internal List<CadCodeValue> References { get; } = [];

    partial void OnExchange(ObjectExchange fields)
    {
        (DrawingFormat, OriginalFormat) = ProxyFields.ExchangeFormat(fields, true, DrawingFormat, OriginalFormat);
        DataSize = ProxyFields.ExchangeSize(fields, 93, 161, DataSize);
        Data = ProxyFields.ExchangeBytes(fields, Data);
        ProxyFields.ExchangeReferences(fields, References);
        (DrawingFormat, OriginalFormat) =
            ProxyFields.ExchangeFormat(fields, fields.IsReading, DrawingFormat, OriginalFormat);
    }

    private void ExchangeFormat(BitExchange fields) =>
        DrawingFormat = ProxyFields.ExchangeFormat(fields, DrawingFormat);

    private void ExchangeObject(BitExchange fields)
    {
        int bits = DataSize;
        Data = fields.Rest(Data, ref bits);
        DataSize = bits;
        fields.RestOfHandles(References);
    }
}
