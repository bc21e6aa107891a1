using System.Collections.Generic;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>The addresses of pages by their numbers: pages follow each other in the order of the map.</summary>
internal static class PageMap
{
    internal const string Section = "page map";

    private const int GapFields = 16; // parent, left, right and zero of a gap

    internal static Dictionary<int, long> Read(DwgSource source, FileHeader header)
    {
        Dictionary<int, long> pages = [];
        if (SystemPage.Read(source, header.PageMapAddress, SystemPage.PageMapType, Section) is not { } map)
        {
            return pages;
        }

        RawReader entries = new(map);
        long address = FileHeader.FirstPage;
        while (entries.Remaining >= 8)
        {
            Budget.Check();
            int number = entries.Int32();
            uint size = entries.UInt32();
            if (address > source.Data.Length)
            {
                source.Report(LoadDefectCode.InvalidPage, Section, header.PageMapAddress,
                    $"page {number} of {size} bytes is beyond the end of the file");
                return pages;
            }
            if (number < 0)
            {
                entries.Skip(GapFields);
            }
            else
            {
                pages.TryAdd(number, address);
            }

            address += size;
        }

        if (entries.IsShort || entries.Remaining > 0)
        {
            source.Report(LoadDefectCode.Truncated, Section, header.PageMapAddress, "the map of pages ends early");
        }

        return pages;
    }
}
