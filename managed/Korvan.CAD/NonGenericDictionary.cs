using System;
using System.Collections;
using System.Collections.Specialized;
using System.Linq;

namespace Korvan.CAD;

/// <summary>Objects by key, in insertion order. Enumeration returns the objects, not the keys.</summary>
public class NonGenericDictionary : IDictionary
{
    private readonly IDictionary _entries;

    /// <summary>Creates an empty dictionary.</summary>
    public NonGenericDictionary()
        : this(new OrderedDictionary())
    {
    }

    /// <summary>Creates a dictionary over its storage.</summary>
    internal NonGenericDictionary(IDictionary entries)
    {
        _entries = entries;
    }

    /// <summary>Gets the number of entries.</summary>
    public int Count => _entries.Count;

    /// <summary>Gets the keys, in order.</summary>
    public object[] Keys => [.. _entries.Keys.Cast<object>()];

    /// <summary>Gets the objects, in order.</summary>
    public object?[] Values => [.. _entries.Values.Cast<object?>()];

    /// <inheritdoc/>
    bool IDictionary.IsFixedSize => false;

    /// <inheritdoc/>
    bool IDictionary.IsReadOnly => false;

    /// <inheritdoc/>
    bool ICollection.IsSynchronized => false;

    /// <inheritdoc/>
    object ICollection.SyncRoot => this;

    /// <inheritdoc/>
    ICollection IDictionary.Keys => _entries.Keys;

    /// <inheritdoc/>
    ICollection IDictionary.Values => _entries.Values;

    /// <inheritdoc/>
    object? IDictionary.this[object key]
    {
        get => _entries[key];
        set => _entries[key] = value;
    }

    /// <summary>Gets the object of a key.</summary>
    /// <param name="key">The key.</param>
    /// <param name="value">The object, if there is one.</param>
    /// <returns>Whether there is an object of the key.</returns>
    public bool TryGetValue(object key, out object? value)
    {
        value = _entries.Contains(key) ? _entries[key] : null;
        return _entries.Contains(key);
    }

    /// <summary>Returns whether there is an object of a key.</summary>
    /// <param name="key">The key.</param>
    /// <returns>Whether there is an object of the key.</returns>
    public bool ContainsKey(object key) => _entries.Contains(key);

    /// <summary>Adds an object with a key that is not in use.</summary>
    /// <param name="key">The key.</param>
    /// <param name="value">The object.</param>
    public void Add(object key, object? value) => _entries.Add(key, value);

    /// <summary>Removes the object of a key, if there is one.</summary>
    /// <param name="key">The key.</param>
    public void Remove(object key) => _entries.Remove(key);

    /// <summary>Sets the object of a key, and replaces an existing one.</summary>
    /// <param name="key">The key.</param>
    /// <param name="value">The object.</param>
    public void Set(object key, object? value) => _entries[key] = value;

    /// <summary>Removes the object of a key.</summary>
    /// <param name="key">The key.</param>
    /// <returns>Whether it was found.</returns>
    public bool RemoveKey(object key)
    {
        bool found = _entries.Contains(key);
        _entries.Remove(key);
        return found;
    }

    /// <summary>Removes all entries.</summary>
    public void Clear() => _entries.Clear();

    /// <inheritdoc/>
    void IDictionary.Add(object key, object? value) => _entries.Add(key, value);

    /// <inheritdoc/>
    bool IDictionary.Contains(object key) => _entries.Contains(key);

    /// <inheritdoc/>
    void IDictionary.Remove(object key) => _entries.Remove(key);

    /// <inheritdoc/>
    void ICollection.CopyTo(Array array, int index) => _entries.Values.CopyTo(array, index);

    /// <inheritdoc/>
    IDictionaryEnumerator IDictionary.GetEnumerator() => _entries.GetEnumerator();

    /// <inheritdoc/>
    IEnumerator IEnumerable.GetEnumerator() => _entries.Values.GetEnumerator();
}
