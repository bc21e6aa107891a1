using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Drawing databases of releases 2004, 2010, 2013 and 2018: sections in compressed pages, which two maps lead
/// to. Source: Open Design Specification for .dwg files, 5.4.1, chapters 4 and 6 to 8.</summary>
internal static class PagedContainer
{
    private static readonly string[] Needed = ["AcDb:Header", "AcDb:Classes", "AcDb:AcDbObjects", ObjectMap.Section];

    internal static DwgFile Read(DwgSource source, CadAcadVersion version)
    {
        FileHeader header = FileHeader.Read(source);
        PlainFields plain = PlainFields.Read(source);
        DwgFile file = new()
        {
            Source = source,
            Version = version,
            MaintenanceVersion = plain.MaintenanceVersion,
            CodePage = plain.CodePage,
            Encoding = source.EncodingOf(plain.CodePage),
        };
        Dictionary<int, long> pages = PageMap.Read(source, header);
        SectionLoader loader = new(source, pages);
        foreach (SectionInfo section in ReadSections(source, header, pages))
        {
            if (!section.IsEncrypted || !plain.IsEncrypted)
            {
                NamedSections.Store(file, section.Name, () => loader.Read(section));
            }
        }

        NamedSections.VerifyComplete(file);
        return file;
    }

    // Where defects do not end the load, the pages themselves tell where they belong.
    private static List<SectionInfo> ReadSections(DwgSource source, FileHeader header, Dictionary<int, long> pages)
    {
        List<SectionInfo> sections = [];
        if (pages.TryGetValue(header.SectionMapPage, out long address))
        {
            sections = SectionMap.Read(source, address);
        }
        else
        {
            source.Report(LoadDefectCode.InvalidPage, SectionMap.Section, -1,
                $"page {header.SectionMapPage}, which has the map, is not in the file");
        }

        if (sections.Count == 0
            && PageScan.FindSystemPage(source.Data, SystemPage.SectionMapType) is >= 0 and var found)
        {
            sections = SectionMap.Read(source, found);
        }

        if (source.IsTolerant && Array.Exists(Needed, name => !sections.Exists(section => section.Name == name)))
        {
            sections.AddRange(PageScan.GuessSections(source.Data, PageScan.FindDataPages(source.Data), pages));
        }

        // Sections of one name have the same place, and the same pages where somebody repeats them.
        return [.. sections.DistinctBy(static section => section.Name)];
    }
}
