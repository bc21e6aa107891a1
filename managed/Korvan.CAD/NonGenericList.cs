using System;
using System.Collections;
using System.Collections.Generic;

namespace Korvan.CAD;

/// <summary>A list of objects of any type: the base of the symbol tables of a drawing.</summary>
public class NonGenericList : IList
{
    private readonly IList _items;

    /// <summary>Creates an empty list.</summary>
    public NonGenericList()
        : this(new List<object?>())
    {
    }

    /// <summary>Creates a list over its storage.</summary>
    internal NonGenericList(IList items)
    {
        _items = items;
    }

    /// <summary>Gets the number of items.</summary>
    public int Count => _items.Count;

    /// <inheritdoc/>
    bool IList.IsFixedSize => false;

    /// <inheritdoc/>
    bool IList.IsReadOnly => false;

    /// <inheritdoc/>
    bool ICollection.IsSynchronized => false;

    /// <inheritdoc/>
    object ICollection.SyncRoot => this;

    /// <inheritdoc/>
    object? IList.this[int index]
    {
        get => _items[index];
        set => _items[index] = value;
    }

    /// <inheritdoc/>
    int IList.Add(object? value) => _items.Add(value);

    /// <summary>Removes all items.</summary>
    public void Clear() => _items.Clear();

    /// <inheritdoc/>
    bool IList.Contains(object? value) => _items.Contains(value);

    /// <inheritdoc/>
    void ICollection.CopyTo(Array array, int index) => _items.CopyTo(array, index);

    /// <inheritdoc/>
    IEnumerator IEnumerable.GetEnumerator() => _items.GetEnumerator();

    /// <inheritdoc/>
    int IList.IndexOf(object? value) => _items.IndexOf(value);

    /// <inheritdoc/>
    void IList.Insert(int index, object? value) => _items.Insert(index, value);

    /// <inheritdoc/>
    void IList.Remove(object? value) => _items.Remove(value);

    /// <inheritdoc/>
    void IList.RemoveAt(int index) => _items.RemoveAt(index);
}
