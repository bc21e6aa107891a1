using System.Collections.Generic;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using ProxyGraphics = Korvan.CAD.FileFormats.Cad.Model.Proxy.ProxyGraphics;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Writes the records of objects, as <see cref="RecordReader"/> reads them.</summary>
/// <param name="release">The release as a year.</param>
/// <param name="encoding">The encoding of strings of 8-bit characters.</param>
/// <param name="handles">The handles of what objects refer to.</param>
/// <param name="store">Takes the records.</param>
internal sealed class RecordWriter(int release, Encoding encoding, WrittenHandles handles, ObjectStore store)
{
    private const int ExtendedTypes = 2010;
    private const int UnicodeStrings = 2007;
    private const int SizeBits = 32;
    private const string DimensionStyles = "AcDbDimStyleTable";
    private const int LongStrings = 0x8000;

    private readonly BitFieldWriter _fields = new(release, encoding, handles);

    /// <summary>Writes an object.</summary>
    /// <param name="type">The number of its type.</param>
    /// <param name="item">The object.</param>
    /// <param name="frame">Its place among the others.</param>
    /// <param name="parts">Its parts.</param>
    /// <param name="proxy">What is written instead of its own fields; null for these.</param>
    /// <exception cref="ImageSaveException">A value does not fit its field.</exception>
    internal void Write(
        int type, CadBaseObject item, ObjectFrame frame, ChildHandles? parts, CadBaseObject? proxy = null)
    {
        try
        {
            WriteFields(type, item, frame, parts, proxy);
        }
        catch (DwgFault fault)
        {
            throw new ImageSaveException($"{_fields.Subject}: {fault.Message}.");
        }
    }

    /// <summary>Writes the header of a symbol table.</summary>
    /// <param name="type">The number of its type.</param>
    /// <param name="header">The header.</param>
    /// <param name="table">The references to its records.</param>
    internal void WriteControl(int type, CadBaseObject header, SymbolTableHandles table)
    {
        ObjectFrame frame = new();
        Begin(header, frame);
        CommonData.ExchangeObject(_fields, frame);
        _fields.BitLong(table.Records.Count);
        List<ulong> listed = type == ObjectTypeTable.DimensionStyleControl ? ListedHandles(header) : [];
        if (type == ObjectTypeTable.DimensionStyleControl)
        {
            _fields.RawByte(listed.Count);
        }

        table.Records.ForEach(record => _fields.Handle(HandleRole.SoftOwner, record));
        listed.ForEach(record => _fields.Handle(HandleRole.HardPointer, record));
        if (type is ObjectTypeTable.BlockControl or ObjectTypeTable.LineTypeControl)
        {
            _fields.Handle(HandleRole.HardOwner, table.First);
            _fields.Handle(HandleRole.HardOwner, table.Second);
        }

        End(type, header.Handle);
    }

    // Text files have the list of the table of dimension styles after a marker of its own.
    private List<ulong> ListedHandles(CadBaseObject header)
    {
        List<ulong> listed = [];
        foreach (KeptTag tag in header.KeptTags?.Tags ?? [])
        {
            if (tag.Subclass == DimensionStyles && tag.Value.Attribute == 340
                && HandleText.TryParse(tag.Value.Value.Trim(), out ulong handle) && handles.IsPresent(handle)
                && listed.Count < byte.MaxValue)
            {
                listed.Add(handle);
            }
        }

        return listed;
    }

    /// <summary>Returns the number of the type of a kept record.</summary>
    internal int TypeOf(KeptBits kept)
    {
        BitReader record = new(kept.Record);
        return ReadType(ref record);
    }

    /// <summary>Writes a record as it was read; only the number of its class may be another one.</summary>
    internal void WriteKept(int type, ulong handle, KeptBits kept)
    {
        BitReader old = new(kept.Record);
        if (ReadType(ref old) == type)
        {
            store.Add(handle, kept.Record, kept.HandleBits);
            return;
        }

        BitWriter record = new();
        WriteType(record, type);
        byte[] rest = kept.Record;
        BitReader body = new(rest, old.Position, (long)rest.Length << 3);
        while (body.Remaining >= 8)
        {
            record.RawByte(body.RawByte());
        }

        while (body.Remaining > 0)
        {
            record.Bit(body.Bit());
        }

        store.Add(handle, record.Bytes, kept.HandleBits);
    }

    private void WriteFields(
        int type, CadBaseObject item, ObjectFrame frame, ChildHandles? parts, CadBaseObject? proxy)
    {
        Begin(item, frame);
        _fields.Parts = parts ?? new ChildHandles();
        _fields.HasStoredData = release >= ModelerSection.Since && item is CadObjectWithAcisData solid
            && solid.GetBinaryData().Length > 0;
        if (item is CadEntityBase entity)
        {
            WriteGraphics(entity);
            CommonData.ExchangeEntity(_fields, entity, frame);
        }
        else
        {
            CommonData.ExchangeObject(_fields, frame);
        }

        (proxy ?? item).ExchangeBits(_fields);
        End(type, item.Handle);
    }

    private int ReadType(ref BitReader record) =>
        release >= ExtendedTypes ? record.ObjectType() : record.BitShort();

    private void Begin(CadBaseObject item, ObjectFrame frame)
    {
        _fields.Begin($"{item.DxfName} {HandleText.Format(item.Handle)}");
        _fields.Data.Handle(0, item.Handle);
        ExtendedDataWriter.Write(_fields.Data, item, release, encoding, handles);
        foreach (CadApplicationCodes group in item.ApplicationCodesOrNull?.ApplicationCodes ?? [])
        {
            Take(group, frame);
        }
    }

    private void Take(CadApplicationCodes group, ObjectFrame frame)
    {
        foreach (CadCodeValue tag in group.Codes)
        {
            if (!HandleText.TryParse(tag.Value.Trim(), out ulong handle) || !handles.IsPresent(handle))
            {
                continue;
            }

            if (group.ApplicationName == "ACAD_REACTORS")
            {
                frame.Reactors.Add(handle);
            }
            else if (group.ApplicationName == "ACAD_XDICTIONARY")
            {
                frame.Dictionary = handle;
            }
        }
    }

    private void WriteGraphics(CadEntityBase entity)
    {
        byte[] graphics = ProxyGraphics.DataOf(entity);
        _fields.Data.Bit(graphics.Length > 0);
        if (graphics.Length == 0)
        {
            return;
        }

        if (release >= ExtendedTypes)
        {
            _fields.Data.BitLongLong((ulong)graphics.Length);
        }
        else
        {
            _fields.Data.RawLong(graphics.Length);
        }

        _fields.Data.Raw(graphics);
    }

    private void End(int type, ulong handle)
    {
        if (release >= UnicodeStrings)
        {
            AddStrings();
        }

        BitWriter record = new();
        WriteType(record, type);
        if (release < ExtendedTypes)
        {
            record.RawLong((int)(record.Position + SizeBits + _fields.Data.Position));
        }

        record.Bits(_fields.Data.Bytes, _fields.Data.Position);
        long start = record.Position;
        record.Bits(_fields.References.Bytes, _fields.References.Position);
        record.Align();
        store.Add(handle, record.Bytes, release >= ExtendedTypes ? record.Position - start : 0);
    }

    private void WriteType(BitWriter record, int type)
    {
        if (release >= ExtendedTypes)
        {
            record.ObjectType(type);
        }
        else
        {
            record.BitShort(type);
        }
    }

    // Strings follow the data, then their length, and a bit that says whether there are any.
    private void AddStrings()
    {
        long length = _fields.Strings.Position;
        BitWriter data = _fields.Data;
        if (length > 0)
        {
            data.Bits(_fields.Strings.Bytes, length);
            if (length >= LongStrings)
            {
                data.RawShort((int)(length >> 15));
                data.RawShort((int)(length & (LongStrings - 1)) | LongStrings);
            }
            else
            {
                data.RawShort((int)length);
            }
        }

        data.Bit(length > 0);
    }
}
