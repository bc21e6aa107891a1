using System;
using System.Buffers.Binary;
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
    private const int BytesPerStep = 64;
    private const int SizeBits = 32;

    /// <summary>Determines whether all records are where the map says.</summary>
    internal static bool IsWhole(DwgFile file) => Array.TrueForAll(file.Map.Offsets, at => IsRecord(file, at));

    /// <summary>Returns a map with the objects that a damaged one leaves out, and with the places of those that bytes
    /// too many or too few have moved.</summary>
    /// <param name="file">The file.</param>
    /// <param name="start">The first byte in <see cref="DwgFile.Objects"/> where an object can be.</param>
    internal static ObjectMap Complete(DwgFile file, int start)
    {
        // Files have records of objects that were deleted as well, which a map that is whole does not lead to.
        bool isMapWhole = file.Map.Count > 0 && !file.Map.IsDamaged;
        SortedDictionary<ulong, long> objects = [];
        for (int i = 0; i < file.Map.Count; i++)
        {
            objects[file.Map.Handles[i]] = file.Map.Offsets[i];
        }

        foreach ((ulong handle, long offset) in Find(file, start))
        {
            if (objects.TryGetValue(handle, out long stated) ? !IsRecord(file, stated) : !isMapWhole)
            {
                objects[handle] = offset;
            }
        }

        return new ObjectMap([.. objects.Keys], [.. objects.Values]);
    }

    private static bool IsRecord(DwgFile file, long at) =>
        at >= 0 && at < file.Objects.Length - MinRecord && EndOf(file, (int)at, out _) is > 0 and var end
        && file.HasRightChecksum(at, end);

    private static List<(ulong Handle, long Offset)> Find(DwgFile file, int start)
    {
        List<(ulong, long)> found = [];
        Budget.Step(file.Objects.Length / BytesPerStep);
        PartChecksums checksums = new(file.Objects);
        for (int at = start; at < file.Objects.Length - MinRecord;)
        {
            Budget.Check();
            int end = EndOf(file, at, out ulong handle);
            if (end > 0 && checksums.Compute(Crc16.Seed, at, end)
                == BinaryPrimitives.ReadUInt16LittleEndian(file.Objects.AsSpan(end)))
            {
                found.Add((handle, at));
                at = end + ChecksumLength;
            }
            else
            {
                at++;
            }
        }

        return found;
    }

    // The byte after a record with its size; 0 if there is none.
    private static int EndOf(DwgFile file, int at, out ulong handle)
    {
        handle = 0;
        ReadOnlySpan<byte> rest = file.Objects.AsSpan(at);
        RawReader sizes = new(rest);
        long size = sizes.UInt16();
        size = size < 0x8000 ? size : (size & 0x7FFF) | ((long)sizes.UInt16() << 15);
        ulong references = file.Release >= WithHandleSize ? sizes.ModularChar() : 0;
        if (sizes.IsShort || size < MinRecord || sizes.Position + size > rest.Length - ChecksumLength
            || references > (ulong)size * 8)
        {
            return 0;
        }

        int start = at + sizes.Position;
        handle = HandleOf(file, start, start + (int)size);
        return handle == 0 ? 0 : start + (int)size;
    }

    // 0 if the type, the size of the data or the handle is none of an object.
    private static ulong HandleOf(DwgFile file, int start, int end)
    {
        BitReader bits = new(file.Objects, (long)start << 3, (long)end << 3);
        int type = file.Release >= WithHandleSize ? bits.ObjectType() : bits.BitShort();
        if (file.Release is >= StatedSize and < WithHandleSize
            && (bits.Remaining < SizeBits || (uint)bits.RawLong() > (end - start) * 8L))
        {
            return 0;
        }

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
