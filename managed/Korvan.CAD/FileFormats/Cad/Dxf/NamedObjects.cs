using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Objects in order that are found by name; upper and lower case are the same.</summary>
/// <remarks>Objects can be renamed at any time, so that a found entry is compared with its present name.</remarks>
internal sealed class NamedObjects<T>(Func<T, string> nameOf)
    where T : class
{
    private readonly Dictionary<string, T> _byName = new(StringComparer.OrdinalIgnoreCase);

    internal List<T> Items { get; } = [];

    internal void Add(T item)
    {
        ArgumentNullException.ThrowIfNull(item);
        Items.Add(item);
        _byName.TryAdd(nameOf(item), item);
    }

    internal bool Remove(T item)
    {
        _byName.Clear();
        return Items.Remove(item);
    }

    internal void Clear()
    {
        _byName.Clear();
        Items.Clear();
    }

    internal T? Find(string name)
    {
        ArgumentNullException.ThrowIfNull(name);
        if (_byName.TryGetValue(name, out T? known) && Matches(known, name))
        {
            return known;
        }

        T? found = Items.Find(item => Matches(item, name));
        if (found is not null)
        {
            _byName[name] = found;
        }

        return found;
    }

    private bool Matches(T item, string name)
    {
        return string.Equals(nameOf(item), name, StringComparison.OrdinalIgnoreCase);
    }
}
