using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The binary data of solids in the data section of drawings of release 2013 and later.</summary>
internal static class ModelerSection
{
    /// <summary>The release that the section came with, as a year.</summary>
    internal const int Since = 2013;

    private const short IdentifierType = 10;
    private const string Identifier = "AcDbDs::ID";
    private const string SolidData = "ASM_Data";
    private const string SolidSchema = "AcDb3DSolid_ASM_Data";

    /// <summary>Returns the binary data of all solids after their handles.</summary>
    internal static List<(ulong Owner, byte[] Data)> DataOf(CadDrawing drawing)
    {
        List<(ulong Owner, byte[] Data)> found = [];
        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(drawing).OfType<CadObjectWithAcisData>())
        {
            if (solid is { HasModelerData: true, Handle: not 0 } && solid.GetBinaryData() is { Length: > 0 } data)
            {
                found.Add((solid.Handle, data));
            }
        }

        return found;
    }

    /// <summary>Returns the items of the section, and those for solids whose data are not in it.</summary>
    internal static List<CadBaseAcds> ItemsOf(CadDrawing drawing)
    {
        List<CadBaseAcds> items = [.. drawing.AcdsData.Items];
        HashSet<string> present = [.. items.OfType<CadAcdsRecord>().Select(static record => record.OwnerHandle)];
        List<(ulong Owner, byte[] Data)> missing = DataOf(drawing);
        missing.RemoveAll(solid => present.Contains(HandleText.Format(solid.Owner)));
        if (missing.Count == 0)
        {
            return items;
        }

        List<CadAcdsSchema> schemas = [.. items.OfType<CadAcdsSchema>()];
        CadAcdsSchema? schema = schemas.Find(static schema => schema.Name == SolidSchema);
        if (schema is null)
        {
            schema = CreateSchema(schemas.Count == 0 ? 0 : schemas.Max(static schema => schema.Index) + 1);
            items.Insert(items.FindLastIndex(static item => item is CadAcdsSchema) + 1, schema);
        }

        items.AddRange(missing.Select(solid => CreateRecord(schema.Index, solid.Owner, solid.Data)));
        return items;
    }

    /// <summary>Returns the tags before the items.</summary>
    internal static List<CadCodeValue> HeaderFor(IReadOnlyCollection<CadBaseAcds> items) =>
    [
        new CadCodeValue(70, "2"), new CadCodeValue(71, items.Count.ToString(CultureInfo.InvariantCulture)),
    ];

    /// <summary>Creates the schema of the data of solids.</summary>
    internal static CadAcdsSchema CreateSchema(int index)
    {
        CadAcdsSchema schema = new() { Index = index, Name = SolidSchema };
        schema.Columns.Add(new AcdsColumn { Name = Identifier, DataType = IdentifierType, Reserved = 8 });
        schema.Columns.Add(new AcdsColumn { Name = SolidData, DataType = AcdsValue.BinaryType, Reserved = 0 });
        return schema;
    }

    /// <summary>Creates the record of the data of a solid.</summary>
    internal static CadAcdsRecord CreateRecord(int schema, ulong owner, byte[] data)
    {
        CadAcdsRecord record = new() { SchemaIndex = schema };
        record.Values.Add(new AcdsValue
        {
            Name = Identifier,
            DataType = IdentifierType,
            Handle = HandleText.Format(owner),
        });
        record.Values.Add(new AcdsValue { Name = SolidData, DataType = AcdsValue.BinaryType, Data = data });
        return record;
    }

    /// <summary>Gives solids the data that are theirs.</summary>
    internal static void Attach(CadDrawing drawing)
    {
        var records = new Dictionary<ulong, CadAcdsRecord>();
        foreach (CadAcdsRecord record in drawing.AcdsData.Items.Items.OfType<CadAcdsRecord>())
        {
            if (ulong.TryParse(
                record.OwnerHandle, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out ulong owner))
            {
                records.TryAdd(owner, record);
            }
        }

        if (records.Count == 0)
        {
            return;
        }

        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(drawing).OfType<CadObjectWithAcisData>())
        {
            solid.DataRecord = records.GetValueOrDefault(solid.Handle) ?? solid.DataRecord;
        }
    }

    /// <summary>Gives the solids of a copy of a drawing what those of the drawing have besides their fields.</summary>
    internal static void Carry(CadDrawing source, CadDrawing copy)
    {
        var solids = new Dictionary<ulong, CadObjectWithAcisData>();
        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(source).OfType<CadObjectWithAcisData>())
        {
            if (solid.Handle != 0)
            {
                solids.TryAdd(solid.Handle, solid);
            }
        }

        if (solids.Count == 0)
        {
            return;
        }

        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(copy).OfType<CadObjectWithAcisData>())
        {
            if (solids.TryGetValue(solid.Handle, out CadObjectWithAcisData? other))
            {
                solid.DataRecord ??= other.DataRecord;
                solid.UntrimmedData = other.UntrimmedData;
                if (solid is CadLoftedSurface lofted && other is CadLoftedSurface profiles)
                {
                    (lofted.GuideCount, lofted.HasPath) = (profiles.GuideCount, profiles.HasPath);
                }
            }
        }
    }
}
