using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.FileFormats.Png;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Compresses a large image in bands on several threads. The size of bands does not depend on the number of
/// threads, so that the file is the same with any number.</summary>
/// <param name="header">The format of the rows.</param>
/// <param name="filter">The filter.</param>
/// <param name="level">The compression level, 0 to 9.</param>
/// <param name="pack">Writes a row.</param>
internal sealed class PngBands(PngHeader header, PngFilterType filter, int level, PngStream.PackRow pack)
{
    private const int BandBytes = 1 << 20;
    private const int BandsAtOnce = 8;
    private const int HeaderBytes = 2; // of zlib (RFC 1950)
    private const uint ChecksumModulus = 65_521;

    private readonly int _rowsPerBand = Math.Max(1, BandBytes / header.RowBytes);

    private int Count => (header.Height + _rowsPerBand - 1) / _rowsPerBand;

    /// <summary>Writes the compressed image.</summary>
    internal void Write(Stream output)
    {
        uint checksum = 1;
        var bands = new Band[BandsAtOnce];
        for (int first = 0; first < Count; first += BandsAtOnce)
        {
            int start = first;
            int length = Math.Min(BandsAtOnce, Count - start);
            ForkedProcess.RunPieces(length, i => bands[i] = Compress(start + i));
            foreach (Band band in bands.AsSpan(0, length))
            {
                band.WriteTo(output);
                checksum = Combine(checksum, band);
            }
        }

        Span<byte> end = stackalloc byte[sizeof(uint)];
        BinaryPrimitives.WriteUInt32BigEndian(end, checksum);
        output.Write(end);
    }

    // All bands but the last end with a flush, which leaves the stream at a byte boundary, where the next one
    // continues.
    private Band Compress(int index)
    {
        int top = index * _rowsPerBand;
        int bottom = Math.Min(header.Height, top + _rowsPerBand);
        var packed = new MemoryStream();
        long flushed;
        var compression = new ZLibCompressionOptions { CompressionLevel = level };
        using (var zlib = new ZLibStream(packed, compression, leaveOpen: true))
        {
            WriteRows(zlib, top, bottom);
            zlib.Flush();
            flushed = packed.Length;
        }

        ReadOnlyMemory<byte> all = packed.GetBuffer().AsMemory(0, (int)packed.Length);
        uint checksum = BinaryPrimitives.ReadUInt32BigEndian(all.Span[^sizeof(uint)..]);
        int start = index == 0 ? 0 : HeaderBytes;
        int end = index == Count - 1 ? all.Length - sizeof(uint) : (int)flushed;
        return new Band(all[start..end], checksum, (bottom - top) * ((long)header.RowBytes + 1));
    }

    private void WriteRows(Stream output, int top, int bottom)
    {
        var filters = new PngFilters(header);
        if (top > 0)
        {
            pack(top - 1, filters.Row);
            filters.Skip();
        }

        for (int y = top; y < bottom; y++)
        {
            pack(y, filters.Row);
            output.Write(filters.Apply(filter));
        }
    }

    /// <summary>Returns the Adler-32 of data that a band is appended to.</summary>
    private static uint Combine(uint checksum, in Band band)
    {
        ulong low = checksum & 0xFFFF;
        ulong high = checksum >> 16;
        ulong bandLow = band.Checksum & 0xFFFF;
        ulong bandHigh = band.Checksum >> 16;
        ulong length = (ulong)band.PlainLength % ChecksumModulus;
        ulong sum = (low + bandLow + ChecksumModulus - 1) % ChecksumModulus;
        ulong sumOfSums = (high + bandHigh + (length * (low + ChecksumModulus - 1))) % ChecksumModulus;
        return (uint)((sumOfSums << 16) | sum);
    }

    /// <summary>A compressed band, with the checksum and the length of its content.</summary>
    private readonly record struct Band(ReadOnlyMemory<byte> Packed, uint Checksum, long PlainLength)
    {
        internal void WriteTo(Stream output) => output.Write(Packed.Span);
    }
}
