using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Carries objects without a class between drawing databases and the tags that text files have for them.
/// Source: Open Design Specification for .dwg files, 5.4.1, sections 20.4.79, 20.4.92 and 20.4.93.</summary>
internal static class RawRecord
{
    private const int Marker = 100;

    /// <summary>Determines whether the fields of objects of a name are known.</summary>
    internal static bool IsKnown(string name) =>
        name is "SCALE" or "SORTENTSTABLE" or "IDBUFFER" or "ACDBPLACEHOLDER" || RawFields.Of(name) is not null;

    /// <summary>Carries the fields.</summary>
    internal static void Exchange(RawObject item, BitExchange fields)
    {
        List<CadCodeValue> tags = [.. item.UnknownCodes];
        List<CadCodeValue> result = [];
        switch (item.DxfName)
        {
            case "SCALE":
                ExchangeScale(fields, tags, result);
                break;
            case "SORTENTSTABLE":
                ExchangeOrder(fields, tags, result);
                break;
            case "IDBUFFER":
                ExchangeReferences(fields, tags, result);
                break;
            default:
                result.AddRange(RawFields.Of(item.DxfName)?.Exchange(fields, tags) ?? []);
                break;
        }

        if (fields.DataRemaining > 0)
        {
            throw fields.Fault($"{fields.DataRemaining} bits more than are known");
        }

        if (fields.IsReading)
        {
            result.ForEach(tag => KeptTags.Of(item).Tags.Add(new KeptTag(KeptTag.Verbatim, tag)));
        }
    }

    private static void ExchangeScale(BitExchange fields, List<CadCodeValue> tags, List<CadCodeValue> result)
    {
        Add(result, Marker, "AcDbScale");
        Add(result, 70, Text(fields.BitShort((int)Number(tags, 70))));
        Add(result, 300, fields.Text(Find(tags, 300)));
        Add(result, 140, Text(fields.BitDouble(Number(tags, 140))));
        Add(result, 141, Text(fields.BitDouble(Number(tags, 141))));
        Add(result, 290, fields.Bit(Number(tags, 290) != 0) ? "1" : "0");
    }

    // The handles to sort by are among the data: they refer to nothing.
    private static void ExchangeOrder(BitExchange fields, List<CadCodeValue> tags, List<CadCodeValue> result)
    {
        List<string> entities = Values(tags, 331);
        List<string> order = Values(tags, 5);
        int count = fields.CountLong(System.Math.Min(entities.Count, order.Count));
        string[] sorts = new string[count];
        for (int i = 0; i < count; i++)
        {
            sorts[i] = HandleText.Format(fields.PlainHandle(i < order.Count ? HandleText.Parse(order[i].Trim()) : 0));
        }

        Add(result, Marker, "AcDbSortentsTable");
        Add(result, 330, fields.Handle(HandleRole.SoftPointer, Find(tags, 330)));
        for (int i = 0; i < count; i++)
        {
            Add(result, 331, fields.Handle(HandleRole.SoftPointer, i < entities.Count ? entities[i] : "0"));
            Add(result, 5, sorts[i]);
        }
    }

    private static void ExchangeReferences(BitExchange fields, List<CadCodeValue> tags, List<CadCodeValue> result)
    {
        List<string> handles = Values(tags, 330);
        fields.RawByte(0);
        int count = fields.CountLong(handles.Count);
        Add(result, Marker, "AcDbIdBuffer");
        for (int i = 0; i < count; i++)
        {
            Add(result, 330, fields.Handle(HandleRole.SoftPointer, i < handles.Count ? handles[i] : "0"));
        }
    }

    private static void Add(List<CadCodeValue> tags, int code, string value) => tags.Add(new CadCodeValue(code, value));

    private static string Find(List<CadCodeValue> tags, int code) =>
        tags.Find(tag => tag.Attribute == code)?.Value ?? "0";

    private static List<string> Values(List<CadCodeValue> tags, int code) =>
        [.. tags.Where(tag => tag.Attribute == code).Select(static tag => tag.Value)];

    private static double Number(List<CadCodeValue> tags, int code) => double.TryParse(
        Find(tags, code), NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

    private static string Text(double value) => value.ToString("R", CultureInfo.InvariantCulture);
}
