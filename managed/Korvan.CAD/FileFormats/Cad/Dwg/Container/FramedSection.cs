using System;
using System.Buffers.Binary;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Sections that begin with a sentinel and a size, and end with a checksum and another sentinel: header
/// variables and classes.</summary>
internal static class FramedSection
{
    private const int SizeLength = 4;
    private const int ChecksumLength = 2;

    /// <summary>Returns the data of a section between its sizes and its checksum.</summary>
    /// <param name="source">The file, for defects.</param>
    /// <param name="bytes">The section.</param>
    /// <param name="name">Its name.</param>
    /// <param name="sentinel">The sequence that it begins with.</param>
    /// <param name="extra">The number of bytes of further sizes after the first one, which does not count them.</param>
    /// <param name="start">Its place in the file; -1 if it was compressed.</param>
    internal static ReadOnlyMemory<byte> Open(
        DwgSource source, ReadOnlyMemory<byte> bytes, string name, ReadOnlySpan<byte> sentinel, int extra, long start)
    {
        ReadOnlySpan<byte> span = bytes.Span;
        int first = Sentinels.Length + SizeLength;
        if (!span.StartsWith(sentinel) || span.Length < first + extra)
        {
            source.Report(LoadDefectCode.InvalidSection, name, start, "the section does not begin with its sentinel");
            return default;
        }

        uint size = BinaryPrimitives.ReadUInt32LittleEndian(span[Sentinels.Length..]);
        long end = first + extra + (long)size;
        if (end + ChecksumLength > span.Length)
        {
            source.Report(LoadDefectCode.Truncated, name, start,
                $"the section states {size} bytes of data, but has {Math.Max(0, span.Length - first - extra)}");
            return bytes[(first + extra)..];
        }

        ushort stated = BinaryPrimitives.ReadUInt16LittleEndian(span[(int)end..]);
        if (stated != Crc16.Compute(Crc16.Seed, span[Sentinels.Length..(int)end]))
        {
            source.Report(LoadDefectCode.WrongChecksum, name, start,
                "the section has another checksum than it states");
        }

        return bytes[(first + extra)..(int)end];
    }

    /// <summary>Writes a section.</summary>
    /// <param name="data">The data between its sizes and its checksum.</param>
    /// <param name="sentinel">The sequence that it begins with.</param>
    /// <param name="extra">The number of bytes of further sizes.</param>
    /// <param name="trailer">The number of zeros after the checksum.</param>
    internal static byte[] Write(ReadOnlySpan<byte> data, ReadOnlySpan<byte> sentinel, int extra, int trailer)
    {
        byte[] section = new byte[(2 * Sentinels.Length) + SizeLength + extra + data.Length + ChecksumLength + trailer];
        sentinel.CopyTo(section);
        BinaryPrimitives.WriteInt32LittleEndian(section.AsSpan(Sentinels.Length), data.Length);
        int end = Sentinels.Length + SizeLength + extra + data.Length;
        data.CopyTo(section.AsSpan(end - data.Length));
        ushort checksum = Crc16.Compute(Crc16.Seed, section.AsSpan(Sentinels.Length..end));
        BinaryPrimitives.WriteUInt16LittleEndian(section.AsSpan(end), checksum);
        Sentinels.EndOf(sentinel).CopyTo(section, end + ChecksumLength);
        return section;
    }
}
