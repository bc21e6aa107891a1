using System;
using System.Buffers.Binary;
using System.IO;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.FileManagement;

/// <summary>Reads numbers of a TIFF or Exif block in its byte order. Positions are offsets from the start of the
/// block.</summary>
public class TiffStreamReader
{
    private readonly byte[] _data;

    /// <summary>Creates a reader.</summary>
    /// <param name="data">The whole block.</param>
    /// <param name="byteOrder">The byte order of numbers.</param>
    public TiffStreamReader(byte[] data, TiffByteOrder byteOrder)
    {
        Verify.NotNull(data);
        _data = data;
        ByteOrder = byteOrder;
    }

    /// <summary>Creates a reader of the rest of a stream.</summary>
    /// <param name="stream">The stream; it is read to its end.</param>
    /// <param name="byteOrder">The byte order of numbers.</param>
    public TiffStreamReader(Stream stream, TiffByteOrder byteOrder)
        : this(ReadAll(stream), byteOrder)
    {
    }

    /// <summary>Gets the byte order of numbers.</summary>
    public TiffByteOrder ByteOrder { get; }

    /// <summary>Gets the length of the block in bytes.</summary>
    public long Length => _data.Length;

    private bool Big => ByteOrder == TiffByteOrder.BigEndian;

    /// <summary>Reads bytes.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <param name="count">The number of bytes.</param>
    /// <returns>The bytes.</returns>
    /// <exception cref="TiffImageException">The bytes lie outside the block.</exception>
    public byte[] ReadBytes(long position, int count) => Take(position, count).ToArray();

    /// <summary>Reads an unsigned 8-bit integer.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>An unsigned 8-bit integer.</returns>
    public byte ReadByte(long position) => Take(position, 1)[0];

    /// <summary>Reads an unsigned 16-bit integer.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>An unsigned 16-bit integer.</returns>
    public int ReadUShort(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 2);
        return Big ? BinaryPrimitives.ReadUInt16BigEndian(data) : BinaryPrimitives.ReadUInt16LittleEndian(data);
    }

    /// <summary>Reads a signed 16-bit integer.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>A signed 16-bit integer.</returns>
    public int ReadSShort(long position) => (short)ReadUShort(position);

    /// <summary>Reads an unsigned 32-bit integer.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>An unsigned 32-bit integer.</returns>
    public long ReadULong(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 4);
        return Big ? BinaryPrimitives.ReadUInt32BigEndian(data) : BinaryPrimitives.ReadUInt32LittleEndian(data);
    }

    /// <summary>Reads a signed 32-bit integer.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>A signed 32-bit integer.</returns>
    public int ReadSLong(long position) => unchecked((int)ReadULong(position));

    /// <summary>Reads a 32-bit floating-point number.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>A 32-bit floating-point number.</returns>
    public float ReadFloat(long position) => BitConverter.Int32BitsToSingle(ReadSLong(position));

    /// <summary>Reads a 64-bit floating-point number.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>A 64-bit floating-point number.</returns>
    public double ReadDouble(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 8);
        return Big ? BinaryPrimitives.ReadDoubleBigEndian(data) : BinaryPrimitives.ReadDoubleLittleEndian(data);
    }

    /// <summary>Reads two unsigned 32-bit integers.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>Two unsigned 32-bit integers.</returns>
    public TiffRational ReadRational(long position) => new(ReadULong(position), ReadULong(position + 4));

    /// <summary>Reads two signed 32-bit integers.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <returns>Two signed 32-bit integers: numerator and denominator.</returns>
    public TiffSRational ReadSRational(long position) => new(ReadSLong(position), ReadSLong(position + 4));

    /// <summary>Reads a string up to its zero byte, or to its end without one.</summary>
    /// <param name="position">The position of the first byte.</param>
    /// <param name="count">The maximum number of bytes.</param>
    /// <returns>The string.</returns>
    public string ReadText(long position, int count)
    {
        ReadOnlySpan<byte> data = Take(position, count);
        int end = data.IndexOf((byte)0);
        return Encoding.UTF8.GetString(end < 0 ? data : data[..end]);
    }

    private ReadOnlySpan<byte> Take(long position, int count)
    {
        if (position < 0 || count < 0 || position > _data.Length - count)
        {
            throw new TiffImageException(
                $"{count} bytes at {position} lie outside of a block of {_data.Length} bytes.");
        }

        return _data.AsSpan((int)position, count);
    }

    private static byte[] ReadAll(Stream stream)
    {
        Verify.NotNull(stream);
        using var copy = new MemoryStream();
        stream.CopyTo(copy);
        return copy.ToArray();
    }
}
