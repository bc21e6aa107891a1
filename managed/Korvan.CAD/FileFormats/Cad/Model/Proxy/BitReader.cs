using System;
using System.Buffers.Binary;

namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <summary>
/// Reads values that are packed into bits, highest bit first: two bits say whether a value is a common one or follows
/// in full. What lies beyond the end reads as zero, and is told.
/// </summary>
internal ref struct BitReader(ReadOnlySpan<byte> data)
{
    private const int Full = 0;
    private const int Small = 1;
    private const int Zero = 2;
    private const int PatchedHalf = 1;
    private const int PatchedLower = 2;

    private readonly ReadOnlySpan<byte> _data = data;
    private long _position;

    /// <summary>Gets whether more was read than there is.</summary>
    internal bool IsShort { get; private set; }

    internal int Short() => Code() switch
    {
        Full => (short)Raw(2),
        Small => (int)Raw(1),
        Zero => 0,
        _ => 256,
    };

    internal int Long() => Code() switch
    {
        Full => (int)Raw(4),
        Small => (int)Raw(1),
        _ => 0,
    };

    internal double Double() => Code() switch
    {
        Full => RawDouble(),
        Small => 1,
        _ => 0,
    };

    internal double RawDouble() => BitConverter.UInt64BitsToDouble(Raw(8));

    /// <summary>Reads a number of which only the bytes are stored that differ from another one's.</summary>
    internal double DoubleAfter(double before)
    {
        Span<byte> bytes = stackalloc byte[sizeof(double)];
        BinaryPrimitives.WriteDoubleLittleEndian(bytes, before);
        switch (Code())
        {
            case Full:
                return before;
            case PatchedHalf:
                BinaryPrimitives.WriteUInt32LittleEndian(bytes, (uint)Raw(4));
                return BinaryPrimitives.ReadDoubleLittleEndian(bytes);
            case PatchedLower:
                BinaryPrimitives.WriteUInt16LittleEndian(bytes[4..], (ushort)Raw(2));
                BinaryPrimitives.WriteUInt32LittleEndian(bytes, (uint)Raw(4));
                return BinaryPrimitives.ReadDoubleLittleEndian(bytes);
            default:
                return RawDouble();
        }
    }

    private int Code() => (Bit() << 1) | Bit();

    private int Bit()
    {
        int index = (int)(_position >> 3);
        if (index >= _data.Length)
        {
            IsShort = true;
            return 0;
        }

        int bit = (_data[index] >> (7 - (int)(_position & 7))) & 1;
        _position++;
        return bit;
    }

    /// <summary>Reads bytes, lowest first, from any bit on.</summary>
    private ulong Raw(int bytes)
    {
        ulong value = 0;
        for (int i = 0; i < bytes; i++)
        {
            uint one = 0;
            for (int bit = 0; bit < 8; bit++)
            {
                one = (one << 1) | (uint)Bit();
            }

            value |= (ulong)one << (8 * i);
        }

        return value;
    }
}
