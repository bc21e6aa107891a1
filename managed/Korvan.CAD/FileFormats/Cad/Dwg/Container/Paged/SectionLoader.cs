using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Puts the pages of a section together. Source: Open Design Specification for .dwg files, 5.4.1, chapter
/// 4.6.</summary>
/// <param name="source">The file.</param>
/// <param name="addresses">The addresses of pages by their numbers.</param>
internal sealed class SectionLoader(DwgSource source, Dictionary<int, long> addresses)
{
    internal const int PageType = 0x4163043B;

    internal const int HeaderLength = 0x20;

    /// <summary>The mask of the header of a page, combined with the page's address.</summary>
    internal const uint Mask = 0x4164536B;

    private const int StepsPerPage = 8;
    private const int BytesPerStep = 4096;
    private const int PagesOfPiece = 4; // a thread is worth its start for so many

    /// <summary>Reads a section.</summary>
    internal byte[] Read(SectionInfo section)
    {
        long limit = LimitOf(section);
        if (section.Size < 0 || section.Size > limit || section.Pages.Count > addresses.Count)
        {
            source.Report(LoadDefectCode.CountTooLarge, section.Name, -1,
                $"the section states {section.Size} bytes in {section.Pages.Count} pages; the pages of the file hold "
                    + $"{limit}");
            return [];
        }

        Budget.Step(section.Size / BytesPerStep);
        Budget.VerifyRoom(section.Size);
        byte[] target = new byte[section.Size];
        PageFault[] faults = new PageFault[section.Pages.Count];
        int pieces = (section.Pages.Count + PagesOfPiece - 1) / PagesOfPiece;
        ForkedProcess.RunPieces(pieces, piece =>
        {
            int end = Math.Min(section.Pages.Count, (piece + 1) * PagesOfPiece);
            for (int i = piece * PagesOfPiece; i < end; i++)
            {
                Budget.Step(StepsPerPage);
                faults[i] = ReadPage(section, section.Pages[i], target);
            }
        });
        foreach (PageFault fault in faults)
        {
            if (fault.Cause is not null)
            {
                source.Report(fault.Code, section.Name, fault.Address, fault.Cause);
            }
        }

        return target;
    }

    // Pages of zeros are not stored, but there are no more of them than one at the end.
    private long LimitOf(SectionInfo section)
    {
        long limit = section.PageSize;
        foreach (PageInfo page in section.Pages)
        {
            limit += section.IsCompressed ? Math.Min(section.PageSize, page.Stored * (long)Lz77.MaxRatio) : page.Stored;
        }

        return Math.Min(limit, source.MaxSectionSize);
    }

    private PageFault ReadPage(SectionInfo section, PageInfo page, byte[] target)
    {
        if (!addresses.TryGetValue(page.Number, out long address)
            || address < FileHeader.FirstPage || address > source.Data.Length - HeaderLength)
        {
            return new PageFault(LoadDefectCode.InvalidPage, -1, $"page {page.Number} is not in the file");
        }

        DataPageHeader header = DataPageHeader.Read(source.Data, address);
        long room = source.Data.Length - address - HeaderLength;
        if (header.Type != PageType || header.Section != section.Id || header.Stored > room)
        {
            return new PageFault(LoadDefectCode.InvalidPage, address,
                $"page {page.Number} is not a page of this section, or extends beyond the end of the file");
        }

        if (page.Start < 0 || page.Start > target.Length)
        {
            return new PageFault(LoadDefectCode.InvalidPage, address,
                $"page {page.Number} begins at byte {page.Start} of a section of {target.Length} bytes");
        }

        ReadOnlySpan<byte> stored = source.Data.AsSpan((int)address + HeaderLength, (int)header.Stored);
        Span<byte> place = target.AsSpan((int)page.Start);
        place = place[..(int)Math.Min(place.Length, section.PageSize)];
        bool isWhole = Unpack(section, stored, place);
        uint checksum = SectionPageDataChecksum.Compute(0, stored);
        return checksum != header.DataChecksum || header.Checksum != header.ExpectedChecksum()
            ? new PageFault(LoadDefectCode.WrongChecksum, address,
                $"page {page.Number} has another checksum than it states")
            : isWhole ? default
            : new PageFault(LoadDefectCode.InvalidCompression, address,
                $"page {page.Number} cannot be decompressed");
    }

    // The last page is padded, so that more may be stored than the section has.
    private static bool Unpack(SectionInfo section, ReadOnlySpan<byte> stored, Span<byte> place)
    {
        if (!section.IsCompressed)
        {
            stored[..Math.Min(stored.Length, place.Length)].CopyTo(place);
            return true;
        }

        if (place.Length >= section.PageSize)
        {
            return Lz77.Decompress(stored, place) >= 0;
        }

        long room = Math.Min(section.PageSize, stored.Length * (long)Lz77.MaxRatio);
        Budget.VerifyRoom(room);
        byte[] page = new byte[room];
        int length = Lz77.Decompress(stored, page);
        page.AsSpan(0, Math.Min(length < 0 ? page.Length : length, place.Length)).CopyTo(place);
        return length >= 0;
    }

    private readonly record struct PageFault(LoadDefectCode Code, long Address, string? Cause);
}

/// <summary>The masked header of a data page.</summary>
[StructLayout(LayoutKind.Sequential)]
internal struct DataPageHeader
{
    internal int Type;
    internal int Section;
    internal uint Stored;
    internal uint Size;
    internal uint Start;
    internal uint StartHigh;
    internal uint Checksum;
    internal uint DataChecksum;

    internal static DataPageHeader Read(byte[] data, long address)
    {
        DataPageHeader header = MemoryMarshal.Read<DataPageHeader>(data.AsSpan((int)address));
        header.ApplyMask(address);
        return header;
    }

    /// <summary>Masks or unmasks the fields.</summary>
    internal void ApplyMask(long address)
    {
        uint mask = SectionLoader.Mask ^ (uint)address;
        foreach (ref uint field in MemoryMarshal.Cast<DataPageHeader, uint>(new Span<DataPageHeader>(ref this)))
        {
            field ^= mask;
        }
    }

    /// <summary>Returns the checksum of the header, which continues that of the data.</summary>
    internal readonly uint ExpectedChecksum()
    {
        DataPageHeader copy = this;
        copy.Checksum = 0;
        return SectionPageDataChecksum.Compute(
            DataChecksum, MemoryMarshal.AsBytes(new ReadOnlySpan<DataPageHeader>(in copy)));
    }
}
