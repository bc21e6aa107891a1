using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>Drawing databases of release 2007, whose header, maps and pages have an error-correcting code. Source: Open
/// Design Specification for .dwg files, 5.4.1, chapter 5.</summary>
internal static class EncodedContainer
{
    // Pages have 0xF800 bytes at most where they are compressed.
    private const long MaxPageSize = 1 << 20;
    private const int BytesPerStep = 1024;

    internal static DwgFile Read(DwgSource source)
    {
        PlainFields plain = PlainFields.Read(source);
        EncodedHeader header = EncodedHeader.Read(source);
        DwgFile file = new()
        {
            Source = source,
            Version = CadAcadVersion.AC1021,
            MaintenanceVersion = plain.MaintenanceVersion,
            CodePage = plain.CodePage,
            Encoding = source.EncodingOf(plain.CodePage),
        };
        MovedPages moved = new(source, header);
        Dictionary<long, long> pages = EncodedMaps.ReadPages(source, header, moved.Distance);
        foreach (EncodedSection section in EncodedMaps.ReadSections(source, header, pages, moved.Distance))
        {
            if (!section.IsEncrypted || !plain.IsEncrypted)
            {
                NamedSections.Store(
                    file, section.Name, () => ReadSection(source, section, pages, header.CrcSeed, moved));
            }
        }

        if (source.IsTolerant && file.Objects.Length == 0)
        {
            PageGuess.Complete(file, pages.Values);
        }

        NamedSections.VerifyComplete(file);
        return file;
    }

    private static byte[] ReadSection(
        DwgSource source, EncodedSection section, Dictionary<long, long> pages, ulong seed, MovedPages moved)
    {
        long size = SizeOf(source, section);
        Budget.Step(size / BytesPerStep);
        Budget.VerifyRoom(size);
        byte[] target = new byte[size];
        List<(EncodedPage Page, long Address)> located = Locate(source, section, pages);
        PageFault?[] faults = new PageFault?[located.Count];
        ForkedProcess.RunPieces(located.Count, i =>
        {
            (EncodedPage page, long address) = located[i];
            Budget.Step(1 + ((Math.Max(page.Size, 0) + Math.Max(page.Stored, 0)) / BytesPerStep));
            faults[i] = ReadPage(source.Data, section, page, address, seed, target, moved);
        });
        foreach (PageFault? fault in faults)
        {
            if (fault is not null)
            {
                source.Report(fault.Code, section.Name, fault.Address, fault.Cause);
            }
        }

        return target;
    }

    private static long SizeOf(DwgSource source, EncodedSection section)
    {
        long limit = 0;
        foreach (EncodedPage page in section.Pages)
        {
            limit += page.Size < 0 ? MaxPageSize
                : Math.Min(page.Size, page.Stored == page.Size ? source.Data.Length : MaxPageSize);
        }

        return source.SizeOf(section.Name, section.Size, section.Pages.Count, limit);
    }

    // A page belongs to one place only, so that a file cannot have it decompressed again and again.
    private static List<(EncodedPage Page, long Address)> Locate(
        DwgSource source, EncodedSection section, Dictionary<long, long> pages)
    {
        List<(EncodedPage, long)> located = [];
        HashSet<long> used = [];
        long missing = -1;
        foreach (EncodedPage page in section.Pages)
        {
            if (pages.TryGetValue(page.Number, out long address) && used.Add(address))
            {
                located.Add((page, address));
            }
            else
            {
                missing = page.Number;
            }
        }

        int count = section.Pages.Count - located.Count;
        if (count > 0)
        {
            string more = count == 1 ? "" : $", as are {count - 1} more";
            source.Report(
                LoadDefectCode.InvalidPage, section.Name, -1, $"page {missing} is not in the file{more}");
        }

        return located;
    }

    private static PageFault? ReadPage(
        byte[] data, EncodedSection section, in EncodedPage page, long address, ulong seed, byte[] target,
        MovedPages moved)
    {
        if (page.Start < 0 || page.Size < 0 || page.Start > target.Length || page.Size > target.Length - page.Start)
        {
            return new PageFault(LoadDefectCode.InvalidPage, address, $"page {page.Number} of {page.Size} bytes begins "
                + $"at byte {page.Start} of a section of {target.Length} bytes");
        }

        Span<byte> place = target.AsSpan((int)page.Start, (int)page.Size);
        PageFault? fault = EncodedPages.ReadData(data, address, section, page, seed, place);
        return fault is null || moved.Distance == 0 ? fault : moved.Read(fault, section, page, place);
    }
}
