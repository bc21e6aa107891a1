using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The 16-bit cyclic redundancy check of drawing databases: polynomial 0x8005, lowest bit first. Source: Open
/// Design Specification for .dwg files, 5.4.1, chapter 2.14.1.</summary>
internal static class Crc16
{
    /// <summary>The initial value for objects, maps and sections.</summary>
    internal const ushort Seed = 0xC0C1;

    private const int Stride = 8;
    private const int Values = 256;
    private const ushort Polynomial = 0xA001;

    // A table for each byte of a stride, so that a stride is one step.
    private static readonly ushort[] Tables = Build();

    internal static ushort Compute(ushort seed, ReadOnlySpan<byte> data)
    {
        ushort[] tables = Tables;
        int crc = seed;
        while (data.Length >= Stride)
        {
            crc = tables[(7 * Values) + ((data[0] ^ crc) & 0xFF)] ^ tables[(6 * Values) + (data[1] ^ (crc >> 8))]
                ^ tables[(5 * Values) + data[2]] ^ tables[(4 * Values) + data[3]]
                ^ tables[(3 * Values) + data[4]] ^ tables[(2 * Values) + data[5]]
                ^ tables[Values + data[6]] ^ tables[data[7]];
            data = data[Stride..];
        }

        foreach (byte one in data)
        {
            crc = (crc >> 8) ^ tables[(one ^ crc) & 0xFF];
        }

        return (ushort)crc;
    }

    private static ushort[] Build()
    {
        ushort[] tables = new ushort[Stride * Values];
        for (int i = 0; i < Values; i++)
        {
            int crc = i;
            for (int bit = 0; bit < 8; bit++)
            {
                crc = (crc >> 1) ^ ((crc & 1) * Polynomial);
            }

            tables[i] = (ushort)crc;
        }

        for (int i = Values; i < tables.Length; i++)
        {
            int before = tables[i - Values];
            tables[i] = (ushort)((before >> 8) ^ tables[before & 0xFF]);
        }

        return tables;
    }
}
