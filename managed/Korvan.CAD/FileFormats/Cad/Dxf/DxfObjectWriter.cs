using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes one object: what all have in common, and through its codec what is its own.</summary>
/// <param name="writer">The file.</param>
/// <param name="classes">The classes of the drawing, which objects without a class of the library are of.</param>
internal sealed class DxfObjectWriter(DxfTagWriter writer, IReadOnlyList<CadClassEntity>? classes = null)
{
    private readonly DxfFieldWriter _fields = new(writer);
    private readonly ProxyTags _proxies = new(writer, classes ?? []);

    /// <summary>Gets what was left out because it is kept in the form of another format.</summary>
    internal List<string> LeftOut { get; } = [];

    internal void WriteEntity(CadEntityBase entity)
    {
        Write(entity);
        switch (entity)
        {
            case CadPolylineBase polyline:
                polyline.Vertices.ForEach(Write);
                WriteSeqend(polyline.Seqend);
                break;
            case CadInsertObject insert:
                insert.Attributes.ForEach(Write);
                WriteSeqend(insert.Seqend);
                break;
        }
    }

    internal void Write(CadBaseObject item)
    {
        Budget.Check();
        if (_proxies.Covers(item))
        {
            WriteProxy(item);
            return;
        }

        if (item.Kept is { } kept and not (KeptTags or KeptBits { Record.Length: 0 }))
        {
            LeftOut.Add($"{item.DxfName} {HandleText.Format(item.Handle)}: data kept in the form of {kept.FormatName}");
            if (item is RawEntity or RawObject)
            {
                return;
            }
        }

        if (item is CadShape { ShapeName.Length: 0, ShapeNumber: not 0 and var number })
        {
            LeftOut.Add($"{item.DxfName} {HandleText.Format(item.Handle)}: its name, which the shape file of the "
                + $"number {number} tells; the file is not in the folder of the drawing");
        }

        Begin(item, item.DxfName);
        _fields.Begin(item.KeptTags?.Layouts);
        item.Exchange(_fields);
        WriteRest(item);
    }

    private void WriteProxy(CadBaseObject item)
    {
        Begin(item, ProxyTags.NameOf(item));
        _fields.Begin(null);
        item.Exchange(_fields);
        _proxies.Write(item);
        WriteRest(item);
    }

    internal void WriteTableHeader(CadTableHeader header, int count)
    {
        writer.Subject = $"the table {header.Name}";
        writer.BeginObject();
        writer.Write(0, "TABLE");
        writer.Write(2, header.Name);
        WriteIdentity(header);
        writer.WriteSubclass("AcDbSymbolTable");
        writer.Write(70, count);
        writer.WriteKept(header, "AcDbSymbolTable");
        if (header.Name == "DIMSTYLE" && writer.Release >= 2000)
        {
            // Only the marker tells readers that this table is the one with a list of handles.
            writer.WriteSubclass("AcDbDimStyleTable");
            writer.WriteKept(header, "AcDbDimStyleTable");
        }

        WriteRest(header);
    }

    private void WriteSeqend(CadSeqend? end)
    {
        if (end is not null)
        {
            Write(end);
        }
    }

    private void Begin(CadBaseObject item, string name)
    {
        writer.Subject = item.Handle == 0 ? item.DxfName : $"{item.DxfName} {HandleText.Format(item.Handle)}";
        writer.BeginObject();
        writer.Write(0, name);
        WriteIdentity(item);
        if (writer.HasSubclasses)
        {
            writer.WriteKept(item, null);
        }
    }

    private void WriteIdentity(CadBaseObject item)
    {
        if (item.Handle != 0)
        {
            writer.WriteHandle(item is CadDimensionStyleTable ? 105 : 5, item.Handle);
        }

        foreach (CadApplicationCodes group in item.ApplicationCodesOrNull?.ApplicationCodes ?? [])
        {
            writer.Write(102, "{" + group.ApplicationName);
            group.Codes.ForEach(writer.Write);
            writer.Write(102, "}");
        }

        // The first dictionary has no owner, and says so in every release.
        if (item is CadOwnedObjectBase owned && writer.HasSubclasses
            && (owned.Owner != 0 || writer.Release >= 2000 || item is CadObjectBase))
        {
            writer.WriteHandle(330, owned.Owner);
        }
    }

    private void WriteRest(CadBaseObject item)
    {
        WriteKeptElsewhere(item);
        if (writer.Release >= 2018 || item is not CadMText)
        {
            item.Embedded?.ForEach(writer.Write);
        }

        foreach (CadXdata xdata in item.XdataOrNull?.XdataEntities ?? [])
        {
            writer.Write(1001, xdata.RegisteredApplicationName);
            xdata.Data.ForEach(writer.Write);
        }
    }

    // Tags after markers that the class does not know follow with their markers.
    private void WriteKeptElsewhere(CadBaseObject item)
    {
        string? marker = null;
        foreach (KeptTag tag in item.KeptTags?.Tags ?? [])
        {
            if (writer.HasWritten(tag.Subclass))
            {
                continue;
            }

            if (tag.Subclass != marker && tag.Subclass is not (null or KeptTag.Verbatim))
            {
                writer.WriteSubclass(tag.Subclass);
                marker = tag.Subclass;
            }

            writer.Write(tag.Value);
        }
    }
}
