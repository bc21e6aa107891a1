using System;
using System.Buffers.Binary;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Reads whole bytes, lowest first. What is beyond the end reads as zero, and sets
/// <see cref="IsShort"/>.</summary>
internal ref struct RawReader(ReadOnlySpan<byte> data)
{
    private readonly ReadOnlySpan<byte> _data = data;

    /// <summary>Gets whether more was read than there is.</summary>
    internal bool IsShort { get; private set; }

    internal int Position { get; private set; }

    internal readonly int Remaining => _data.Length - Position;

    internal byte Byte()
    {
        if (Position < _data.Length)
        {
            return _data[Position++];
        }

        IsShort = true;
        return 0;
    }

    internal ushort UInt16() =>
        Take(2) is { Length: 2 } bytes ? BinaryPrimitives.ReadUInt16LittleEndian(bytes) : (ushort)0;

    /// <summary>Reads a number of two bytes, highest first, as in the object map.</summary>
    internal ushort UInt16BigEndian() =>
        Take(2) is { Length: 2 } bytes ? BinaryPrimitives.ReadUInt16BigEndian(bytes) : (ushort)0;

    internal int Int32() => (int)UInt32();

    internal uint UInt32() => Take(4) is { Length: 4 } bytes ? BinaryPrimitives.ReadUInt32LittleEndian(bytes) : 0;

    internal long Int64() => Take(8) is { Length: 8 } bytes ? BinaryPrimitives.ReadInt64LittleEndian(bytes) : 0;

    /// <summary>Reads some bytes; none if there are fewer.</summary>
    internal ReadOnlySpan<byte> Take(long count)
    {
        if (count < 0 || count > Remaining)
        {
            IsShort = true;
            Position = _data.Length;
            return default;
        }

        ReadOnlySpan<byte> taken = _data.Slice(Position, (int)count);
        Position += (int)count;
        return taken;
    }

    internal void Skip(long count) => Take(count);

    /// <summary>Goes to a position; beyond the end, everything that follows reads as zero.</summary>
    internal void Seek(long position)
    {
        IsShort |= position < 0 || position > _data.Length;
        Position = IsShort ? _data.Length : (int)position;
    }

    /// <summary>Reads a number of seven bits a byte, which ends with the first byte below 0x80.</summary>
    internal ulong ModularChar()
    {
        ulong value = 0;
        for (int shift = 0; shift < 64; shift += 7)
        {
            byte one = Byte();
            value |= (ulong)(one & 0x7F) << shift;
            if (one < 0x80)
            {
                return value;
            }
        }

        IsShort = true;
        return value;
    }

    /// <summary>Reads a number of seven bits a byte; bit 0x40 of the last one is its sign.</summary>
    internal long SignedModularChar()
    {
        long value = 0;
        for (int shift = 0; shift < 64; shift += 7)
        {
            byte one = Byte();
            if (one >= 0x80)
            {
                value |= (long)(one & 0x7F) << shift;
                continue;
            }

            value |= (long)(one & 0x3F) << shift;
            return (one & 0x40) != 0 ? -value : value;
        }

        IsShort = true;
        return value;
    }
}
