using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>Which slots the tables of an element have behind the reading one.</summary>
public enum PyListUse
{
    /// <summary>None.</summary>
    Read,

    /// <summary>Of lists: add, insert, remove, contains. Of sequences: contains, by iteration.</summary>
    Collection,

    /// <summary>Of lists: set_item, add, insert, remove, contains, index_of. Of sequences: contains,
    /// index_of.</summary>
    Edit,
}

/// <summary>Elements with callback tables of their own: an item is converted in the call that reads it.</summary>
/// <typeparam name="T">The element.</typeparam>
/// <typeparam name="TIn">What the codec reads: a value, a handle, or the address of a record.</typeparam>
/// <typeparam name="TOut">What the codec writes.</typeparam>
/// <typeparam name="TCodec">The codec.</typeparam>
public sealed unsafe class TypedElement<T, TIn, TOut, TCodec>(
    int list, int iterator, int sequence, PyListUse use, bool isRecord) : PyElement<T>
    where TIn : unmanaged
    where TOut : unmanaged
    where TCodec : ICodec<T, TIn, TOut>
{
    // The largest record of an element has four words; the rest is room for a padding of the compiler's.
    private const int RecordWords = 8;

    private readonly void** _list = TableAt(list);
    private readonly void** _iterator = TableAt(iterator);
    private readonly void** _sequence = TableAt(sequence);

    private readonly IScopedCodec<T>? _scoped = default(TCodec) as IScopedCodec<T>;

    // The edit table has set_item between get_item and the slots that it shares with the collection table.
    private readonly int _add = use == PyListUse.Edit ? 2 : 1;

    internal override int Get(PyReference list, int index, out T item)
    {
        if (_list == null)
        {
            return UntypedElement<T>.Instance.Get(list, index, out item);
        }
        long* record = stackalloc long[RecordWords];
        int status = ((delegate* unmanaged<nint, int, void*, int>)_list[0])(list.Value, index, record);
        item = status == 0 ? Read(record, list) : default!;
        return status;
    }

    internal override int GetFromSequence(PyReference sequence, int index, out T item)
    {
        if (_sequence == null)
        {
            return UntypedElement<T>.Instance.GetFromSequence(sequence, index, out item);
        }
        long* record = stackalloc long[RecordWords];
        nint keep = 0;
        int status = ((delegate* unmanaged<nint, int, nint*, void*, int>)_sequence[0])(
            sequence.Value, index, &keep, record);
        item = status == 0 ? ReadKept(record, keep, sequence) : default!;
        return status;
    }

    internal override int Next(PyReference iterator, PyReference collection, out T item)
    {
        if (_iterator == null)
        {
            return UntypedElement<T>.Instance.Next(iterator, collection, out item);
        }
        long* record = stackalloc long[RecordWords];
        nint keep = 0;
        int status = ((delegate* unmanaged<nint, nint*, void*, int>)_iterator[0])(iterator.Value, &keep, record);
        item = status == 0 ? ReadKept(record, keep, collection) : default!;
        return status;
    }

    internal override void Set(nint list, int index, T item)
    {
        if (use != PyListUse.Edit)
        {
            base.Set(list, index, item);
            return;
        }
        PyItemAccess.Check(((delegate* unmanaged<nint, int, TOut, int>)_list[1])(list, index, TCodec.Write(item)));
    }

    internal override void Add(nint list, T item)
    {
        if (use == PyListUse.Read)
        {
            base.Add(list, item);
            return;
        }
        PyItemAccess.Check(Call(_list[_add], list, item));
    }

    internal override void Insert(nint list, int index, T item)
    {
        if (use == PyListUse.Read)
        {
            base.Insert(list, index, item);
            return;
        }
        PyItemAccess.Check(
            ((delegate* unmanaged<nint, int, TOut, int>)_list[_add + 1])(list, index, TCodec.Write(item)));
    }

    internal override bool Remove(nint list, T item) => use == PyListUse.Read
        ? base.Remove(list, item)
        : PyItemAccess.Checked(Call(_list[_add + 2], list, item)) != 0;

    internal override bool Contains(nint list, T item) => use == PyListUse.Read
        ? base.Contains(list, item)
        : PyItemAccess.Checked(Call(_list[_add + 3], list, item)) != 0;

    internal override int IndexOf(nint list, T item) => use != PyListUse.Edit
        ? base.IndexOf(list, item)
        : PyItemAccess.Found(Call(_list[_add + 4], list, item));

    internal override bool SequenceContains(nint sequence, T item)
    {
        if (use == PyListUse.Read)
        {
            return base.SequenceContains(sequence, item);
        }
        int status = Call(_sequence[1], sequence, item);
        PyItemAccess.ThrowIfPending();
        return PyItemAccess.Checked(status) != 0;
    }

    internal override int SequenceIndexOf(nint sequence, T item)
    {
        if (use != PyListUse.Edit)
        {
            return base.SequenceIndexOf(sequence, item);
        }
        int index = Call(_sequence[2], sequence, item);
        PyItemAccess.ThrowIfPending();
        return PyItemAccess.Found(index);
    }

    private static void** TableAt(int position) => position < 0 ? null : PyHost.GenericTables[position];

    private static int Call(void* slot, nint collection, T item) =>
        ((delegate* unmanaged<nint, TOut, int>)slot)(collection, TCodec.Write(item));

    private T Read(void* record, PyReference collection)
    {
        if (_scoped is not null)
        {
            PyScope item = PyScope.ItemOf(collection);
            return _scoped.Read((VariantArg*)record, ref item);
        }
        nint address = (nint)record;
        return TCodec.Read(*(TIn*)(isRecord ? &address : record));
    }

    // What was read of an item may view it; the item is given back when that is over.
    private T ReadKept(void* record, nint keep, PyReference collection)
    {
        try
        {
            return Read(record, collection);
        }
        finally
        {
            PyObjects.DecRef(keep);
        }
    }
}
