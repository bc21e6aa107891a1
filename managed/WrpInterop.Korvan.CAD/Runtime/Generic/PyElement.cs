using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>Names the element of a collection type where a type argument has to.</summary>
public interface IElementSource<T>
{
    static abstract PyElement<T> Element { get; }
}

/// <summary>
/// How the items of Python lists, sequences and iterators are read as one type, and written as it.
/// </summary>
/// <remarks>Statuses are those of the callbacks: an error of Python's stays pending behind a negative one.</remarks>
public abstract class PyElement<T>
{
    /// <summary>0, -1 for an error, -2 for an index out of range.</summary>
    internal abstract int Get(PyReference list, int index, out T item);

    /// <summary>As <see cref="Get"/>, of any sequence.</summary>
    internal abstract int GetFromSequence(PyReference sequence, int index, out T item);

    /// <summary>0 an item, which lives as long as the collection, 1 the end, 2 an error.</summary>
    internal abstract int Next(PyReference iterator, PyReference collection, out T item);

    internal virtual void Set(nint list, int index, T item) => PyItemAccess.Set(list, index, item);

    internal virtual void Add(nint list, T item) => PyItemAccess.Add(list, item);

    internal virtual void Insert(nint list, int index, T item) => PyItemAccess.Insert(list, index, item);

    internal virtual bool Remove(nint list, T item)
    {
        int index = IndexOf(list, item);
        if (index < 0)
        {
            return false;
        }
        PyItemAccess.RemoveAt(list, index);
        return true;
    }

    internal virtual bool Contains(nint list, T item) => PyItemAccess.ListContains(list, item);

    internal virtual int IndexOf(nint list, T item) => PyItemAccess.ListIndexOf(list, item);

    internal virtual bool SequenceContains(nint sequence, T item) => PyItemAccess.SequenceContains(sequence, item);

    internal virtual int SequenceIndexOf(nint sequence, T item) => PyItemAccess.SequenceIndexOf(sequence, item);
}

/// <summary>Elements without tables of their own: items cross as variants and are fitted here.</summary>
public sealed class UntypedElement<T> : PyElement<T>
{
    public static UntypedElement<T> Instance { get; } = new();

    internal override int Get(PyReference list, int index, out T item)
    {
        int status = PyItemAccess.TryGetFromList(list, index, out object? value);
        item = status == 0 ? Items<T>.Fit(value) : default!;
        return status;
    }

    internal override int GetFromSequence(PyReference sequence, int index, out T item)
    {
        int status = PyItemAccess.TryGetFromSequence(sequence, index, out object? value);
        item = status == 0 ? Items<T>.Fit(value) : default!;
        return status;
    }

    internal override unsafe int Next(PyReference iterator, PyReference collection, out T item)
    {
        nint keep = 0;
        VariantArg variant = default;
        item = default!;
        int status = PyCollectionApi.Next(iterator.Value, &keep, &variant);
        if (status == 0)
        {
            try
            {
                item = Items<T>.Fit(Variants.ReadItem(&variant, collection));
            }
            finally
            {
                PyObjects.DecRef(keep);
            }
        }
        return status;
    }
}
