using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The header of a PNG.</summary>
internal readonly record struct PngHeader(int Width, int Height, int BitDepth, PngColorType ColorType)
{
    internal int BitsPerPixel => BitDepth * ColorType switch
    {
        PngColorType.Truecolor => 3,
        PngColorType.TruecolorWithAlpha => 4,
        PngColorType.GrayscaleWithAlpha => 2,
        _ => 1,
    };

    internal int RowBytes => checked((int)((((long)Width * BitsPerPixel) + 7) / 8));
}

/// <summary>Writes a PNG (ISO/IEC 15948) of packed rows.</summary>
internal static class PngStream
{
    private const int IdatSize = 256 * 1024;

    /// <summary>Below this, threads take longer to start than the image takes to compress.</summary>
    private const long MinBytesInBands = 4L << 20;
    private const double InchesPerMetre = 1 / 0.0254;
    private static readonly uint[] CrcTable = BuildCrcTable();

    /// <summary>Gets the start of an iTXt chunk of XMP: its keyword, no compression, no language.</summary>
    internal static ReadOnlySpan<byte> XmpPrefix => "XML:com.adobe.xmp\0\0\0\0\0"u8;

    /// <summary>Writes one row, in the format of the header, into the buffer. It is called on several threads, for
    /// rows in any order.</summary>
    internal delegate void PackRow(int y, Span<byte> row);

    internal static void Begin(Stream output, in PngHeader header, double horizontal, double vertical)
    {
        output.Write([0x89, (byte)'P', (byte)'N', (byte)'G', 0x0d, 0x0a, 0x1a, 0x0a]);
        Span<byte> ihdr = stackalloc byte[13];
        BinaryPrimitives.WriteInt32BigEndian(ihdr, header.Width);
        BinaryPrimitives.WriteInt32BigEndian(ihdr[4..], header.Height);
        ihdr[8] = (byte)header.BitDepth;
        ihdr[9] = (byte)header.ColorType;
        ihdr[10] = ihdr[11] = ihdr[12] = 0;
        WriteChunk(output, "IHDR"u8, ihdr);

        Span<byte> density = stackalloc byte[9];
        BinaryPrimitives.WriteInt32BigEndian(density, PerMetre(horizontal));
        BinaryPrimitives.WriteInt32BigEndian(density[4..], PerMetre(vertical));
        density[8] = 1;
        WriteChunk(output, "pHYs"u8, density);
    }

    internal static void WriteRows(Stream output, in PngHeader header, PngFilterType filter, int level, PackRow pack)
    {
        using var chunks = new ChunkStream(output);
        if (header.RowBytes * (long)header.Height > MinBytesInBands)
        {
            new PngBands(header, filter, level, pack).Write(chunks);
        }
        else
        {
            var compression = new ZLibCompressionOptions { CompressionLevel = level };
            using var zlib = new ZLibStream(chunks, compression, leaveOpen: true);
            var filters = new PngFilters(header);
            for (int y = 0; y < header.Height; y++)
            {
                pack(y, filters.Row);
                zlib.Write(filters.Apply(filter));
            }
        }

        chunks.Flush();
    }

    internal static void End(Stream output) => WriteChunk(output, "IEND"u8, []);

    private static int PerMetre(double pixelsPerInch) =>
        (int)Math.Round(Math.Min(pixelsPerInch * InchesPerMetre, int.MaxValue));

    internal static void WriteChunk(Stream output, ReadOnlySpan<byte> type, ReadOnlySpan<byte> data)
    {
        Span<byte> number = stackalloc byte[4];
        BinaryPrimitives.WriteInt32BigEndian(number, data.Length);
        output.Write(number);
        output.Write(type);
        output.Write(data);
        BinaryPrimitives.WriteUInt32BigEndian(number, Checksum(type, data));
        output.Write(number);
    }

    /// <summary>Returns the CRC of a chunk.</summary>
    internal static uint Checksum(ReadOnlySpan<byte> type, ReadOnlySpan<byte> data) =>
        Crc(Crc(0xffffffff, type), data) ^ 0xffffffff;

    private static uint Crc(uint crc, ReadOnlySpan<byte> data)
    {
        foreach (byte b in data)
        {
            crc = CrcTable[(crc ^ b) & 0xff] ^ (crc >> 8);
        }

        return crc;
    }

    private static uint[] BuildCrcTable()
    {
        var table = new uint[256];
        for (uint n = 0; n < 256; n++)
        {
            uint c = n;
            for (int k = 0; k < 8; k++)
            {
                c = (c & 1) != 0 ? 0xedb88320 ^ (c >> 1) : c >> 1;
            }

            table[n] = c;
        }

        return table;
    }

    /// <summary>Splits the compressed data into chunks of one size.</summary>
    private sealed class ChunkStream(Stream output) : Stream
    {
        private readonly byte[] _buffer = new byte[IdatSize];
        private int _used;

        public override bool CanRead => false;

        public override bool CanSeek => false;

        public override bool CanWrite => true;

        public override long Length => throw new NotSupportedException();

        public override long Position
        {
            get => throw new NotSupportedException();
            set => throw new NotSupportedException();
        }

        public override void Write(byte[] data, int offset, int count) => Write(data.AsSpan(offset, count));

        public override void Write(ReadOnlySpan<byte> data)
        {
            while (data.Length > 0)
            {
                int take = Math.Min(data.Length, _buffer.Length - _used);
                data[..take].CopyTo(_buffer.AsSpan(_used));
                _used += take;
                data = data[take..];
                if (_used == _buffer.Length)
                {
                    Flush();
                }
            }
        }

        public override void Flush()
        {
            if (_used > 0)
            {
                WriteChunk(output, "IDAT"u8, _buffer.AsSpan(0, _used));
                _used = 0;
            }
        }

        public override int Read(byte[] data, int offset, int count) => throw new NotSupportedException();

        public override long Seek(long offset, System.IO.SeekOrigin origin) => throw new NotSupportedException();

        public override void SetLength(long value) => throw new NotSupportedException();
    }
}
