using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.Compressors;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>PackBits run-length encoding, as in TIFF 6.0 (section 9), PSD and DICOM.</summary>
internal static class PackBits
{
    internal static void Pack(ReadOnlySpan<byte> row, List<byte> packed)
    {
        for (int at = 0; at < row.Length;)
        {
            int run = RunAt(row, at);
            if (run >= 2)
            {
                packed.Add((byte)(257 - run));
                packed.Add(row[at]);
                at += run;
                continue;
            }

            int end = at + 1;
            while (end < row.Length && end - at < 128 && RunAt(row, end) < 3)
            {
                end++;
            }

            packed.Add((byte)(end - at - 1));
            packed.AddRange(row[at..end]);
            at = end;
        }
    }

    /// <summary>Unpacks until the target is full; more data may follow.</summary>
    internal static void Unpack(ReadOnlySpan<byte> packed, Span<byte> to)
    {
        int at = 0;
        int done = 0;
        while (done < to.Length)
        {
            if (at + 2 > packed.Length)
            {
                throw new RleCompressorException($"The run lengths end with {done} of {to.Length} bytes.");
            }

            int head = (sbyte)packed[at++];
            if (head == -128)
            {
                continue;
            }

            int count = Math.Min(head < 0 ? 1 - head : head + 1, to.Length - done);
            if (head < 0)
            {
                to.Slice(done, count).Fill(packed[at++]);
            }
            else
            {
                if (count > packed.Length - at)
                {
                    throw new RleCompressorException($"The run lengths end with {done} of {to.Length} bytes.");
                }

                packed.Slice(at, count).CopyTo(to[done..]);
                at += count;
            }

            done += count;
        }
    }

    private static int RunAt(ReadOnlySpan<byte> row, int at)
    {
        int end = at + 1;
        while (end < row.Length && end - at < 128 && row[end] == row[at])
        {
            end++;
        }

        return end - at;
    }
}
