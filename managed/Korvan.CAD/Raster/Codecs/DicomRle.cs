using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>DICOM run-length encoding (PS3.5, annex G): planes of bytes, the most significant of each sample
/// first.</summary>
internal static class DicomRle
{
    private const int HeaderBytes = 64;

    /// <summary>Packs RGB, or grayscale in one byte or two.</summary>
    internal static byte[] Pack(PixelGrid pixels, int planes, bool color)
    {
        List<byte> packed = [.. new byte[HeaderBytes]];
        var header = new byte[HeaderBytes];
        BinaryPrimitives.WriteInt32LittleEndian(header, planes);
        var row = new byte[pixels.Width];
        for (int plane = 0; plane < planes; plane++)
        {
            BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(4 + (4 * plane)), packed.Count);
            for (int y = 0; y < pixels.Height; y++)
            {
                ReadOnlySpan<int> from = pixels.Row(y);
                for (int x = 0; x < row.Length; x++)
                {
                    // An 8-bit gray level is both bytes of its 16 bits.
                    row[x] = (byte)(color ? from[x] >> (16 - (8 * plane)) : PixelGrid.Luma(from[x]));
                }

                PackBits.Pack(row, packed);
            }

            if ((packed.Count & 1) != 0)
            {
                packed.Add(0);
            }
        }

        Span<byte> all = System.Runtime.InteropServices.CollectionsMarshal.AsSpan(packed);
        header.CopyTo(all);
        return all.ToArray();
    }

    /// <summary>Unpacks into uncompressed samples, pixel by pixel, little-endian.</summary>
    internal static byte[] Unpack(ReadOnlySpan<byte> data, int samples, int sampleBytes, long pixels)
    {
        int planes = samples * sampleBytes;
        if (data.Length < HeaderBytes || BinaryPrimitives.ReadInt32LittleEndian(data) != planes)
        {
            throw new RleCompressorException(
                $"A run-length encoded frame does not have the {planes} planes that its image needs.");
        }

        var result = new byte[pixels * planes];
        var plane = new byte[pixels];
        for (int p = 0; p < planes; p++)
        {
            uint start = BinaryPrimitives.ReadUInt32LittleEndian(data[(4 + (4 * p))..]);
            if (start > data.Length)
            {
                throw new RleCompressorException($"Plane {p} begins past the end of its frame.");
            }

            PackBits.Unpack(data[(int)start..], plane);
            int offset = (p / sampleBytes * sampleBytes) + (sampleBytes - 1 - (p % sampleBytes));
            for (int i = 0; i < plane.Length; i++)
            {
                result[((long)i * planes) + offset] = plane[i];
            }
        }

        return result;
    }
}
