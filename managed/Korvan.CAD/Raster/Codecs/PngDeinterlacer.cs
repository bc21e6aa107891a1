using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Rewrites an interlaced PNG of 16 bits per sample without interlacing. libpng's simplified reader overwrites
/// the rows of earlier passes when it reduces 16 bits to 8, since the fix of CVE-2025-65018 in Debian's
/// 1.6.39.</summary>
internal sealed class PngDeinterlacer
{
    private const int SignatureBytes = 8;
    private const int HeaderEnd = 33;
    private const int HeaderBytes = 13;
    private const int ChunkOverhead = 12; // length, type and check sum
    private const int MaxExpansion = 1032; // of deflate
    private const long MaxBytes = 0x7000_0000;

    // Where the passes begin, and how far apart their pixels are (ISO/IEC 15948, clause 8.2).
    private static readonly (int X, int Y, int StepX, int StepY)[] Passes =
        [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)];

    private readonly RasterSource _source;
    private readonly PngHeader _header;
    private readonly int _pixelBytes;

    private PngDeinterlacer(RasterSource source)
    {
        _source = source;
        ReadOnlySpan<byte> data = source.Data.AsSpan(16);
        int width = BinaryPrimitives.ReadInt32BigEndian(data);
        int height = BinaryPrimitives.ReadInt32BigEndian(data[4..]);
        _header = new PngHeader(width, height, data[8], (PngColorType)data[9]);
        _pixelBytes = _header.BitsPerPixel / 8;
    }

    /// <summary>Returns the file unchanged, or without interlacing where that is needed.</summary>
    internal static byte[] Convert(RasterSource source)
    {
        ReadOnlySpan<byte> data = source.Data;
        bool wanted = data.Length > HeaderEnd && data[24] == 16 && data[25] is 0 or 2 or 4 or 6 && data[28] == 1
            && data.Slice(SignatureBytes, 8).SequenceEqual((ReadOnlySpan<byte>)[0, 0, 0, 13, .. "IHDR"u8]);
        return wanted ? new PngDeinterlacer(source).Rewrite() : source.Data;
    }

    private byte[] Rewrite()
    {
        if (_header.Width < 1 || _header.Height < 1)
        {
            throw Damaged($"it claims {_header.Width} × {_header.Height} pixels");
        }

        PixelGrid.VerifySize(_header.Width, _header.Height);
        long size = (long)_header.Height * _header.RowBytes;
        if (size > (long)_source.Data.Length * MaxExpansion)
        {
            throw new PngImageException($"'{_source.Name}' claims {_header.Width} × {_header.Height} pixels,"
                + $" which its {_source.Data.Length} bytes cannot hold.");
        }

        if (size > MaxBytes)
        {
            throw new LimitMemoryException(
                $"'{_source.Name}' is interlaced and needs {size} bytes to be put in order, more than {MaxBytes}.");
        }

        using var before = new MemoryStream();
        using var packed = new MemoryStream();
        using var after = new MemoryStream();
        Sort(before, packed, after);
        packed.Position = 0;
        byte[] pixels = Unpack(packed, (int)size);
        PngStream.WriteRows(
            before, _header, PngFilterType.Up, 1, (y, row) => pixels.AsSpan(y * row.Length, row.Length).CopyTo(row));
        after.WriteTo(before);
        return before.ToArray();
    }

    // Splits the chunks into those before the image data, the data, and those after it.
    private void Sort(MemoryStream before, MemoryStream packed, MemoryStream after)
    {
        ReadOnlySpan<byte> data = _source.Data;
        before.Write(data[..SignatureBytes]);
        for (int at = SignatureBytes, length; at + ChunkOverhead <= data.Length; at += length + ChunkOverhead)
        {
            length = BinaryPrimitives.ReadInt32BigEndian(data[at..]);
            if (length < 0 || length > data.Length - at - ChunkOverhead)
            {
                throw Damaged("its last chunk is cut off");
            }

            ReadOnlySpan<byte> type = data.Slice(at + 4, 4);
            ReadOnlySpan<byte> body = data.Slice(at + 8, length);
            bool isHeader = type.SequenceEqual("IHDR"u8);
            bool isData = type.SequenceEqual("IDAT"u8);
            if (isHeader && length != HeaderBytes)
            {
                throw Damaged($"IHDR: it has {length} bytes, not {HeaderBytes}");
            }

            if ((isHeader || isData)
                && PngStream.Checksum(type, body) != BinaryPrimitives.ReadUInt32BigEndian(data[(at + 8 + length)..]))
            {
                throw Damaged($"{System.Text.Encoding.ASCII.GetString(type)}: CRC error");
            }

            if (isData)
            {
                packed.Write(body);
            }
            else if (isHeader)
            {
                PngStream.WriteChunk(before, type, [.. body[..12], 0]);
            }
            else
            {
                (packed.Length == 0 ? before : after).Write(data.Slice(at, length + ChunkOverhead));
            }
        }
    }

    private byte[] Unpack(Stream packed, int size)
    {
        var pixels = new byte[size];
        using var zlib = new ZLibStream(packed, CompressionMode.Decompress);
        try
        {
            foreach ((int left, int top, int stepX, int stepY) in Passes)
            {
                int width = (_header.Width - left + stepX - 1) / stepX;
                byte[] row = new byte[width * _pixelBytes];
                byte[] above = new byte[row.Length];
                for (int y = top; y < _header.Height && row.Length > 0; y += stepY)
                {
                    int filter = zlib.ReadByte();
                    zlib.ReadExactly(row);
                    PngFilters.Undo((PngFilterType)filter, row, above, _pixelBytes);
                    Spread(row, pixels.AsSpan((y * _header.RowBytes) + (left * _pixelBytes)), stepX);
                    (row, above) = (above, row);
                }
            }
        }
        catch (Exception e) when (e is InvalidDataException or EndOfStreamException)
        {
            throw Damaged($"IDAT: {e.Message.TrimEnd('.')}", new DeflateCompressorException(e.Message));
        }

        return pixels;
    }

    private void Spread(ReadOnlySpan<byte> row, Span<byte> target, int step)
    {
        for (int from = 0, to = 0; from < row.Length; from += _pixelBytes, to += step * _pixelBytes)
        {
            row.Slice(from, _pixelBytes).CopyTo(target[to..]);
        }
    }

    private PngImageException Damaged(string why, Exception? cause = null) =>
        new($"'{_source.Name}' is damaged: {why}.", cause);
}
