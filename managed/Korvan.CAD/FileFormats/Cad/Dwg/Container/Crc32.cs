using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The 32-bit cyclic redundancy check of ISO/IEC/IEEE 8802-3, in file headers of release 2004 and
/// later.</summary>
internal static class Crc32
{
    private const uint Polynomial = 0xEDB88320;

    private static readonly uint[] Table = Build();

    internal static uint Compute(uint seed, ReadOnlySpan<byte> data)
    {
        uint crc = ~seed;
        foreach (byte one in data)
        {
            crc = (crc >> 8) ^ Table[(one ^ crc) & 0xFF];
        }

        return ~crc;
    }

    private static uint[] Build()
    {
        uint[] table = new uint[256];
        for (uint i = 0; i < table.Length; i++)
        {
            uint crc = i;
            for (int bit = 0; bit < 8; bit++)
            {
                crc = (crc >> 1) ^ ((crc & 1) * Polynomial);
            }

            table[i] = crc;
        }

        return table;
    }
}
