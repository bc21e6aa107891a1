using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>Finds sections of release 2007 without the section map, which is at the end of the file: pages are decoded
/// by their code, and told by how they begin.</summary>
internal static class PageGuess
{
    private const int PageSize = 0xF800;
    private const int MaxPage = 1 << 20;
    private const int MaxRatio = 32; // more would be another page of zeros
    private const int BytesPerStep = 256;

    /// <summary>Adds the sections that the file does not have without its map. The objects are what other sections do
    /// not have, from the page on that begins as they do.</summary>
    /// <param name="file">The file.</param>
    /// <param name="addresses">The first bytes of its pages.</param>
    internal static void Complete(DwgFile file, IEnumerable<long> addresses)
    {
        long[] starts = [.. addresses.Order()];
        using MemoryStream objects = new();
        for (int i = 0; i < starts.Length; i++)
        {
            long end = i + 1 < starts.Length ? starts[i + 1] : file.Source.Data.Length;
            byte[] page = Decode(file.Source.Data, starts[i], end);
            Budget.VerifyRoom(objects.Length + page.Length);
            switch (PageNames.NameOf(page))
            {
                case { } name when name != PageNames.Objects:
                    NamedSections.Store(file, name, () => page);
                    break;
                case null when objects.Length == 0:
                    break;
                default:
                    objects.Write(page);
                    break;
            }
        }

        file.Objects = objects.ToArray();
    }

    // Compressed bytes and what fills up the last block cannot be told apart, so that a page has its size, or ends with
    // anything.
    private static byte[] Decode(byte[] data, long start, long end)
    {
        ReedSolomon code = ReedSolomon.Data;
        int blocks = (int)(Math.Min(end - start, MaxPage) / ReedSolomon.BlockLength);
        Budget.Step(1 + (blocks * ReedSolomon.BlockLength / BytesPerStep));
        byte[] stored = new byte[blocks * code.DataLength];
        if (blocks == 0 || end > data.Length
            || !code.DecodeInterleaved(data.AsSpan((int)start), blocks, stored))
        {
            return [];
        }

        byte[] page = new byte[Math.Min(PageSize, stored.Length * MaxRatio)];
        PermutedLz77.Decompress(stored, page);
        return PageNames.NameOf(stored) is null ? page : stored;
    }
}
