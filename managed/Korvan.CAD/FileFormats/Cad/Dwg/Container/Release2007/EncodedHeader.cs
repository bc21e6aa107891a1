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
    private const int CopyFromEnd = 0x400; // the file ends with a copy
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

    /// <summary>Gets the number of bytes that the file states.</summary>
    internal long FileSize { get; private init; }

    internal static EncodedHeader Read(DwgSource source)
    {
        if (source.Data.Length < FirstPage)
        {
            throw source.Fail(LoadDefectCode.Truncated, Section, source.Data.Length,
                "the file ends within its header");
        }

        byte[] fields = new byte[Size];
        if (Decode(source.Data.AsSpan(Start), fields) is { } fault)
        {
            source.Report(fault.Code, Section, Start, fault.Cause);
            byte[] copy = new byte[Size];
            bool isWhole = Decode(source.Data.AsSpan(source.Data.Length - CopyFromEnd), copy) is null;
            fields = isWhole ? copy : fields;
        }

        return FromFields(fields);
    }

    // Returns what is wrong; null if nothing is.
    private static (LoadDefectCode Code, string Cause)? Decode(ReadOnlySpan<byte> encoded, byte[] fields)
    {
        byte[] decoded = new byte[Blocks * ReedSolomon.System.DataLength];
        bool isValid = ReedSolomon.System.DecodeInterleaved(encoded, Blocks, decoded);
        bool isUnpacked = Unpack(decoded, fields);
        ulong stated = BitConverter.ToUInt64(fields, CheckOffset);
        fields.AsSpan(CheckOffset).Clear();
        return !isValid
            ? (LoadDefectCode.WrongChecksum, "the file header has more wrong bytes than its code can correct")
            : !isUnpacked ? (LoadDefectCode.InvalidCompression, "the file header cannot be decompressed")
            : stated != Crc64.Compute(Crc64.HeaderSeedOf(0, Size), fields)
            ? (LoadDefectCode.WrongChecksum, "the file header has another checksum than it states") : null;
    }

    private static bool Unpack(ReadOnlySpan<byte> decoded, Span<byte> fields)
    {
        RawReader start = new(decoded);
        start.Seek(0x18);
        int length = start.Int32();
        ReadOnlySpan<byte> data = decoded[DataOffset..];
        bool isCompressed = length > 0;
        long stored = Math.Abs((long)length);
        return stored <= data.Length && (isCompressed
            ? PermutedLz77.Decompress(data[..(int)stored], fields) == Size
            : data[..(int)stored].TryCopyTo(fields));
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
            FileSize = At(0x08),
        };
    }
}
