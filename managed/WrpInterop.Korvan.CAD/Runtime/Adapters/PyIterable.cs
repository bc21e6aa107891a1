using System;
using System.Collections;
using System.Collections.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>Any Python object that can be iterated, as <see cref="IEnumerable"/>.</summary>
public class PyIterable(PyReference reference) : IEnumerable, IPyAdapter
{
    public nint PyObject => reference.Value;

    public IEnumerator GetEnumerator() => new PyIterator<object?>(PyObject);

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();
}

/// <summary>Any Python object that can be iterated, its items fitted to one type.</summary>
public sealed class PyIterable<T>(PyReference reference) : PyIterable(reference), IEnumerable<T>
{
    IEnumerator<T> IEnumerable<T>.GetEnumerator() => new PyIterator<T>(PyObject);
}

/// <summary>A Python iterator. Ends with the collection's end, an error or <see cref="Dispose"/>.</summary>
internal sealed unsafe class PyIterator<T> : IEnumerator<T>
{
    private KeptPyReference? _iterator;
    private T _current = default!;

    internal PyIterator(nint iterable)
    {
        nint iterator = PyCollectionApi.GetIterator(iterable);
        if (iterator == 0)
        {
            Boundary.ThrowPythonError();
        }
        _iterator = KeptPyReference.Taking(iterator);
    }

    public T Current => _current;

    object? IEnumerator.Current => _current;

    public bool MoveNext()
    {
        const int Item = 0;
        const int End = 1;
        if (_iterator is null)
        {
            return false;
        }
        nint keep = 0;
        VariantArg variant = default;
        int status = PyCollectionApi.Next(_iterator.Value, &keep, &variant);
        if (status == Item)
        {
            _current = Take(keep, &variant);
            return true;
        }
        Dispose();
        if (status != End)
        {
            Boundary.ThrowPythonError();
        }
        return false;
    }

    public void Reset() => throw new NotSupportedException();

    public void Dispose()
    {
        _iterator?.Release();
        _iterator = null;
    }

    private static T Take(nint keep, VariantArg* variant)
    {
        try
        {
            return Items<T>.Fit(Variants.ReadItem(variant));
        }
        finally
        {
            PyObjects.DecRef(keep);
        }
    }
}
