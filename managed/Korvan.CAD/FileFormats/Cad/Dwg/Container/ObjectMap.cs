using System;
using System.Buffers;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Where the objects of a drawing are, by their handles. Source: Open Design Specification for .dwg files,
/// 5.4.1, chapter 23.</summary>
/// <param name="handles">The handles, ascending.</param>
/// <param name="offsets">The first byte of each object in <see cref="DwgFile.Objects"/>.</param>
internal sealed class ObjectMap(ulong[] handles, long[] offsets)
{
    /// <summary>The name of the section.</summary>
    internal const string Section = "AcDb:Handles";

    private const int SizeLength = 2;

    /// <summary>Gets the map of a file without objects.</summary>
    internal static ObjectMap Empty { get; } = new([], []);

    internal ulong[] Handles { get; } = handles;

    internal long[] Offsets { get; } = offsets;

    internal int Count => Handles.Length;

    /// <summary>Gets whether a part of the map was damaged, so that objects may be missing.</summary>
    internal bool IsDamaged { get; private init; }

    /// <summary>Returns the first byte of an object; -1 if there is none with this handle.</summary>
    internal long Find(ulong handle)
    {
        int index = Array.BinarySearch(Handles, handle);
        return index < 0 ? -1 : Offsets[index];
    }

    /// <summary>Reads a map: parts with a size, pairs of differences and a checksum each, until an empty one.</summary>
    /// <param name="source">The file, for defects.</param>
    /// <param name="data">The section.</param>
    /// <param name="start">Its place in the file; -1 if it was compressed.</param>
    internal static ObjectMap Read(DwgSource source, ReadOnlySpan<byte> data, long start)
    {
        Pairs pairs = new();
        try
        {
            return Read(source, data, start, ref pairs);
        }
        finally
        {
            pairs.Return();
        }
    }

    private static ObjectMap Read(DwgSource source, ReadOnlySpan<byte> data, long start, ref Pairs pairs)
    {
        RawReader map = new(data);
        int defects = source.Options.Errors.Count;
        while (true)
        {
            int at = map.Position;
            long place = start < 0 ? -1 : start + at;
            int size = map.UInt16BigEndian();
            if (map.IsShort || size < SizeLength || size - SizeLength > map.Remaining)
            {
                source.Report(LoadDefectCode.Truncated, Section, place, "the object map ends early");
                break;
            }

            ReadPairs(source, map.Take(size - SizeLength), place, ref pairs);
            if (map.UInt16BigEndian() != Crc16.Compute(Crc16.Seed, data.Slice(at, size)) && size > SizeLength)
            {
                source.Report(LoadDefectCode.WrongChecksum, Section, place, "a part of the object map has another "
                    + "checksum than it states");
            }

            if (size == SizeLength)
            {
                break;
            }
        }

        ObjectMap sorted = FromPairs(pairs.Handles, pairs.Offsets);
        ObjectMap single = WithoutRepeats(source, sorted);
        return new ObjectMap(single.Handles, single.Offsets) { IsDamaged = source.Options.Errors.Count > defects };
    }

    /// <summary>Creates a map of pairs in any order; of several with one handle, the last counts.</summary>
    private static ObjectMap FromPairs(ulong[] handles, long[] offsets)
    {
        if (IsAscending(handles))
        {
            return new ObjectMap(handles, offsets);
        }

        SortedDictionary<ulong, long> sorted = [];
        for (int i = 0; i < handles.Length; i++)
        {
            sorted[handles[i]] = offsets[i];
        }

        return new ObjectMap([.. sorted.Keys], [.. sorted.Values]);
    }

    // An object has one handle, so that a file cannot have it read again and again.
    private static ObjectMap WithoutRepeats(DwgSource source, ObjectMap map)
    {
        if (!MayRepeat(map.Offsets))
        {
            return map;
        }

        HashSet<long> places = new(map.Count);
        List<ulong> handles = new(map.Count);
        List<long> offsets = new(map.Count);
        ulong repeated = 0;
        for (int i = 0; i < map.Count; i++)
        {
            if (places.Add(map.Offsets[i]))
            {
                handles.Add(map.Handles[i]);
                offsets.Add(map.Offsets[i]);
            }
            else
            {
                repeated = map.Handles[i];
            }
        }

        if (handles.Count == map.Count)
        {
            return map;
        }

        source.Report(LoadDefectCode.DuplicateId, Section, -1, $"{map.Count - handles.Count} objects are where another "
            + $"one is, the last of them {repeated:X}");
        return new ObjectMap([.. handles], [.. offsets]);
    }

    // A bit for each byte is less work than a set, as long as the places are within a file.
    private static bool MayRepeat(long[] offsets)
    {
        const long fewBytes = 1 << 16;
        const long bytesOfObject = 256;
        ulong limit = (ulong)(fewBytes + (offsets.Length * bytesOfObject));
        ulong[] seen = new ulong[64];
        foreach (long offset in offsets)
        {
            ulong place = (ulong)offset;
            if (place >= limit)
            {
                return true;
            }

            int at = (int)(place / 64);
            if (at >= seen.Length)
            {
                Array.Resize(ref seen, 2 * (at + 1));
            }

            ulong bit = 1UL << (int)(place % 64);
            if ((seen[at] & bit) != 0)
            {
                return true;
            }

            seen[at] |= bit;
        }

        return false;
    }

    private static bool IsAscending(ulong[] handles)
    {
        for (int i = 1; i < handles.Length; i++)
        {
            if (handles[i] <= handles[i - 1])
            {
                return false;
            }
        }

        return true;
    }

    private static void ReadPairs(DwgSource source, ReadOnlySpan<byte> part, long place, ref Pairs pairs)
    {
        RawReader reader = new(part);
        Budget.Check();
        ulong handle = 0;
        long offset = 0;
        while (reader.Remaining > 0)
        {
            handle += reader.ModularChar();
            offset += reader.SignedModularChar();
            if (reader.IsShort)
            {
                source.Report(LoadDefectCode.Truncated, Section, place, "an entry of the object map ends early");
                return;
            }

            pairs.Add(handle, offset);
        }
    }

    /// <summary>The entries of a map, in a buffer that is used again.</summary>
    private struct Pairs()
    {
        private const int MinLength = 1 << 16;
        private const int EntryLength = sizeof(ulong) + sizeof(long);

        private byte[] _buffer = ArrayPool<byte>.Shared.Rent(MinLength);
        private int _count;

        internal readonly ulong[] Handles => MemoryMarshal.Cast<byte, ulong>(_buffer)[.._count].ToArray();

        internal readonly long[] Offsets =>
            MemoryMarshal.Cast<byte, long>(_buffer.AsSpan(Half))[.._count].ToArray();

        private readonly int Half => _buffer.Length / EntryLength * sizeof(ulong);

        internal void Add(ulong handle, long offset)
        {
            int at = _count * sizeof(ulong);
            if (at == Half)
            {
                Grow();
            }

            BinaryPrimitives.WriteUInt64LittleEndian(_buffer.AsSpan(at), handle);
            BinaryPrimitives.WriteInt64LittleEndian(_buffer.AsSpan(Half + at), offset);
            _count++;
        }

        internal readonly void Return() => ArrayPool<byte>.Shared.Return(_buffer);

        private void Grow()
        {
            byte[] larger = ArrayPool<byte>.Shared.Rent(checked(2 * _buffer.Length));
            _buffer.AsSpan(0, Half).CopyTo(larger);
            _buffer.AsSpan(Half, Half).CopyTo(larger.AsSpan(larger.Length / EntryLength * sizeof(ulong)));
            Return();
            _buffer = larger;
        }
    }
}
