using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The objects of a file by their handles.</summary>
/// <param name="handles">The handles, ascending.</param>
internal sealed class ObjectSet(ulong[] handles)
{
    // Parts of one array, since a large one has the runtime collect all garbage.
    private const int PartBits = 10;

    private readonly RecordContent[][] _contents = NewParts(handles.Length);
    private readonly bool[] _taken = new bool[handles.Length];
    private int _next;

    /// <summary>Gets the references of the headers of symbol tables by the names of the tables.</summary>
    internal Dictionary<string, SymbolTableHandles> Tables { get; } = [];

    internal int Count => handles.Length;

    /// <summary>Returns an object; its target is null for one that could not be read.</summary>
    internal ref readonly RecordContent this[int index] =>
        ref _contents[index >> PartBits][index & ((1 << PartBits) - 1)];

    internal void Set(int index, in RecordContent content) =>
        _contents[index >> PartBits][index & ((1 << PartBits) - 1)] = content;

    /// <summary>Returns the handle that the object map states for an object.</summary>
    internal ulong HandleOf(int index) => handles[index];

    /// <summary>Gets whether an object has been taken by its owner.</summary>
    internal bool IsTaken(int index) => _taken[index];

    /// <summary>Returns the index of an object; -1 for a handle of none.</summary>
    internal int Find(ulong handle)
    {
        // Entities of a block mostly follow each other.
        int index = _next;
        if ((uint)index >= (uint)handles.Length || handles[index] != handle)
        {
            index = Array.BinarySearch(handles, handle);
            if (index < 0)
            {
                return -1;
            }
        }

        _next = index + 1;
        return index;
    }

    /// <summary>Returns the object of a handle; null where there is none of the class.</summary>
    internal T? Get<T>(ulong handle)
        where T : CadBaseObject => Find(handle) is >= 0 and var index ? this[index].Target as T : null;

    /// <summary>Takes an object, which belongs to one owner only.</summary>
    /// <returns>The index; -1 for a handle of none, or of one that was taken before.</returns>
    internal int Take(ulong handle)
    {
        int index = Find(handle);
        if (index < 0 || this[index].Target is null || _taken[index])
        {
            return -1;
        }

        _taken[index] = true;
        return index;
    }

    private static RecordContent[][] NewParts(int count)
    {
        RecordContent[][] parts = new RecordContent[(count + (1 << PartBits) - 1) >> PartBits][];
        for (int i = 0; i < parts.Length; i++)
        {
            parts[i] = new RecordContent[1 << PartBits];
        }

        return parts;
    }
}
