using System;
using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Finds pages without the maps: they begin at multiples of 32 bytes with a header that has a certain type and
/// a checksum.</summary>
internal static class PageScan
{
    private const int Alignment = 0x20;
    private const int PageSize = 0x7400;

    /// <summary>Returns the address of an intact map; -1 if there is none.</summary>
    internal static long FindSystemPage(byte[] data, int type)
    {
        for (int at = FileHeader.FirstPage; at <= data.Length - SystemPage.HeaderLength; at += Alignment)
        {
            if (BitConverter.ToInt32(data, at) != type)
            {
                continue;
            }

            uint stored = BitConverter.ToUInt32(data, at + 8);
            ReadOnlySpan<byte> rest = data.AsSpan(at);
            if (stored <= rest.Length - SystemPage.HeaderLength
                && BitConverter.ToUInt32(data, at + 0x10) == SystemPage.ChecksumOf(
                    rest[..SystemPage.HeaderLength], rest.Slice(SystemPage.HeaderLength, (int)stored)))
            {
                return at;
            }
        }

        return -1;
    }

    /// <summary>Returns the addresses of data pages by the numbers of their sections and their places in
    /// them.</summary>
    internal static Dictionary<(int Section, long Start), long> FindDataPages(byte[] data)
    {
        Dictionary<(int, long), long> pages = [];
        for (int at = FileHeader.FirstPage; at <= data.Length - SectionLoader.HeaderLength; at += Alignment)
        {
            DataPageHeader header = DataPageHeader.Read(data, at);
            if (header.Type == SectionLoader.PageType && header.Checksum == header.ExpectedChecksum())
            {
                pages.TryAdd((header.Section, header.Start), at);
            }
        }

        return pages;
    }

    /// <summary>Returns the sections without which there is no drawing, told by how they begin.</summary>
    /// <param name="data">The file.</param>
    /// <param name="pages">Its data pages; those of a section get numbers as in <paramref name="numbers"/>.</param>
    /// <param name="numbers">Where the addresses of the pages go.</param>
    internal static List<SectionInfo> GuessSections(
        byte[] data, Dictionary<(int Section, long Start), long> pages, Dictionary<int, long> numbers)
    {
        List<SectionInfo> sections = [];
        int number = numbers.Count == 0 ? 0 : numbers.Keys.Max();
        foreach (IGrouping<int, KeyValuePair<(int Section, long Start), long>> group in
            pages.GroupBy(static page => page.Key.Section))
        {
            List<PageInfo> infos = [];
            foreach (((_, long start), long address) in group.OrderBy(static page => page.Key.Start))
            {
                numbers[++number] = address;
                infos.Add(new PageInfo(number, DataPageHeader.Read(data, address).Stored, start));
            }

            if (infos[0].Start == 0 && NameOf(data, numbers[infos[0].Number]) is { } name)
            {
                long size = infos[^1].Start + PageSize;
                sections.Add(new SectionInfo(group.Key, name, size, PageSize, true, false, infos));
            }
        }

        return sections;
    }

    private static string? NameOf(byte[] data, long address)
    {
        DataPageHeader header = DataPageHeader.Read(data, address);
        long room = data.Length - address - SectionLoader.HeaderLength;
        byte[] page = new byte[PageSize];
        if (header.Stored > room || Lz77.Decompress(
            data.AsSpan((int)address + SectionLoader.HeaderLength, (int)header.Stored), page) < 0)
        {
            return null;
        }

        return PageNames.NameOf(page);
    }
}
