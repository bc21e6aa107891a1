using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>A file whose sections are in pages: its maps and headers can be changed, and have right checksums
/// again.</summary>
internal sealed class PagedFile
{
    private const int MapNumber = 0x7000;

    private readonly byte[] _file;

    internal PagedFile(byte[] file)
    {
        DwgSource source = new(file, "a", new LoadOptions());
        FileHeader header = FileHeader.Read(source);
        Addresses = PageMap.Read(source, header);
        long end = Addresses[header.SectionMapPage];
        SectionMap = SystemPage.Read(source, end, SystemPage.SectionMapType, "")!;
        Sections = Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged.SectionMap.Read(source, end);
        _file = file[..(int)end];
        long[] starts = [.. Addresses.Values.Where(address => address <= end).Order()];
        foreach ((int number, long address) in Addresses.Where(page => page.Value < end).OrderBy(static p => p.Value))
        {
            Pages.Add((number, (int)(starts[Array.IndexOf(starts, address) + 1] - address)));
        }
    }

    /// <summary>Gets the addresses of the pages by their numbers.</summary>
    internal Dictionary<int, long> Addresses { get; }

    /// <summary>Gets the numbers and lengths of the pages before the maps, as the page map states them. A number below
    /// zero is that of a gap.</summary>
    internal List<(int Number, int Size)> Pages { get; } = [];

    /// <summary>Gets or sets the map of sections.</summary>
    internal byte[] SectionMap { get; set; }

    /// <summary>Gets the sections as the map states them.</summary>
    internal List<SectionInfo> Sections { get; }

    /// <summary>Gets or sets the decompressed size that the page of the section map states; -1 for the right
    /// one.</summary>
    internal int StatedMapSize { get; set; } = -1;

    /// <summary>Gets or sets what changes the fields of the file header.</summary>
    internal Action<byte[]> ChangeHeader { get; set; } = static _ => { };

    internal SectionInfo this[string name] => Sections.Find(section => section.Name == name)!;

    /// <summary>Returns the place of a section in the map: size, number of pages, page size and more.</summary>
    internal int PlaceOf(string name)
    {
        const int nameOffset = 32;
        return SectionMap.AsSpan().IndexOf(System.Text.Encoding.ASCII.GetBytes(name + "\0")) - nameOffset;
    }

    /// <summary>Sets four bytes of the section map.</summary>
    internal void Put(int place, int value) => BinaryPrimitives.WriteInt32LittleEndian(SectionMap.AsSpan(place), value);

    /// <summary>Changes the header of a data page, which gets a right checksum again.</summary>
    internal void ChangePage(int number, Change change)
    {
        int address = (int)Addresses[number];
        DataPageHeader header = DataPageHeader.Read(_file, address);
        change(ref header);
        header.Checksum = header.ExpectedChecksum();
        header.ApplyMask(address);
        System.Runtime.InteropServices.MemoryMarshal.Write(_file.AsSpan(address), in header);
    }

    /// <summary>Replaces the stored bytes of a page from their start on; the checksum is right again.</summary>
    internal void ChangeData(int number, params byte[] data)
    {
        int address = (int)Addresses[number];
        data.CopyTo(_file, address + SectionLoader.HeaderLength);
        ChangePage(number, (ref DataPageHeader header) => header.DataChecksum = SectionPageDataChecksum.Compute(
            0, _file.AsSpan(address + SectionLoader.HeaderLength, (int)header.Stored)));
    }

    internal byte[] Build()
    {
        using MemoryStream stream = new();
        stream.Write(_file);
        byte[] map = Page(SystemPage.SectionMapType, SectionMap, StatedMapSize);
        List<int> entries = [];
        foreach ((int number, int size) in Pages)
        {
            entries.AddRange(number < 0 ? [number, size, 1, 0x20, 2, 0] : [number, size]);
        }

        entries.AddRange([MapNumber, map.Length, MapNumber + 1, 0x100]);
        stream.Write(map);
        long address = stream.Position;
        stream.Write(Page(SystemPage.PageMapType, [.. entries.SelectMany(BitConverter.GetBytes)], -1));
        byte[] data = stream.ToArray();
        WriteHeader(data.AsSpan(FileHeader.Start, FileHeader.Length), address);
        return data;
    }

    private void WriteHeader(Span<byte> place, long pageMap)
    {
        MagicSequence.Apply(place);
        byte[] header = place.ToArray();
        BitConverter.GetBytes(pageMap - FileHeader.FirstPage).CopyTo(header, 0x54);
        BitConverter.GetBytes(MapNumber).CopyTo(header, 0x5C);
        ChangeHeader(header);
        header.AsSpan(FileHeader.ChecksumOffset, 4).Clear();
        BitConverter.GetBytes(Crc32.Compute(0, header)).CopyTo(header, FileHeader.ChecksumOffset);
        header.CopyTo(place);
        MagicSequence.Apply(place);
    }

    // A map that is not compressed.
    private static byte[] Page(int type, byte[] map, int stated)
    {
        int length = (SystemPage.HeaderLength + map.Length + 0x1F) & ~0x1F;
        byte[] page = new byte[length];
        BitConverter.GetBytes(type).CopyTo(page, 0);
        BitConverter.GetBytes(stated < 0 ? map.Length : stated).CopyTo(page, 4);
        BitConverter.GetBytes(map.Length).CopyTo(page, 8);
        page[12] = 1;
        uint checksum = SystemPage.ChecksumOf(page.AsSpan(0, SystemPage.HeaderLength), map);
        BitConverter.GetBytes(checksum).CopyTo(page, 16);
        map.CopyTo(page, SystemPage.HeaderLength);
        return page;
    }

    internal delegate void Change(ref DataPageHeader header);
}
