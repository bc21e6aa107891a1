using System;
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
        const int end = 94;
        ExchangeFormat(fields, true);
        ExchangeSize(fields, 92, 160, GraphicsData.Length);
        GraphicsData = ExchangeBytes(fields, GraphicsData);
        EntitySize = ExchangeSize(fields, 93, 161, EntitySize);
        EntityData = ExchangeBytes(fields, EntityData);
        ExchangeReferences(fields);
        if (fields.Has(end, 0, References.Count > 0))
        {
            fields.Int32(end, 0);
        }

        ExchangeFormat(fields, fields.IsReading);
    }

    // Some programs write the format before the sizes, some after the references.
    private void ExchangeFormat(ObjectExchange fields, bool isHere)
    {
        if (fields.Has(95, 0, isHere && DrawingFormat != 0))
        {
            DrawingFormat = fields.Int32(95, DrawingFormat);
        }

        if (fields.Has(70, 0, isHere && OriginalFormat != 0))
        {
            OriginalFormat = fields.Int16(70, OriginalFormat);
        }
    }

    private static int ExchangeSize(ObjectExchange fields, int code, int longCode, int size)
    {
        const int withLongSizes = 2010;
        bool isLong = fields.Release >= withLongSizes;
        if (fields.Has(code, 0, !isLong && size != 0))
        {
            size = fields.Int32(code, size);
        }

        return fields.Has(longCode, 0, isLong && size != 0)
            ? (int)Math.Clamp(fields.Int64(longCode, size), 0, int.MaxValue) : size;
    }

    private static byte[] ExchangeBytes(ObjectExchange fields, byte[] data) =>
        fields.Has(310, 0, data.Length > 0) ? fields.Binary(310, data) : data;

    // References of all kinds come in any order.
    private void ExchangeReferences(ObjectExchange fields)
    {
        int present = References.Count;
        for (int i = 0; CodeOfNext(fields, i, present) is { } code and > 0; i++)
        {
            if (fields.IsReading)
            {
                References.Add(new CadCodeValue(code, "0"));
            }

            References[i].Value = fields.Handle(code, RoleOf(code), References[i].Value);
        }
    }

    private int CodeOfNext(ObjectExchange fields, int index, int present)
    {
        ReadOnlySpan<int> codes = [330, 340, 350, 360];
        foreach (int code in codes)
        {
            if (fields.HasItem(code, index < present && References[index].Attribute == code))
            {
                return code;
            }
        }

        return 0;
    }

    private static HandleRole RoleOf(int code) => code switch
    {
        330 => HandleRole.SoftPointer,
        350 => HandleRole.SoftOwner,
        360 => HandleRole.HardOwner,
        _ => HandleRole.HardPointer,
    };

    private void ExchangeFormat(BitExchange fields)
    {
        int release = fields.BitLong(DrawingFormat & 0xFFFF);
        DrawingFormat = (release & 0xFFFF) | (fields.BitLong(DrawingFormat >> 16) << 16);
    }

    private void ExchangeEntity(BitExchange fields)
    {
        EntityData = fields.Rest(EntityData);
        EntitySize = fields.IsReading ? EntityData.Length * 8 : EntitySize;
        fields.RestOfHandles(References);
    }
}
