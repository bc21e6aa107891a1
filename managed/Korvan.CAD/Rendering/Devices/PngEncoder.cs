using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes pixels as a portable network graphic (ISO/IEC 15948) with the resolution and the compression that are
/// asked for. Lines of drawings differ little from the line above, so the "up" filter serves all of them.
/// </summary>
internal static class PngEncoder
{
    private const int IdatSize = 256 * 1024;
    private const byte UpFilter = 2;
    private const double InchesPerMetre = 1 / 0.0254;
    private static readonly uint[] CrcTable = BuildCrcTable();

    /// <summary>One line of pixels: blue first, alpha multiplied in.</summary>
    internal delegate ReadOnlySpan<byte> PixelRow(int y);

    internal static void Write(RasterPage page, Stream output, int compressionLevel, double pixelsPerInch) =>
        Write(page.Width, page.Height, page.Row, output, compressionLevel, pixelsPerInch);

    internal static void Write(int width, int height, PixelRow rows, Stream output, int compressionLevel, double pixelsPerInch)
    {
        bool opaque = IsOpaque(height, rows);
        output.Write([0x89, (byte)'P', (byte)'N', (byte)'G', 0x0d, 0x0a, 0x1a, 0x0a]);
        Span<byte> header = stackalloc byte[13];
        BinaryPrimitives.WriteInt32BigEndian(header, width);
        BinaryPrimitives.WriteInt32BigEndian(header[4..], height);
        header[8] = 8;
        header[9] = (byte)(opaque ? 2 : 6);
        header[10] = header[11] = header[12] = 0;
        WriteChunk(output, "IHDR"u8, header);

        Span<byte> density = stackalloc byte[9];
        int perMetre = (int)Math.Round(Math.Min(pixelsPerInch * InchesPerMetre, int.MaxValue));
        BinaryPrimitives.WriteInt32BigEndian(density, perMetre);
        BinaryPrimitives.WriteInt32BigEndian(density[4..], perMetre);
        density[8] = 1;
        WriteChunk(output, "pHYs"u8, density);
        WriteRows(width, height, rows, output, compressionLevel, opaque ? 3 : 4);
        WriteChunk(output, "IEND"u8, []);
    }

    private static void WriteRows(int width, int height, PixelRow rows, Stream output, int level, int channels)
    {
        using var chunks = new ChunkStream(output);
        using (var zlib = new ZLibStream(chunks, new ZLibCompressionOptions { CompressionLevel = level }, leaveOpen: true))
        {
            var row = new byte[width * channels];
            var above = new byte[row.Length];
            var line = new byte[row.Length + 1];
            line[0] = UpFilter;
            for (int y = 0; y < height; y++)
            {
                Convert(rows(y), row, channels);
                for (int i = 0; i < row.Length; i++)
                {
                    line[i + 1] = (byte)(row[i] - above[i]);
                }

                zlib.Write(line);
                (row, above) = (above, row);
            }
        }

        chunks.Flush();
    }

    /// <summary>From blue first and multiplied by alpha to red first and plain.</summary>
    private static void Convert(ReadOnlySpan<byte> from, Span<byte> to, int channels)
    {
        for (int i = 0, o = 0; i < from.Length; i += 4, o += channels)
        {
            int alpha = from[i + 3];
            to[o] = Plain(from[i + 2], alpha);
            to[o + 1] = Plain(from[i + 1], alpha);
            to[o + 2] = Plain(from[i], alpha);
            if (channels == 4)
            {
                to[o + 3] = (byte)alpha;
            }
        }
    }

    private static byte Plain(int value, int alpha) => alpha switch
    {
        255 => (byte)value,
        0 => 0,
        _ => (byte)Math.Min(255, ((value * 255) + (alpha / 2)) / alpha),
    };

    private static bool IsOpaque(int height, PixelRow rows)
    {
        for (int y = 0; y < height; y++)
        {
            ReadOnlySpan<byte> row = rows(y);
            for (int i = 3; i < row.Length; i += 4)
            {
                if (row[i] != 255)
                {
                    return false;
                }
            }
        }

        return true;
    }

    private static void WriteChunk(Stream output, ReadOnlySpan<byte> type, ReadOnlySpan<byte> data)
    {
        Span<byte> word = stackalloc byte[4];
        BinaryPrimitives.WriteInt32BigEndian(word, data.Length);
        output.Write(word);
        output.Write(type);
        output.Write(data);
        uint crc = Crc(Crc(0xffffffff, type), data) ^ 0xffffffff;
        BinaryPrimitives.WriteUInt32BigEndian(word, crc);
        output.Write(word);
    }

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

    /// <summary>Cuts the compressed data into chunks of one size.</summary>
    private sealed class ChunkStream(Stream output) : Stream
    {
        private readonly byte[] buffer = new byte[IdatSize];
        private int used;

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
                int take = Math.Min(data.Length, buffer.Length - used);
                data[..take].CopyTo(buffer.AsSpan(used));
                used += take;
                data = data[take..];
                if (used == buffer.Length)
                {
                    Flush();
                }
            }
        }

        public override void Flush()
        {
            if (used > 0)
            {
                WriteChunk(output, "IDAT"u8, buffer.AsSpan(0, used));
                used = 0;
            }
        }

        public override int Read(byte[] data, int offset, int count) => throw new NotSupportedException();

        public override long Seek(long offset, System.IO.SeekOrigin origin) => throw new NotSupportedException();

        public override void SetLength(long value) => throw new NotSupportedException();
    }
}
