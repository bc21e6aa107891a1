using System;
using System.Collections;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Model;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The values of an attribute that is a list, set, array or bag. What is added, removed or replaced is
/// changed in the instance; only values of the element's type are admitted.</summary>
public sealed class IfcCollection : IList
{
    private readonly IfcEntityBase? _owner;
    private readonly IfcSlot _slot;
    private readonly List<object?> _items;

    /// <summary>Creates a list that belongs to no instance and does not change. The attribute that it is set to tells
    /// what its values have to be.</summary>
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

    /// <summary>Gets how many values there are.</summary>
    public int Count => _items.Count;

    /// <summary>Gets whether values can be changed: not where they are part of a select value.</summary>
    public bool IsReadOnly => _owner is null;

    bool IList.IsFixedSize => IsReadOnly;

    bool ICollection.IsSynchronized => false;

    object ICollection.SyncRoot => this;

    /// <summary>Gets the values as they are kept.</summary>
    internal IReadOnlyList<object?> Raw => _items;

    /// <summary>Gets what the values are.</summary>
    internal IfcSlot Slot => _slot;

    /// <summary>Gets or sets a value by its place, from 0.</summary>
    /// <param name="index">The place.</param>
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
            VerifyPlace(index, _items.Count - 1);
            _items[index] = Admit(value);
            NoteChange();
        }
    }

    /// <summary>Adds a value at the end.</summary>
    /// <param name="value">The value.</param>
    /// <returns>Its place.</returns>
    public int Add(object? value)
    {
        Insert(_items.Count, value);
        return _items.Count - 1;
    }

    /// <summary>Adds a value at a place.</summary>
    /// <param name="index">The place, from 0.</param>
    /// <param name="value">The value.</param>
    public void Insert(int index, object? value)
    {
        VerifyPlace(index, _items.Count);
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

    /// <summary>Removes the value at a place.</summary>
    /// <param name="index">The place, from 0.</param>
    public void RemoveAt(int index)
    {
        VerifyWritable();
        _items.RemoveAt(index);
        NoteChange();
    }

    /// <summary>Removes the first value that equals another; none is no error.</summary>
    /// <param name="value">The value.</param>
    public void Remove(object? value)
    {
        int at = IndexOf(value);
        if (at >= 0)
        {
            RemoveAt(at);
        }
    }

    /// <summary>Tells whether a value is there.</summary>
    /// <param name="value">The value.</param>
    /// <returns>Whether a value is there.</returns>
    public bool Contains(object? value) => IndexOf(value) >= 0;

    /// <summary>Finds the first place of a value; -1 for none.</summary>
    /// <param name="value">The value.</param>
    /// <returns>The first place of a value.</returns>
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
    /// <param name="index">The place of the first value in it.</param>
    public void CopyTo(Array array, int index)
    {
        Verify.NotNull(array);
        for (int i = 0; i < _items.Count; i++)
        {
            array.SetValue(this[i], index + i);
        }
    }

    /// <summary>Walks over the values.</summary>
    public IEnumerator GetEnumerator()
    {
        for (int i = 0; i < _items.Count; i++)
        {
            yield return this[i];
        }
    }

    // A whole number in the type of what it is compared with.
    private static object Widened(object value, object? item)
    {
        long whole = Convert.ToInt64(value, CultureInfo.InvariantCulture);
        return item is double ? (double)whole : whole;
    }

    // Admitting a value may add instances to the model, so the place is looked at before.
    private void VerifyPlace(int index, int last)
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
            throw new IfcImageException("This list is part of a select value, which does not change; set the attribute.");
        }
    }

    private void NoteChange() => _owner!.NoteChange(_slot.Attribute);
}
