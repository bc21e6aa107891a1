using System;
using System.Threading;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>Reads pages of a file of release 2007 that has lost some bytes or got some too many, so that pages are not
/// where the map states: they are before the damage or moved by it, and one has it within. Of that one bytes are put
/// right where its code then corrects the others.</summary>
/// <param name="source">The file.</param>
/// <param name="header">Its header, which states how long it was.</param>
internal sealed class MovedPages(DwgSource source, EncodedHeader header)
{
    private const int MaxMoved = 64;
    private const int MaxAttempts = 1024;
    private const int BytesPerStep = 256;

    private int _attempts;

    /// <summary>Gets by how many bytes what follows the damage has moved; 0 for a whole file and where defects end the
    /// load.</summary>
    internal int Distance { get; } =
        source.IsTolerant && Math.Abs(source.Data.Length - header.FileSize) <= MaxMoved
            ? (int)(source.Data.Length - header.FileSize) : 0;

    /// <summary>Reads a page that is damaged where the map states.</summary>
    /// <param name="fault">What is wrong with it there.</param>
    /// <param name="section">The section.</param>
    /// <param name="page">The page.</param>
    /// <param name="target">Where the decompressed bytes go; they stay as they are if nothing better is found.</param>
    /// <returns>What is wrong.</returns>
    internal PageFault Read(PageFault fault, EncodedSection section, in EncodedPage page, Span<byte> target)
    {
        byte[] found = new byte[target.Length];
        bool isMoved = EncodedPages.ReadData(
            source.Data, fault.Address + Distance, section, page, header.CrcSeed, found) is null;
        if (!isMoved && !ReadDamaged(fault.Address, section, page, found))
        {
            return fault;
        }

        found.CopyTo(target);
        return new PageFault(LoadDefectCode.InvalidPage, fault.Address, isMoved
            ? $"page {page.Number} is {Distance} bytes from where the map states"
            : $"page {page.Number} has {Distance} bytes more than it states; all others are right");
    }

    private bool ReadDamaged(long address, EncodedSection section, in EncodedPage page, byte[] found)
    {
        int blocks = EncodedPages.BlocksOf(page);
        int length = blocks * ReedSolomon.BlockLength;
        if (!section.IsInterleaved || address < 0 || address + length + Distance > source.Data.Length)
        {
            return false;
        }

        // Neighbours belong to different blocks, each of which may have as many wrong bytes as its code corrects.
        int step = Math.Max(1, blocks * ReedSolomon.Data.Parity / 2);
        ReadOnlySpan<byte> stored = source.Data.AsSpan((int)address, length + Distance);
        byte[] attempt = new byte[EncodedHeader.FirstPage + length];
        for (int at = 0; at < length && Interlocked.Increment(ref _attempts) < MaxAttempts; at += step)
        {
            Budget.Step(1 + (length / BytesPerStep));
            Realign(stored, at, attempt.AsSpan(EncodedHeader.FirstPage));
            if (EncodedPages.ReadData(attempt, EncodedHeader.FirstPage, section, page, header.CrcSeed, found) is null)
            {
                return true;
            }
        }

        return false;
    }

    // Bytes that are lost become any, those too many are left out.
    private void Realign(ReadOnlySpan<byte> stored, int at, Span<byte> page)
    {
        int before = Math.Min(at, stored.Length);
        stored[..before].CopyTo(page);
        int lost = Math.Min(Math.Max(-Distance, 0), page.Length - before);
        page.Slice(before, lost).Clear();
        ReadOnlySpan<byte> rest = stored[Math.Min(before + Math.Max(Distance, 0), stored.Length)..];
        Span<byte> place = page[(before + lost)..];
        rest[..Math.Min(rest.Length, place.Length)].CopyTo(place);
    }
}
