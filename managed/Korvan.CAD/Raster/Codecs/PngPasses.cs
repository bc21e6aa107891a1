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

/// <summary>
/// Lays an interlaced PNG of 16 bits a sample out in one pass. libpng's reader for memory copies whole rows of each pass
/// over those of the passes before when it makes 8 bits of 16, as its correction of CVE-2025-65018 does in Debian's 1.6.39.
/// </summary>
internal sealed class PngPasses
{
    private const int FirstChunk = 8;
    private const int HeadEnd = 33;
    private const int HeaderBytes = 13;
    private const int Frame = 12; // length, type and check sum
    private const int MostExpansion = 1032; // of deflate
    private const long MostBytes = 0x7000_0000;

    // Where the passes begin, and how far apart their pixels are (ISO/IEC 15948, clause 8.2).
    private static readonly (int X, int Y, int StepX, int StepY)[] Passes =
        [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)];

    private readonly RasterSource _source;
    private readonly PngHead _head;
    private readonly int _pixelBytes;

    private PngPasses(RasterSource source)
    {
        _source = source;
        ReadOnlySpan<byte> data = source.Data.AsSpan(16);
        _head = new PngHead(BinaryPrimitives.ReadInt32BigEndian(data), BinaryPrimitives.ReadInt32BigEndian(data[4..]), data[8], (PngColorType)data[9]);
        _pixelBytes = _head.BitsPerPixel / 8;
    }

    /// <summary>The file as it is, or one that shows the same picture and is not interlaced.</summary>
    internal static byte[] Plain(RasterSource source)
    {
        ReadOnlySpan<byte> data = source.Data;
        bool wanted = data.Length > HeadEnd && data[24] == 16 && data[25] is 0 or 2 or 4 or 6 && data[28] == 1
            && data.Slice(FirstChunk, 8).SequenceEqual((ReadOnlySpan<byte>)[0, 0, 0, 13, .. "IHDR"u8]);
        return wanted ? new PngPasses(source).Rewrite() : source.Data;
    }

    private byte[] Rewrite()
    {
        if (_head.Width < 1 || _head.Height < 1)
        {
            throw Damaged($"it claims {_head.Width} × {_head.Height} pixels");
        }

        PixelGrid.Verify(_head.Width, _head.Height);
        long size = (long)_head.Height * _head.RowBytes;
        if (size > (long)_source.Data.Length * MostExpansion)
        {
            throw new PngImageException($"'{_source.Name}' claims {_head.Width} × {_head.Height} pixels,"
                + $" which its {_source.Data.Length} bytes cannot hold.");
        }

        if (size > MostBytes)
        {
            throw new LimitMemoryException($"'{_source.Name}' is interlaced and needs {size} bytes to be put in order, more than {MostBytes}.");
        }

        using var before = new MemoryStream();
        using var packed = new MemoryStream();
        using var after = new MemoryStream();
        Sort(before, packed, after);
        packed.Position = 0;
        byte[] pixels = Unpack(packed, (int)size);
        PngStream.WriteRows(before, _head, PngFilterType.Up, 1, (y, row) => pixels.AsSpan(y * row.Length, row.Length).CopyTo(row));
        after.WriteTo(before);
        return before.ToArray();
    }

    // Parts the chunks into those before the picture, its data, and those behind it.
    private void Sort(MemoryStream before, MemoryStream packed, MemoryStream after)
    {
        ReadOnlySpan<byte> data = _source.Data;
        before.Write(data[..FirstChunk]);
        for (int at = FirstChunk, length; at + Frame <= data.Length; at += length + Frame)
        {
            length = BinaryPrimitives.ReadInt32BigEndian(data[at..]);
            if (length < 0 || length > data.Length - at - Frame)
            {
                throw Damaged("its last chunk is cut off");
            }

            ReadOnlySpan<byte> type = data.Slice(at + 4, 4);
            ReadOnlySpan<byte> body = data.Slice(at + 8, length);
            bool isHead = type.SequenceEqual("IHDR"u8);
            bool isPicture = type.SequenceEqual("IDAT"u8);
            if (isHead && length != HeaderBytes)
            {
                throw Damaged($"IHDR: it has {length} bytes, not {HeaderBytes}");
            }

            if ((isHead || isPicture) && PngStream.Sum(type, body) != BinaryPrimitives.ReadUInt32BigEndian(data[(at + 8 + length)..]))
            {
                throw Damaged($"{System.Text.Encoding.ASCII.GetString(type)}: CRC error");
            }

            if (isPicture)
            {
                packed.Write(body);
            }
            else if (isHead)
            {
                PngStream.WriteChunk(before, type, [.. body[..12], 0]);
            }
            else
            {
                (packed.Length == 0 ? before : after).Write(data.Slice(at, length + Frame));
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
                int width = (_head.Width - left + stepX - 1) / stepX;
                byte[] row = new byte[width * _pixelBytes];
                byte[] above = new byte[row.Length];
                for (int y = top; y < _head.Height && row.Length > 0; y += stepY)
                {
                    int filter = zlib.ReadByte();
                    zlib.ReadExactly(row);
                    PngFilters.Undo((PngFilterType)filter, row, above, _pixelBytes);
                    Spread(row, pixels.AsSpan((y * _head.RowBytes) + (left * _pixelBytes)), stepX);
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

    private PngImageException Damaged(string why, Exception? cause = null) => new($"'{_source.Name}' is damaged: {why}.", cause);
}
