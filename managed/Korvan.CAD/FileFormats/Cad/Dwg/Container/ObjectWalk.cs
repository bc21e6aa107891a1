using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Finds objects without an object map: records follow each other, and each has a checksum.</summary>
internal static class ObjectWalk
{
    private const int StatedSize = 2000;
    private const int WithHandleSize = 2010;
    private const int ChecksumLength = 2;
    private const int MinRecord = 4;
    private const int MaxType = 0x800;
    private const int BytesPerStep = 1024;
    private const int MaxTries = 64; // how often a byte may be checked as a part of something that is no record

    /// <summary>Returns a map with the objects that a damaged one leaves out.</summary>
    /// <param name="file">The file.</param>
    /// <param name="start">The first byte in <see cref="DwgFile.Objects"/> where an object can be.</param>
    internal static ObjectMap Complete(DwgFile file, int start)
    {
        SortedDictionary<ulong, long> objects = [];
        for (int i = 0; i < file.Map.Count; i++)
        {
            objects[file.Map.Handles[i]] = file.Map.Offsets[i];
        }

        foreach ((ulong handle, long offset) in Find(file, start))
        {
            objects.TryAdd(handle, offset);
        }

        return new ObjectMap([.. objects.Keys], [.. objects.Values]);
    }

    private static List<(ulong Handle, long Offset)> Find(DwgFile file, int start)
    {
        List<(ulong, long)> found = [];
        long budget = (long)MaxTries * file.Objects.Length;
        for (int at = start; at < file.Objects.Length - MinRecord && budget > 0;)
        {
            Budget.Check();
            int length = LengthOf(file, at, ref budget, out ulong handle);
            if (length > 0)
            {
                found.Add((handle, at));
            }

            at += Math.Max(length, 1);
        }

        return found;
    }

    // The number of bytes of a record with its size and checksum; 0 if there is none.
    private static int LengthOf(DwgFile file, int at, ref long budget, out ulong handle)
    {
        handle = 0;
        ReadOnlySpan<byte> rest = file.Objects.AsSpan(at);
        RawReader sizes = new(rest);
        long size = sizes.UInt16();
        size = size < 0x8000 ? size : (size & 0x7FFF) | ((long)sizes.UInt16() << 15);
        if (file.Release >= WithHandleSize)
        {
            sizes.ModularChar();
        }

        if (sizes.IsShort || size < MinRecord || sizes.Position + size > rest.Length - ChecksumLength)
        {
            return 0;
        }

        // The type and handle are cheaper to judge than the checksum.
        int end = sizes.Position + (int)size;
        ulong found = HandleOf(file, at + sizes.Position, at + end);
        if (found == 0)
        {
            return 0;
        }

        budget -= end;
        Budget.Step(end / BytesPerStep);
        int stated = rest[end] | (rest[end + 1] << 8);
        if (Crc16.Compute(Crc16.Seed, rest[..end]) != stated)
        {
            return 0;
        }

        handle = found;
        return end + ChecksumLength;
    }

    // 0 if the type or the handle is none of an object.
    private static ulong HandleOf(DwgFile file, int start, int end)
    {
        BitReader bits = new(file.Objects, (long)start << 3, (long)end << 3);
        int type = file.Release >= WithHandleSize ? bits.ObjectType() : bits.BitShort();
        bits.Position += file.Release is >= StatedSize and < WithHandleSize ? 32 : 0;
        int code = bits.Remaining < 8 ? 0 : bits.RawByte();
        if (type is <= 0 or >= MaxType || code is 0 or > sizeof(ulong) || bits.Remaining < code << 3)
        {
            return 0;
        }

        ulong handle = 0;
        for (; code > 0; code--)
        {
            handle = (handle << 8) | bits.RawByte();
        }

        return handle;
    }
}
