using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.WrpGen.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>Any Python object that can be iterated, as <see cref="IEnumerable"/>.</summary>
public class PyIterable(PyReference reference) : IEnumerable, IPyAdapter
{
    public nint PyObject => reference.Value;

    public IEnumerator GetEnumerator() => new PyIterator<object?>(PyObject, UntypedElement<object?>.Instance);

    void IPyAdapter.Complete()
    {
    }

    void IPyAdapter.End() => reference.End();
}

/// <summary>Any Python object that can be iterated, its items read as one type.</summary>
internal sealed class PyIterable<T>(PyReference reference, PyElement<T> element)
    : PyIterable(reference), IEnumerable<T>
{
    IEnumerator<T> IEnumerable<T>.GetEnumerator() => new PyIterator<T>(PyObject, element);
}

/// <summary>A Python iterator. Ends with the collection's end, an error or <see cref="Dispose"/>.</summary>
internal sealed class PyIterator<T> : IEnumerator<T>
{
    private readonly PyElement<T> _element;
    private KeptPyReference? _iterator;
    private T _current = default!;

    internal PyIterator(nint iterable, PyElement<T> element)
    {
        nint iterator = PyCollectionApi.GetIterator(iterable);
        if (iterator == 0)
        {
            Boundary.ThrowPythonError();
        }
        _iterator = KeptPyReference.Taking(iterator);
        _element = element;
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
        int status = _element.Next(_iterator.Value, out T item);
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
        _iterator?.Release();
        _iterator = null;
    }
}
