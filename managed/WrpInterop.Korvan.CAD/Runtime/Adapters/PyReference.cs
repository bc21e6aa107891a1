using System;
using System.Collections.Generic;
using System.Diagnostics.CodeAnalysis;

namespace Korvan.WrpGen.Interop;

/// <summary>The Python object behind an adapter, lent to it for one call.</summary>
public class PyReference
{
    private nint _value;
    private List<PyReference>? _items;

    private protected PyReference(nint value, bool keepsItems)
    {
        _value = value;
        KeepsItems = keepsItems;
    }

    internal nint Value
    {
        get
        {
            if (_value == 0)
            {
                ThrowEnded();
            }
            CallbackStack.Ensure();
            return _value;
        }
    }

    /// <summary>Whether what is made of the collection's items may outlive the reference itself.</summary>
    internal bool KeepsItems { get; }

    /// <summary>0 once it has ended.</summary>
    private protected nint ValueOrNull => _value;

    /// <summary>The place up to which a sequence was walked; null until one is.</summary>
    internal PyCursor? Cursor { get; set; }

    internal static PyReference Lent(nint value) => new(value, keepsItems: false);

    /// <summary>Lends a collection that is only copied: what its items are made of outlives the call.</summary>
    internal static PyReference Copied(nint value) => new(value, keepsItems: true);

    internal static PyReference Kept(nint value, bool isStream = false) => KeptPyReference.Of(value, isStream);

    /// <summary>Holds an item that is a Python object itself, for as long as what was read of it may be used.</summary>
    internal PyReference HoldItem(nint value, bool isStream = false)
    {
        if (KeepsItems)
        {
            return Kept(value, isStream);
        }
        var item = new HeldPyReference(value);
        (_items ??= []).Add(item);
        return item;
    }

    /// <summary>Forgets a lent object, and gives back what was held of its items.</summary>
    internal virtual void End()
    {
        _value = 0;
        Cursor?.Dispose();
        Cursor = null;
        if (_items is { } items)
        {
            _items = null;
            items.ForEach(static item => item.End());
        }
    }

    [DoesNotReturn]
    private static void ThrowEnded() => throw new ObjectDisposedException(
        null, "A Python object given to a method is of use only until that method returns.");

    // An item may leave its collection before the call that reads it is over.
    private sealed class HeldPyReference : PyReference
    {
        internal HeldPyReference(nint value) : base(value, keepsItems: false) => PyObjects.IncRef(value);

        internal override void End()
        {
            nint value = ValueOrNull;
            if (value != 0)
            {
                base.End();
                PyObjects.DecRef(value);
            }
        }
    }
}

/// <summary>A Python object that a managed object keeps, with a reference of its own.</summary>
internal sealed class KeptPyReference : PyReference
{
    private KeptPyReference(nint value) : base(value, keepsItems: true) => KeptReferences.Add(this, value);

    /// <summary>Gets or sets the place among <see cref="KeptReferences"/>.</summary>
    internal int Place { get; set; }

    /// <summary>Keeps a borrowed object.</summary>
    internal static KeptPyReference Of(nint value, bool isStream = false)
    {
        PyObjects.IncRef(value);
        KeptReferences.Note(isStream);
        return new KeptPyReference(value);
    }

    /// <summary>Keeps an object whose reference is handed over.</summary>
    internal static KeptPyReference Taking(nint value) => new(value);

    /// <summary>Gives the object back at once.</summary>
    internal override void End()
    {
        nint value = ValueOrNull;
        if (value != 0)
        {
            base.End();
            KeptReferences.Remove(this);
            PyObjects.DecRef(value);
        }
    }
}
