using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>A section, and the pages that it is stored in.</summary>
/// <param name="Id">The number of the section, which its pages repeat.</param>
/// <param name="Name">The name; empty for the section without data.</param>
/// <param name="Size">The number of bytes.</param>
/// <param name="PageSize">The largest number of decompressed bytes of a page.</param>
/// <param name="IsCompressed">Whether the pages are compressed.</param>
/// <param name="IsEncrypted">Whether the pages are encrypted.</param>
/// <param name="Pages">The pages.</param>
internal sealed record SectionInfo(
    int Id, string Name, long Size, long PageSize, bool IsCompressed, bool IsEncrypted, List<PageInfo> Pages);

/// <summary>A page of a section.</summary>
/// <param name="Number">The number of the page.</param>
/// <param name="Stored">The number of bytes of the compressed data.</param>
/// <param name="Start">The first byte of the section that is in the page.</param>
internal readonly record struct PageInfo(int Number, uint Stored, long Start);

/// <summary>The map of sections. Source: Open Design Specification for .dwg files, 5.4.1, chapter 4.5.</summary>
internal static class SectionMap
{
    internal const string Section = "section map";

    internal const int NameLength = 64;

    private const int PageLength = 16;

    internal static List<SectionInfo> Read(DwgSource source, long address)
    {
        List<SectionInfo> sections = [];
        if (SystemPage.Read(source, address, SystemPage.SectionMapType, Section) is not { } map)
        {
            return sections;
        }

        RawReader fields = new(map);
        uint count = fields.UInt32();
        fields.Skip(16);
        for (uint i = 0; i < count && !fields.IsShort; i++)
        {
            ReadSection(ref fields, sections);
        }

        if (fields.IsShort)
        {
            source.Report(LoadDefectCode.Truncated, Section, address,
                $"the map announces {count} sections, but ends after {sections.Count}");
        }

        return sections;
    }

    private static void ReadSection(ref RawReader fields, List<SectionInfo> sections)
    {
        long size = fields.Int64();
        uint pageCount = fields.UInt32();
        uint pageSize = fields.UInt32();
        fields.Skip(4);
        bool isCompressed = fields.Int32() == 2;
        int id = fields.Int32();
        bool isEncrypted = fields.Int32() == 1;
        ReadOnlySpan<byte> name = fields.Take(NameLength);
        int end = name.IndexOf((byte)0);
        string text = Encoding.ASCII.GetString(end < 0 ? name : name[..end]);
        List<PageInfo> pages = [];
        for (uint i = 0; i < pageCount && fields.Remaining >= PageLength; i++)
        {
            Budget.Check();
            pages.Add(new PageInfo(fields.Int32(), fields.UInt32(), fields.Int64()));
        }

        if (pages.Count < pageCount)
        {
            fields.Skip(PageLength);
        }

        if (!fields.IsShort || pages.Count > 0)
        {
            sections.Add(new SectionInfo(id, text, size, pageSize, isCompressed, isEncrypted, pages));
        }
    }
}
