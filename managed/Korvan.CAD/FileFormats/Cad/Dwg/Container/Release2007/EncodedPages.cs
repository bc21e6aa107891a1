using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>A page of a section.</summary>
/// <param name="Start">The first byte of the section that is in the page.</param>
/// <param name="Number">The number of the page.</param>
/// <param name="Size">The number of decompressed bytes.</param>
/// <param name="Stored">The number of compressed bytes; as many as decompressed ones if it is not compressed.</param>
/// <param name="Checksum">The checksum of the decompressed bytes.</param>
/// <param name="Check">The check of the compressed bytes.</param>
internal readonly record struct EncodedPage(
    long Start, long Number, long Size, long Stored, uint Checksum, ulong Check);

/// <summary>A section, and the pages that it is stored in.</summary>
/// <param name="Name">The name.</param>
/// <param name="Size">The number of bytes.</param>
/// <param name="IsEncrypted">Whether the pages are encrypted.</param>
/// <param name="IsInterleaved">Whether the pages are encoded, with blocks whose bytes alternate.</param>
/// <param name="Pages">The pages.</param>
internal sealed record EncodedSection(
    string Name, long Size, bool IsEncrypted, bool IsInterleaved, List<EncodedPage> Pages);

/// <summary>What is wrong with a page.</summary>
/// <param name="Code">The kind of defect.</param>
/// <param name="Address">The first byte of the page in the file; -1 if it has none.</param>
/// <param name="Cause">What is wrong.</param>
internal sealed record PageFault(LoadDefectCode Code, long Address, string Cause);

/// <summary>Decodes and decompresses pages of release 2007. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapters 5.3 and 5.4.</summary>
internal static class EncodedPages
{
    private const int CheckBlock = 8;

    /// <summary>Reads a map.</summary>
    /// <returns>The decompressed bytes; <see langword="null"/> if the page is not in the file.</returns>
    internal static byte[]? ReadSystem(DwgSource source, in SystemPageInfo page, ulong seed, string name)
    {
        ReedSolomon code = ReedSolomon.System;
        long repeated = Aligned(page.Compressed) * page.Repeats;
        long blocks = repeated > 0 ? (repeated + code.DataLength - 1) / code.DataLength : 0;
        if (page.Compressed <= 0 || page.Repeats <= 0 || page.Repeats > source.Data.Length
            || page.Compressed > source.Data.Length
            || page.Address < 0 || page.Address + (blocks * ReedSolomon.BlockLength) > source.Data.Length
            || page.Size < 0 || page.Size > source.MaxSectionSize)
        {
            source.Report(LoadDefectCode.InvalidPage, name, page.Address, "the page with the map is outside of the "
                + $"file, or its {page.Compressed} compressed bytes cannot be {page.Size} bytes");
            return null;
        }

        byte[] stored = new byte[page.Compressed];
        bool isValid = code.DecodeInterleaved(source.Data.AsSpan((int)page.Address), (int)blocks, stored);
        Budget.VerifyRoom(page.Size);
        byte[] map = new byte[page.Size];
        bool isWhole = Unpack(stored, map);
        if (!isValid || page.CompressedCheck != Crc64.ComputeMirrored(Crc64.SeedOf(seed, stored.Length), stored)
            || page.Check != Crc64.ComputeMirrored(Crc64.SeedOf(seed, map.Length), map))
        {
            source.Report(LoadDefectCode.WrongChecksum, name, page.Address,
                "the page has another checksum than it states");
        }
        else if (!isWhole)
        {
            source.Report(LoadDefectCode.InvalidCompression, name, page.Address, "the page cannot be decompressed");
        }

        return map;
    }

    /// <summary>Reads a page of a section.</summary>
    /// <param name="data">The file.</param>
    /// <param name="address">The first byte of the page.</param>
    /// <param name="section">The section.</param>
    /// <param name="page">The page.</param>
    /// <param name="seed">The seed of checks.</param>
    /// <param name="target">Where the decompressed bytes go.</param>
    /// <returns>What is wrong; <see langword="null"/> if nothing is.</returns>
    internal static PageFault? ReadData(
        byte[] data, long address, EncodedSection section, in EncodedPage page, ulong seed, Span<byte> target)
    {
        ReedSolomon code = ReedSolomon.Data;
        long blocks = page.Stored < 0 || page.Stored > data.Length ? 0 : BlocksOf(page);
        long length = section.IsInterleaved ? blocks * ReedSolomon.BlockLength : page.Stored;
        if (page.Stored < 0 || page.Stored > data.Length || address < EncodedHeader.FirstPage
            || address + length > data.Length)
        {
            return new PageFault(
                LoadDefectCode.InvalidPage, address, $"page {page.Number} extends beyond the end of the file");
        }

        byte[] stored = new byte[page.Stored];
        ReadOnlySpan<byte> encoded = data.AsSpan((int)address, (int)length);
        bool isValid = !section.IsInterleaved || code.DecodeInterleaved(encoded, (int)blocks, stored);
        if (!section.IsInterleaved)
        {
            encoded.CopyTo(stored);
        }

        bool isWhole = Unpack(stored, target);
        if (!isValid || page.Check != Crc64.ComputeMirrored(Crc64.SeedOf(seed, stored.Length), stored)
            || page.Checksum != ChecksumOf(target))
        {
            return new PageFault(
                LoadDefectCode.WrongChecksum, address, $"page {page.Number} has another checksum than it states");
        }

        return isWhole ? null : new PageFault(
            LoadDefectCode.InvalidCompression, address, $"page {page.Number} cannot be decompressed");
    }

    /// <summary>Returns the number of blocks of a page of a section.</summary>
    internal static int BlocksOf(in EncodedPage page) =>
        (int)((Aligned(page.Stored) + ReedSolomon.Data.DataLength - 1) / ReedSolomon.Data.DataLength);

    /// <summary>Returns the checksum of a page as the section map states it.</summary>
    internal static uint ChecksumOf(ReadOnlySpan<byte> page)
    {
        uint seed = unchecked(((uint)page.Length * 0x343FD) + 0x269EC3);
        return SectionPageDataChecksum.Compute(seed, Crc64.Reorder(page));
    }

    private static long Aligned(long length) => (length + CheckBlock - 1) & -CheckBlock;

    // What compression would not have made shorter is stored as it is.
    private static bool Unpack(byte[] stored, Span<byte> target)
    {
        if (stored.Length != target.Length)
        {
            return PermutedLz77.Decompress(stored, target) == target.Length;
        }

        stored.CopyTo(target);
        return true;
    }
}
