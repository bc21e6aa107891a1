using System;
using System.Buffers.Binary;
using System.IO;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.FileManagement;

/// <summary>Writes numbers of a TIFF or Exif block in its byte order.</summary>
public class TiffStreamWriter
{
    private readonly Stream _stream;

    /// <summary>Creates a writer.</summary>
    /// <param name="stream">The stream to write to, from its position on.</param>
    /// <param name="byteOrder">The byte order of numbers.</param>
    public TiffStreamWriter(Stream stream, TiffByteOrder byteOrder)
    {
        Verify.NotNull(stream);
        _stream = stream;
        ByteOrder = byteOrder;
    }

    /// <summary>Gets the byte order of numbers.</summary>
    public TiffByteOrder ByteOrder { get; }

    /// <summary>Gets the number of bytes that this writer wrote.</summary>
    public long Written { get; private set; }

    private bool Big => ByteOrder == TiffByteOrder.BigEndian;

    /// <summary>Writes bytes unchanged.</summary>
    /// <param name="data">The bytes.</param>
    public void Write(byte[] data)
    {
        Verify.NotNull(data);
        Put(data);
    }

    /// <summary>Writes a number of 8 bits.</summary>
    /// <param name="value">The value.</param>
    public void WriteByte(byte value) => Put([value]);

    /// <summary>Writes an unsigned 16-bit integer.</summary>
    /// <param name="value">The number, 0 to 65535.</param>
    public void WriteUShort(int value)
    {
        Span<byte> data = stackalloc byte[2];
        ushort number = checked((ushort)value);
        if (Big)
        {
            BinaryPrimitives.WriteUInt16BigEndian(data, number);
        }
        else
        {
            BinaryPrimitives.WriteUInt16LittleEndian(data, number);
        }

        Put(data);
    }

    /// <summary>Writes a signed 16-bit integer.</summary>
    /// <param name="value">The number, -32768 to 32767.</param>
    public void WriteSShort(int value) => WriteUShort((ushort)checked((short)value));

    /// <summary>Writes an unsigned 32-bit integer.</summary>
    /// <param name="value">The number, 0 to 4294967295.</param>
    public void WriteULong(long value)
    {
        Span<byte> data = stackalloc byte[4];
        uint number = checked((uint)value);
        if (Big)
        {
            BinaryPrimitives.WriteUInt32BigEndian(data, number);
        }
        else
        {
            BinaryPrimitives.WriteUInt32LittleEndian(data, number);
        }

        Put(data);
    }

    /// <summary>Writes a signed 32-bit integer.</summary>
    /// <param name="value">The value.</param>
    public void WriteSLong(int value) => WriteULong(unchecked((uint)value));

    /// <summary>Writes a 32-bit floating-point number.</summary>
    /// <param name="value">The value.</param>
    public void WriteFloat(float value) => WriteSLong(BitConverter.SingleToInt32Bits(value));

    /// <summary>Writes a 64-bit floating-point number.</summary>
    /// <param name="value">The value.</param>
    public void WriteDouble(double value)
    {
        Span<byte> data = stackalloc byte[8];
        if (Big)
        {
            BinaryPrimitives.WriteDoubleBigEndian(data, value);
        }
        else
        {
            BinaryPrimitives.WriteDoubleLittleEndian(data, value);
        }

        Put(data);
    }

    /// <summary>Writes two unsigned 32-bit integers.</summary>
    /// <param name="value">The numbers.</param>
    public void WriteRational(TiffRational value)
    {
        Verify.NotNull(value);
        WriteULong(value.Numerator);
        WriteULong(value.Denominator);
    }

    /// <summary>Writes two signed 32-bit integers.</summary>
    /// <param name="value">The numbers.</param>
    public void WriteSRational(TiffSRational value)
    {
        Verify.NotNull(value);
        WriteSLong(value.Numerator);
        WriteSLong(value.Denominator);
    }

    /// <summary>Writes a string and a zero byte.</summary>
    /// <param name="value">The text.</param>
    public void WriteText(string value)
    {
        Put(Encoding.UTF8.GetBytes(value));
        WriteByte(0);
    }

    private void Put(ReadOnlySpan<byte> data)
    {
        _stream.Write(data);
        Written += data.Length;
    }
}
