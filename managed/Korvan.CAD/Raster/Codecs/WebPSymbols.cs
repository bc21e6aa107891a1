using System;
using System.Collections.Generic;
using System.Numerics;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The five alphabets of a lossless WebP with their codes: green and lengths, red, blue, alpha, distances (RFC
/// 9649, sections 3.6 and 3.7).</summary>
internal sealed class WebPSymbols
{
    internal const int MinRun = 3;
    internal const int MaxRun = 4096;

    /// <summary>The numbers of the distances to the pixel above and to the one before.</summary>
    internal const int DistanceAbove = 0;
    internal const int DistanceBefore = 1;

    private const int Colors = 256;
    private const int LengthPrefixes = 24;
    private const int DistancePrefixes = 40;
    private const int Zeros = 17;
    private const int ManyZeros = 18;

    // The lengths of codes are stored in this order, so that the ones at the end can be left out.
    private static readonly byte[] LengthOrder = [17, 18, 0, 1, 2, 3, 4, 5, 16, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15];

    private readonly long[] _green = new long[Colors + LengthPrefixes];
    private readonly long[] _red = new long[Colors];
    private readonly long[] _blue = new long[Colors];
    private readonly long[] _alpha = new long[Colors];
    private readonly long[] _distance = new long[DistancePrefixes];
    private PrefixCode[] _codes = [];
    private long _extraBits;

    /// <summary>Gets how many bits all symbols that were counted take.</summary>
    internal long CodedBits
    {
        get
        {
            long bits = _extraBits;
            for (int i = 0; i < _codes.Length; i++)
            {
                for (int symbol = 0; symbol < Counts[i].Length; symbol++)
                {
                    bits += Counts[i][symbol] * _codes[i].Lengths[symbol];
                }
            }

            return bits;
        }
    }

    private long[][] Counts => [_green, _red, _blue, _alpha, _distance];

    internal void CountPixel(int argb)
    {
        _green[(byte)(argb >> 8)]++;
        _red[(byte)(argb >> 16)]++;
        _blue[(byte)argb]++;
        _alpha[(byte)(argb >> 24)]++;
    }

    internal void CountRun(int length, int distance)
    {
        _green[Colors + PrefixOf(length, out int extra, out _)]++;
        _extraBits += extra;
        _distance[distance]++;
    }

    internal void MakeCodes() => _codes = Array.ConvertAll(Counts, static counts => PrefixCode.Of(counts));

    internal void WritePixel(LowBitWriter bits, int argb)
    {
        Put(bits, _codes[0], (byte)(argb >> 8));
        Put(bits, _codes[1], (byte)(argb >> 16));
        Put(bits, _codes[2], (byte)argb);
        Put(bits, _codes[3], (byte)(argb >> 24));
    }

    internal void WriteRun(LowBitWriter bits, int length, int distance)
    {
        Put(bits, _codes[0], Colors + PrefixOf(length, out int extra, out uint rest));
        bits.Write(rest, extra);
        Put(bits, _codes[4], distance);
    }

    internal void WriteCodes(LowBitWriter bits)
    {
        for (int i = 0; i < _codes.Length; i++)
        {
            if (Array.TrueForAll(_codes[i].Lengths, static length => length == 0))
            {
                WriteSingle(bits, Math.Max(0, Array.FindIndex(Counts[i], static count => count > 0)));
            }
            else
            {
                WriteLengths(bits, _codes[i].Lengths);
            }
        }
    }

    private static void Put(LowBitWriter bits, PrefixCode code, int symbol) =>
        bits.Write(code.Bits[symbol], code.Lengths[symbol]);

    private static int PrefixOf(int length, out int extra, out uint rest)
    {
        uint value = (uint)length - 1;
        if (value < 4)
        {
            (extra, rest) = (0, 0);
            return (int)value;
        }

        int highest = BitOperations.Log2(value);
        extra = highest - 1;
        rest = value & ((1u << extra) - 1);
        return (2 * highest) + (int)((value >> extra) & 1);
    }

    // The only symbol of an alphabet, or the first of one that does not occur, takes no bits.
    private static void WriteSingle(LowBitWriter bits, int symbol)
    {
        const uint simple = 1;
        const uint eightBits = 4;
        bits.Write(simple | eightBits, 3);
        bits.Write((uint)symbol, 8);
    }

    private static void WriteLengths(LowBitWriter bits, byte[] lengths)
    {
        const int maxLength = 7;
        List<(int Symbol, int Extra, int Bits)> run = Compressed(lengths);
        var counts = new long[LengthOrder.Length];
        run.ForEach(item => counts[item.Symbol]++);
        if (Array.FindAll(counts, static count => count > 0).Length == 1)
        {
            // A code of one symbol has no bits, and then a length would stand for nothing.
            counts[counts[0] > 0 ? 1 : 0]++;
        }

        PrefixCode code = PrefixCode.Of(counts, maxLength);
        int stored = LengthOrder.Length;
        while (stored > 4 && code.Lengths[LengthOrder[stored - 1]] == 0)
        {
            stored--;
        }

        bits.Write(0, 1);
        bits.Write((uint)stored - 4, 4);
        for (int i = 0; i < stored; i++)
        {
            bits.Write(code.Lengths[LengthOrder[i]], 3);
        }

        bits.Write(0, 1);
        foreach ((int symbol, int extra, int extraBits) in run)
        {
            Put(bits, code, symbol);
            bits.Write((uint)extra, extraBits);
        }
    }

    private static List<(int Symbol, int Extra, int Bits)> Compressed(byte[] lengths)
    {
        const int minMany = 11;
        const int maxMany = 138;
        List<(int, int, int)> run = [];
        for (int i = 0; i < lengths.Length;)
        {
            int zeros = 0;
            while (i + zeros < lengths.Length && lengths[i + zeros] == 0 && zeros < maxMany)
            {
                zeros++;
            }

            run.Add(zeros switch
            {
                >= minMany => (ManyZeros, zeros - minMany, 7),
                >= 3 => (Zeros, zeros - 3, 3),
                _ => (lengths[i], 0, 0),
            });
            i += zeros >= 3 ? zeros : 1;
        }

        return run;
    }
}
