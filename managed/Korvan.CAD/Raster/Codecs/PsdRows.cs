using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The rows of the planes of a PSD, plain or as run lengths.</summary>
internal readonly ref struct PsdRows
{
    private readonly ReadOnlySpan<byte> data;
    private readonly int[]? starts;
    private readonly int height;
    private readonly int rowBytes;

    internal PsdRows(ReadOnlySpan<byte> data, bool packed, int channels, int height, int rowBytes)
    {
        this.data = data;
        this.height = height;
        this.rowBytes = rowBytes;
        long rows = (long)channels * height;
        if (!packed)
        {
            return;
        }

        if (rows * 2 > data.Length)
        {
            throw new PsdImageException($"The lengths of {rows} rows do not fit into {data.Length} bytes.");
        }

        starts = new int[rows];
        long at = rows * 2;
        for (int i = 0; i < rows; i++)
        {
            starts[i] = (int)Math.Min(at, data.Length);
            at += BinaryPrimitives.ReadUInt16BigEndian(data[(2 * i)..]);
        }
    }

    internal void Read(int channel, int y, Span<byte> row)
    {
        long index = ((long)channel * height) + y;
        if (starts != null)
        {
            PackBits.Unpack(data[starts[index]..], row);
            return;
        }

        long start = index * rowBytes;
        if (start + rowBytes > data.Length)
        {
            throw new PsdImageException($"The picture ends after {data.Length} bytes, in row {y} of channel {channel}.");
        }

        data.Slice((int)start, rowBytes).CopyTo(row);
    }
}
