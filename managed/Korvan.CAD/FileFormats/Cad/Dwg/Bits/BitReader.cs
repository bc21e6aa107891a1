using System;
using System.Buffers.Binary;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Bits;

/// <summary>
/// Reads values that are packed into bits, highest bit first, as the Open Design Specification for .dwg files, 5.4.1,
/// chapter 2 "Bit codes and data definitions" states them. Values of several bytes have the lowest byte first. What
/// lies beyond the end is a <see cref="DwgFault"/>.
/// </summary>
internal struct BitReader
{
    private const int WordBits = 64;
    private const int MaxModularBytes = 5;
    private const int MaxHandleBytes = 8;

    private readonly byte[] _data;
    private readonly long _end;
    private long _position;

    /// <summary>Creates a reader of all bytes.</summary>
    internal BitReader(byte[] data)
        : this(data, 0, (long)data.Length << 3)
    {
    }

    /// <summary>Creates a reader of a range of bits. It ends with the bytes, whatever its end is.</summary>
    /// <param name="data">The bytes.</param>
    /// <param name="start">The first bit.</param>
    /// <param name="end">The bit after the last one.</param>
    internal BitReader(byte[] data, long start, long end)
    {
        _data = data;
        _end = Math.Clamp(end, 0, (long)data.Length << 3);
        _position = Math.Max(start, 0);
    }

    /// <summary>Gets or sets the bit that is read next, counted from the start of the bytes.</summary>
    internal long Position
    {
        readonly get => _position;
        set => _position = value;
    }

    /// <summary>Gets the bit after the last one.</summary>
    internal readonly long End => _end;

    /// <summary>Gets how many bits are left; less than 0 beyond the end.</summary>
    internal readonly long Remaining => _end - _position;

    internal readonly byte[] Data => _data;

    /// <summary>Reads one bit (B).</summary>
    internal bool Bit()
    {
        long at = _position;
        if (at >= _end)
        {
            ThrowShort(1);
        }

        _position = at + 1;
        return ((_data[at >> 3] << (int)(at & 7)) & 0x80) != 0;
    }

    /// <summary>Reads two bits (BB).</summary>
    internal int BitPair() => (int)Take(2);

    /// <summary>Reads one to three bits (3B): ones up to a zero or the third.</summary>
    internal int BitTriplet() => !Bit() ? 0 : !Bit() ? 2 : Bit() ? 7 : 6;

    /// <summary>Reads an integer of 16 bits (BS).</summary>
    internal int BitShort() => BitPair() switch
    {
        0 => RawShort(),
        1 => RawByte(),
        2 => 0,
        _ => 256,
    };

    /// <summary>Reads an integer of 32 bits (BL).</summary>
    internal int BitLong() => BitPair() switch
    {
        0 => RawLong(),
        1 => RawByte(),
        2 => 0,
        _ => throw Fault("the code 3 of an integer of 32 bits has no meaning", 2),
    };

    /// <summary>Reads an integer of up to 7 bytes after their number (BLL).</summary>
    internal ulong BitLongLong()
    {
        int bytes = (int)Take(3);
        return bytes == 0 ? 0 : BinaryPrimitives.ReverseEndianness(Take(bytes * 8)) >> (WordBits - (bytes * 8));
    }

    /// <summary>Reads a number (BD).</summary>
    internal double BitDouble() => BitPair() switch
    {
        0 => RawDouble(),
        1 => 1,
        2 => 0,
        _ => throw Fault("the code 3 of a number has no meaning", 2),
    };

    /// <summary>Reads a number of which only the bytes are stored that differ from another one's (DD).</summary>
    internal double DoubleAfter(double before)
    {
        ulong bits = BitConverter.DoubleToUInt64Bits(before);
        switch (BitPair())
        {
            case 0:
                return before;
            case 1:
                bits = (bits & 0xFFFFFFFF00000000) | (uint)RawLong();
                return BitConverter.UInt64BitsToDouble(bits);
            case 2:
                ulong middle = (ushort)RawShort();
                bits = (bits & 0xFFFF000000000000) | (middle << 32) | (uint)RawLong();
                return BitConverter.UInt64BitsToDouble(bits);
            default:
                return RawDouble();
        }
    }

    /// <summary>Reads a byte (RC).</summary>
    internal byte RawByte() => (byte)Take(8);

    /// <summary>Reads two bytes (RS).</summary>
    internal short RawShort() => (short)BinaryPrimitives.ReverseEndianness((ushort)Take(16));

    /// <summary>Reads four bytes (RL).</summary>
    internal int RawLong() => (int)BinaryPrimitives.ReverseEndianness((uint)Take(32));

    /// <summary>Reads eight bytes (RLL).</summary>
    internal ulong RawLongLong() => BinaryPrimitives.ReverseEndianness(TakeWord());

    /// <summary>Reads a number of eight bytes (RD).</summary>
    internal double RawDouble() =>
        BitConverter.UInt64BitsToDouble(BinaryPrimitives.ReverseEndianness(TakeWord()));

    /// <summary>Reads a signed integer of seven bits a byte (MC); the last byte has the sign.</summary>
    internal int ModularChar()
    {
        uint value = 0;
        for (int i = 0; i < MaxModularBytes; i++)
        {
            byte one = RawByte();
            if (one < 0x80)
            {
                value |= (uint)(one & 0x3F) << (7 * i);
                return (one & 0x40) != 0 ? -(int)value : (int)value;
            }

            value |= (uint)(one & 0x7F) << (7 * i);
        }

        throw Fault("an integer of seven bits a byte has no end", MaxModularBytes * 8);
    }

    /// <summary>Reads an integer without a sign of seven bits a byte (UMC).</summary>
    internal ulong UnsignedModularChar()
    {
        const int most = 9;
        ulong value = 0;
        for (int i = 0; i < most; i++)
        {
            byte one = RawByte();
            value |= (ulong)(one & 0x7F) << (7 * i);
            if (one < 0x80)
            {
                return value;
            }
        }

        throw Fault("an integer of seven bits a byte has no end", most * 8);
    }

    /// <summary>Reads a size of fifteen bits every two bytes (MS).</summary>
    internal int ModularShort()
    {
        int low = (ushort)RawShort();
        if (low < 0x8000)
        {
            return low;
        }

        int high = (ushort)RawShort();
        return high < 0x8000 ? (low & 0x7FFF) | (high << 15)
            : throw Fault("a size of fifteen bits every two bytes has no end", 32);
    }

    /// <summary>Reads a reference to an object (H): its kind and an offset or handle.</summary>
    internal (int Code, ulong Value) Handle()
    {
        int first = RawByte();
        int bytes = first & 0xF;
        if (bytes > MaxHandleBytes)
        {
            throw Fault($"a handle of {bytes} bytes; at most {MaxHandleBytes} were expected", 8);
        }

        ulong value = bytes switch { 0 => 0, MaxHandleBytes => TakeWord(), _ => Take(bytes * 8) };
        return (first >> 4, value);
    }

    /// <summary>Reads the type of an object as releases from 2010 on have it.</summary>
    internal int ObjectType() => BitPair() switch
    {
        0 => RawByte(),
        1 => RawByte() + 0x1F0,
        _ => RawShort() & 0x7FFF,
    };

    /// <summary>Reads bytes from any bit on.</summary>
    internal void Bytes(Span<byte> target)
    {
        if (Remaining < (long)target.Length << 3)
        {
            throw Short((long)target.Length << 3);
        }

        int shift = (int)(_position & 7);
        int index = (int)(_position >> 3);
        _position += (long)target.Length << 3;
        if (shift == 0)
        {
            _data.AsSpan(index, target.Length).CopyTo(target);
            return;
        }

        ReadOnlySpan<byte> source = _data.AsSpan(index, target.Length + 1);
        while (target.Length >= sizeof(ulong))
        {
            ulong word = BinaryPrimitives.ReadUInt64BigEndian(source) << shift;
            word |= (uint)source[sizeof(ulong)] >> (8 - shift);
            BinaryPrimitives.WriteUInt64BigEndian(target, word);
            source = source[sizeof(ulong)..];
            target = target[sizeof(ulong)..];
        }

        for (int i = 0; i < target.Length; i++)
        {
            target[i] = (byte)((source[i] << shift) | (source[i + 1] >> (8 - shift)));
        }
    }

    /// <summary>Reads bytes into a new array.</summary>
    internal byte[] Bytes(long count)
    {
        VerifyCount(count, 8);
        byte[] bytes = GC.AllocateUninitializedArray<byte>((int)count);
        Bytes(bytes);
        return bytes;
    }

    /// <summary>Reads a string of bytes after its length (TV).</summary>
    internal string Text(Encoding encoding)
    {
        int length = (ushort)BitShort();
        VerifyCount(length, 8);
        Span<byte> bytes = length <= 256 ? stackalloc byte[length] : new byte[length];
        Bytes(bytes);
        bytes = bytes.TrimEnd((byte)0);
        return bytes.IsEmpty ? "" : encoding.GetString(bytes);
    }

    /// <summary>Reads a string of UTF-16 after its length (TU).</summary>
    internal string Utf16Text()
    {
        int length = (ushort)BitShort();
        VerifyCount(length, 16);
        Span<byte> bytes = length <= 256 ? stackalloc byte[length * 2] : new byte[length * 2];
        Bytes(bytes);
        return Encoding.Unicode.GetString(bytes).TrimEnd('\0');
    }

    /// <summary>Verifies that a number of items can be in what is left.</summary>
    /// <param name="count">The number as it was read.</param>
    /// <param name="bits">The least number of bits of an item.</param>
    internal readonly void VerifyCount(long count, int bits)
    {
        if (count < 0 || count > Remaining / bits)
        {
            throw new DwgFault(
                _position, $"{count} items are announced, but only {Math.Max(Remaining, 0)} bits follow");
        }
    }

    /// <summary>Takes 1 to 57 bits.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    private ulong Take(int count)
    {
        long at = _position;
        if (count > _end - at)
        {
            ThrowShort(count);
        }

        _position = at + count;
        ReadOnlySpan<byte> rest = _data.AsSpan((int)(at >> 3));
        ulong word = rest.Length >= sizeof(ulong) ? BinaryPrimitives.ReadUInt64BigEndian(rest) : LastWord(rest);
        return (word << (int)(at & 7)) >> (WordBits - count);
    }

    /// <summary>Takes 64 bits.</summary>
    private ulong TakeWord()
    {
        long at = _position;
        if (WordBits > _end - at)
        {
            ThrowShort(WordBits);
        }

        _position = at + WordBits;
        ReadOnlySpan<byte> rest = _data.AsSpan((int)(at >> 3));
        ulong word = BinaryPrimitives.ReadUInt64BigEndian(rest);
        int shift = (int)(at & 7);
        return shift == 0 ? word : (word << shift) | ((uint)rest[sizeof(ulong)] >> (8 - shift));
    }

    [MethodImpl(MethodImplOptions.NoInlining)]
    private static ulong LastWord(ReadOnlySpan<byte> rest)
    {
        Span<byte> bytes = stackalloc byte[sizeof(ulong)];
        bytes.Clear();
        rest.CopyTo(bytes);
        return BinaryPrimitives.ReadUInt64BigEndian(bytes);
    }

    [DoesNotReturn]
    private readonly void ThrowShort(long count) => throw Short(count);

    private readonly DwgFault Short(long count) =>
        new(_position, $"{count} bits are read where {Math.Max(Remaining, 0)} are left");

    private readonly DwgFault Fault(string cause, int bitsBack) => new(_position - bitsBack, cause);
}
