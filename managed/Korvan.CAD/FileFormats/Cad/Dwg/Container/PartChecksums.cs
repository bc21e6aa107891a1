using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The checksums of any parts of some bytes, each in a time that does not grow with its length: a checksum is
/// linear, so that those of two beginnings tell the one of what is between them.</summary>
internal sealed class PartChecksums
{
    private const int Bits = 16;

    // What a checksum with one bit becomes by 1, 2, 4 and so on bytes of zeros.
    private static readonly ushort[][] Shifts = Build();

    private readonly ushort[] _beginnings;

    /// <summary>Computes what all parts are computed of.</summary>
    internal PartChecksums(ReadOnlySpan<byte> data)
    {
        Budget.VerifyRoom((long)data.Length * sizeof(ushort));
        _beginnings = new ushort[data.Length + 1];
        for (int i = 0; i < data.Length; i++)
        {
            _beginnings[i + 1] = Crc16.Compute(_beginnings[i], data.Slice(i, 1));
        }
    }

    /// <summary>Returns the checksum of a part.</summary>
    /// <param name="seed">The initial value.</param>
    /// <param name="start">The first byte.</param>
    /// <param name="end">The byte after the last one.</param>
    internal ushort Compute(ushort seed, int start, int end) =>
        (ushort)(_beginnings[end] ^ Shift(_beginnings[start] ^ seed, end - start));

    private static int Shift(int checksum, int zeros)
    {
        for (int power = 0; zeros > 0; power++, zeros >>= 1)
        {
            checksum = (zeros & 1) != 0 ? Apply(Shifts[power], checksum) : checksum;
        }

        return checksum;
    }

    private static int Apply(ushort[] shift, int checksum)
    {
        int result = 0;
        for (int bit = 0; bit < Bits; bit++)
        {
            result ^= shift[bit] & -((checksum >> bit) & 1);
        }

        return result;
    }

    private static ushort[][] Build()
    {
        ushort[][] shifts = new ushort[31][];
        shifts[0] = new ushort[Bits];
        for (int bit = 0; bit < Bits; bit++)
        {
            shifts[0][bit] = Crc16.Compute((ushort)(1 << bit), [0]);
        }

        for (int power = 1; power < shifts.Length; power++)
        {
            ushort[] half = shifts[power - 1];
            shifts[power] = Array.ConvertAll(half, one => (ushort)Apply(half, one));
        }

        return shifts;
    }
}
