using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Writes drawing databases of releases 2004, 2010, 2013 and 2018. Source: Open Design Specification for .dwg
/// files, 5.4.1, chapter 4.</summary>
internal sealed class PagedWriter
{
    private const int PageSize = 0x7400;
    private const int SmallPage = 0x80;
    private const int PageAlignment = 0x20;
    private const int Compressed = 2;
    private const int SummaryPage = 0x100;
    private const int MapHeadroom = 64;
    private const string PreviewName = "AcDb:Preview";
    private const string SummaryName = "AcDb:SummaryInfo";

    private readonly DwgContent _content;
    private readonly MemoryStream _file = new();
    private readonly List<(int Number, int Size)> _pages = [];
    private readonly List<SectionInfo> _sections = [];
    private readonly Lz77Encoder _encoder = new();
    private readonly Dictionary<string, long> _addresses = [];
    private int _nextPage = 1;

    private PagedWriter(DwgContent content)
    {
        _content = content;
    }

    internal static void Write(DwgContent content, Stream output)
    {
        PagedWriter writer = new(content);
        writer.WriteSections();
        writer.WriteMaps();
        output.Write(writer._file.GetBuffer(), 0, (int)writer._file.Length);
    }

    // In the order of the pages in the file. The numbers of sections have another order.
    private void WriteSections()
    {
        _file.Write(new byte[FileHeader.FirstPage]);
        int extra = NamedSections.ExtraOf(_content.Version, DwgContent.MaintenanceOf(_content.Version));
        Pending[] sections =
        [
            new(7, SummaryName, false, _content.SummaryInfo),
            new(6, PreviewName, false, PreviewSection.Write(_content.PreviewImage, 0)),
            new(4, "AcDb:VBAProject", false, _content.VbaProject),
            new(5, "AcDb:AppInfo", false, _content.AppInfo),
            new(2, "AcDb:FileDepList", false, _content.FileDepList),
            new(3, "AcDb:AcDsPrototype_1b", true, _content.AcdsPrototype),
            new(8, "AcDb:RevHistory", true, _content.RevHistory),
            new(9, "AcDb:AcDbObjects", true, _content.Objects.ToArray()),
            new(10, "AcDb:ObjFreeSpace", true, _content.ObjFreeSpace),
            new(11, "AcDb:Template", true, _content.Template),
            new(12, ObjectMap.Section, true, _content.Objects.WriteMap(0)),
            new(13, "AcDb:Classes", true, FramedSection.Write(_content.Classes.Span, Sentinels.Classes, extra, 8)),
            new(14, "AcDb:AuxHeader", true, _content.AuxHeader),
            new(15, "AcDb:Header", true, FramedSection.Write(_content.Header.Span, Sentinels.Header, extra, 0)),
        ];
        sections = Array.FindAll(sections, static section => section.Data.Length > 0);
        foreach (Pending section in sections)
        {
            Add(section, Array.FindAll(sections, other => other.Place >= section.Place).Length);
        }

        _sections.Sort(static (a, b) => b.Id.CompareTo(a.Id));
    }

    private void Add(Pending section, int id)
    {
        long address = _file.Position + SectionLoader.HeaderLength;
        _addresses[section.Name] = address;
        ReadOnlySpan<byte> data = section.Name == PreviewName
            ? PreviewSection.Write(_content.PreviewImage, address) : section.Data;
        int pageSize = section.IsCompressed ? PageSize : PageSizeOf(section.Name, data.Length);
        List<PageInfo> pages = [];
        byte[] page = new byte[pageSize];
        for (int start = 0; start < data.Length; start += pageSize)
        {
            Budget.Check();
            page.AsSpan().Clear();
            data.Slice(start, Math.Min(pageSize, data.Length - start)).CopyTo(page);
            byte[] stored = section.IsCompressed ? _encoder.Compress(page) : page;
            pages.Add(new PageInfo(_nextPage, (uint)stored.Length, start));
            WritePage(id, stored, start);
        }

        _sections.Add(new SectionInfo(id, section.Name, data.Length, pageSize, section.IsCompressed, false, pages));
    }

    // Programs read the preview and the summary by their addresses, so that they are in one page, whatever their size.
    private static int PageSizeOf(string section, int length)
    {
        int size = (length + SmallPage - 1) & -SmallPage;
        return section == SummaryName ? Math.Max(SummaryPage, size) : size;
    }

    private void WritePage(int id, ReadOnlySpan<byte> stored, int start)
    {
        long address = _file.Position;
        int size = SectionLoader.HeaderLength + stored.Length;
        DataPageHeader header = new()
        {
            Type = SectionLoader.PageType,
            Section = id,
            Stored = (uint)stored.Length,
            Size = (uint)Aligned(size),
            Start = (uint)start,
            DataChecksum = SectionPageDataChecksum.Compute(0, stored),
        };
        header.Checksum = header.ExpectedChecksum();
        header.ApplyMask(address);
        _file.Write(MemoryMarshal.AsBytes(new ReadOnlySpan<DataPageHeader>(in header)));
        _file.Write(stored);
        EndPage(size);
    }

    private void EndPage(int size)
    {
        _file.Write(MagicSequence.Bytes[..(Aligned(size) - size)]);
        _pages.Add((_nextPage++, Aligned(size)));
    }

    private static int Aligned(int size) => (size + PageAlignment - 1) & -PageAlignment;

    private void WriteMaps()
    {
        int sectionMap = _nextPage;
        WriteSystemPage(SystemPage.SectionMapType, WriteSectionMap());
        int pageMap = _nextPage;
        long address = _file.Position;
        byte[] map = WritePageMap(pageMap);
        WriteSystemPage(SystemPage.PageMapType, map);
        _file.Write(new byte[address + SizeOfPageMap(map.Length) - _file.Position]);
        byte[] header = WriteHeader(address, pageMap, sectionMap);
        _file.Write(header);
        _file.Position = 0;
        WritePlainFields();
        _file.Position = FileHeader.Start;
        _file.Write(header);
        _file.Write(MagicSequence.Bytes[(MagicSequence.Length - (FileHeader.FirstPage - (int)_file.Position))..]);
    }

    private void WriteSystemPage(int type, ReadOnlySpan<byte> map)
    {
        byte[] stored = _encoder.Compress(map);
        byte[] header = new byte[SystemPage.HeaderLength];
        BinaryPrimitives.WriteInt32LittleEndian(header, type);
        byte[] tail = [.. header];
        BinaryPrimitives.WriteInt32LittleEndian(tail.AsSpan(0x0C), Compressed);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(0x04), map.Length);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(0x08), stored.Length);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(0x0C), Compressed);
        BinaryPrimitives.WriteUInt32LittleEndian(header.AsSpan(0x10), SystemPage.ChecksumOf(header, stored));
        _file.Write(header);
        _file.Write(stored);
        _file.Write(tail);
        EndPage((2 * SystemPage.HeaderLength) + stored.Length);
    }

    private byte[] WriteSectionMap()
    {
        using MemoryStream stream = new();
        using BinaryWriter map = new(stream);
        int count = _sections.Count + 1;
        foreach (int value in new[] { count, 2, PageSize, 0, count })
        {
            map.Write(value);
        }

        WriteSection(map, new SectionInfo(0, "", 0, PageSize, true, false, []));
        foreach (SectionInfo section in _sections)
        {
            WriteSection(map, section);
        }

        return stream.ToArray();
    }

    private static void WriteSection(BinaryWriter map, SectionInfo section)
    {
        map.Write(section.Size);
        map.Write(section.Pages.Count);
        map.Write((int)section.PageSize);
        map.Write(1);
        map.Write(section.IsCompressed ? Compressed : 1);
        map.Write(section.Id);
        map.Write(0);
        byte[] name = new byte[SectionMap.NameLength];
        Encoding.ASCII.GetBytes(section.Name, name);
        map.Write(name);
        foreach (PageInfo page in section.Pages)
        {
            map.Write(page.Number);
            map.Write(page.Stored);
            map.Write(page.Start);
        }
    }

    // The map has its own page as well, whose size is stated before it is known.
    private byte[] WritePageMap(int number)
    {
        byte[] map = new byte[(_pages.Count + 1) * 8];
        for (int i = 0; i < _pages.Count; i++)
        {
            BinaryPrimitives.WriteInt32LittleEndian(map.AsSpan(i * 8), _pages[i].Number);
            BinaryPrimitives.WriteInt32LittleEndian(map.AsSpan((i * 8) + 4), _pages[i].Size);
        }

        BinaryPrimitives.WriteInt32LittleEndian(map.AsSpan(_pages.Count * 8), number);
        BinaryPrimitives.WriteInt32LittleEndian(map.AsSpan((_pages.Count * 8) + 4), SizeOfPageMap(map.Length));
        return map;
    }

    private static int SizeOfPageMap(int length) =>
        Aligned((2 * SystemPage.HeaderLength) + length + (length / MapHeadroom) + MapHeadroom);

    private byte[] WriteHeader(long pageMapAddress, int pageMap, int sectionMap)
    {
        byte[] header = new byte[FileHeader.Length];
        FileHeader.Id.CopyTo(header);
        void Put(int offset, long value) => BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(offset), (int)value);
        Put(0x10, FileHeader.Length);
        Put(0x14, 4);
        Put(0x24, 1);
        Put(0x28, pageMap);
        Put(0x2C, _file.Position - FileHeader.FirstPage);
        Put(0x34, _file.Position);
        Put(0x40, _pages.Count);
        Put(0x44, 0x20);
        Put(0x48, 0x80);
        Put(0x4C, 0x40);
        Put(0x50, pageMap);
        Put(0x54, pageMapAddress - FileHeader.FirstPage);
        Put(0x5C, sectionMap);
        Put(0x60, pageMap);
        BinaryPrimitives.WriteUInt32LittleEndian(header.AsSpan(FileHeader.ChecksumOffset), Crc32.Compute(0, header));
        MagicSequence.Apply(header);
        return header;
    }

    private void WritePlainFields()
    {
        byte[] fields = new byte[FileHeader.Start];
        Encoding.ASCII.GetBytes(_content.Version.ToString(), fields);
        fields[0x0B] = (byte)DwgContent.MaintenanceOf(_content.Version);
        fields[0x0C] = 3;
        void Put(int offset, string section) => BinaryPrimitives.WriteInt32LittleEndian(
            fields.AsSpan(offset), (int)_addresses.GetValueOrDefault(section));
        Put(0x0D, PreviewName);
        fields[0x11] = DwgContent.NumberOf(_content.Release);

        // That of the program: some readers ask it, not the one before, whether sizes have 64 bits.
        fields[0x12] = fields[0x0B];
        BinaryPrimitives.WriteInt16LittleEndian(fields.AsSpan(0x13), (short)_content.CodePage);
        Put(0x20, SummaryName);
        Put(0x24, "AcDb:VBAProject");
        BinaryPrimitives.WriteInt32LittleEndian(fields.AsSpan(0x28), FileHeader.Start);
        Put(0x2C, "AcDb:AppInfo");
        _file.Write(fields);
    }

    // A section and its place in the map.
    private readonly record struct Pending(int Place, string Name, bool IsCompressed, byte[] Data);
}
