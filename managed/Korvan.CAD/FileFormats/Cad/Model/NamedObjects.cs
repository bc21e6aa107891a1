using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Objects in order that are found by name; upper and lower case are the same.</summary>
/// <remarks>Objects can be renamed at any time, so that a found entry is compared with its present name.</remarks>
/// <param name="what">What one object is called in messages.</param>
internal sealed class NamedObjects<T>(string what) : IList
    where T : class, IKeyedObject
{
    private readonly Dictionary<string, T> _byName = new(StringComparer.OrdinalIgnoreCase);

    public int Count => Items.Count;

    public bool IsFixedSize => false;

    public bool IsReadOnly => false;

    public bool IsSynchronized => false;

    public object SyncRoot => this;

    internal List<T> Items { get; } = [];

    public object? this[int index]
    {
        get => Items[index];
        set
        {
            T item = Typed(value);
            Items[index] = item;
            _byName.Clear();
        }
    }

    public int Add(object? value)
    {
        Add(Typed(value));
        return Items.Count - 1;
    }

    public void Clear()
    {
        _byName.Clear();
        Items.Clear();
    }

    /// <summary>Looks for an object, or for one of a name.</summary>
    public bool Contains(object? value) => value is string name ? Find(name) is not null : IndexOf(value) >= 0;

    public void CopyTo(Array array, int index) => ((ICollection)Items).CopyTo(array, index);

    public IEnumerator GetEnumerator() => Items.GetEnumerator();

    public int IndexOf(object? value) => value is T item ? Items.IndexOf(item) : -1;

    public void Insert(int index, object? value)
    {
        Items.Insert(index, Typed(value));
        _byName.Clear();
    }

    public void Remove(object? value)
    {
        if (value is T item)
        {
            Remove(item);
        }
    }

    public void RemoveAt(int index)
    {
        _byName.Clear();
        Items.RemoveAt(index);
    }

    internal void Add(T item)
    {
        Verify.NotNull(item);
        Items.Add(item);
        _byName.TryAdd(item.Key, item);
    }

    internal bool Remove(T item)
    {
        _byName.Clear();
        return Items.Remove(item);
    }

    internal T? Find(string name)
    {
        Verify.NotNull(name);
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

    private static bool Matches(T item, string name)
    {
        return string.Equals(item.Key, name, StringComparison.OrdinalIgnoreCase);
    }

    private T Typed(object? value)
    {
        return value as T ?? throw new DataMissmatchError(
            $"A list of the kind {what} takes objects of type {typeof(T).Name}, not "
                + $"{value?.GetType().Name ?? "nothing"}.");
    }
}
