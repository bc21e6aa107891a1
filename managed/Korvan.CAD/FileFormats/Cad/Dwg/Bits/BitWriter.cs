using System;
using System.Buffers.Binary;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Bits;

/// <summary>Packs values into bits, in the codes that <see cref="BitReader"/> reads; of several codes of a value, the
/// shortest one.</summary>
internal sealed class BitWriter
{
    private const int FirstCapacity = 256;
    private const int WordBits = 64;
    private const int MaxLongBytes = 7;

    private byte[] _data = new byte[FirstCapacity];

    /// <summary>Gets the number of bits that were written.</summary>
    internal long Position { get; private set; }

    /// <summary>Gets the bytes up to now; the last one is filled with zeros.</summary>
    internal ReadOnlySpan<byte> Bytes => _data.AsSpan(0, (int)((Position + 7) >> 3));

    internal byte[] ToArray() => Bytes.ToArray();

    /// <summary>Removes everything, so that the memory can be used for the next object.</summary>
    internal void Clear()
    {
        _data.AsSpan(0, (int)((Position + 7) >> 3)).Clear();
        Position = 0;
    }

    /// <summary>Writes a bit (B).</summary>
    internal void Bit(bool value) => Put(value ? 1u : 0, 1);

    /// <summary>Writes two bits (BB).</summary>
    internal void BitPair(int value) => Put((uint)value & 3, 2);

    /// <summary>Writes one to three bits (3B): the values 0, 2, 6 and 7.</summary>
    internal void BitTriplet(int value) => Put((uint)value, value == 0 ? 1 : value == 2 ? 2 : 3);

    /// <summary>Writes an integer of 16 bits (BS).</summary>
    internal void BitShort(int value)
    {
        switch ((ushort)value)
        {
            case 0:
                BitPair(2);
                break;
            case 256:
                BitPair(3);
                break;
            case < 256:
                BitPair(1);
                RawByte(value);
                break;
            default:
                BitPair(0);
                RawShort(value);
                break;
        }
    }

    /// <summary>Writes an integer of 32 bits (BL).</summary>
    internal void BitLong(int value)
    {
        switch ((uint)value)
        {
            case 0:
                BitPair(2);
                break;
            case < 256:
                BitPair(1);
                RawByte(value);
                break;
            default:
                BitPair(0);
                RawLong(value);
                break;
        }
    }

    /// <summary>Writes an integer of up to 7 bytes after their number (BLL).</summary>
    /// <exception cref="DwgFault">The integer has 8 bytes.</exception>
    internal void BitLongLong(ulong value)
    {
        int bytes = LengthOf(value);
        if (bytes > MaxLongBytes)
        {
            throw new DwgFault(Position, $"the integer {value} has more than {MaxLongBytes} bytes");
        }

        Put((uint)bytes, 3);
        for (int i = 0; i < bytes; i++)
        {
            RawByte((int)(value >> (8 * i)));
        }
    }

    /// <summary>Writes a number (BD).</summary>
    internal void BitDouble(double value)
    {
        // The bits, since -0 is not stored as 0.
        long bits = BitConverter.DoubleToInt64Bits(value);
        int code = bits == 0 ? 2 : value == 1 ? 1 : 0;
        BitPair(code);
        if (code == 0)
        {
            RawDouble(value);
        }
    }

    /// <summary>Writes a number of which only the bytes are stored that differ from another one's (DD).</summary>
    internal void DoubleAfter(double value, double before)
    {
        ulong bits = BitConverter.DoubleToUInt64Bits(value);
        ulong changed = bits ^ BitConverter.DoubleToUInt64Bits(before);
        if (changed == 0)
        {
            BitPair(0);
        }
        else if (changed <= uint.MaxValue)
        {
            BitPair(1);
            RawLong((int)bits);
        }
        else if (changed >> 48 == 0)
        {
            BitPair(2);
            RawShort((int)(bits >> 32));
            RawLong((int)bits);
        }
        else
        {
            BitPair(3);
            RawDouble(value);
        }
    }

    /// <summary>Writes a byte (RC).</summary>
    internal void RawByte(int value) => Put((byte)value, 8);

    /// <summary>Writes two bytes (RS).</summary>
    internal void RawShort(int value) => Put(BinaryPrimitives.ReverseEndianness((ushort)value), 16);

    /// <summary>Writes four bytes (RL).</summary>
    internal void RawLong(int value) => Put(BinaryPrimitives.ReverseEndianness((uint)value), 32);

    /// <summary>Writes eight bytes (RLL).</summary>
    internal void RawLongLong(ulong value)
    {
        RawLong((int)value);
        RawLong((int)(value >> 32));
    }

    /// <summary>Writes a number of eight bytes (RD).</summary>
    internal void RawDouble(double value) => RawLongLong(BitConverter.DoubleToUInt64Bits(value));

    /// <summary>Writes a signed integer of seven bits a byte (MC).</summary>
    internal void ModularChar(long value)
    {
        ulong rest = (ulong)Math.Abs(value);
        while (rest >= 0x40)
        {
            RawByte((int)(rest & 0x7F) | 0x80);
            rest >>= 7;
        }

        RawByte((int)rest | (value < 0 ? 0x40 : 0));
    }

    /// <summary>Writes an integer without a sign of seven bits a byte (UMC).</summary>
    internal void UnsignedModularChar(ulong value)
    {
        while (value >= 0x80)
        {
            RawByte((int)(value & 0x7F) | 0x80);
            value >>= 7;
        }

        RawByte((int)value);
    }

    /// <summary>Writes a size of fifteen bits every two bytes (MS).</summary>
    internal void ModularShort(int value)
    {
        if (value >= 0x8000)
        {
            RawShort((value & 0x7FFF) | 0x8000);
            value >>= 15;
        }

        RawShort(value);
    }

    /// <summary>Writes a reference to an object (H): its kind and an offset or handle.</summary>
    internal void Handle(int code, ulong value)
    {
        int bytes = LengthOf(value);
        RawByte((code << 4) | bytes);
        for (int i = bytes - 1; i >= 0; i--)
        {
            RawByte((int)(value >> (8 * i)));
        }
    }

    /// <summary>Writes the type of an object as releases from 2010 on have it.</summary>
    internal void ObjectType(int value)
    {
        const int shortRange = 0x1F0;
        switch (value)
        {
            case < 0x100:
                BitPair(0);
                RawByte(value);
                break;
            case >= shortRange and < shortRange + 0x100:
                BitPair(1);
                RawByte(value - shortRange);
                break;
            default:
                BitPair(2);
                RawShort(value);
                break;
        }
    }

    /// <summary>Writes bytes.</summary>
    internal void Raw(ReadOnlySpan<byte> bytes)
    {
        Reserve((long)bytes.Length << 3);
        if ((Position & 7) == 0)
        {
            bytes.CopyTo(_data.AsSpan((int)(Position >> 3)));
            Position += (long)bytes.Length << 3;
            return;
        }

        foreach (byte one in bytes)
        {
            Put(one, 8);
        }
    }

    /// <summary>Writes bits of other data.</summary>
    internal void Bits(ReadOnlySpan<byte> data, long count)
    {
        int whole = (int)(count >> 3);
        Raw(data[..whole]);
        int rest = (int)(count & 7);
        if (rest > 0)
        {
            Put((uint)data[whole] >> (8 - rest), rest);
        }
    }

    /// <summary>Writes a string of bytes after its length (TV); a zero ends it, which counts.</summary>
    /// <exception cref="DwgFault">The string is longer than its length can state.</exception>
    internal void Text(string value, Encoding encoding)
    {
        byte[] bytes = value.Length == 0 ? [] : encoding.GetBytes(value + "\0");
        TextLength(bytes.Length);
        Raw(bytes);
    }

    /// <summary>Writes a string of UTF-16 after its length (TU).</summary>
    /// <exception cref="DwgFault">The string is longer than its length can state.</exception>
    internal void Utf16Text(string value)
    {
        TextLength(value.Length);
        Raw(Encoding.Unicode.GetBytes(value));
    }

    /// <summary>Fills the last byte with zeros.</summary>
    internal void Align() => Position = (Position + 7) & ~7L;

    private void TextLength(int length)
    {
        if (length > ushort.MaxValue)
        {
            throw new DwgFault(Position, $"a string has {length} characters; at most {ushort.MaxValue} can be written");
        }

        BitShort(length);
    }

    /// <summary>Writes up to 32 bits.</summary>
    private void Put(uint value, int count)
    {
        Reserve(count);
        int index = (int)(Position >> 3);
        Span<byte> place = _data.AsSpan(index, sizeof(ulong));
        ulong word = BinaryPrimitives.ReadUInt64BigEndian(place);
        word |= (ulong)value << (WordBits - count - (int)(Position & 7));
        BinaryPrimitives.WriteUInt64BigEndian(place, word);
        Position += count;
    }

    private void Reserve(long bits)
    {
        long needed = ((Position + bits) >> 3) + (2 * sizeof(ulong));
        if (needed > _data.Length)
        {
            Array.Resize(ref _data, (int)Math.Min(Array.MaxLength, Math.Max(needed, 2L * _data.Length)));
        }
    }

    private static int LengthOf(ulong value)
    {
        int bytes = 0;
        for (; value != 0; value >>= 8)
        {
            bytes++;
        }

        return bytes;
    }
}
