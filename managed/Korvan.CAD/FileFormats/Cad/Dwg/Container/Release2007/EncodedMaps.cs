using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>The maps of pages and of sections of release 2007. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapter 5.2.</summary>
internal static class EncodedMaps
{
    internal const string PageSection = "page map";

    internal const string SectionSection = "section map";

    private const int PageEntry = 16;
    private const int PageFields = 56;
    private const int Interleaved = 4;

    /// <summary>Reads the addresses of pages by their numbers.</summary>
    /// <param name="source">The file.</param>
    /// <param name="header">Its header.</param>
    /// <param name="moved">By how many bytes a map may have moved.</param>
    internal static Dictionary<long, long> ReadPages(DwgSource source, EncodedHeader header, int moved)
    {
        Dictionary<long, long> pages = [];
        if (ReadEither(source, header.PageMap, header.PageMapCopy, header.CrcSeed, PageSection, moved) is not { } map)
        {
            return pages;
        }

        RawReader entries = new(map);
        long address = EncodedHeader.FirstPage;
        while (entries.Remaining >= PageEntry)
        {
            Budget.Check();
            long size = entries.Int64();
            pages.TryAdd(Math.Abs(Math.Max(entries.Int64(), -long.MaxValue)), address);
            if (size < 0 || size > source.Data.Length - address)
            {
                source.Report(LoadDefectCode.InvalidPage, PageSection, header.PageMap.Address,
                    $"a page of {size} bytes at byte {address} extends beyond the end of the file");
                break;
            }

            address += size;
        }

        return pages;
    }

    /// <summary>Reads the map of sections.</summary>
    /// <param name="source">The file.</param>
    /// <param name="header">Its header.</param>
    /// <param name="pages">The addresses of pages.</param>
    /// <param name="moved">By how many bytes a map may have moved.</param>
    internal static List<EncodedSection> ReadSections(
        DwgSource source, EncodedHeader header, Dictionary<long, long> pages, int moved)
    {
        List<EncodedSection> sections = [];
        long address = pages.GetValueOrDefault(header.SectionMap.Address, -1);
        long copy = pages.GetValueOrDefault(header.SectionMapCopy.Address, -1);
        if (ReadEither(source, header.SectionMap with { Address = address },
            header.SectionMapCopy with { Address = copy }, header.CrcSeed, SectionSection, moved) is not { } map)
        {
            return sections;
        }

        RawReader fields = new(map);
        while (fields.Remaining >= PageFields && !fields.IsShort)
        {
            sections.Add(ReadSection(ref fields));
        }

        if (fields.IsShort || fields.Remaining > 0)
        {
            source.Report(LoadDefectCode.Truncated, SectionSection, address, "the map of sections ends early");
        }

        return sections;
    }

    // Each map has a copy, which is used where defects do not end the load.
    private static byte[]? ReadEither(
        DwgSource source, in SystemPageInfo page, in SystemPageInfo copy, ulong seed, string name, int moved)
    {
        SystemPageInfo[] places = moved == 0 ? [page, copy]
            : [page, copy, page with { Address = page.Address + moved }, copy with { Address = copy.Address + moved }];
        byte[]? first = null;
        foreach (SystemPageInfo place in places)
        {
            int defects = source.Options.Errors.Count;
            byte[]? map = EncodedPages.ReadSystem(source, place, seed, name);
            if (source.Options.Errors.Count == defects)
            {
                return map;
            }

            first ??= map;
        }

        return first;
    }

    private static EncodedSection ReadSection(ref RawReader fields)
    {
        long size = fields.Int64();
        fields.Skip(8);
        bool isEncrypted = fields.Int64() == 1;
        fields.Skip(8);
        long nameLength = fields.Int64();
        fields.Skip(8);
        bool isInterleaved = fields.Int64() == Interleaved;
        long count = fields.Int64();
        string name = Encoding.Unicode.GetString(fields.Take(nameLength)).TrimEnd('\0');
        List<EncodedPage> pages = [];
        for (long i = 0; i < count && fields.Remaining >= PageFields; i++)
        {
            Budget.Check();
            long start = fields.Int64();
            fields.Skip(8);
            pages.Add(new EncodedPage(
                start, fields.Int64(), fields.Int64(), fields.Int64(), (uint)fields.Int64(), (ulong)fields.Int64()));
        }

        if (pages.Count < count)
        {
            fields.Skip(PageFields);
        }

        return new EncodedSection(name, size, isEncrypted, isInterleaved, pages);
    }
}
