using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.WrpGen.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>Any Python object that can be iterated, as <see cref="IEnumerable"/>.</summary>
public class PyIterable(PyReference reference) : IEnumerable, IPyAdapter
{
    public nint PyObject => reference.Value;

    private protected PyReference Reference => reference;

    public IEnumerator GetEnumerator() => PyIterator<object?>.Over(reference, UntypedElement<object?>.Instance);

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();
}

/// <summary>Any Python object that can be iterated, its items read as one type.</summary>
internal sealed class PyIterable<T>(PyReference iterable, PyElement<T> element)
    : PyIterable(iterable), IEnumerable<T>
{
    IEnumerator<T> IEnumerable<T>.GetEnumerator() => PyIterator<T>.Over(Reference, element);
}

/// <summary>A Python iterator. Ends with the collection's end, an error or <see cref="Dispose"/>.</summary>
internal sealed class PyIterator<T> : IEnumerator<T>, IPyAdapter
{
    private readonly PyReference _iterator;
    private readonly PyReference _collection;
    private readonly PyElement<T> _element;
    private bool _isOver;
    private T _current = default!;

    /// <param name="iterator">A reference of its own, or one lent for a call.</param>
    /// <param name="element">What the items are read as.</param>
    /// <param name="collection">What the items live as long as, unless it is the iterator.</param>
    internal PyIterator(PyReference iterator, PyElement<T> element, PyReference? collection = null)
    {
        _iterator = iterator;
        _element = element;
        _collection = collection ?? iterator;
    }

    public T Current => _current;

    object? IEnumerator.Current => _current;

    public nint PyObject => _iterator.Value;

    /// <summary>Asks an iterable for an iterator.</summary>
    internal static PyIterator<T> Over(PyReference iterable, PyElement<T> element)
    {
        nint iterator = PyCollectionApi.GetIterator(iterable.Value);
        if (iterator == 0)
        {
            Boundary.ThrowPythonError();
        }
        return new PyIterator<T>(KeptPyReference.Taking(iterator), element, iterable);
    }

    public bool MoveNext()
    {
        const int itemStatus = 0;
        const int end = 1;
        if (_isOver)
        {
            return false;
        }
        int status = _element.Next(_iterator, _collection, out T item);
        if (status == itemStatus)
        {
            _current = item;
            return true;
        }
        Dispose();
        if (status != end)
        {
            Boundary.ThrowPythonError();
        }
        return false;
    }

    public void Reset() => throw new NotSupportedException();

    public void Dispose()
    {
        if (!_isOver)
        {
            _isOver = true;
            (_iterator as KeptPyReference)?.End();
        }
    }

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => _iterator.End();
}
