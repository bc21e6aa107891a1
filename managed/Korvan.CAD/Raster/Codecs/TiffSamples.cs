using System;
using System.Linq;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Converts the samples of a page block by block: strips or tiles, chunky or planar. It serves pages that
/// libtiff's own conversion rejects, pages whose alpha it premultiplies, mistakes for a colour or drops, and 16-bit
/// grayscale, of which it garbles the tiles at the right edge.</summary>
internal sealed unsafe class TiffSamples
{
    private const int MaxSamples = 32;
    private const int InkSetCmyk = 1;
    private const uint Floats = 3;
    private const int MinBuffer = 1024;

    /// <summary>The size of a strip, in bytes, from which it is read by rows, and of the rows that are read
    /// together.</summary>
    private const int MaxStrip = 64 << 20;
    private const int RowsTogether = 4 << 20;

    // The supported photometric interpretations, with the samples of their colour and the maximum bits of a sample.
    private static readonly (TiffPhotometrics Kind, int Colors, int MostBits)[] Kinds =
    [
        (TiffPhotometrics.MinIsWhite, 1, 32), (TiffPhotometrics.MinIsBlack, 1, 32), (TiffPhotometrics.Rgb, 3, 32),
        (TiffPhotometrics.Palette, 1, 16), (TiffPhotometrics.Separated, 4, 32),
    ];

    private readonly TiffHandle _tiff;
    private readonly int _bits;
    private readonly int _samples;
    private readonly int _colors;
    private readonly int _maxBits;
    private readonly TiffPhotometrics _kind;
    private readonly bool _planar;
    private readonly bool _tiled;
    private readonly int _alphaSample = -1;
    private readonly bool _premultiplied;
    private readonly long _maxValue;
    private int[] _palette = [];
    private int[] _levels = [];

    internal TiffSamples(TiffHandle tiff)
    {
        _tiff = tiff;
        _bits = (int)Number(TiffTags.BitsPerSample);
        _samples = (int)Number(TiffTags.SamplesPerPixel);
        _kind = (TiffPhotometrics)Number(TiffTags.Photometric);
        (_, _colors, _maxBits) = Kinds.FirstOrDefault(entry => entry.Kind == _kind);
        _planar = Number(TiffTags.PlanarConfig) == 2 && _samples > 1;
        _tiled = Tiff.IsTiled(tiff) != 0;
        _maxValue = (1L << Math.Clamp(_bits, 1, 32)) - 1;

        // An unspecified extra sample is taken as alpha, as most programs do, unless another is declared as alpha.
        ushort[] extra = Tiff.ExtraSamples(tiff);
        int at = Array.FindIndex(extra, static meaning => meaning != (int)TiffAlphaStorage.Unspecified);
        if (extra.Length > 0)
        {
            _alphaSample = _colors + Math.Max(at, 0);
            _premultiplied = at >= 0 && extra[at] == (int)TiffAlphaStorage.Associated;
        }
    }

    /// <summary>Gets whether the page is read by this class.</summary>
    internal bool Fits => _colors > 0 && _samples >= _colors && _samples <= MaxSamples && _alphaSample < _samples
        && _bits is 1 or 2 or 4 or 8 or 16 or 32 && _bits <= _maxBits && Number(TiffTags.SampleFormat) != Floats
        && Number(TiffTags.Compression) != (uint)TiffCompressions.OldJpeg
        && (_kind != TiffPhotometrics.Separated || Number(TiffTags.InkSet) == InkSetCmyk)
        && (_alphaSample >= 0 || _bits == 32 || HasSmallTiles || HasLargeTiles || HasLargeStrips
            || (_bits == 16 && _kind is not (TiffPhotometrics.Rgb or TiffPhotometrics.Palette)));

    // libtiff's conversion compares the size of its buffer with that of an uncompressed tile, and rejects smaller ones.
    private bool HasSmallTiles => _tiled && Number(TiffTags.Compression) == (uint)TiffCompressions.None
        && Tiff.TileRowSize(_tiff) * (long)Number(TiffTags.TileLength) < MinBuffer;

    // The pixels of a row of tiles are changed together where each of them has its rows far from each other.
    private bool HasLargeTiles => _tiled && Tiff.TileSize(_tiff) > RowsTogether
        && Number(TiffTags.Compression) != (uint)TiffCompressions.Jpeg;

    // Rows of several planes are far from each other, and a JPEG has rows of blocks.
    private bool HasLargeStrips => !_tiled && !_planar && Tiff.StripSize(_tiff) > MaxStrip
        && Number(TiffTags.Compression) != (uint)TiffCompressions.Jpeg;

    /// <summary>Returns whether all blocks could be read. Missing blocks stay empty; unless reading is lenient, the
    /// first one ends it.</summary>
    internal bool Read(PixelGrid pixels, bool lenient)
    {
        _palette = _kind == TiffPhotometrics.Palette ? Tiff.Palette(_tiff, 1 << _bits) : [];
        _levels = Levels();
        int width = _tiled ? (int)Number(TiffTags.TileWidth) : pixels.Width;
        int height = _tiled
            ? (int)Number(TiffTags.TileLength) : (int)Math.Min(Number(TiffTags.RowsPerStrip), (uint)pixels.Height);
        nint rowBytes = _tiled ? Tiff.TileRowSize(_tiff) : Tiff.ScanlineSize(_tiff);
        long needed = (((long)width * _bits * (_planar ? 1 : _samples)) + 7) / 8;
        if (width < 1 || height < 1 || rowBytes < needed)
        {
            return false;
        }

        if (HasLargeStrips)
        {
            height = (int)Math.Clamp(RowsTogether / rowBytes, 1, height);
        }

        if ((long)rowBytes * height > Array.MaxLength)
        {
            throw new LimitMemoryException(
                $"A block of {width} × {height} pixels has more than {Array.MaxLength} bytes.");
        }

        using var room = new NativeRoom((long)rowBytes * height * (_planar ? _samples : 1));
        var planes = new byte[_planar ? _samples : 1][];
        for (int i = 0; i < planes.Length; i++)
        {
            planes[i] = new byte[rowBytes * height];
        }

        var block = new Block(width, height, (int)rowBytes, planes);
        bool byRows = HasLargeStrips;
        bool whole = true;
        for (int top = 0; top < pixels.Height; top += height)
        {
            for (int left = 0; left < pixels.Width; left += width)
            {
                Budget.Check();
                whole &= byRows ? FetchRows(block, top, pixels.Height) : Fetch(block, left, top);
                if (!whole && !lenient)
                {
                    return false;
                }

                Convert(block, pixels, left, top);
            }
        }

        return whole;
    }

    private bool Fetch(Block block, int left, int top)
    {
        bool whole = true;
        for (int plane = 0; plane < block.Planes.Length; plane++)
        {
            byte[] data = block.Planes[plane];
            Array.Clear(data);
            uint number = _tiled
                ? Tiff.ComputeTile(_tiff, (uint)left, (uint)top, 0, (ushort)plane)
                : Tiff.ComputeStrip(_tiff, (uint)top, (ushort)plane);
            fixed (byte* start = data)
            {
                whole &= _tiled
                    ? Tiff.ReadTile(_tiff, number, start, data.Length) >= 0
                    : Tiff.ReadStrip(_tiff, number, start, data.Length) >= 0;
            }
        }

        return whole;
    }

    private bool FetchRows(Block block, int top, int bottom)
    {
        byte[] data = block.Planes[0];
        Array.Clear(data);
        bool whole = true;
        fixed (byte* start = data)
        {
            for (int y = 0; y < Math.Min(block.Height, bottom - top) && whole; y++)
            {
                whole = Tiff.ReadScanline(_tiff, start + ((long)y * block.RowBytes), (uint)(top + y), 0) == 1;
            }
        }

        return whole;
    }

    private void Convert(Block block, PixelGrid pixels, int left, int top)
    {
        if (_levels.Length > 0)
        {
            LookUp(block, pixels, left, top);
            return;
        }

        Span<long> values = stackalloc long[5]; // of the colour, then alpha
        for (int y = 0; y < Math.Min(block.Height, pixels.Height - top); y++)
        {
            Span<int> to = pixels.WritableRow(top + y)[left..];
            for (int x = 0; x < Math.Min(block.Width, to.Length); x++)
            {
                for (int c = 0; c < _colors; c++)
                {
                    values[c] = Value(block, x, y, c);
                }

                values[4] = _alphaSample < 0 ? _maxValue : Value(block, x, y, _alphaSample);
                to[x] = Pixel(values);
            }
        }
    }

    /// <summary>The pixels of all values, where there are few.</summary>
    private int[] Levels()
    {
        if (_bits > 8 || _samples > 1)
        {
            return [];
        }

        var levels = new int[1 << _bits];
        Span<long> values = [0, 0, 0, 0, _maxValue];
        for (int i = 0; i < levels.Length; i++)
        {
            values[0] = i;
            levels[i] = Pixel(values);
        }

        return levels;
    }

    private void LookUp(Block block, PixelGrid pixels, int left, int top)
    {
        for (int y = 0; y < Math.Min(block.Height, pixels.Height - top); y++)
        {
            Span<int> to = pixels.WritableRow(top + y)[left..];
            ReadOnlySpan<byte> row = block.Planes[0].AsSpan(y * block.RowBytes, block.RowBytes);
            for (int x = 0; x < Math.Min(block.Width, to.Length); x++)
            {
                to[x] = _levels[_bits == 8 ? row[x] : BitPacking.Value(row, x, _bits)];
            }
        }
    }

    private long Value(Block block, int x, int y, int sample)
    {
        ReadOnlySpan<byte> row = block.Planes[_planar ? sample : 0].AsSpan(y * block.RowBytes, block.RowBytes);
        int at = _planar ? x : (x * _samples) + sample;
        return _bits switch
        {
            8 => row[at],
            16 => MemoryMarshal.Read<ushort>(row[(at * 2)..]), // libtiff returns the byte order of the machine
            32 => MemoryMarshal.Read<uint>(row[(at * 4)..]),
            _ => BitPacking.Value(row, at, _bits),
        };
    }

    private int Pixel(ReadOnlySpan<long> values)
    {
        long opacity = values[4];
        if (_premultiplied && opacity == 0)
        {
            return 0;
        }

        int Level(long value) => _premultiplied
            ? (int)Math.Min(255, ((value * 255) + (opacity / 2)) / opacity)
            : (int)(((value * 255) + (_maxValue / 2)) / _maxValue);
        int color = _kind switch
        {
            TiffPhotometrics.MinIsWhite => (255 - Level(values[0])) * 0x010101,
            TiffPhotometrics.MinIsBlack => Level(values[0]) * 0x010101,
            TiffPhotometrics.Palette => _palette[(int)values[0]],
            TiffPhotometrics.Separated => CmykColor.FromStored(
                Level(values[0]) | (Level(values[1]) << 8) | (Level(values[2]) << 16) | (Level(values[3]) << 24)
                ).ToArgb32(),
            _ => (Level(values[0]) << 16) | (Level(values[1]) << 8) | Level(values[2]),
        };
        return (color & 0xFFFFFF) | ((int)(((opacity * 255) + (_maxValue / 2)) / _maxValue) << 24);
    }

    private uint Number(TiffTags tag) => Tiff.GetNumber(_tiff, (int)tag);

    /// <summary>A strip or a tile: one array of rows, or one for each plane.</summary>
    private sealed record Block(int Width, int Height, int RowBytes, byte[][] Planes);
}
