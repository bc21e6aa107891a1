using System;
using System.Buffers.Binary;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>The pages with the maps of pages and sections. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapter 4.3.</summary>
internal static class SystemPage
{
    internal const int PageMapType = 0x41630E3B;

    internal const int SectionMapType = 0x4163003B;

    internal const int HeaderLength = 0x14;

    private const int ChecksumOffset = 0x10;
    private const int Compressed = 2;

    /// <summary>Reads a map.</summary>
    /// <returns>The decompressed bytes; <see langword="null"/> if the page is damaged.</returns>
    internal static byte[]? Read(DwgSource source, long address, int type, string name)
    {
        ReadOnlySpan<byte> data = source.Data;
        if (address < FileHeader.FirstPage || address > data.Length - HeaderLength)
        {
            source.Report(LoadDefectCode.InvalidPage, name, address, "the page is outside of the file");
            return null;
        }

        RawReader page = new(data[(int)address..]);
        int found = page.Int32();
        uint size = page.UInt32();
        uint stored = page.UInt32();
        int compression = page.Int32();
        uint checksum = page.UInt32();
        ReadOnlySpan<byte> bytes = page.Take(stored);
        if (found != type || page.IsShort || size > (long)Lz77.MaxRatio * stored)
        {
            source.Report(LoadDefectCode.InvalidPage, name, address, $"the page of type 0x{found:X8} and {stored} "
                + $"bytes, decompressed {size} bytes, is not the map");
            return null;
        }

        if (checksum != ChecksumOf(data.Slice((int)address, HeaderLength), bytes))
        {
            source.Report(LoadDefectCode.WrongChecksum, name, address,
                "the page has another checksum than it states");
        }

        Budget.VerifyRoom(size);
        byte[] map = new byte[size];
        if (compression != Compressed)
        {
            bytes[..Math.Min(bytes.Length, map.Length)].CopyTo(map);
        }
        else if (Lz77.Decompress(bytes, map) != size)
        {
            source.Report(LoadDefectCode.InvalidCompression, name, address, "the page cannot be decompressed");
        }

        return map;
    }

    /// <summary>Returns the checksum of a page: that of its data, which that of its header precedes.</summary>
    /// <param name="header">The header; its checksum counts as zero.</param>
    /// <param name="data">The data as stored.</param>
    internal static uint ChecksumOf(ReadOnlySpan<byte> header, ReadOnlySpan<byte> data)
    {
        Span<byte> copy = stackalloc byte[HeaderLength];
        header.CopyTo(copy);
        BinaryPrimitives.WriteUInt32LittleEndian(copy[ChecksumOffset..], 0);
        return SectionPageDataChecksum.Compute(SectionPageDataChecksum.Compute(0, copy), data);
    }
}
