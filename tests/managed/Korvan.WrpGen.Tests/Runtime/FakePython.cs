using System;
using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

/// <summary>Tests of the runtime share one fake interpreter.</summary>
[CollectionDefinition(nameof(FakePython), DisableParallelization = true)]
public sealed class FakePythonCollection : ICollectionFixture<FakePython>;

/// <summary>
/// The little of Python that the runtime calls: objects with reference counts, strings, one pending
/// error, lists, iterators and file objects over managed streams.
/// </summary>
public sealed unsafe class FakePython
{
    internal sealed class FakeObject(object? value)
    {
        public object? Value { get; } = value;

        public int References { get; set; } = 1;
    }

    private static readonly nint NoneObject = New(null);
    private static nint _errorText;

    public FakePython()
    {
        Call(&SetObjects);
        void Call(delegate*<void> install) => install();
    }

    /// <summary>What the exception callback was told last.</summary>
    internal static (string? Name, string? Text) Failure { get; set; }

    /// <summary>The pending Python error.</summary>
    internal static string? PendingError { get; set; }

    /// <summary>How often a file object was asked to read or write.</summary>
    internal static int FileCalls { get; set; }

    /// <summary>What a file object adds to the number of bytes that it says it moved.</summary>
    internal static int FileLie { get; set; }

    internal static nint None => NoneObject;

    internal static nint New(object? value) => GCHandle.ToIntPtr(GCHandle.Alloc(new FakeObject(value)));

    internal static FakeObject At(nint value) => (FakeObject)GCHandle.FromIntPtr(value).Target!;

    internal static object? ValueOf(nint value) => At(value).Value;

    private static void SetObjects()
    {
        PyHost.OnException = &OnException;
        PyHost.CatchAndClearError = &CatchAndClear;
        PyHost.NewString = &NewString;
        PyHost.NewStringUnraisable = &NewString;
        PyHost.NewBytes = &NewBytes;
        PyObjects.SetTable(Table((nint)(delegate* unmanaged<nint>)&GetNone,
            (nint)(delegate* unmanaged<nint, void>)&IncRef, (nint)(delegate* unmanaged<nint, void>)&DecRef));
        PyTables.Read = Table(0, 0, (nint)(delegate* unmanaged<nint, ulong*, int>)&ReadLong);
        PyTables.Write = Table(0, 0, (nint)(delegate* unmanaged<int, nint>)&WriteInt);
        PyTables.Iterator = Table((nint)(delegate* unmanaged<nint, nint*, VariantArg*, int>)&Next);
        PyTables.Collection = Table((nint)(delegate* unmanaged<nint, int>)&Length, 0, 0, 0, 0, 0,
            (nint)(delegate* unmanaged<nint, nint>)&GetIterator, (nint)(delegate* unmanaged<nint, int>)&Length);
        PyTables.List = Table((nint)(delegate* unmanaged<nint, int, VariantArg*, int>)&ListGet, 0,
            (nint)(delegate* unmanaged<nint, nint, int>)&ListAdd);
        PyTables.RawIO = Table((nint)(delegate* unmanaged<nint, byte*, int, int>)&FileWrite, 0,
            (nint)(delegate* unmanaged<nint, byte*, int, int>)&FileRead, 0,
            (nint)(delegate* unmanaged<nint, long, int, long>)&FileSeek, 0,
            (nint)(delegate* unmanaged<nint, int>)&FileFlush, 0, (nint)(delegate* unmanaged<nint, int>)&Yes,
            (nint)(delegate* unmanaged<nint, int>)&Yes, (nint)(delegate* unmanaged<nint, int>)&Yes,
            (nint)(delegate* unmanaged<nint, long>)&FileTell, (nint)(delegate* unmanaged<nint, long>)&FileLength);
    }

    private static void** Table(params ReadOnlySpan<nint> slots)
    {
        var table = (nint*)NativeMemory.Alloc((nuint)slots.Length, (nuint)sizeof(nint));
        slots.CopyTo(new Span<nint>(table, slots.Length));
        return (void**)table;
    }

    [UnmanagedCallersOnly]
    private static nint GetNone() => NoneObject;

    [UnmanagedCallersOnly]
    private static void IncRef(nint value) => At(value).References++;

    [UnmanagedCallersOnly]
    private static void DecRef(nint value) => At(value).References--;

    [UnmanagedCallersOnly]
    private static nint NewString(char* text, int length) => New(new string(text, 0, length));

    [UnmanagedCallersOnly]
    private static nint NewBytes(byte* bytes, int length) => New(new Span<byte>(bytes, length).ToArray());

    [UnmanagedCallersOnly]
    private static void OnException(nint name, nint text) =>
        Failure = (ValueOf(name) as string, ValueOf(text) as string);

    [UnmanagedCallersOnly]
    private static int CatchAndClear(nint* owner, PyStringArg* text)
    {
        if (PendingError is not { } error)
        {
            return -1;
        }
        PendingError = null;
        NativeMemory.Free((void*)_errorText);
        _errorText = Marshal.StringToHGlobalUni(error);
        *owner = New(error);
        *text = new PyStringArg { Length = error.Length, CharSize = 2, Data = (void*)_errorText };
        return 0;
    }

    [UnmanagedCallersOnly]
    private static int ReadLong(nint value, ulong* number)
    {
        *number = (ulong)(int)ValueOf(value)!;
        return 1;
    }

    [UnmanagedCallersOnly]
    private static nint WriteInt(int value) => New(value);

    [UnmanagedCallersOnly]
    private static nint GetIterator(nint value) => New(((IEnumerable<object>)ValueOf(value)!).GetEnumerator());

    [UnmanagedCallersOnly]
    private static int Length(nint value) => ((List<object>)ValueOf(value)!).Count;

    [UnmanagedCallersOnly]
    private static int Next(nint iterator, nint* keep, VariantArg* item)
    {
        var enumerator = (IEnumerator<object>)ValueOf(iterator)!;
        if (!enumerator.MoveNext())
        {
            return 1;
        }
        if (enumerator.Current is Exception failure)
        {
            PendingError = failure.Message;
            return 2;
        }
        *keep = New(enumerator.Current);
        *item = Variant(enumerator.Current, *keep);
        return 0;
    }

    private static VariantArg Variant(object value, nint handle) =>
        new() { Kind = (int)(value is List<object> ? VariantKind.List : VariantKind.Int), Value = handle };

    [UnmanagedCallersOnly]
    private static int ListGet(nint list, int index, VariantArg* item)
    {
        var items = (List<object>)ValueOf(list)!;
        if ((uint)index >= (uint)items.Count)
        {
            PendingError = "IndexError";
            return -2;
        }
        *item = Variant(items[index], New(items[index]));
        return 0;
    }

    [UnmanagedCallersOnly]
    private static int ListAdd(nint list, nint value)
    {
        var items = (List<object>)ValueOf(list)!;
        items.Add(ValueOf(value)!);
        return items.Count;
    }

    private static Stream File(nint file) => (Stream)ValueOf(file)!;

    [UnmanagedCallersOnly]
    private static int FileWrite(nint file, byte* data, int count)
    {
        FileCalls++;
        File(file).Write(new ReadOnlySpan<byte>(data, count));
        return count + FileLie;
    }

    [UnmanagedCallersOnly]
    private static int FileRead(nint file, byte* data, int count)
    {
        FileCalls++;
        return File(file).Read(new Span<byte>(data, count)) + FileLie;
    }

    [UnmanagedCallersOnly]
    private static long FileSeek(nint file, long offset, int whence) => File(file).Seek(offset, (SeekOrigin)whence);

    [UnmanagedCallersOnly]
    private static int FileFlush(nint file) => 0;

    [UnmanagedCallersOnly]
    private static long FileTell(nint file) => File(file).Position;

    [UnmanagedCallersOnly]
    private static long FileLength(nint file) => File(file).Length;

    [UnmanagedCallersOnly]
    private static int Yes(nint file) => 1;
}
