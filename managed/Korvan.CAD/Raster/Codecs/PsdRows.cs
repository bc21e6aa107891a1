using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The rows of the planes of a PSD, uncompressed or in PackBits.</summary>
internal readonly ref struct PsdRows
{
    private readonly ReadOnlySpan<byte> _data;
    private readonly int[]? _starts;
    private readonly int _height;
    private readonly int _rowBytes;

    internal PsdRows(ReadOnlySpan<byte> data, bool packed, int channels, int height, int rowBytes)
    {
        _data = data;
        _height = height;
        _rowBytes = rowBytes;
        long rows = (long)channels * height;
        if (!packed)
        {
            return;
        }

        if (rows * 2 > data.Length)
        {
            throw new PsdImageException($"The lengths of {rows} rows do not fit into {data.Length} bytes.");
        }

        _starts = new int[rows];
        long at = rows * 2;
        for (int i = 0; i < rows; i++)
        {
            _starts[i] = (int)Math.Min(at, data.Length);
            at += BinaryPrimitives.ReadUInt16BigEndian(data[(2 * i)..]);
        }
    }

    internal void Read(int channel, int y, Span<byte> row)
    {
        long index = ((long)channel * _height) + y;
        if (_starts != null)
        {
            PackBits.Unpack(_data[_starts[index]..], row);
            return;
        }

        long start = index * _rowBytes;
        if (start + _rowBytes > _data.Length)
        {
            throw new PsdImageException($"The image ends after {_data.Length} bytes, in row {y} of channel {channel}.");
        }

        _data.Slice((int)start, _rowBytes).CopyTo(row);
    }
}
