using System;
using System.Collections;
using System.Collections.Specialized;
using System.Linq;

namespace Korvan.CAD;

/// <summary>Objects that are found by keys, in the order that they were added in. Going through it gives the objects,
/// not the keys.</summary>
public class NonGenericDictionary : IDictionary
{
    private readonly IDictionary _entries;

    /// <summary>Creates an empty dictionary.</summary>
    public NonGenericDictionary()
        : this(new OrderedDictionary())
    {
    }

    /// <summary>Creates a dictionary over what keeps its entries.</summary>
    internal NonGenericDictionary(IDictionary entries)
    {
        _entries = entries;
    }

    /// <summary>Gets how many entries there are.</summary>
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

    /// <summary>Finds an object.</summary>
    /// <param name="key">Its key.</param>
    /// <param name="value">Takes the object when there is one.</param>
    /// <returns>Whether there is one.</returns>
    public bool TryGetValue(object key, out object? value)
    {
        value = _entries.Contains(key) ? _entries[key] : null;
        return _entries.Contains(key);
    }

    /// <summary>Tells whether there is an object of a key.</summary>
    /// <param name="key">The key.</param>
    /// <returns>Whether there is an object of a key.</returns>
    public bool ContainsKey(object key) => _entries.Contains(key);

    /// <summary>Adds an object under a key that no other has.</summary>
    /// <param name="key">The key.</param>
    /// <param name="value">The object.</param>
    public void Add(object key, object? value) => _entries.Add(key, value);

    /// <summary>Takes out the object of a key, if there is one.</summary>
    /// <param name="key">The key.</param>
    public void Remove(object key) => _entries.Remove(key);

    /// <summary>Puts an object under a key, in place of the one that is there.</summary>
    /// <param name="key">The key.</param>
    /// <param name="value">The object.</param>
    public void Set(object key, object? value) => _entries[key] = value;

    /// <summary>Takes an object out.</summary>
    /// <param name="key">Its key.</param>
    /// <returns>Whether it was there.</returns>
    public bool RemoveKey(object key)
    {
        bool found = _entries.Contains(key);
        _entries.Remove(key);
        return found;
    }

    /// <summary>Takes all entries out.</summary>
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
