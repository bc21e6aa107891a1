using System;
using System.Collections;

namespace Korvan.WrpGen.Interop;

/// <summary>A Python object with a length and an iterator, as <see cref="ICollection"/>.</summary>
public class PyCollection(PyReference reference) : PyIterable(reference), ICollection
{
    public int Count => PyItemAccess.Checked(PyCollectionApi.Length(PyObject));

    public bool IsSynchronized => false;

    public object SyncRoot => this;

    public void CopyTo(Array array, int index)
    {
        ArgumentNullException.ThrowIfNull(array);
        foreach (object? item in this)
        {
            array.SetValue(item, index++);
        }
    }
}

/// <summary>A Python sequence, as a list that can only be read.</summary>
public class PySequence(PyReference reference) : PyCollection(reference), IList
{
    public virtual object? this[int index]
    {
        get => PyItemAccess.GetFromSequence(Reference, index);
        set => throw ReadOnly();
    }

    public virtual bool IsFixedSize => true;

    public virtual bool IsReadOnly => true;

    public virtual int Add(object? value) => throw ReadOnly();

    public virtual void Clear() => throw ReadOnly();

    public virtual bool Contains(object? value) => PyItemAccess.SequenceContains(PyObject, value);

    public virtual int IndexOf(object? value) => PyItemAccess.SequenceIndexOf(PyObject, value);

    public virtual void Insert(int index, object? value) => throw ReadOnly();

    public virtual void Remove(object? value) => throw ReadOnly();

    public virtual void RemoveAt(int index) => throw ReadOnly();

    private static NotSupportedException ReadOnly() => new("A Python sequence that is no list can't be changed.");
}

/// <summary>A Python list, as <see cref="IList"/>: what managed code changes, Python sees.</summary>
public sealed class PyList(PyReference reference) : PySequence(reference)
{
    public override object? this[int index]
    {
        get => PyItemAccess.GetFromList(Reference, index);
        set => PyItemAccess.Set(PyObject, index, value);
    }

    public override bool IsFixedSize => false;

    public override bool IsReadOnly => false;

    public override int Add(object? value) => PyItemAccess.Add(PyObject, value);

    public override void Clear() => PyItemAccess.Clear(PyObject);

    public override bool Contains(object? value) => PyItemAccess.ListContains(PyObject, value);

    public override int IndexOf(object? value) => PyItemAccess.ListIndexOf(PyObject, value);

    public override void Insert(int index, object? value) => PyItemAccess.Insert(PyObject, index, value);

    public override void Remove(object? value)
    {
        int index = IndexOf(value);
        if (index >= 0)
        {
            RemoveAt(index);
        }
    }

    public override void RemoveAt(int index) => PyItemAccess.RemoveAt(PyObject, index);
}
