namespace Korvan.WrpGen.Interop;

/// <summary>
/// Operations on the items of a Python list or sequence: statuses become exceptions, values cross
/// as variants one way and as finished objects, which the callback consumes, the other.
/// </summary>
internal static unsafe class PyItemAccess
{
    private const int Error = -1;
    internal const int IndexError = -2;

    internal static object? GetFromList(PyReference list, int index)
    {
        Check(TryGetFromList(list, index, out object? item));
        return item;
    }

    internal static object? GetFromSequence(PyReference sequence, int index)
    {
        Check(TryGetFromSequence(sequence, index, out object? item));
        return item;
    }

    internal static int TryGetFromList(PyReference list, int index, out object? item)
    {
        VariantArg variant = default;
        int status = PyCollectionApi.ListGet(list.Value, index, &variant);
        if (status == 0 && Variants.MayRunPython(&variant))
        {
            PyObjects.IncRef(variant.Value);
            item = ReadHeld(&variant, list);
            return status;
        }
        item = status == 0 ? Variants.ReadItem(&variant, list) : null;
        return status;
    }

    // The sequence callback hands over a reference to the item; a record of a wrapped one holds its handle instead.
    internal static int TryGetFromSequence(PyReference sequence, int index, out object? item)
    {
        VariantArg variant = default;
        item = null;
        int status = PyCollectionApi.SequenceGet(sequence.Value, index, &variant);
        if (status != 0)
        {
            return status;
        }
        if ((VariantKind)variant.Kind >= VariantKind.String)
        {
            item = ReadHeld(&variant, sequence);
            return status;
        }
        item = Variants.ReadItem(&variant, sequence);
        if ((VariantKind)variant.Kind != VariantKind.None)
        {
            PyCursor.Release(sequence, index, variant.Value);
        }
        return status;
    }

    // Takes over a reference to the item.
    private static object? ReadHeld(VariantArg* variant, PyReference collection)
    {
        try
        {
            return Variants.ReadItem(variant, collection);
        }
        finally
        {
            PyObjects.DecRef(variant->Value);
        }
    }

    internal static void Set(nint list, int index, object? value)
    {
        nint item = NewObject(value);
        // The callback releases the value twice when it fails; the second reference is for that.
        PyObjects.IncRef(item);
        int status = PyCollectionApi.ListSet(list, index, item);
        if (status == 0)
        {
            PyObjects.DecRef(item);
        }
        Check(status);
    }

    internal static int Add(nint list, object? value) =>
        Checked(PyCollectionApi.ListAdd(list, NewObject(value))) - 1;

    internal static void Insert(nint list, int index, object? value) =>
        Check(PyCollectionApi.ListInsert(list, index, NewObject(value)));

    internal static void RemoveAt(nint list, int index) => Check(PyCollectionApi.RemoveAt(list, index));

    internal static void Clear(nint list) => Check(PyCollectionApi.Clear(list));

    internal static bool ListContains(nint list, object? value) =>
        Checked(PyCollectionApi.ListContains(list, NewObject(value))) != 0;

    internal static int ListIndexOf(nint list, object? value) =>
        Found(PyCollectionApi.ListIndexOf(list, NewObject(value)));

    // A comparison that raised counts as a match there, and leaves its error pending.
    internal static bool SequenceContains(nint sequence, object? value)
    {
        int status = PyCollectionApi.SequenceContains(sequence, NewObject(value));
        ThrowIfPending();
        return Checked(status) != 0;
    }

    internal static int SequenceIndexOf(nint sequence, object? value)
    {
        int index = PyCollectionApi.SequenceIndexOf(sequence, NewObject(value));
        ThrowIfPending();
        return Found(index);
    }

    internal static int Checked(int status)
    {
        if (status == Error)
        {
            Boundary.ThrowPythonError();
        }
        return status;
    }

    internal static void Check(int status)
    {
        if (status == IndexError)
        {
            Boundary.ThrowIndexError();
        }
        Checked(status);
    }

    internal static int Found(int index)
    {
        if (index < -1)
        {
            Boundary.ThrowPythonError();
        }
        return index;
    }

    internal static void ThrowIfPending()
    {
        if (Boundary.TakePythonError() is { } text)
        {
            throw new PythonException(text);
        }
    }

    private static nint NewObject(object? value)
    {
        nint result = PyWriter.Write(value);
        if (result == 0)
        {
            Boundary.ThrowPythonError();
        }
        return result;
    }
}
