using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads the binary data of solids out of the section AcDb:AcDsPrototype_1b. Source: Open Design Specification
/// for .dwg files, 5.4.1, chapter 24.</summary>
internal sealed class DataStore
{
    private const uint BlobReference = 0xBB106BB1;
    private const int SegmentHeader = 48;
    private const int DataAlignment = 36;

    // The data of solids begins with the name of the modeler that wrote it.
    private static readonly byte[][] Beginnings = ["ACIS BinaryFile"u8.ToArray(), "ASM BinaryFile"u8.ToArray()];

    private readonly byte[] _data;
    private readonly List<(long Offset, long Size)> _segments = [];
    private readonly List<(ulong Owner, byte[] Data)> _solids = [];

    private DataStore(byte[] data) => _data = data;

    /// <summary>Adds the data of solids to a drawing, in the form that text files have it.</summary>
    /// <param name="data">The section.</param>
    /// <param name="drawing">The drawing.</param>
    /// <returns>Whether the section is sound as far as it was read.</returns>
    internal static bool Read(byte[] data, CadDrawing drawing)
    {
        if (data.Length == 0)
        {
            return true;
        }

        DataStore store = new(data);
        bool isSound = store.ReadSegments();
        if (store._solids.Count == 0)
        {
            return isSound;
        }

        CadAcdsData section = drawing.AcdsData;
        section.Items.Items.Add(ModelerSection.CreateSchema(0));
        foreach ((ulong owner, byte[] bytes) in store._solids)
        {
            section.Items.Items.Add(ModelerSection.CreateRecord(0, owner, bytes));
        }

        section.IsInFile = true;
        section.Header.AddRange(ModelerSection.HeaderFor(section.Items.Items));
        return isSound;
    }

    private bool ReadSegments()
    {
        const int fieldsBeforeIndex = 24;
        RawReader file = new(_data);
        file.Skip(fieldsBeforeIndex);
        int index = file.Int32();
        file.Int32();
        int count = file.Int32();
        file.Int32();
        int dataIndex = file.Int32();
        file.Seek((long)index + SegmentHeader);
        for (int i = 0; i < count && !file.IsShort; i++)
        {
            _segments.Add((file.Int64(), file.UInt32()));
        }

        return !file.IsShort && ReadEntries(dataIndex);
    }

    private bool ReadEntries(int dataIndex)
    {
        RawReader entries = new(_data);
        if (!Enter(ref entries, dataIndex))
        {
            return false;
        }

        int count = entries.Int32();
        entries.Int32();
        bool isSound = true;
        for (int i = 0; i < count && !entries.IsShort; i++)
        {
            (int segment, uint offset) = (entries.Int32(), entries.UInt32());
            entries.UInt32();
            isSound &= segment == 0 || ReadRecord(segment, offset);
        }

        return isSound && !entries.IsShort;
    }

    private bool ReadRecord(int segment, uint offset)
    {
        RawReader reader = new(_data);
        if (!Enter(ref reader, segment))
        {
            return false;
        }

        long start = _segments[segment].Offset;
        reader.Seek(start + SegmentHeader + offset + sizeof(long));
        ulong owner = (ulong)reader.Int64();
        uint place = reader.UInt32();
        reader.Seek(start + DataAlignment);
        long begin = start + ((long)reader.UInt32() << 4) + place;
        reader.Seek(begin);
        uint size = reader.UInt32();
        ReadOnlySpan<byte> bytes = size == BlobReference ? ReadBlob(ref reader) : reader.Take(size);
        byte[] data = bytes.ToArray();
        if (Array.Exists(Beginnings, beginning => data.AsSpan().StartsWith(beginning)))
        {
            _solids.Add((owner, data));
        }

        return !reader.IsShort && (data.Length > 0 || size == 0);
    }

    // Large data is in pages, which are segments of their own.
    private byte[] ReadBlob(ref RawReader reader)
    {
        const int unused = 20;
        long total = reader.Int64();
        int pages = reader.Int32();
        reader.Skip(unused);
        if (total < 0 || total > _data.Length)
        {
            return [];
        }

        List<byte> bytes = new((int)total);
        for (int i = 0; i < pages && !reader.IsShort && bytes.Count < total; i++)
        {
            int segment = reader.Int32();
            reader.Int32();
            RawReader page = new(_data);
            if (!Enter(ref page, segment))
            {
                return [];
            }

            page.Skip(sizeof(long) * 3);
            bytes.AddRange(page.Take(page.Int64()));
        }

        return bytes.Count == total ? [.. bytes] : [];
    }

    private bool Enter(ref RawReader reader, int segment)
    {
        if (segment <= 0 || segment >= _segments.Count || _segments[segment].Offset <= 0)
        {
            return false;
        }

        reader.Seek(_segments[segment].Offset + SegmentHeader);
        return !reader.IsShort;
    }
}
