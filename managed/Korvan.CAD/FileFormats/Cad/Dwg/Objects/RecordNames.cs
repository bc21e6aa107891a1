using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The names of the records of symbol tables by their handles.</summary>
internal sealed class RecordNames
{
    private readonly Dictionary<ulong, string> _names = [];

    internal void Add(ulong handle, string name) => _names[handle] = name;

    /// <summary>Returns the name of a record; null for a handle of something else.</summary>
    internal string? Find(ulong handle) =>
        handle != 0 && _names.TryGetValue(handle, out string? name) ? name : null;
}
