using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads the records of objects: what all have in common, and through the lists of their classes what is their
/// own. Source: Open Design Specification for .dwg files, 5.4.1, chapter 20.</summary>
/// <param name="data">The section of objects.</param>
/// <param name="format">What the records have in common.</param>
/// <param name="classes">The classes of the file, which types from 500 on are.</param>
internal sealed class RecordReader(byte[] data, RecordFormat format, IReadOnlyList<CadClassEntity> classes)
{
    private const int ExtendedTypes = 2010;
    private const int StatedSize = 2000;

    private readonly BitFieldReader _fields = new(format.Release, format.Encoding, format.Names);
    private readonly ObjectFrame _frame = new();

    /// <summary>Gets the bit that is read next.</summary>
    internal long Position => _fields.Position;

    /// <summary>Gets how many bits of data the class of the last object left over.</summary>
    internal long DataRemaining => _fields.DataRemaining;

    /// <summary>Gets how many bits of references the class of the last object left over.</summary>
    internal long HandlesRemaining => _fields.HandlesRemaining;

    /// <summary>Reads where a record is and of what type.</summary>
    internal RecordHeader ReadHeader(long offset)
    {
        if (offset < 0 || offset >= data.Length)
        {
            throw new DwgFault(0, $"it is at byte {offset} of {data.Length}");
        }

        BitReader bits = new(data, offset << 3, long.MaxValue);
        int size = bits.ModularShort();
        long handleBits = format.Release >= ExtendedTypes ? (long)bits.UnsignedModularChar() : 0;
        long start = bits.Position;
        long end = start + ((long)size << 3);
        if (size == 0 || end > bits.End)
        {
            throw new DwgFault(start, $"a record of {size} bytes, where {(bits.End - start) >> 3} are left");
        }

        bits = new BitReader(data, start, end);
        int type = format.Release >= ExtendedTypes ? bits.ObjectType() : bits.BitShort();
        return new RecordHeader(start, end, handleBits, type, bits.Position);
    }

    /// <summary>Reads the handle of a record.</summary>
    internal ulong ReadHandle(in RecordHeader header)
    {
        BitReader bits = new(data, header.Fields, header.End);
        bits.Position += format.Release is >= StatedSize and < ExtendedTypes ? 32 : 0;
        return bits.Handle().Value;
    }

    /// <summary>Reads the name of a record of a symbol table.</summary>
    internal (ulong Handle, string Name) ReadName(in RecordHeader header)
    {
        ReadFrame(header, null, out ulong handle, out _);
        CommonData.ExchangeObject(_fields, _frame);
        return (handle, _fields.Text(""));
    }

    /// <summary>Reads the references of the header of a symbol table.</summary>
    internal SymbolTableHandles ReadControl(in RecordHeader header, CadBaseObject target)
    {
        ReadFrame(header, target, out ulong handle, out _);
        CommonData.ExchangeObject(_fields, _frame);
        AddGroups(target);
        target.Handle = handle;
        int count = _fields.CountLong(0);
        int listed = header.Type == ObjectTypeTable.DimensionStyleControl && format.Release >= StatedSize
            ? _fields.RawByte(0) : 0;
        SymbolTableHandles table = new();
        while (_fields.HandlesRemaining >= 8 && count-- > 0)
        {
            table.Records.Add(_fields.NextHandle());
        }

        KeepList(target, listed);
        if (header.Type is ObjectTypeTable.BlockControl or ObjectTypeTable.LineTypeControl
            && _fields.HandlesRemaining >= 16)
        {
            table.First = _fields.NextHandle();
            table.Second = _fields.NextHandle();
        }

        return table;
    }

    // As text files have it, after a marker of its own.
    private void KeepList(CadBaseObject table, int count)
    {
        const string marker = "AcDbDimStyleTable";
        if (count == 0)
        {
            return;
        }

        List<KeptTag> tags = KeptTags.Of(table).Tags;
        tags.Add(new KeptTag(marker, new CadCodeValue(71, count.ToString(CultureInfo.InvariantCulture))));
        while (_fields.HandlesRemaining >= 8 && count-- > 0)
        {
            tags.Add(new KeptTag(marker, new CadCodeValue(340, HandleText.Format(_fields.NextHandle()))));
        }
    }

    /// <summary>Reads an object.</summary>
    internal RecordContent Read(in RecordHeader header) => Read(header, Create(header.Type));

    /// <summary>Reads what all objects have in common, and keeps the record for what is its own.</summary>
    internal RecordContent ReadKept(in RecordHeader header)
    {
        CadBaseObject known = Create(header.Type);
        return Read(header, known is CadEntityBase ? new RawEntity(known.DxfName) : new RawObject(known.DxfName));
    }

    private RecordContent Read(in RecordHeader header, CadBaseObject target)
    {
        ReadFrame(header, target, out ulong handle, out byte[] graphics);
        target.Handle = handle;
        if (target is CadEntityBase entity)
        {
            CommonData.ExchangeEntity(_fields, entity, _frame);
            entity.Owner = _frame.Owner;
        }
        else
        {
            CommonData.ExchangeObject(_fields, _frame);
            if (target is CadOwnedObjectBase owned)
            {
                owned.Owner = _frame.Owner;
            }
        }

        AddGroups(target);
        if (target.HasBits)
        {
            target.ExchangeBits(_fields);
        }

        Keep(header, target, graphics);
        return new RecordContent(target, _frame.Place, _fields.Parts);
    }

    /// <summary>Returns the name of a type, for messages.</summary>
    internal string NameOf(int type)
    {
        int index = type - ObjectTypeTable.FirstClass;
        return index < 0 ? ObjectTypeTable.Create(type)?.DxfName ?? ObjectTypeTable.NameOf(type)
            : index < classes.Count ? classes[index].DxfRecordName : $"object of type {type}";
    }

    private void Keep(in RecordHeader header, CadBaseObject target, byte[] graphics)
    {
        bool isRaw = !target.HasAllBits;
        if (!isRaw && target.Kept is not null)
        {
            // Tags that the class keeps take the place of stored graphics, which it can draw without.
            return;
        }

        if (target is CadAcadProxyEntity proxy)
        {
            proxy.GraphicsData = graphics;
            return;
        }

        if (isRaw || graphics.Length > 0)
        {
            byte[] record = isRaw ? data[(int)(header.Start >> 3)..(int)(header.End >> 3)] : [];
            target.Kept = new KeptBits
            {
                Release = format.Release,
                Handle = target.Handle,
                Record = record,
                HandleBits = (int)header.HandleBits,
                Proxy = isRaw ? new StoredProxy(record, PlaceIn(header), target.Handle, format.Release) : null,
                Graphics = graphics,
            };
        }
    }

    private RecordPlace PlaceIn(in RecordHeader header) => new(
        _fields.Position - header.Start, _fields.DataEnd - header.Start, _fields.HandlesPosition - header.Start);

    // Reads up to the fields that all objects have, which follow the place of the references.
    private void ReadFrame(in RecordHeader header, CadBaseObject? target, out ulong handle, out byte[] graphics)
    {
        BitReader bits = new(data, header.Fields, header.End);
        long handles = header.End - header.HandleBits;
        if (format.Release is >= StatedSize and < ExtendedTypes)
        {
            handles = header.Start + (uint)bits.RawLong();
        }

        handle = bits.Handle().Value;
        ExtendedData.Read(ref bits, target, format);
        graphics = target is CadEntityBase && bits.Bit() ? ReadGraphics(ref bits) : [];
        if (format.Release < StatedSize)
        {
            handles = header.Start + (uint)bits.RawLong();
        }

        _frame.Clear();
        _fields.Begin(handle, bits);
        _fields.SetHandles(handles, header.End);
    }

    private byte[] ReadGraphics(ref BitReader bits) =>
        bits.Bytes(format.Release >= ExtendedTypes ? (long)bits.BitLongLong() : (uint)bits.RawLong());

    private void AddGroups(CadBaseObject target)
    {
        if (_frame.Dictionary != 0 || _frame.Reactors.Count > 0)
        {
            target.Defer(new StoredGroups(_frame.Dictionary, [.. _frame.Reactors]));
        }
    }

    private CadBaseObject Create(int type)
    {
        if (type < ObjectTypeTable.FirstClass)
        {
            return ObjectTypeTable.Create(type) is { HasBits: true } known
                ? known : Unknown(type, ObjectTypeTable.NameOf(type));
        }

        int index = type - ObjectTypeTable.FirstClass;
        if (index >= classes.Count)
        {
            return new RawObject($"DWG_TYPE_{type}");
        }

        CadClassEntity item = classes[index];
        CadBaseObject? made = item.IsEntity ? CreateEntity(item.DxfRecordName)
            : ObjectTypes.CreateObject(item.DxfRecordName);
        return made is { HasBits: true } ? made
            : item.IsEntity ? new RawEntity(item.DxfRecordName) : new RawObject(item.DxfRecordName);
    }

    /// <summary>Determines whether objects of a class are drawn.</summary>
    internal static bool IsEntity(string name) => CreateEntity(name) is not null;

    private static CadBaseObject Unknown(int type, string name) =>
        ObjectTypeTable.Create(type) is CadEntityBase entity ? new RawEntity(entity.DxfName)
            : new RawObject(ObjectTypeTable.Create(type)?.DxfName ?? name);

    private static CadEntityBase? CreateEntity(string name) => name switch
    {
        "MLEADER" => new CadMLeader(),
        "WIPEOUT" => new CadWipeout(),
        _ => ObjectTypes.CreateEntity(name),
    };
}

/// <summary>Where a record is.</summary>
/// <param name="Start">The first bit of its type.</param>
/// <param name="End">The bit after its references.</param>
/// <param name="HandleBits">How many bits of references it has, from release 2010 on.</param>
/// <param name="Type">The number of its type.</param>
/// <param name="Fields">The bit after its type.</param>
internal readonly record struct RecordHeader(long Start, long End, long HandleBits, int Type, long Fields);

/// <summary>An object and its place among the others.</summary>
internal readonly record struct RecordContent(CadBaseObject? Target, ObjectPlace Place, ChildHandles? Parts);

/// <summary>The records of a symbol table, and the two that are apart in some tables.</summary>
internal sealed class SymbolTableHandles
{
    internal List<ulong> Records { get; } = [];

    internal ulong First { get; set; }

    internal ulong Second { get; set; }
}
