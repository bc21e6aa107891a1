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
        Dictionary<long, long> pages = EncodedMaps.ReadPages(source, header);
        foreach (EncodedSection section in EncodedMaps.ReadSections(source, header, pages))
        {
            if (!section.IsEncrypted || !plain.IsEncrypted)
            {
                NamedSections.Store(file, section.Name, () => ReadSection(source, section, pages, header.CrcSeed));
            }
        }

        NamedSections.VerifyComplete(file);
        return file;
    }

    private static byte[] ReadSection(
        DwgSource source, EncodedSection section, Dictionary<long, long> pages, ulong seed)
    {
        long limit = 0;
        foreach (EncodedPage page in section.Pages)
        {
            limit += page.Stored == page.Size ? Math.Clamp(page.Size, 0, source.Data.Length)
                : Math.Clamp(page.Size, 0, MaxPageSize);
        }

        limit = Math.Min(limit, source.MaxSectionSize);
        if (section.Size < 0 || section.Size > limit || section.Pages.Count > pages.Count)
        {
            source.Report(LoadDefectCode.CountTooLarge, section.Name, -1,
                $"the section states {section.Size} bytes in {section.Pages.Count} pages; the pages of the file hold "
                    + $"{limit}");
            return [];
        }

        Budget.Step(section.Size / BytesPerStep);
        Budget.VerifyRoom(section.Size);
        byte[] target = new byte[section.Size];
        string?[] faults = new string?[section.Pages.Count];
        ForkedProcess.RunPieces(section.Pages.Count, i =>
        {
            EncodedPage page = section.Pages[i];
            Budget.Step(1 + ((Math.Max(page.Size, 0) + Math.Max(page.Stored, 0)) / BytesPerStep));
            faults[i] = ReadPage(source.Data, section, page, pages, seed, target);
        });
        foreach (string? fault in faults)
        {
            if (fault is not null)
            {
                source.Report(LoadDefectCode.InvalidPage, section.Name, -1, fault);
            }
        }

        return target;
    }

    private static string? ReadPage(byte[] data, EncodedSection section, in EncodedPage page,
        Dictionary<long, long> pages, ulong seed, byte[] target)
    {
        if (!pages.TryGetValue(page.Number, out long address))
        {
            return $"page {page.Number} is not in the file";
        }

        if (page.Start < 0 || page.Size < 0 || page.Start > target.Length || page.Size > target.Length - page.Start)
        {
            return $"page {page.Number} of {page.Size} bytes begins at byte {page.Start} of a section of "
                + $"{target.Length} bytes";
        }

        return EncodedPages.ReadData(
            data, address, section, page, seed, target.AsSpan((int)page.Start, (int)page.Size));
    }
}
