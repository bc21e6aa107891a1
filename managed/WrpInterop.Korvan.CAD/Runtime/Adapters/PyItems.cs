using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.WrpGen.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>What kind of Python object stands in for a generic collection.</summary>
internal enum PyItemsKind
{
    /// <summary>A list: read by index, and changed.</summary>
    List,

    /// <summary>Another sequence: read by index.</summary>
    Sequence,

    /// <summary>Anything with a length and an iterator.</summary>
    Collection,
}

/// <summary>A Python list, sequence or collection as a generic list of one element type.</summary>
internal sealed class PyItems<T>(PyReference reference, PyItemsKind kind, PyElement<T> element)
    : IList<T>, IReadOnlyList<T>, IPyAdapter
{
    public nint PyObject => reference.Value;

    public int Count => PyItemAccess.Checked(kind == PyItemsKind.List
        ? PyCollectionApi.ListLength(PyObject)
        : PyCollectionApi.Length(PyObject));

    public bool IsReadOnly => kind != PyItemsKind.List;

    public T this[int index]
    {
        get
        {
            PyItemAccess.Check(Get(index, out T item));
            return item;
        }
        set => element.Set(Writable(), index, value);
    }

    public void Add(T item) => element.Add(Writable(), item);

    public void Clear() => PyItemAccess.Clear(Writable());

    public bool Contains(T item) => kind == PyItemsKind.List
        ? element.Contains(PyObject, item)
        : element.SequenceContains(PyObject, item);

    public int IndexOf(T item) => kind == PyItemsKind.List
        ? element.IndexOf(PyObject, item)
        : element.SequenceIndexOf(PyObject, item);

    public void Insert(int index, T item) => element.Insert(Writable(), index, item);

    public bool Remove(T item) => element.Remove(Writable(), item);

    public void RemoveAt(int index) => PyItemAccess.RemoveAt(Writable(), index);

    public void CopyTo(T[] array, int arrayIndex)
    {
        ArgumentNullException.ThrowIfNull(array);
        foreach (T item in this)
        {
            array[arrayIndex++] = item;
        }
    }

    public IEnumerator<T> GetEnumerator() =>
        kind == PyItemsKind.Collection ? PyIterator<T>.Over(reference, element) : ByIndex();

    IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();

    /// <summary>A copy of the items, as many as there are when the walk meets the end.</summary>
    internal List<T> ToList()
    {
        var items = new List<T>(Count);
        foreach (T item in this)
        {
            items.Add(item);
        }
        return items;
    }

    // Python's own walk over a list: items that are added are met, an end that has come nearer is the end.
    private IEnumerator<T> ByIndex()
    {
        int count = Count;
        for (int index = 0; index < count || index < (count = Count); index++)
        {
            int status = Get(index, out T item);
            if (status == PyItemAccess.IndexError)
            {
                Boundary.TakePythonError();
                yield break;
            }
            PyItemAccess.Check(status);
            yield return item;
        }
    }

    private int Get(int index, out T item) => kind == PyItemsKind.List
        ? element.Get(reference, index, out item)
        : element.GetFromSequence(reference, index, out item);

    private nint Writable() => kind == PyItemsKind.List
        ? PyObject
        : throw new NotSupportedException("A Python sequence that is no list can't be changed.");
}
