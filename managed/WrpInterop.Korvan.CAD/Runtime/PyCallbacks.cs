namespace Korvan.WrpGen.Interop;

// The native function tables, by position. Their order is the contract of contract/callbacks.def.
// All of them run under the interpreter lock, on the thread that Python called on.

/// <summary>Callbacks that came one by one.</summary>
internal static unsafe class PyHost
{
    internal static delegate* unmanaged<nint, nint, void> OnException;
    internal static delegate* unmanaged<nint*, PyStringArg*, int> CatchAndClearError;
    internal static delegate* unmanaged<char*, int, nint> NewU16Buffer;
    internal static delegate* unmanaged<char*, int, nint> NewString;
    internal static delegate* unmanaged<char*, int, nint> NewStringUnraisable;
    internal static delegate* unmanaged<byte*, int, nint> NewBytes;
    internal static void*** GenericTables;
}

/// <summary>The None object and reference counts.</summary>
internal static unsafe class PyObjects
{
    private static delegate* unmanaged<nint> _none;
    private static delegate* unmanaged<nint, void> _incRef;
    private static delegate* unmanaged<nint, void> _decRef;

    internal static void SetTable(void** table)
    {
        _none = (delegate* unmanaged<nint>)table[0];
        _incRef = (delegate* unmanaged<nint, void>)table[1];
        _decRef = (delegate* unmanaged<nint, void>)table[2];
    }

    internal static nint None() => _none();

    internal static void IncRef(nint value) => _incRef(value);

    internal static void DecRef(nint value) => _decRef(value);
}

/// <summary>The nine tables of the static callbacks.</summary>
internal static unsafe class PyTables
{
    internal static void** Read;
    internal static void** Write;
    internal static void** Buffer;
    internal static void** TypedObject;
    internal static void** Iterator;
    internal static void** Collection;
    internal static void** List;
    internal static void** Sequence;
    internal static void** RawIO;

    internal static void Set(void*** tables)
    {
        Read = tables[0];
        Write = tables[1];
        Buffer = tables[2];
        TypedObject = tables[3];
        Iterator = tables[4];
        Collection = tables[5];
        List = tables[6];
        Sequence = tables[7];
        RawIO = tables[8];
    }
}

/// <summary>Reading a Python value whose kind is known already.</summary>
internal static unsafe class PyRead
{
    internal static int String(nint value, PyStringArg* text) =>
        ((delegate* unmanaged<nint, PyStringArg*, int>)PyTables.Read[0])(value, text);

    internal static int Bool(nint value) =>
        ((delegate* unmanaged<nint, int>)PyTables.Read[1])(value);

    /// <summary>1: fits an int, 2: a long, 3: a ulong.</summary>
    internal static int Long(nint value, ulong* number) =>
        ((delegate* unmanaged<nint, ulong*, int>)PyTables.Read[2])(value, number);

    internal static int Double(nint value, double* number) =>
        ((delegate* unmanaged<nint, double*, int>)PyTables.Read[3])(value, number);

    internal static int Decimal(nint value, PyDecimalArg* words) =>
        ((delegate* unmanaged<nint, PyDecimalArg*, int>)PyTables.Read[4])(value, words);

    internal static int DecimalTuple(nint value, PyDecimalArg* words) =>
        ((delegate* unmanaged<nint, PyDecimalArg*, int>)PyTables.Read[5])(value, words);

    /// <summary>1: a DateTime, 2: a DateTimeOffset.</summary>
    internal static int DateTime(nint value, PyDateTimeOut* time) =>
        ((delegate* unmanaged<nint, PyDateTimeOut*, int>)PyTables.Read[6])(value, time);

    internal static int Date(nint value, long* ticks) =>
        ((delegate* unmanaged<nint, long*, int>)PyTables.Read[7])(value, ticks);

    /// <summary>1: a DateTime, 2: a DateTimeOffset.</summary>
    internal static int Time(nint value, PyDateTimeOut* time) =>
        ((delegate* unmanaged<nint, PyDateTimeOut*, int>)PyTables.Read[8])(value, time);

    internal static int TimeDelta(nint value, long* ticks) =>
        ((delegate* unmanaged<nint, long*, int>)PyTables.Read[9])(value, ticks);

    internal static void Guid(nint value, byte* bytes) =>
        ((delegate* unmanaged<nint, byte*, void>)PyTables.Read[10])(value, bytes);
}

/// <summary>Holding a Python buffer without knowing its record's size.</summary>
internal static unsafe class PyBufferApi
{
    internal static nuint RecordSize() => ((delegate* unmanaged<nuint>)PyTables.Buffer[0])();

    internal static void Clear(byte* record) =>
        ((delegate* unmanaged<byte*, void>)PyTables.Buffer[1])(record);

    internal static int Acquire(nint value, byte* record, PyBytesArg* bytes) =>
        ((delegate* unmanaged<nint, byte*, PyBytesArg*, int>)PyTables.Buffer[2])(value, record, bytes);

    internal static void Release(byte* record) =>
        ((delegate* unmanaged<byte*, void>)PyTables.Buffer[3])(record);
}

/// <summary>Any Python collection, iterator, list or sequence, item by item as variants.</summary>
internal static unsafe class PyCollectionApi
{
    internal static int ListLength(nint list) =>
        ((delegate* unmanaged<nint, int>)PyTables.Collection[0])(list);

    internal static int RemoveAt(nint list, int index) =>
        ((delegate* unmanaged<nint, int, int>)PyTables.Collection[2])(list, index);

    internal static int Clear(nint list) =>
        ((delegate* unmanaged<nint, int>)PyTables.Collection[3])(list);

    internal static int SequenceLength(nint sequence) =>
        ((delegate* unmanaged<nint, int>)PyTables.Collection[4])(sequence);

    /// <summary>A new reference, or 0 with an error pending.</summary>
    internal static nint GetIterator(nint value) =>
        ((delegate* unmanaged<nint, nint>)PyTables.Collection[6])(value);

    internal static int Length(nint value) =>
        ((delegate* unmanaged<nint, int>)PyTables.Collection[7])(value);

    /// <summary>0: an item, whose reference goes to <paramref name="keep"/>; 1: the end; 2: an error.</summary>
    internal static int Next(nint iterator, nint* keep, VariantArg* item) =>
        ((delegate* unmanaged<nint, nint*, VariantArg*, int>)PyTables.Iterator[0])(iterator, keep, item);

    internal static int ListGet(nint list, int index, VariantArg* item) =>
        ((delegate* unmanaged<nint, int, VariantArg*, int>)PyTables.List[0])(list, index, item);

    internal static int ListSet(nint list, int index, nint value) =>
        ((delegate* unmanaged<nint, int, nint, int>)PyTables.List[1])(list, index, value);

    internal static int ListAdd(nint list, nint value) =>
        ((delegate* unmanaged<nint, nint, int>)PyTables.List[2])(list, value);

    internal static int ListInsert(nint list, int index, nint value) =>
        ((delegate* unmanaged<nint, int, nint, int>)PyTables.List[3])(list, index, value);

    internal static int ListContains(nint list, nint value) =>
        ((delegate* unmanaged<nint, nint, int>)PyTables.List[5])(list, value);

    internal static int ListIndexOf(nint list, nint value) =>
        ((delegate* unmanaged<nint, nint, int>)PyTables.List[6])(list, value);

    internal static nint WrapList(nint handle) =>
        ((delegate* unmanaged<nint, nint>)PyTables.List[8])(handle);

    internal static nint WrapArrayList(nint handle) =>
        ((delegate* unmanaged<nint, nint>)PyTables.List[9])(handle);

    internal static nint WrapArray(nint handle) =>
        ((delegate* unmanaged<nint, nint>)PyTables.List[10])(handle);

    internal static int SequenceGet(nint sequence, int index, VariantArg* item) =>
        ((delegate* unmanaged<nint, int, VariantArg*, int>)PyTables.Sequence[0])(sequence, index, item);

    internal static int SequenceContains(nint sequence, nint value) =>
        ((delegate* unmanaged<nint, nint, int>)PyTables.Sequence[1])(sequence, value);

    internal static int SequenceIndexOf(nint sequence, nint value) =>
        ((delegate* unmanaged<nint, nint, int>)PyTables.Sequence[2])(sequence, value);
}

/// <summary>A Python file object.</summary>
internal static unsafe class PyRawIO
{
    internal static int Write(nint file, byte* data, int count) =>
        ((delegate* unmanaged<nint, byte*, int, int>)PyTables.RawIO[0])(file, data, count);

    internal static int WriteByte(nint file, int value) =>
        ((delegate* unmanaged<nint, int, int>)PyTables.RawIO[1])(file, value);

    internal static int Read(nint file, byte* data, int count) =>
        ((delegate* unmanaged<nint, byte*, int, int>)PyTables.RawIO[2])(file, data, count);

    /// <summary>The byte; -1: the end; -2: an error, and that is also what a stream gives that has none yet.</summary>
    internal static int ReadByte(nint file) => ((delegate* unmanaged<nint, int>)PyTables.RawIO[3])(file);

    internal static long Seek(nint file, long offset, int whence) =>
        ((delegate* unmanaged<nint, long, int, long>)PyTables.RawIO[4])(file, offset, whence);

    internal static int Truncate(nint file, long size) =>
        ((delegate* unmanaged<nint, long, int>)PyTables.RawIO[5])(file, size);

    internal static int Flush(nint file) => ((delegate* unmanaged<nint, int>)PyTables.RawIO[6])(file);

    internal static void Close(nint file) => ((delegate* unmanaged<nint, void>)PyTables.RawIO[7])(file);

    internal static int Readable(nint file) => ((delegate* unmanaged<nint, int>)PyTables.RawIO[8])(file);

    internal static int Writable(nint file) => ((delegate* unmanaged<nint, int>)PyTables.RawIO[9])(file);

    internal static int Seekable(nint file) => ((delegate* unmanaged<nint, int>)PyTables.RawIO[10])(file);

    internal static long Tell(nint file) => ((delegate* unmanaged<nint, long>)PyTables.RawIO[11])(file);

    internal static long Length(nint file) => ((delegate* unmanaged<nint, long>)PyTables.RawIO[12])(file);
}
