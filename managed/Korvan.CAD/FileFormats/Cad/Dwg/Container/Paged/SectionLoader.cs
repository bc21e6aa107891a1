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

    // Where defects do not end the load, a page that is not where the map states is looked for.
    private readonly Lazy<Dictionary<(int Section, long Start), long>> _found =
        new(() => source.IsTolerant ? PageScan.FindDataPages(source.Data) : []);

    /// <summary>Reads a section.</summary>
    internal byte[] Read(SectionInfo section)
    {
        long size = SizeOf(section);
        Budget.Step(size / BytesPerStep);
        Budget.VerifyRoom(size);
        byte[] target = new byte[size];
        List<(PageInfo Page, long Address)> pages = Locate(section);
        PageFault[] faults = new PageFault[pages.Count];
        int pieces = (pages.Count + PagesOfPiece - 1) / PagesOfPiece;
        ForkedProcess.RunPieces(pieces, piece =>
        {
            int end = Math.Min(pages.Count, (piece + 1) * PagesOfPiece);
            for (int i = piece * PagesOfPiece; i < end; i++)
            {
                Budget.Step(StepsPerPage);
                faults[i] = ReadPage(section, pages[i].Page, pages[i].Address, target);
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

    private long SizeOf(SectionInfo section)
    {
        // Pages of zeros are not stored, but there are no more of them than one at the end.
        long limit = section.PageSize;
        foreach (PageInfo page in section.Pages)
        {
            limit += section.IsCompressed ? Math.Min(section.PageSize, page.Stored * (long)Lz77.MaxRatio) : page.Stored;
        }

        return source.SizeOf(section.Name, section.Size, section.Pages.Count, limit);
    }

    // A page belongs to one place only, so that a file cannot have it decompressed again and again.
    private List<(PageInfo Page, long Address)> Locate(SectionInfo section)
    {
        List<(PageInfo, long)> located = [];
        List<int> misplaced = [];
        HashSet<long> used = [];
        foreach (PageInfo page in section.Pages)
        {
            bool isPlaced = addresses.TryGetValue(page.Number, out long address) && IsPageOf(section, address);
            if (!isPlaced && _found.Value.TryGetValue((section.Id, page.Start), out long found))
            {
                address = found;
            }

            bool isUsed = (isPlaced || IsPageOf(section, address)) && used.Add(address);
            if (isUsed)
            {
                located.Add((page, address));
            }

            if (!isUsed || (!isPlaced && addresses.Count > 0))
            {
                misplaced.Add(page.Number);
            }
        }

        if (misplaced.Count > 0)
        {
            string more = misplaced.Count == 1 ? "" : $", as are {misplaced.Count - 1} more";
            source.Report(LoadDefectCode.InvalidPage, section.Name, addresses.GetValueOrDefault(misplaced[0], -1),
                $"page {misplaced[0]} is not where the page map states, or not whole{more}");
        }

        return located;
    }

    private bool IsPageOf(SectionInfo section, long address)
    {
        if (address < FileHeader.FirstPage || address > source.Data.Length - HeaderLength)
        {
            return false;
        }

        DataPageHeader header = DataPageHeader.Read(source.Data, address);
        return header.Type == PageType && header.Section == section.Id
            && header.Stored <= source.Data.Length - address - HeaderLength;
    }

    private PageFault ReadPage(SectionInfo section, PageInfo page, long address, byte[] target)
    {
        DataPageHeader header = DataPageHeader.Read(source.Data, address);
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
