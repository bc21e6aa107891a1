using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The names of the records of symbol tables by their handles.</summary>
internal sealed class RecordNames
{
    private readonly Dictionary<ulong, string> _names = [];

    /// <summary>Gets or sets the references of the table of line types in their order.</summary>
    internal IReadOnlyList<ulong> LineTypes { get; set; } = [];

    internal void Add(ulong handle, string name) => _names[handle] = name;

    /// <summary>Returns the name of a record; null for a handle of something else.</summary>
    internal string? Find(ulong handle) =>
        handle != 0 && _names.TryGetValue(handle, out string? name) ? name : null;

    /// <summary>Returns the name of a line type by its place in the table; null for none.</summary>
    internal string? LineType(int index) => index >= 0 && index < LineTypes.Count ? Find(LineTypes[index]) : null;
}
