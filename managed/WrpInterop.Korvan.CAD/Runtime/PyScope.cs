using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using Korvan.WrpGen.Generic;

namespace Korvan.WrpGen.Interop;

/// <summary>A managed face of a Python object that came in as an argument.</summary>
public interface IPyAdapter
{
    /// <summary>The Python object, borrowed.</summary>
    nint PyObject { get; }

    /// <summary>Brings what is buffered to the Python object.</summary>
    void Complete();

    /// <summary>The same behind a failure of the call, which goes before any of its own.</summary>
    void Abandon()
    {
    }

    /// <summary>Ends the adapter's use of the Python object.</summary>
    void End();
}

/// <summary>
/// The adapters of one call. An argument of a method lends its Python object for the length of the
/// call alone; what a constructor or a setter takes is kept, and holds a reference of its own.
/// </summary>
public unsafe struct PyScope
{
    private readonly bool _keeps;
    private readonly PyReference? _collection;
    private IPyAdapter? _first;
    private List<IPyAdapter>? _others;

    private PyScope(bool keeps, PyReference? collection = null)
    {
        _keeps = keeps;
        _collection = collection;
    }

    /// <summary>For arguments of a method.</summary>
    public static PyScope Lending() => new(keeps: false);

    /// <summary>For what outlives the call.</summary>
    public static PyScope Keeping() => new(keeps: true);

    /// <summary>For an item of a Python collection, which lives as long as what is made of the collection.</summary>
    internal static PyScope ItemOf(PyReference collection) => new(keeps: true, collection);

    public Stream? Stream(VariantArg* argument) => FromPython(argument)
        ? Adopt(new PyStream(Hold(argument->Value, isStream: true), isBuffered: !_keeps))
        : Handles.Object<Stream>(argument->Value);

    /// <summary>A stream that stays of use after the call, which is not buffered therefore. A call that fails has not
    /// kept it.</summary>
    public Stream? KeptStream(VariantArg* argument) => FromPython(argument)
        ? Adopt(new PyStream(PyReference.Kept(argument->Value, isStream: true), isBuffered: false, isKept: true))
        : Handles.Object<Stream>(argument->Value);

    /// <summary>Python's context managers don't stand in: only what is managed comes.</summary>
    public IDisposable? AnyDisposable(VariantArg* argument) => References.Read<IDisposable>(argument);

    public IEnumerator? AnyEnumerator(VariantArg* argument) => FromPython(argument)
        ? Adopt(new PyIterator<object?>(Hold(argument->Value), UntypedElement<object?>.Instance))
        : Handles.Object<IEnumerator>(argument->Value);

    public IEnumerator<T>? Iterator<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? Adopt(new PyIterator<T>(Hold(argument->Value), element))
        : Handles.Object<IEnumerator<T>>(argument->Value);

    public IEnumerable? AnyIterable(VariantArg* argument) => FromPython(argument)
        ? Adopt(new PyIterable(Hold(argument->Value)))
        : Handles.Object<IEnumerable>(argument->Value);

    public ICollection? AnyCollection(VariantArg* argument) => FromPython(argument)
        ? Adopt(new PyCollection(Hold(argument->Value)))
        : Handles.Object<ICollection>(argument->Value);

    public IList? AnyList(VariantArg* argument) => (ReferenceKind)argument->Kind switch
    {
        ReferenceKind.Python => Adopt(new PyList(Hold(argument->Value))),
        ReferenceKind.Sequence => Adopt(new PySequence(Hold(argument->Value))),
        _ => Handles.Object<IList>(argument->Value),
    };

    /// <summary>The framework's classes are no interfaces: items from Python are copied.</summary>
    public Array? AnyArray(VariantArg* argument) => FromPython(argument)
        ? CopyOf(argument).ToArray()
        : Handles.Object<Array>(argument->Value);

    public ArrayList? AnyArrayList(VariantArg* argument) => FromPython(argument)
        ? CopyOf(argument)
        : Handles.Object<ArrayList>(argument->Value);

    public CollectionBase? AnyCollectionBase(VariantArg* argument) => FromPython(argument)
        ? throw new NotSupportedException($"A Python object can't stand in for {nameof(CollectionBase)}.")
        : Handles.Object<CollectionBase>(argument->Value);

    public ReadOnlyCollectionBase? AnyReadOnlyCollectionBase(VariantArg* argument) => FromPython(argument)
        ? throw new NotSupportedException($"A Python object can't stand in for {nameof(ReadOnlyCollectionBase)}.")
        : Handles.Object<ReadOnlyCollectionBase>(argument->Value);

    public IEnumerable<T>? Iterable<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? Adopt(new PyIterable<T>(Hold(argument->Value), element))
        : Handles.Object<IEnumerable<T>>(argument->Value);

    public ICollection<T>? Collection<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? Adopt(ItemsOf(argument, element, PyItemsKind.Collection))
        : Handles.Object<ICollection<T>>(argument->Value);

    public IReadOnlyCollection<T>? ReadOnlyCollection<T>(VariantArg* argument, PyElement<T> element) =>
        FromPython(argument)
            ? Adopt(ItemsOf(argument, element, PyItemsKind.Collection))
            : Handles.Object<IReadOnlyCollection<T>>(argument->Value);

    public IList<T>? ItemList<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? Adopt(ItemsOf(argument, element))
        : Handles.Object<IList<T>>(argument->Value);

    public IReadOnlyList<T>? ReadOnlyList<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? Adopt(ItemsOf(argument, element))
        : Handles.Object<IReadOnlyList<T>>(argument->Value);

    /// <summary>A concrete list is no interface: items from Python are copied into a new one.</summary>
    public List<T>? ListOf<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? CopyOf(argument, element)
        : Handles.Object<List<T>>(argument->Value);

    public T[]? ArrayOf<T>(VariantArg* argument, PyElement<T> element) => FromPython(argument)
        ? CopyOf(argument, element).ToArray()
        : Handles.Object<T[]>(argument->Value);

    /// <summary>Any value for a parameter of the universal object type.</summary>
    public object? Any(VariantArg* argument) => Variants.Read(argument, ref this);

    /// <summary>Brings what the adapters buffer to Python. Belongs behind the call that used them.</summary>
    public readonly void Complete()
    {
        _first?.Complete();
        foreach (IPyAdapter adapter in Others)
        {
            adapter.Complete();
        }
    }

    /// <summary>
    /// Makes a Python error of the call's failure, with what the adapters hold brought home before. Nothing is kept.
    /// </summary>
    public readonly void Fail(Exception exception)
    {
        _first?.Abandon();
        foreach (IPyAdapter adapter in Others)
        {
            adapter.Abandon();
        }
        EndAll();
        Boundary.Fail(exception);
    }

    /// <summary>Ends lent adapters; kept ones live on.</summary>
    public readonly void End()
    {
        if (!_keeps)
        {
            EndAll();
        }
        KeptReferences.Settle();
    }

    internal T Adopt<T>(T adapter) where T : IPyAdapter
    {
        if (_first is null)
        {
            _first = adapter;
        }
        else
        {
            (_others ??= []).Add(adapter);
        }
        return adapter;
    }

    internal readonly PyReference Hold(nint value, bool isStream = false)
    {
        if (_collection is not null)
        {
            return _collection.HoldItem(value, isStream);
        }
        return _keeps ? PyReference.Kept(value, isStream) : PyReference.Lent(value);
    }

    private readonly ReadOnlySpan<IPyAdapter> Others =>
        System.Runtime.InteropServices.CollectionsMarshal.AsSpan(_others);

    private static bool FromPython(VariantArg* argument) =>
        (ReferenceKind)argument->Kind >= ReferenceKind.Python;

    private ArrayList CopyOf(VariantArg* argument)
    {
        PyReference source = HoldToCopy(argument->Value);
        var copy = new ArrayList(Adopt(new PyCollection(source)));
        EndCopied(source);
        return copy;
    }

    private List<T> CopyOf<T>(VariantArg* argument, PyElement<T> element)
    {
        PyReference source = HoldToCopy(argument->Value);
        List<T> copy = Adopt(ItemsOf(source, argument, element, PyItemsKind.Sequence)).ToList();
        EndCopied(source);
        return copy;
    }

    private readonly PyReference HoldToCopy(nint value) =>
        _keeps && _collection is null ? PyReference.Copied(value) : Hold(value);

    // What is made of its items needs the collection itself no longer, unless it ends with it.
    private static void EndCopied(PyReference source)
    {
        if (source.KeepsItems)
        {
            source.End();
        }
    }

    private readonly PyItems<T> ItemsOf<T>(
        VariantArg* argument, PyElement<T> element, PyItemsKind other = PyItemsKind.Sequence) =>
        ItemsOf(Hold(argument->Value), argument, element, other);

    private static PyItems<T> ItemsOf<T>(
        PyReference source, VariantArg* argument, PyElement<T> element, PyItemsKind other) =>
        new(source, (ReferenceKind)argument->Kind == ReferenceKind.Python ? PyItemsKind.List : other, element);

    private readonly void EndAll()
    {
        _first?.End();
        foreach (IPyAdapter adapter in Others)
        {
            adapter.End();
        }
    }
}
