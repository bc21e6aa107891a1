using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Collects the records of objects: each has its size, its data and a checksum.</summary>
/// <param name="release">The release as a year.</param>
internal sealed class ObjectStore(int release)
{
    private const int WithHandleSize = 2010;
    private const int FirstPaged = 2004;
    private const int StartOfSection = 0xDCA;
    private const int ChecksumLength = 2;

    private readonly BitWriter _data = CreateData(release);
    private readonly List<ulong> _handles = [];
    private readonly List<long> _offsets = [];

    internal int Count => _handles.Count;

    /// <summary>Gets the records one after another; a section of release 2004 and later begins with a
    /// number.</summary>
    internal ReadOnlySpan<byte> Bytes => _data.Bytes;

    /// <summary>Gets the records in an array of their own.</summary>
    internal byte[] ToArray() => _data.ToArray();

    /// <summary>Adds a record.</summary>
    /// <param name="handle">The handle of the object.</param>
    /// <param name="record">Its data, from the type on.</param>
    /// <param name="handleBits">The number of bits of its references, which end it; for release 2010 and
    /// later.</param>
    internal void Add(ulong handle, ReadOnlySpan<byte> record, long handleBits)
    {
        int start = (int)(_data.Position >> 3);
        _handles.Add(handle);
        _offsets.Add(start);
        _data.ModularShort(record.Length);
        if (release >= WithHandleSize)
        {
            _data.UnsignedModularChar((ulong)handleBits);
        }

        _data.Raw(record);
        _data.RawShort(Crc16.Compute(Crc16.Seed, _data.Bytes[start..]));
    }

    /// <summary>Writes the object map: parts with a size, pairs of differences and a checksum each, and an empty part.
    /// Source: Open Design Specification for .dwg files, 5.4.1, chapter 23.</summary>
    /// <param name="start">The first byte of the records in the file, or in their section.</param>
    internal byte[] WriteMap(long start)
    {
        const int maxPart = 2032;
        const int maxPair = 20;
        ulong[] handles = [.. _handles];
        long[] offsets = [.. _offsets];
        Array.Sort(handles, offsets);
        BitWriter map = new();
        for (int i = 0; i < handles.Length;)
        {
            BitWriter pairs = new();
            (ulong handle, long offset) = (0, 0);
            for (; i < handles.Length && (pairs.Position >> 3) < maxPart - maxPair; i++)
            {
                pairs.UnsignedModularChar(handles[i] - handle);
                pairs.ModularChar(start + offsets[i] - offset);
                (handle, offset) = (handles[i], start + offsets[i]);
            }

            AddPart(map, pairs.Bytes);
        }

        AddPart(map, default);
        return map.ToArray();
    }

    private static void AddPart(BitWriter map, ReadOnlySpan<byte> pairs)
    {
        int start = (int)(map.Position >> 3);
        map.RawShort(BinaryPrimitives.ReverseEndianness((ushort)(pairs.Length + ChecksumLength)));
        map.Raw(pairs);
        ushort checksum = Crc16.Compute(Crc16.Seed, map.Bytes[start..]);
        map.RawShort(BinaryPrimitives.ReverseEndianness(checksum));
    }

    private static BitWriter CreateData(int release)
    {
        BitWriter data = new();
        if (release >= FirstPaged)
        {
            data.RawLong(StartOfSection);
        }

        return data;
    }
}
