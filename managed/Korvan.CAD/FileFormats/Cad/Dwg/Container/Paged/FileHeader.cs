using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>The masked part of the file header of release 2004 and of 2010 and later: where the maps are.</summary>
/// <param name="PageMapAddress">The first byte of the page with the map of pages.</param>
/// <param name="SectionMapPage">The number of the page with the map of sections.</param>
/// <param name="Gaps">The number of gaps between the pages.</param>
internal readonly record struct FileHeader(long PageMapAddress, int SectionMapPage, int Gaps)
{
    /// <summary>The name of this part of the file in messages.</summary>
    internal const string Section = "file header";

    /// <summary>The first byte of the masked part.</summary>
    internal const int Start = 0x80;

    /// <summary>The length of the masked part.</summary>
    internal const int Length = 0x6C;

    /// <summary>The first byte after the file header, where pages begin.</summary>
    internal const int FirstPage = 0x100;

    /// <summary>The place of the checksum in the masked part.</summary>
    internal const int ChecksumOffset = 0x68;

    internal static ReadOnlySpan<byte> Id => "AcFssFcAJMB\0"u8;

    internal static FileHeader Read(DwgSource source)
    {
        byte[] header = new byte[Length];
        if (source.Data.Length < FirstPage)
        {
            throw source.Fail(LoadDefectCode.Truncated, Section, source.Data.Length,
                "the file ends within its header");
        }

        source.Data.AsSpan(Start, Length).CopyTo(header);
        MagicSequence.Apply(header);
        if (!header.AsSpan().StartsWith(Id[..^1]))
        {
            source.Report(LoadDefectCode.InvalidSection, Section, Start, "the file header has no identifier");
        }

        uint stated = BitConverter.ToUInt32(header, ChecksumOffset);
        header.AsSpan(ChecksumOffset).Clear();
        if (stated != Crc32.Compute(0, header))
        {
            source.Report(LoadDefectCode.WrongChecksum, Section, Start,
                "the file header has another checksum than it states");
        }

        RawReader fields = new(header);
        fields.Seek(0x3C);
        int gaps = fields.Int32();
        fields.Seek(0x54);
        long pageMap = fields.Int64() + FirstPage;
        return new FileHeader(pageMap, fields.Int32(), gaps);
    }
}
