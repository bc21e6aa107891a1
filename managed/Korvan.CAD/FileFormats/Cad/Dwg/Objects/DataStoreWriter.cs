using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Writes the binary data of solids as the section AcDb:AcDsPrototype_1b, which <see cref="DataStore"/> reads:
/// a header, and segments for the index of segments, the index of records, the records, the schemas and their search
/// data. Source: Open Design Specification for .dwg files, 5.4.1, chapter 24.</summary>
internal sealed class DataStoreWriter
{
    private const int HeaderSize = 128;
    private const int SegmentHeader = 48;
    private const int Alignment = 128;
    private const int FirstFree = 7;
    private const int RecordHeader = 20;
    private const int LargestRecord = 0x40000;
    private const int LargestPage = 0xFFFB0;
    private const uint BlobReference = 0xBB106BB1;

    // The places of segments in their index; data and pages follow.
    private const int SegmentIndex = 1;
    private const int DataIndex = 2;
    private const int SchemaIndex = 4;
    private const int SchemaData = 5;
    private const int Search = 6;
    private const int FirstData = 3;

    private readonly List<(int Index, byte[] Content)> _segments = [];
    private readonly List<(int Segment, int Offset)> _records = [];
    private int _free = FirstFree;

    /// <summary>Returns the section; empty where there are no solids.</summary>
    /// <param name="solids">The handles of the solids, and their data.</param>
    internal static byte[] Write(List<(ulong Owner, byte[] Data)> solids)
    {
        if (solids.Count == 0)
        {
            return [];
        }

        DataStoreWriter writer = new();
        writer.AddData(solids);
        writer.Add(DataIndex, "datidx", writer.WriteDataIndex());
        writer.Add(SchemaIndex, "schidx", SolidSchemas.Index(SchemaData), SolidSchemas.IndexNames);
        writer.Add(SchemaData, "schdat", SolidSchemas.Data, SolidSchemas.DataNames);
        writer.Add(Search, "search", WriteSearch(solids));
        return writer.Assemble();
    }

    // Records are in segments of their own size; larger ones are in pages, and have references in their place.
    private void AddData(List<(ulong Owner, byte[] Data)> solids)
    {
        for (int start = 0; start < solids.Count;)
        {
            int segment = start == 0 ? FirstData : _free++;
            List<byte[]> records = [];
            int size = 0;
            int end = start;
            while (end < solids.Count && (end == start || size + Math.Min(solids[end].Data.Length, LargestRecord)
                <= LargestRecord))
            {
                records.Add(RecordOf(solids[end].Data));
                size += records[^1].Length;
                end++;
            }

            using MemoryStream headers = new();
            using BinaryWriter header = new(headers);
            int offset = 0;
            for (int i = start; i < end; i++)
            {
                _records.Add((segment, (i - start) * RecordHeader));
                header.Write(RecordHeader);
                header.Write(1);
                header.Write(solids[i].Owner);
                header.Write(offset);
                offset += records[i - start].Length;
            }

            Add(segment, "_data_", headers.ToArray(), [.. records.SelectMany(static record => record)], isData: true);
            start = end;
        }
    }

    private byte[] RecordOf(byte[] data)
    {
        if (data.Length <= LargestRecord)
        {
            return [.. BitConverter.GetBytes(data.Length), .. data];
        }

        const int fields = 36;
        byte[][] pages = [.. data.Chunk(LargestPage)];
        using MemoryStream reference = new();
        using BinaryWriter writer = new(reference);
        writer.Write(BlobReference);
        writer.Write((long)data.Length);
        writer.Write(pages.Length);
        writer.Write(fields + (pages.Length * 2 * sizeof(int)));
        writer.Write(LargestPage);
        writer.Write(pages[^1].Length);
        writer.Write(0L);
        for (int i = 0; i < pages.Length; i++)
        {
            writer.Write(_free);
            writer.Write(pages[i].Length);
            AddPage(_free++, data.Length, i, pages);
        }

        return reference.ToArray();
    }

    private void AddPage(int segment, int total, int page, byte[][] pages)
    {
        using MemoryStream content = new();
        using BinaryWriter writer = new(content);
        writer.Write((long)total);
        writer.Write((long)page * LargestPage);
        writer.Write(page);
        writer.Write(pages.Length);
        writer.Write((long)pages[page].Length);
        writer.Write(pages[page]);
        Add(segment, "blob01", content.ToArray());
    }

    private byte[] WriteDataIndex()
    {
        using MemoryStream content = new();
        using BinaryWriter writer = new(content);
        writer.Write(_records.Count);
        writer.Write(0);
        foreach ((int segment, int offset) in _records)
        {
            writer.Write(segment);
            writer.Write(offset);
            writer.Write(SolidSchemas.Solid);
        }

        return content.ToArray();
    }

    // The records of the schema, and in which of them the data of each solid are.
    private static byte[] WriteSearch(List<(ulong Owner, byte[] Data)> solids)
    {
        using MemoryStream content = new();
        using BinaryWriter writer = new(content);
        writer.Write(1);
        writer.Write(SolidSchemas.Solid);
        writer.Write((long)solids.Count);
        for (long i = 0; i < solids.Count; i++)
        {
            writer.Write(i);
        }

        writer.Write(1);
        writer.Write(0);
        writer.Write(solids.Count);
        for (int i = 0; i < solids.Count; i++)
        {
            writer.Write(solids[i].Owner);
            writer.Write(1L);
            writer.Write((long)i);
        }

        return content.ToArray();
    }

    private void Add(int index, string name, byte[] content, byte[]? aligned = null, bool isData = false)
    {
        const ushort signature = 0xD5AC;
        const int blockBits = 4;
        const byte filler = 0x73;
        const byte rest = 0x70;
        int start = (SegmentHeader + content.Length + 15) >> blockBits;
        int used = aligned is null ? SegmentHeader + content.Length : (start << blockBits) + aligned.Length;
        int size = (used + Alignment - 1) / Alignment * Alignment;
        using MemoryStream segment = new(size);
        using BinaryWriter writer = new(segment);
        writer.Write(signature);
        writer.Write(Encoding.ASCII.GetBytes(name));
        writer.Write(index);
        writer.Write(name == "blob01" ? 1 : 0);
        writer.Write(size);
        writer.Write(0);
        writer.Write(1);
        writer.Write(0);
        writer.Write(aligned is null || isData ? 0 : start);
        writer.Write(isData ? start : 0);
        writer.Write(0x5555555555555555);
        writer.Write(content);
        while (aligned is not null && segment.Length < start << blockBits)
        {
            writer.Write(filler);
        }

        writer.Write(aligned ?? []);
        while (segment.Length < size)
        {
            writer.Write(rest);
        }

        _segments.Add((index, segment.ToArray()));
    }

    private byte[] Assemble()
    {
        const int entrySize = 12;
        int indexSize = (SegmentHeader + (_free * entrySize) + Alignment - 1) / Alignment * Alignment;
        byte[] entries = new byte[_free * entrySize];
        long position = HeaderSize + indexSize;
        Enter(entries, SegmentIndex, HeaderSize, indexSize);
        foreach ((int index, byte[] content) in _segments)
        {
            Enter(entries, index, position, content.Length);
            position += content.Length;
        }

        using MemoryStream file = new();
        using BinaryWriter writer = new(file);
        foreach (int value in (ReadOnlySpan<int>)[
            0x6472616A, HeaderSize, 8, 2, 0, 1, HeaderSize, 0, _free, SchemaIndex, DataIndex, Search, 0, (int)position])
        {
            writer.Write(value);
        }

        writer.Write(new byte[HeaderSize - (int)file.Length]);
        Add(SegmentIndex, "segidx", entries);
        writer.Write(_segments[^1].Content);
        foreach ((_, byte[] content) in _segments.SkipLast(1))
        {
            writer.Write(content);
        }

        return file.ToArray();

        static void Enter(byte[] entries, int index, long position, int size)
        {
            BitConverter.TryWriteBytes(entries.AsSpan(index * entrySize), position);
            BitConverter.TryWriteBytes(entries.AsSpan((index * entrySize) + sizeof(long)), size);
        }
    }
}
