using System;
using System.Buffers.Binary;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.Dwg.R2004;

/// <summary>The checksum of the section pages of drawing databases of release 2004 and later: two sums modulo 65521, as
/// in Adler-32. Source: Open Design Specification for .dwg files, 5.4.1, chapter 4.2.</summary>
public class SectionPageDataChecksum
{
    private const uint Modulus = 0xFFF1;
    private const int Stride = 0x15B0; // the number of bytes after which the sums are reduced

    // The upper 16 bits of a product are a sum of all lanes of 16 bits by weights: a byte counts once for each that is
    // added with it or after it.
    private const ulong EvenBytes = 0x00FF00FF00FF00FF;
    private const ulong EvenWeights = 0x0008000600040002;
    private const ulong OddWeights = 0x0007000500030001;
    private const ulong Ones = 0x0001000100010001;

    /// <summary>Creates a checksum of no data.</summary>
    /// <param name="seed">The initial value: 0 for data, the checksum of the data for the header of its page.</param>
    public SectionPageDataChecksum(uint seed)
    {
        Value = seed;
    }

    /// <summary>Gets the checksum of all data up to now: the sum of sums in the upper 16 bits, the sum of bytes in the
    /// lower ones.</summary>
    public uint Value { get; private set; }

    /// <summary>Adds data to the checksum. The sum after several calls differs from that of all data in one call for
    /// some data, since sums are reduced at the end of each call.</summary>
    /// <param name="data">The bytes.</param>
    public void Update(byte[] data)
    {
        Verify.NotNull(data);
        Value = Compute(Value, data);
    }

    internal static uint Compute(uint seed, ReadOnlySpan<byte> data)
    {
        uint sum = seed & 0xFFFF;
        uint sumOfSums = seed >> 16;
        while (!data.IsEmpty)
        {
            ReadOnlySpan<byte> part = data[..Math.Min(Stride, data.Length)];
            data = data[part.Length..];
            for (; part.Length >= sizeof(ulong); part = part[sizeof(ulong)..])
            {
                ulong word = BinaryPrimitives.ReadUInt64LittleEndian(part);
                ulong even = word & EvenBytes;
                ulong odd = (word >> 8) & EvenBytes;
                sumOfSums += (sizeof(ulong) * sum) + (uint)((even * EvenWeights) >> 48)
                    + (uint)((odd * OddWeights) >> 48);
                sum += (uint)(((even + odd) * Ones) >> 48);
            }

            foreach (byte one in part)
            {
                sum += one;
                sumOfSums += sum;
            }

            sum %= Modulus;
            sumOfSums %= Modulus;
        }

        return (sumOfSums << 16) | (sum & 0xFFFF);
    }
}
