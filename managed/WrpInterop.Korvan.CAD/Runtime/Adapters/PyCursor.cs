using System;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// A walk over a Python sequence beside the reading by index. What is read by index of a wrapped object is its
/// handle: the reference that came with it is given back by way of the object, which only an iterator tells.
/// </summary>
internal sealed unsafe class PyCursor : IDisposable
{
    private readonly KeptPyReference _iterator;
    private int _next;

    private PyCursor(nint iterator) => _iterator = KeptPyReference.Taking(iterator);

    /// <summary>Gives back the reference to an item that was read by index as a handle.</summary>
    internal static void Release(PyReference sequence, int index, nint handle)
    {
        nint item = CursorAt(sequence, index)?.Find(index, handle) ?? 0;
        if (item != 0)
        {
            PyObjects.DecRef(item); // the walk's own
            PyObjects.DecRef(item);
        }
    }

    public void Dispose() => _iterator.End();

    private static PyCursor? CursorAt(PyReference sequence, int index)
    {
        if (sequence.Cursor is { } cursor && cursor._next <= index)
        {
            return cursor;
        }
        sequence.Cursor?.Dispose();
        nint iterator = PyCollectionApi.GetIterator(sequence.Value);
        if (iterator == 0)
        {
            Boundary.TakePythonError();
        }
        return sequence.Cursor = iterator == 0 ? null : new PyCursor(iterator);
    }

    // A sequence that makes its items anew each time has another one here, or none.
    private nint Find(int index, nint handle)
    {
        const int itemStatus = 0;
        const int end = 1;
        while (_next <= index)
        {
            nint keep = 0;
            VariantArg item = default;
            int status = PyCollectionApi.Next(_iterator.Value, &keep, &item);
            if (status == end)
            {
                return 0;
            }
            if (status != itemStatus)
            {
                Boundary.TakePythonError();
            }
            if (_next++ == index && status == itemStatus && item.Value == handle)
            {
                return keep;
            }
            PyObjects.DecRef(keep);
        }
        return 0;
    }
}
