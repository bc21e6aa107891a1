using System;
using System.Buffers.Binary;
using System.Numerics;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Bmp;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads device-independent bitmaps: headers of OS/2 1 and of Windows up to version 5; 1, 2, 4, 8, 16, 24 and
/// 32 bits per pixel, masks, and run lengths.</summary>
internal sealed class BmpReader
{
    internal const int FileHeaderLength = 14;
    private const double MetresPerInch = 0.0254;

    private readonly RasterSource _source;
    private readonly int _headerSize;
    private readonly int _width;
    private readonly int _height;
    private readonly bool _topDown;
    private readonly int _bits;
    private readonly BitmapCompression _compression;
    private readonly uint[] _masks = new uint[4];
    private int[] _palette = [];

    private BmpReader(RasterSource source)
    {
        _source = source;
        ReadOnlySpan<byte> data = source.Data;
        _headerSize = Number(FileHeaderLength);
        if (_headerSize is not (12 or 40 or 52 or 56 or 64 or 108 or 124)
            || data.Length < FileHeaderLength + _headerSize)
        {
            throw Damaged($"its header states a size of {_headerSize} bytes");
        }

        bool old = _headerSize == 12;
        _width = old ? Short(18) : Number(18);
        int rows = old ? Short(20) : Number(22);
        _topDown = rows < 0;
        _height = rows == int.MinValue ? 0 : Math.Abs(rows);
        _bits = old ? Short(24) : Short(28);
        _compression = old ? BitmapCompression.Rgb : (BitmapCompression)Number(30);
        if (_width < 1 || _height < 1)
        {
            throw Damaged($"it claims {_width} × {rows} pixels");
        }

        PixelGrid.VerifySize(_width, _height);
        VerifyEncoding();
    }

    internal static DecodedFile Read(RasterSource source)
    {
        if (source.Data.Length < FileHeaderLength + 12)
        {
            throw new BmpImageException(
                $"'{source.Name}' ends after {source.Data.Length} bytes, before the end of the header.");
        }

        var reader = new BmpReader(source);
        return new DecodedFile { Format = FileFormat.Bmp, Frames = [reader.Frame()] };
    }

    private DecodedFrame Frame()
    {
        int offset = Number(10);
        int tables = ReadTables();
        if (offset < FileHeaderLength + _headerSize || offset > _source.Data.Length)
        {
            offset = Math.Min(tables, _source.Data.Length);
        }

        ReadOnlySpan<byte> data = _source.Data.AsSpan(offset);
        bool density = _headerSize >= 40;
        bool runs = _compression is BitmapCompression.Rle8 or BitmapCompression.Rle4;
        return new DecodedFrame
        {
            Pixels = runs ? FromRuns(data) : FromRows(data),
            BitsPerPixel = _bits,
            HorizontalResolution = density ? Math.Max(0, Number(38)) * MetresPerInch : 0,
            VerticalResolution = density ? Math.Max(0, Number(42)) * MetresPerInch : 0,
            Palette = _bits <= 8 ? new ColorPalette(_palette) : null,
        };
    }

    private void VerifyEncoding()
    {
        bool known = (_compression, _bits) switch
        {
            (BitmapCompression.Rgb, 1 or 2 or 4 or 8 or 16 or 24 or 32) => true,
            (BitmapCompression.Rle8, 8) => !_topDown,
            (BitmapCompression.Rle4, 4) => !_topDown,
            (BitmapCompression.Bitfields or BitmapCompression.AlphaBitfields, 16 or 32) => true,
            _ => false,
        };
        if (!known)
        {
            string name = Enum.IsDefined(_compression) ? _compression.ToString() : $"0x{(int)_compression:X}";
            throw new BmpImageException(
                $"'{_source.Name}' stores {_bits} bits per pixel with compression {name}, which is not read.");
        }
    }

    /// <summary>Reads masks and palette; returns where they end.</summary>
    private int ReadTables()
    {
        int at = FileHeaderLength + _headerSize;
        if (_bits is 16 or 32)
        {
            uint[] defaults = _bits == 16 ? [0x7C00, 0x3E0, 0x1F, 0] : [0xFF0000, 0xFF00, 0xFF, 0];
            defaults.CopyTo(_masks, 0);
            int count = _compression switch
            {
                BitmapCompression.Bitfields => _headerSize >= 56 ? 4 : 3,
                BitmapCompression.AlphaBitfields => 4,
                _ => 0,
            };
            for (int i = 0; i < count; i++)
            {
                _masks[i] = (uint)Number(54 + (4 * i));
            }

            return _headerSize == 40 ? at + (4 * count) : at;
        }

        if (_bits > 8)
        {
            return at;
        }

        int entry = _headerSize == 12 ? 3 : 4;
        int stated = _headerSize == 12 ? 0 : Number(46);
        int colors = stated is > 0 and <= 256 ? Math.Min(stated, 1 << _bits) : 1 << _bits;
        colors = Math.Min(colors, (_source.Data.Length - at) / entry);
        _palette = new int[1 << _bits];
        _palette.AsSpan().Fill(PixelGrid.Opaque); // an index past the colours is black
        for (int i = 0; i < colors; i++)
        {
            ReadOnlySpan<byte> color = _source.Data.AsSpan(at + (i * entry));
            _palette[i] = PixelGrid.Opaque | (color[2] << 16) | (color[1] << 8) | color[0];
        }

        return at + (colors * entry);
    }

    private PixelGrid FromRuns(ReadOnlySpan<byte> data)
    {
        // No check of the size against the data: a pair of bytes makes up to 255 pixels, and a delta skips any number.
        var indices = new byte[(long)_width * _height];
        try
        {
            BmpRunLengths.Unpack(data, indices, _width, _height, _compression == BitmapCompression.Rle4);
        }
        catch (RleCompressorException e) when (!_source.Lenient)
        {
            throw new BmpImageException($"The image of '{_source.Name}' is damaged.", e);
        }
        catch (RleCompressorException)
        {
            // The pixels that were read are shown.
        }

        var pixels = new PixelGrid(_width, _height);
        for (int y = 0; y < _height; y++)
        {
            Span<int> row = pixels.WritableRow(y);
            for (int x = 0; x < _width; x++)
            {
                row[x] = _palette[indices[(y * _width) + x]];
            }
        }

        return pixels;
    }

    private PixelGrid FromRows(ReadOnlySpan<byte> data)
    {
        long rowBytes = (((long)_width * _bits) + 31) / 32 * 4;
        long needed = (rowBytes * (_height - 1)) + ((((long)_width * _bits) + 7) / 8);
        if (data.Length < needed && !_source.Lenient)
        {
            throw Damaged(
                $"{_width} × {_height} pixels of {_bits} bits need {needed} bytes, but {data.Length} are left");
        }

        PixelGrid pixels = _source.NewGrid(_width, _height);
        bool opacity = false;
        int read = 0;
        for (int y = 0; y < _height && (y + 1) * rowBytes <= data.Length + rowBytes - 1; y++)
        {
            int start = (int)(y * rowBytes);
            ReadOnlySpan<byte> from = data[start..Math.Min(data.Length, (int)(start + rowBytes))];
            if (from.Length * 8L < (long)_width * _bits)
            {
                break;
            }

            Span<int> to = pixels.WritableRow(_topDown ? y : _height - 1 - y);
            opacity |= Unpack(from, to);
            read++;
        }

        if (_bits >= 16 && !opacity)
        {
            for (int y = 0; y < read; y++)
            {
                MakeOpaque(pixels.WritableRow(_topDown ? y : _height - 1 - y));
            }
        }

        return pixels;
    }

    /// <summary>Unpacks a row; returns whether any pixel has an alpha above 0.</summary>
    private bool Unpack(ReadOnlySpan<byte> from, Span<int> to)
    {
        if (_bits == 24)
        {
            for (int x = 0; x < to.Length; x++)
            {
                to[x] = PixelGrid.Opaque | (from[(3 * x) + 2] << 16) | (from[(3 * x) + 1] << 8) | from[3 * x];
            }

            return true;
        }

        int any = 0;
        for (int x = 0; x < to.Length; x++)
        {
            to[x] = _bits switch
            {
                16 => Masked(BinaryPrimitives.ReadUInt16LittleEndian(from[(2 * x)..])),
                32 => Masked(BinaryPrimitives.ReadUInt32LittleEndian(from[(4 * x)..])),
                _ => _palette[BitPacking.Value(from, x, _bits)],
            };
            any |= to[x];
        }

        return (any & PixelGrid.Opaque) != 0;
    }

    private int Masked(uint value)
    {
        return (Channel(value, _masks[3]) << 24) | (Channel(value, _masks[0]) << 16)
            | (Channel(value, _masks[1]) << 8) | Channel(value, _masks[2]);
    }

    private static int Channel(uint value, uint mask)
    {
        if (mask == 0)
        {
            return 0;
        }

        int shift = BitOperations.TrailingZeroCount(mask);
        ulong max = mask >> shift;
        return (int)((((value & mask) >> shift) * 255ul + (max / 2)) / max);
    }

    // Many programs leave the fourth byte at 0 in opaque pixels.
    private static void MakeOpaque(Span<int> row)
    {
        foreach (ref int pixel in row)
        {
            pixel |= PixelGrid.Opaque;
        }
    }

    private int Number(int at) => BinaryPrimitives.ReadInt32LittleEndian(Take(at, 4));

    private int Short(int at) => BinaryPrimitives.ReadUInt16LittleEndian(Take(at, 2));

    private ReadOnlySpan<byte> Take(int at, int count)
    {
        return at + count <= _source.Data.Length
            ? _source.Data.AsSpan(at, count)
            : throw Damaged($"it ends after {_source.Data.Length} bytes, inside its header");
    }

    private BmpImageException Damaged(string why) => new($"'{_source.Name}' is no bitmap that can be read: {why}.");
}
