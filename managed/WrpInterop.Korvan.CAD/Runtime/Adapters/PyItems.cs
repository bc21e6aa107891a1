using System;
using System.Collections;
using System.Collections.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>A Python list or sequence as a generic list, its items fitted to one type.</summary>
public sealed class PyItems<T>(PyReference reference, bool isList) : IList<T>, IReadOnlyList<T>, IPyAdapter
{
    public nint PyObject => reference.Value;

    public int Count => PyItemAccess.Checked(PyCollectionApi.Length(PyObject));

    public bool IsReadOnly => !isList;

    public T this[int index]
    {
        get => Items<T>.Fit(isList
            ? PyItemAccess.GetFromList(PyObject, index)
            : PyItemAccess.GetFromSequence(PyObject, index));
        set => PyItemAccess.Set(Writable(), index, value);
    }

    public void Add(T item) => PyItemAccess.Add(Writable(), item);

    public void Clear() => PyItemAccess.Clear(Writable());

    public bool Contains(T item) => isList
        ? PyItemAccess.ListContains(PyObject, item)
        : PyItemAccess.SequenceContains(PyObject, item);

    public int IndexOf(T item) => isList
        ? PyItemAccess.ListIndexOf(PyObject, item)
        : PyItemAccess.SequenceIndexOf(PyObject, item);

    public void Insert(int index, T item) => PyItemAccess.Insert(Writable(), index, item);

    public bool Remove(T item)
    {
        int index = IndexOf(item);
        if (index < 0)
        {
            return false;
        }
        RemoveAt(index);
        return true;
    }

    public void RemoveAt(int index) => PyItemAccess.RemoveAt(Writable(), index);

    public void CopyTo(T[] array, int arrayIndex)
    {
        ArgumentNullException.ThrowIfNull(array);
        foreach (T item in this)
        {
            array[arrayIndex++] = item;
        }
    }

    public IEnumerator<T> GetEnumerator() => new PyIterator<T>(PyObject);

    IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();

    private nint Writable() => isList
        ? PyObject
        : throw new NotSupportedException("A Python sequence that is no list can't be changed.");
}
