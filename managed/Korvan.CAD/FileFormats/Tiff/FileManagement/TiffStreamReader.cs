using System;
using System.Buffers.Binary;
using System.IO;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.FileManagement;

/// <summary>Reads numbers of a TIFF or Exif block in its order of bytes. Places are counted from the block's
/// start.</summary>
public class TiffStreamReader
{
    private readonly byte[] _data;

    /// <summary>Creates a reader.</summary>
    /// <param name="data">The whole block.</param>
    /// <param name="byteOrder">The order of bytes in numbers.</param>
    public TiffStreamReader(byte[] data, TiffByteOrder byteOrder)
    {
        Verify.NotNull(data);
        _data = data;
        ByteOrder = byteOrder;
    }

    /// <summary>Creates a reader of the rest of a stream.</summary>
    /// <param name="stream">The stream; it is read to its end.</param>
    /// <param name="byteOrder">The order of bytes in numbers.</param>
    public TiffStreamReader(Stream stream, TiffByteOrder byteOrder)
        : this(ReadAll(stream), byteOrder)
    {
    }

    /// <summary>Gets the order of bytes in numbers.</summary>
    public TiffByteOrder ByteOrder { get; }

    /// <summary>Gets how many bytes there are.</summary>
    public long Length => _data.Length;

    private bool Big => ByteOrder == TiffByteOrder.BigEndian;

    /// <summary>Reads bytes.</summary>
    /// <param name="position">The place of the first.</param>
    /// <param name="count">How many.</param>
    /// <returns>Bytes.</returns>
    /// <exception cref="TiffImageException">The block ends before.</exception>
    public byte[] ReadBytes(long position, int count) => Take(position, count).ToArray();

    /// <summary>Reads an unsigned number of 8 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>An unsigned number of 8 bits.</returns>
    public byte ReadByte(long position) => Take(position, 1)[0];

    /// <summary>Reads an unsigned number of 16 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>An unsigned number of 16 bits.</returns>
    public int ReadUShort(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 2);
        return Big ? BinaryPrimitives.ReadUInt16BigEndian(data) : BinaryPrimitives.ReadUInt16LittleEndian(data);
    }

    /// <summary>Reads a signed number of 16 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>A signed number of 16 bits.</returns>
    public int ReadSShort(long position) => (short)ReadUShort(position);

    /// <summary>Reads an unsigned number of 32 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>An unsigned number of 32 bits.</returns>
    public long ReadULong(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 4);
        return Big ? BinaryPrimitives.ReadUInt32BigEndian(data) : BinaryPrimitives.ReadUInt32LittleEndian(data);
    }

    /// <summary>Reads a signed number of 32 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>A signed number of 32 bits.</returns>
    public int ReadSLong(long position) => unchecked((int)ReadULong(position));

    /// <summary>Reads a floating point number of 32 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>A floating point number of 32 bits.</returns>
    public float ReadFloat(long position) => BitConverter.Int32BitsToSingle(ReadSLong(position));

    /// <summary>Reads a floating point number of 64 bits.</summary>
    /// <param name="position">Its place.</param>
    /// <returns>A floating point number of 64 bits.</returns>
    public double ReadDouble(long position)
    {
        ReadOnlySpan<byte> data = Take(position, 8);
        return Big ? BinaryPrimitives.ReadDoubleBigEndian(data) : BinaryPrimitives.ReadDoubleLittleEndian(data);
    }

    /// <summary>Reads two unsigned numbers of 32 bits.</summary>
    /// <param name="position">Their place.</param>
    /// <returns>Two unsigned numbers of 32 bits.</returns>
    public TiffRational ReadRational(long position) => new(ReadULong(position), ReadULong(position + 4));

    /// <summary>Reads two signed numbers of 32 bits.</summary>
    /// <param name="position">Their place.</param>
    /// <returns>Two signed numbers of 32 bits.</returns>
    public TiffSRational ReadSRational(long position) => new(ReadSLong(position), ReadSLong(position + 4));

    /// <summary>Reads a text up to its zero byte, or as long as it is.</summary>
    /// <param name="position">Its place.</param>
    /// <param name="count">How many bytes it may have.</param>
    /// <returns>A text up to its zero byte, or as long as it is.</returns>
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
            throw new TiffImageException($"{count} bytes at {position} lie outside of a block of {_data.Length} bytes.");
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
