using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>A system page: its place, its sizes and its checks.</summary>
/// <param name="Address">The first byte of the page in the file.</param>
/// <param name="Compressed">The number of compressed bytes.</param>
/// <param name="Size">The number of decompressed bytes.</param>
/// <param name="Repeats">How often the page repeats its data.</param>
/// <param name="CompressedCheck">The check of the compressed bytes.</param>
/// <param name="Check">The check of the decompressed bytes.</param>
internal readonly record struct SystemPageInfo(
    long Address, long Compressed, long Size, long Repeats, ulong CompressedCheck, ulong Check);

/// <summary>The encoded part of the file header of release 2007. Source: Open Design Specification for .dwg files,
/// 5.4.1, chapter 5.2.</summary>
internal sealed class EncodedHeader
{
    /// <summary>The name of this part of the file in messages.</summary>
    internal const string Section = "file header";

    /// <summary>The first byte of the pages, which all addresses count from.</summary>
    internal const int FirstPage = 0x480;

    private const int Start = 0x80;
    private const int Blocks = 3;
    private const int Size = 0x110;
    private const int DataOffset = 0x20;
    private const int CheckOffset = Size - sizeof(ulong);

    /// <summary>Gets the place of the page map.</summary>
    internal SystemPageInfo PageMap { get; private init; }

    /// <summary>Gets the place of the copy of the page map.</summary>
    internal SystemPageInfo PageMapCopy { get; private init; }

    /// <summary>Gets the place of the section map; its address is the number of its page.</summary>
    internal SystemPageInfo SectionMap { get; private init; }

    /// <summary>Gets the place of the copy of the section map; its address is the number of its page.</summary>
    internal SystemPageInfo SectionMapCopy { get; private init; }

    internal ulong CrcSeed { get; private init; }

    internal static EncodedHeader Read(DwgSource source)
    {
        if (source.Data.Length < FirstPage)
        {
            throw source.Fail(LoadDefectCode.Truncated, Section, source.Data.Length,
                "the file ends within its header");
        }

        byte[] decoded = new byte[Blocks * ReedSolomon.System.DataLength];
        if (!ReedSolomon.System.DecodeInterleaved(source.Data.AsSpan(Start), Blocks, decoded))
        {
            source.Report(LoadDefectCode.WrongChecksum, Section, Start,
                "the file header has more wrong bytes than its code can correct");
        }

        byte[] header = Decompress(source, decoded);
        ulong stated = BitConverter.ToUInt64(header, CheckOffset);
        header.AsSpan(CheckOffset).Clear();
        if (stated != Crc64.Compute(Crc64.HeaderSeedOf(0, Size), header))
        {
            source.Report(LoadDefectCode.WrongChecksum, Section, Start,
                "the file header has another checksum than it states");
        }

        return FromFields(header);
    }

    private static byte[] Decompress(DwgSource source, ReadOnlySpan<byte> decoded)
    {
        RawReader fields = new(decoded);
        fields.Seek(0x18);
        int length = fields.Int32();
        ReadOnlySpan<byte> data = decoded[DataOffset..];
        byte[] header = new byte[Size];
        bool isCompressed = length > 0;
        long stored = Math.Abs((long)length);
        if (stored > data.Length || (isCompressed
            ? PermutedLz77.Decompress(data[..(int)stored], header) != Size
            : !data[..(int)stored].TryCopyTo(header)))
        {
            source.Report(LoadDefectCode.InvalidCompression, Section, Start, "the file header cannot be decompressed");
        }

        return header;
    }

    private static EncodedHeader FromFields(byte[] header)
    {
        long At(int offset) => BitConverter.ToInt64(header, offset);
        SystemPageInfo pages = new(
            At(0x38) + FirstPage, At(0x50), At(0x58), At(0x18), (ulong)At(0x10), (ulong)At(0x80));
        SystemPageInfo sections = new(
            At(0xC0), At(0xB0), At(0xC8), At(0xD8), (ulong)At(0xD0), (ulong)At(0xA8));
        return new EncodedHeader
        {
            PageMap = pages,
            PageMapCopy = pages with { Address = At(0x28) + FirstPage },
            SectionMap = sections,
            SectionMapCopy = sections with { Address = At(0xB8) },
            CrcSeed = (ulong)At(0xF0),
        };
    }
}
