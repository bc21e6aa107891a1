using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.WrpGen.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>Any Python object that can be iterated, as <see cref="IEnumerable"/>.</summary>
public class PyIterable(PyReference reference) : IEnumerable, IPyAdapter
{
    public nint PyObject => reference.Value;

    public IEnumerator GetEnumerator() => PyIterator<object?>.Over(PyObject, UntypedElement<object?>.Instance);

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();
}

/// <summary>Any Python object that can be iterated, its items read as one type.</summary>
internal sealed class PyIterable<T>(PyReference reference, PyElement<T> element)
    : PyIterable(reference), IEnumerable<T>
{
    IEnumerator<T> IEnumerable<T>.GetEnumerator() => PyIterator<T>.Over(PyObject, element);
}

/// <summary>A Python iterator. Ends with the collection's end, an error or <see cref="Dispose"/>.</summary>
/// <param name="iterator">An own reference, or one lent for a call.</param>
internal sealed class PyIterator<T>(PyReference iterator, PyElement<T> element) : IEnumerator<T>, IPyAdapter
{
    private bool _isOver;
    private T _current = default!;

    public T Current => _current;

    object? IEnumerator.Current => _current;

    public nint PyObject => iterator.Value;

    /// <summary>Asks an iterable for an iterator.</summary>
    internal static PyIterator<T> Over(nint iterable, PyElement<T> element)
    {
        nint iterator = PyCollectionApi.GetIterator(iterable);
        if (iterator == 0)
        {
            Boundary.ThrowPythonError();
        }
        return new PyIterator<T>(KeptPyReference.Taking(iterator), element);
    }

    public bool MoveNext()
    {
        const int Item = 0;
        const int End = 1;
        if (_isOver)
        {
            return false;
        }
        int status = element.Next(iterator.Value, out T item);
        if (status == Item)
        {
            _current = item;
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
        if (!_isOver)
        {
            _isOver = true;
            (iterator as KeptPyReference)?.Release();
        }
    }

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => iterator.End();
}
