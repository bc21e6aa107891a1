using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Builds files of release 2007 without compression. What the maps state can be changed before.</summary>
internal sealed class EncodedFile
{
    private const ulong Seed = 0x1234567;
    private const int PageSize = 0x200;
    private const int HeaderSize = 0x110;
    private const int PageMapNumber = 1;
    private const int SectionMapNumber = 2;

    private static readonly byte[][][] Steps = [StepsOf(4, 0x11D), StepsOf(16, 0x169)];

    private readonly MemoryStream _file = new();

    /// <summary>Creates the file of a drawing.</summary>
    internal EncodedFile(DwgContent content)
    {
        _file.Write(new byte[EncodedHeader.FirstPage]);
        Add("AcDb:Header", FramedSection.Write(content.Header.Span, Sentinels.Header, 0, 0));
        Add("AcDb:Classes", FramedSection.Write(content.Classes.Span, Sentinels.Classes, 0, 0));
        Add(ObjectMap.Section, content.Objects.WriteMap(0));
        Add("AcDb:AcDbObjects", content.Objects.ToArray());
        Add("AcDb:SummaryInfo", content.SummaryInfo);
        CodePage = content.CodePage;
    }

    internal int CodePage { get; }

    /// <summary>Gets the numbers and lengths of the pages, as the page map states them.</summary>
    internal List<(long Number, long Size)> Pages { get; } = [];

    /// <summary>Gets the sections.</summary>
    internal List<EncodedSection> Sections { get; } = [];

    /// <summary>Gets the first byte of each page in the file.</summary>
    internal Dictionary<long, int> Addresses { get; } = [];

    /// <summary>Gets or sets what changes the fields of the file header before they are checked and encoded.</summary>
    internal Action<byte[]> ChangeHeader { get; set; } = static _ => { };

    internal EncodedSection this[string name]
    {
        get => Sections.Find(section => section.Name == name)!;
        set => Sections[Sections.FindIndex(section => section.Name == name)] = value;
    }

    internal byte[] Build()
    {
        long end = _file.Position;
        List<(long, long)> pages = [.. Pages];
        (long sections, byte[] sectionMap) = AddMap(SectionMap(), SectionMapNumber);
        (long address, byte[] pageMap) = AddMap(PageMap(), PageMapNumber);
        byte[] data = _file.ToArray();
        Header(address, pageMap, sectionMap).CopyTo(data, 0x80);
        Encoding.ASCII.GetBytes("AC1021").CopyTo(data, 0);
        data[0x13] = (byte)CodePage;
        Addresses[SectionMapNumber] = (int)sections;
        Addresses[PageMapNumber] = (int)address;
        _file.SetLength(end);
        Pages.Clear();
        Pages.AddRange(pages);
        return data;
    }

    private void Add(string name, byte[] data)
    {
        List<EncodedPage> pages = [];
        for (int start = 0; start < data.Length; start += PageSize)
        {
            byte[] page = data[start..Math.Min(data.Length, start + PageSize)];
            int number = 10 + Pages.Count;
            Addresses[number] = (int)_file.Position;
            pages.Add(new EncodedPage(
                start, number, page.Length, page.Length, EncodedPages.ChecksumOf(page), CheckOf(page)));
            byte[] encoded = Encode(ReedSolomon.Data, page);
            _file.Write(encoded);
            Pages.Add((number, encoded.Length));
        }

        Sections.Add(new EncodedSection(name, data.Length, false, true, pages));
    }

    private (long Address, byte[] Map) AddMap(byte[] map, int number)
    {
        long address = _file.Position;
        byte[] encoded = Encode(ReedSolomon.System, map);
        _file.Write(encoded);
        Pages.Add((number, encoded.Length));
        return (address, map);
    }

    private byte[] PageMap() => Join(Pages.SelectMany(static page => new[] { page.Size, page.Number }));

    private byte[] SectionMap()
    {
        using MemoryStream map = new();
        foreach (EncodedSection section in Sections)
        {
            byte[] name = Encoding.Unicode.GetBytes(section.Name + "\0");
            map.Write(Join([section.Size, PageSize, section.IsEncrypted ? 1 : 0, 0, name.Length, 0,
                section.IsInterleaved ? 4 : 1, section.Pages.Count]));
            map.Write(name);
            foreach (EncodedPage page in section.Pages)
            {
                map.Write(Join([page.Start, page.Size, page.Number, page.Size, page.Stored, page.Checksum,
                    (long)page.Check]));
            }
        }

        return map.ToArray();
    }

    private byte[] Header(long address, byte[] pageMap, byte[] sectionMap)
    {
        byte[] header = new byte[HeaderSize];
        void Put(int offset, long value) => BitConverter.GetBytes(value).CopyTo(header, offset);
        long place = address - EncodedHeader.FirstPage;
        Put(0x10, (long)CheckOf(pageMap));
        Put(0x18, 1);
        Put(0x28, place);
        Put(0x38, place);
        Put(0x50, pageMap.Length);
        Put(0x58, pageMap.Length);
        Put(0x80, (long)CheckOf(pageMap));
        Put(0xA8, (long)CheckOf(sectionMap));
        Put(0xB0, sectionMap.Length);
        Put(0xB8, SectionMapNumber);
        Put(0xC0, SectionMapNumber);
        Put(0xC8, sectionMap.Length);
        Put(0xD0, (long)CheckOf(sectionMap));
        Put(0xD8, 1);
        Put(0xF0, (long)Seed);
        ChangeHeader(header);
        Put(HeaderSize - 8, (long)Crc64.Compute(Crc64.HeaderSeedOf(0, HeaderSize), header));
        const int blocks = 3;
        byte[] decoded = new byte[blocks * ReedSolomon.System.DataLength];
        BitConverter.GetBytes(-HeaderSize).CopyTo(decoded, 0x18); // less than 0: not compressed
        header.CopyTo(decoded, 0x20);
        return Encode(ReedSolomon.System, decoded, blocks);
    }

    private static ulong CheckOf(byte[] data) => Crc64.ComputeMirrored(Crc64.SeedOf(Seed, data.Length), data);

    private static byte[] Join(IEnumerable<long> values) => [.. values.SelectMany(BitConverter.GetBytes)];

    /// <summary>Returns the number of blocks of a page.</summary>
    internal static int BlocksOf(ReedSolomon code, int length) =>
        (((length + 7) & -8) + code.DataLength - 1) / code.DataLength;

    private static byte[] Encode(ReedSolomon code, byte[] data) => Encode(code, data, BlocksOf(code, data.Length));

    // The bytes of the blocks alternate.
    private static byte[] Encode(ReedSolomon code, byte[] data, int blocks)
    {
        byte[] encoded = new byte[blocks * ReedSolomon.BlockLength];
        byte[] block = new byte[ReedSolomon.BlockLength];
        for (int i = 0; i < blocks; i++)
        {
            Array.Clear(block);
            int start = Math.Min(data.Length, i * code.DataLength);
            data.AsSpan(start, Math.Min(code.DataLength, data.Length - start)).CopyTo(block);
            AddParity(code, block);
            for (int at = 0; at < block.Length; at++)
            {
                encoded[(at * blocks) + i] = block[at];
            }
        }

        return encoded;
    }

    /// <summary>Completes a block whose data is at its start.</summary>
    internal static void AddParity(ReedSolomon code, byte[] block)
    {
        byte[][] steps = Steps[code.Parity == 4 ? 0 : 1];
        byte[] rest = new byte[code.Parity + 1];
        for (int i = 0; i < code.DataLength; i++)
        {
            byte[] step = steps[block[i] ^ rest[0]];
            for (int j = 0; j < code.Parity; j++)
            {
                rest[j] = (byte)(rest[j + 1] ^ step[j]);
            }
        }

        rest.AsSpan(0, code.Parity).CopyTo(block.AsSpan(code.DataLength));
    }

    // The byte at an index of a block is the coefficient of that power, and the parity bytes are the highest ones: read
    // backwards, a block is divisible by the generator read backwards. These are the multiples of that one.
    private static byte[][] StepsOf(int parity, int polynomial)
    {
        byte[] generator = new byte[parity + 1];
        generator[0] = 1;
        byte root = 1;
        for (int i = 1; i <= parity; i++)
        {
            root = Multiply(root, 2, polynomial);
            for (int j = i; j >= 0; j--)
            {
                generator[j] = (byte)(Multiply(generator[j], root, polynomial) ^ (j > 0 ? generator[j - 1] : 0));
            }
        }

        byte scale = Invert(generator[0], polynomial);
        return [.. Enumerable.Range(0, 256).Select(lead => generator.Skip(1).Select(one =>
            Multiply((byte)lead, Multiply(one, scale, polynomial), polynomial)).ToArray())];
    }

    private static byte Multiply(byte a, byte b, int polynomial)
    {
        int product = 0;
        for (int i = 7; i >= 0; i--)
        {
            product <<= 1;
            product ^= (product & 0x100) != 0 ? polynomial : 0;
            product ^= ((b >> i) & 1) != 0 ? a : 0;
        }

        return (byte)product;
    }

    private static byte Invert(byte value, int polynomial) =>
        (byte)Enumerable.Range(1, 255).First(one => Multiply(value, (byte)one, polynomial) == 1);
}
