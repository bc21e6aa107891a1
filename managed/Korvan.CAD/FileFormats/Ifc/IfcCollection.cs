using System;
using System.Collections;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Model;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The values of an attribute that is a list, set, array or bag. Changes of the collection are changes of the
/// instance. Values have to be of the element type.</summary>
public sealed class IfcCollection : IList
{
    private readonly IfcEntityBase? _owner;
    private readonly IfcSlot _slot;
    private readonly List<object?> _items;

    /// <summary>Creates a read-only collection that belongs to no instance. Its values are checked when it is assigned
    /// to an attribute.</summary>
    /// <param name="values">The values.</param>
    public IfcCollection(IEnumerable values)
    {
        Verify.NotNull(values);
        _items = [.. System.Linq.Enumerable.Cast<object?>(values)];
    }

    internal IfcCollection(IfcEntityBase? owner, IfcSlot slot, IEnumerable<object?> items)
    {
        _owner = owner;
        _slot = slot;
        _items = [.. items];
    }

    /// <summary>Gets the number of values.</summary>
    public int Count => _items.Count;

    /// <summary>Gets whether the collection is read-only, as it is when it belongs to a select value or to no
    /// instance.</summary>
    public bool IsReadOnly => _owner is null;

    bool IList.IsFixedSize => IsReadOnly;

    bool ICollection.IsSynchronized => false;

    object ICollection.SyncRoot => this;

    /// <summary>Gets the values as they are stored.</summary>
    internal IReadOnlyList<object?> Raw => _items;

    /// <summary>Gets the type of the values.</summary>
    internal IfcSlot Slot => _slot;

    /// <summary>Gets or sets a value by its zero-based index.</summary>
    /// <param name="index">The index.</param>
    public object? this[int index]
    {
        get
        {
            if (_owner is null)
            {
                return _items[index];
            }

            (object? kept, object? shown) = IfcPresentation.Present(_owner, _slot, _items[index]);
            _items[index] = kept;
            return shown;
        }

        set
        {
            VerifyIndex(index, _items.Count - 1);
            _items[index] = Admit(value);
            NoteChange();
        }
    }

    /// <summary>Adds a value at the end.</summary>
    /// <param name="value">The value.</param>
    /// <returns>Its index.</returns>
    public int Add(object? value)
    {
        Insert(_items.Count, value);
        return _items.Count - 1;
    }

    /// <summary>Inserts a value.</summary>
    /// <param name="index">The zero-based index.</param>
    /// <param name="value">The value.</param>
    public void Insert(int index, object? value)
    {
        VerifyIndex(index, _items.Count);
        _items.Insert(index, Admit(value));
        NoteChange();
    }

    /// <summary>Removes all values.</summary>
    public void Clear()
    {
        VerifyWritable();
        _items.Clear();
        NoteChange();
    }

    /// <summary>Removes the value at an index.</summary>
    /// <param name="index">The zero-based index.</param>
    public void RemoveAt(int index)
    {
        VerifyWritable();
        _items.RemoveAt(index);
        NoteChange();
    }

    /// <summary>Removes the first occurrence of a value; it is no error if there is none.</summary>
    /// <param name="value">The value.</param>
    public void Remove(object? value)
    {
        int at = IndexOf(value);
        if (at >= 0)
        {
            RemoveAt(at);
        }
    }

    /// <summary>Returns whether the collection contains a value.</summary>
    /// <param name="value">The value.</param>
    /// <returns>Whether the collection contains the value.</returns>
    public bool Contains(object? value) => IndexOf(value) >= 0;

    /// <summary>Returns the index of the first occurrence of a value; -1 if there is none.</summary>
    /// <param name="value">The value.</param>
    /// <returns>The index of the first occurrence, or -1.</returns>
    public int IndexOf(object? value)
    {
        for (int i = 0; i < _items.Count; i++)
        {
            object? item = this[i];
            if (Equals(item, value) || (value is int or long && Equals(item, Widened(value, item))))
            {
                return i;
            }
        }

        return -1;
    }

    /// <summary>Copies the values into an array.</summary>
    /// <param name="array">The array.</param>
    /// <param name="index">The index in the array at which copying begins.</param>
    public void CopyTo(Array array, int index)
    {
        Verify.NotNull(array);
        for (int i = 0; i < _items.Count; i++)
        {
            array.SetValue(this[i], index + i);
        }
    }

    /// <summary>Returns an enumerator of the values.</summary>
    public IEnumerator GetEnumerator()
    {
        for (int i = 0; i < _items.Count; i++)
        {
            yield return this[i];
        }
    }

    // Integers are compared as the type of the other value.
    private static object Widened(object value, object? item)
    {
        long whole = Convert.ToInt64(value, CultureInfo.InvariantCulture);
        return item is double ? (double)whole : whole;
    }

    // Admitting a value may add instances to the model, so the index is verified before.
    private void VerifyIndex(int index, int last)
    {
        VerifyWritable();
        if (index < 0 || index > last)
        {
            throw Verify.OutOfRange(nameof(index), index, $"The list has {_items.Count} values.");
        }
    }

    private object? Admit(object? value)
    {
        VerifyWritable();
        object? admitted = IfcAdmission.Admit(_owner!, _slot, value);
        _owner!.Model?.NoteReferences(_owner, admitted);
        return admitted;
    }

    private void VerifyWritable()
    {
        if (_owner is null)
        {
            throw new IfcImageException(
                "This list is part of a select value, which is immutable; assign the attribute instead.");
        }
    }

    private void NoteChange() => _owner!.NoteChange(_slot.Attribute);
}
