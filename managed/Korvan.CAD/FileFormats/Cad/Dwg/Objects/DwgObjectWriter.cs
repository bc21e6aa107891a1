using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Writes all objects of a drawing whose handles and owners are complete.</summary>
internal sealed class DwgObjectWriter
{
    /// <summary>The objects left out that are told one by one; more are counted.</summary>
    private const int MaxNamed = 1000;

    private readonly CadDrawing _drawing;
    private readonly int _release;
    private readonly WrittenHandles _handles;
    private readonly RecordWriter _records;
    private readonly WrittenClasses _classes;
    private readonly Dictionary<string, List<ulong>> _inserts = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, ulong> _colors = [];
    private ulong _modelSpace;
    private ulong _paperSpace;

    /// <summary>Creates a writer.</summary>
    /// <param name="drawing">The drawing.</param>
    /// <param name="release">The release as a year, from 2000 on.</param>
    /// <param name="encoding">The encoding of strings of 8-bit characters.</param>
    internal DwgObjectWriter(CadDrawing drawing, int release, Encoding encoding)
    {
        _drawing = drawing;
        _release = release;
        _classes = new WrittenClasses(drawing.ClassEntities.Items);
        _handles = new WrittenHandles(drawing, IsWritten);
        Objects = new ObjectStore(release);
        _records = new RecordWriter(release, encoding, _handles, Objects);
    }

    /// <summary>Gets the records.</summary>
    internal ObjectStore Objects { get; }

    /// <summary>Gets the classes of the file: those of the drawing, and those that its objects need.</summary>
    internal IReadOnlyList<CadClassEntity> Classes => _classes.All;

    /// <summary>Gets what was left out because it is kept in the form of another format or release, and what is written
    /// in another way because it contradicts itself.</summary>
    internal List<string> LeftOut { get; } = [];

    /// <summary>Writes all objects.</summary>
    internal void Write()
    {
        NoteUnwritten();
        CountInserts();
        AddTableSizes();
        AddShapes();
        foreach (CadDbColor color in _drawing.Objects.OfType<CadDbColor>())
        {
            _colors.TryAdd(color.ColorName, color.Handle);
        }

        foreach (string table in TableRecords.Names)
        {
            WriteTable(table);
        }

        foreach (CadObjectBase item in _drawing.Objects)
        {
            if (_handles.IsPresent(item.Handle))
            {
                WriteObject(item, new ObjectFrame { Owner = item.Owner }, null);
            }
        }

        _classes.Complete();
    }

    private void NoteUnwritten()
    {
        long more = 0;
        foreach (CadBaseObject item in DrawingWalk.All(_drawing))
        {
            if (IsWritten(item))
            {
                continue;
            }

            Budget.Check();
            if (LeftOut.Count >= MaxNamed)
            {
                more++;
                continue;
            }

            string form = item.Kept?.FormatName ?? "another release";
            LeftOut.Add($"{item.DxfName} {HandleText.Format(item.Handle)}: data kept in the form of {form}");
        }

        if (more > 0)
        {
            LeftOut.Add($"{more} more objects: data kept in the form of other formats or releases");
        }
    }

    private void AddTableSizes()
    {
        foreach (CadTableEntity table in DrawingWalk.Entities(_drawing).OfType<CadTableEntity>())
        {
            (int rows, int columns) = table.WrittenSize;
            if ((rows, columns) != (table.NumberOfRows, table.NumberOfColumns))
            {
                LeftOut.Add($"{table.DxfName} {table.ObjectHandle}: {rows} rows and {columns} columns are written "
                    + $"instead of {table.NumberOfRows} and {table.NumberOfColumns}, for {table.Cells.Count} cells");
            }
        }
    }

    private void AddShapes()
    {
        foreach (CadShape shape in DrawingWalk.Entities(_drawing).OfType<CadShape>())
        {
            if (shape.ShapeNumber == 0)
            {
                LeftOut.Add($"{shape.DxfName} {shape.ObjectHandle}: its number, which the shape file of "
                    + $"'{shape.ShapeName}' tells; the file is not in the folder of the drawing");
            }
        }
    }

    private bool IsWritten(CadBaseObject item) =>
        item is CadTableHeader or CadSymbolTableGroupCodes or CadInsertObject || KeptOf(item) is not null
        || ProxiedOf(item) is not null
        || (item.HasAllBits && (ObjectTypeTable.NumberOf(item) > 0 || WrittenClasses.IsKnown(item.DxfName)
            || _classes.Has(item.DxfName)));

    private KeptBits? KeptOf(CadBaseObject item) =>
        !item.HasAllBits && item.Kept is KeptBits { Record.Length: > 0 } kept && kept.Release == _release
            && (kept.Proxy is null || kept.IsOf(item)) ? kept : null;

    // The bits of another release are those of a proxy, which states the release; so are those that state another
    // handle, as copies have it, or another layer.
    private StoredProxy? ProxiedOf(CadBaseObject item) =>
        item is (RawEntity or RawObject) && item.Kept is KeptBits { Proxy: StoredProxy proxy } kept
            && (kept.Release != _release || !kept.IsOf(item)) && _classes.Has(item.DxfName) ? proxy : null;

    private void CountInserts()
    {
        foreach (CadInsertObject insert in DrawingWalk.Entities(_drawing).OfType<CadInsertObject>())
        {
            if (!_inserts.TryGetValue(insert.Name, out List<ulong>? found))
            {
                _inserts[insert.Name] = found = [];
            }

            found.Add(insert.Handle);
        }
    }

    private void WriteTable(string name)
    {
        CadTableHeader header = _drawing.TableHeaders[name];
        SymbolTableHandles table = new();
        bool isBlocks = name == "BLOCK_RECORD";
        foreach (CadSymbolTableGroupCodes record in TableRecords.Of(_drawing, name))
        {
            AddRecord(table, record, isBlocks);
        }

        (_modelSpace, _paperSpace) = isBlocks ? (table.First, table.Second) : (_modelSpace, _paperSpace);
        _records.WriteControl(ObjectTypeTable.ControlOf(name), header, table);
        foreach (CadSymbolTableGroupCodes record in TableRecords.Of(_drawing, name))
        {
            ObjectFrame frame = new() { Owner = header.Handle };
            if (record is CadBlockTableObject block)
            {
                WriteBlock(block, frame);
            }
            else
            {
                _records.Write(ObjectTypeTable.NumberOf(record), record, frame, null);
            }
        }
    }

    private static void AddRecord(SymbolTableHandles table, CadSymbolTableGroupCodes record, bool isBlocks)
    {
        bool isLineType = record is CadLineTypeTableObject;
        if (isBlocks && BlockNames.IsModelSpace(record.Name) && table.First == 0)
        {
            table.First = record.Handle;
        }
        else if (isBlocks && BlockNames.IsActivePaperSpace(record.Name) && table.Second == 0)
        {
            table.Second = record.Handle;
        }
        else if (isLineType && string.Equals(record.Name, "BYBLOCK", StringComparison.OrdinalIgnoreCase))
        {
            table.First = record.Handle;
        }
        else if (isLineType && string.Equals(record.Name, "BYLAYER", StringComparison.OrdinalIgnoreCase))
        {
            table.Second = record.Handle;
        }
        else
        {
            table.Records.Add(record.Handle);
        }
    }

    private void WriteBlock(CadBlockTableObject record, ObjectFrame frame)
    {
        CadBlockEntity block = _drawing.BlockEntities.Find(record.Name) ?? new CadBlockEntity { Name = record.Name };
        ChildHandles parts = new() { Begin = block.Handle, End = block.End.Handle };
        List<CadEntityBase> entities = [.. block.Entities.Where(entity => _handles.IsPresent(entity.Handle))];
        parts.Owned.AddRange(entities.Select(static entity => entity.Handle));
        record.Definition = DefinitionOf(block);
        _records.Write(ObjectTypeTable.NumberOf(record), record, frame, parts);
        WritePart(block, record.Handle);
        for (int i = 0; i < entities.Count; i++)
        {
            ObjectFrame place = FrameOf(record.Handle);
            Link(place, entities[i].Handle, i > 0 ? parts.Owned[i - 1] : 0,
                i + 1 < entities.Count ? parts.Owned[i + 1] : 0);
            WriteEntity(entities[i], place);
        }

        WritePart(block.End, record.Handle);
    }

    private BlockDefinition DefinitionOf(CadBlockEntity block)
    {
        BlockDefinition definition = new()
        {
            Flags = block.Flags,
            Path = block.XRefPathName,
            Description = block.Description,
        };
        (definition.BasePoint.X, definition.BasePoint.Y, definition.BasePoint.Z) =
            (block.BasePoint.X, block.BasePoint.Y, block.BasePoint.Z);
        definition.Inserts.AddRange(_inserts.GetValueOrDefault(block.Name) ?? []);
        return definition;
    }

    private void WriteEntity(CadEntityBase entity, ObjectFrame frame)
    {
        switch (entity)
        {
            case CadPolylineBase polyline:
                WriteSequence(entity, frame, [.. polyline.Vertices], polyline.Seqend);
                break;
            case CadInsertObject { Attributes.Count: > 0 } insert when KeptOf(insert) is null:
                WriteSequence(entity, frame, [.. insert.Attributes], insert.Seqend);
                break;
            default:
                WriteObject(entity, frame, null);
                break;
        }
    }

    private void WriteSequence(CadEntityBase owner, ObjectFrame frame, List<CadEntityBase> items, CadSeqend? end)
    {
        ChildHandles parts = new() { End = end?.Handle ?? 0 };
        parts.Owned.AddRange(items.Select(static item => item.Handle));
        WriteObject(owner, frame, parts);
        for (int i = 0; i < items.Count; i++)
        {
            ObjectFrame place = new() { Owner = owner.Handle };
            Link(place, items[i].Handle, i > 0 ? parts.Owned[i - 1] : 0, i + 1 < items.Count ? parts.Owned[i + 1] : 0);
            WriteObject(items[i], place, null);
        }

        if (end is not null)
        {
            WriteObject(end, new ObjectFrame { Owner = owner.Handle }, null);
        }
    }

    private void WritePart(CadEntityBase part, ulong owner) => WriteObject(part, FrameOf(owner), null);

    private ObjectFrame FrameOf(ulong owner) => new()
    {
        Mode = owner == _modelSpace ? ObjectFrame.InModelSpace
            : owner == _paperSpace ? ObjectFrame.InPaperSpace : ObjectFrame.OwnerIsStated,
        Owner = owner,
    };

    private static void Link(ObjectFrame frame, ulong self, ulong previous, ulong next)
    {
        frame.IsBetweenNeighbours = previous == self - 1 && next == self + 1;
        (frame.Previous, frame.Next) = (previous, next);
    }

    private void WriteObject(CadBaseObject item, ObjectFrame frame, ChildHandles? parts)
    {
        Budget.Check();
        if (KeptOf(item) is { } kept)
        {
            int stated = _records.TypeOf(kept);
            bool isFixed = stated < ObjectTypeTable.FirstClass;
            _records.WriteKept(isFixed ? stated : _classes.NumberOf(item), item.Handle, kept);
            return;
        }

        if (item is CadEntityBase { ColorName.Length: > 0 } entity)
        {
            frame.Color = _colors.GetValueOrDefault(entity.ColorName);
        }

        if (ProxiedOf(item) is { } stored)
        {
            CadBaseObject proxy = stored.Create().ToProxy(_classes.NumberOf(item), item is CadEntityBase);
            _records.Write(ObjectTypeTable.NumberOf(proxy), item, frame, parts, proxy);
            return;
        }

        int type = ObjectTypeTable.NumberOf(item);
        _records.Write(type > 0 ? type : _classes.NumberOf(item), item, frame, parts);
    }
}
