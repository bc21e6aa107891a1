using System;
using System.Buffers.Binary;
using System.Numerics;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>The 64-bit cyclic redundancy checks of release 2007: that of ECMA-182 for the file header, and one with the
/// lowest bit first for pages. Source: Open Design Specification for .dwg files, 5.4.1, chapter 5.12.</summary>
internal static class Crc64
{
    private const ulong Polynomial = 0x42F0E1EBA9EA3693;
    private const ulong MirroredPolynomial = 0x95AC9329AC4BC9B5;
    private const ulong Multiplier = 0x343FD;
    private const ulong Increment = 0x269EC3;
    private const ulong LowerHalves = 0x0000FFFF0000FFFF;
    private const int Stride = sizeof(ulong);
    private const int Values = 256;

    private static readonly ulong[] Table = Build(static crc => (crc << 1) ^ ((crc >> 63) * Polynomial), 56);
    // A table for each byte of a stride, so that a stride is one step.
    private static readonly ulong[] MirroredTables = BuildStrides(
        Build(static crc => (crc >> 1) ^ ((crc & 1) * MirroredPolynomial), 0));

    /// <summary>Returns the check of a file header.</summary>
    internal static ulong Compute(ulong seed, ReadOnlySpan<byte> data)
    {
        ulong crc = seed;
        foreach (byte one in Reorder(data))
        {
            crc = Table[(byte)(one ^ (crc >> 56))] ^ (crc << 8);
        }

        return ~crc;
    }

    /// <summary>Returns the check of a page.</summary>
    internal static ulong ComputeMirrored(ulong seed, ReadOnlySpan<byte> data)
    {
        ulong[] tables = MirroredTables;
        ulong crc = seed;
        while (data.Length >= Stride)
        {
            ulong word = crc ^ Reorder(BinaryPrimitives.ReadUInt64LittleEndian(data));
            crc = tables[(7 * Values) + (byte)word] ^ tables[(6 * Values) + (byte)(word >> 8)]
                ^ tables[(5 * Values) + (byte)(word >> 16)] ^ tables[(4 * Values) + (byte)(word >> 24)]
                ^ tables[(3 * Values) + (byte)(word >> 32)] ^ tables[(2 * Values) + (byte)(word >> 40)]
                ^ tables[Values + (byte)(word >> 48)] ^ tables[(byte)(word >> 56)];
            data = data[Stride..];
        }

        foreach (byte one in Reorder(data))
        {
            crc = tables[(byte)(one ^ crc)] ^ (crc >> 8);
        }

        return crc;
    }

    /// <summary>Returns the seed of the check of some bytes.</summary>
    internal static ulong SeedOf(ulong seed, int length)
    {
        ulong value = ((seed + (ulong)length) * Multiplier) + Increment;
        return ~(value | ((value * (Multiplier << 32)) + (Increment << 32)));
    }

    /// <summary>Returns the seed of the check at the end of a file header.</summary>
    internal static ulong HeaderSeedOf(ulong seed, int length)
    {
        ulong value = ((seed + (ulong)length) * Multiplier) + Increment;
        return ~((value * ((1UL << 32) + Multiplier)) + (ulong)length + Increment);
    }

    /// <summary>Returns bytes in the order in which the checks of this release take them: pairs from the last to the
    /// first one of eight bytes, then those of four bytes, then the rest as it is.</summary>
    internal static byte[] Reorder(ReadOnlySpan<byte> data)
    {
        byte[] ordered = data.ToArray();
        Span<byte> rest = ordered;
        while (rest.Length >= Stride)
        {
            BinaryPrimitives.WriteUInt64LittleEndian(rest, Reorder(BinaryPrimitives.ReadUInt64LittleEndian(rest)));
            rest = rest[Stride..];
        }

        if (rest.Length >= sizeof(uint))
        {
            uint value = BitOperations.RotateLeft(BinaryPrimitives.ReadUInt32LittleEndian(rest), 16);
            BinaryPrimitives.WriteUInt32LittleEndian(rest, value);
        }

        return ordered;
    }

    private static ulong Reorder(ulong word)
    {
        ulong value = BitOperations.RotateLeft(word, 32);
        return ((value & LowerHalves) << 16) | ((value >> 16) & LowerHalves);
    }

    private static ulong[] BuildStrides(ulong[] table)
    {
        ulong[] tables = new ulong[Stride * Values];
        table.CopyTo(tables, 0);
        for (int i = Values; i < tables.Length; i++)
        {
            ulong before = tables[i - Values];
            tables[i] = (before >> 8) ^ tables[(byte)before];
        }

        return tables;
    }

    private static ulong[] Build(Func<ulong, ulong> step, int shift)
    {
        ulong[] table = new ulong[Values];
        for (int i = 0; i < table.Length; i++)
        {
            ulong crc = (ulong)i << shift;
            for (int bit = 0; bit < 8; bit++)
            {
                crc = step(crc);
            }

            table[i] = crc;
        }

        return table;
    }
}
