using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Tells sections without which there is no drawing by how their first page begins.</summary>
internal static class PageNames
{
    /// <summary>The name of the section of objects.</summary>
    internal const string Objects = "AcDb:AcDbObjects";

    /// <summary>Returns the name of the section that begins with a page; <see langword="null"/> if it does not
    /// tell.</summary>
    internal static string? NameOf(ReadOnlySpan<byte> page) =>
        page.StartsWith(Sentinels.Header) ? "AcDb:Header"
        : page.StartsWith(Sentinels.Classes) ? "AcDb:Classes"
        : page.StartsWith((ReadOnlySpan<byte>)[0xCA, 0x0D, 0, 0]) ? Objects
        : IsObjectMap(page) ? ObjectMap.Section : null;

    private static bool IsObjectMap(ReadOnlySpan<byte> page)
    {
        int size = page.Length > 1 ? (page[0] << 8) | page[1] : 0;
        return size is > 2 and < 0x1000 && size + 1 < page.Length
            && Crc16.Compute(Crc16.Seed, page[..size]) == ((page[size] << 8) | page[size + 1]);
    }
}
