using System;
using System.Collections;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

public static unsafe class SiApiDisposable
{
    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) => Casts.IsAssignable<IDisposable>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) => Casts.TypeOf(typeof(IDisposable), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) => Casts.ToReference<IDisposable>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) => Casts.AsReference<IDisposable>(value, result);
}

public static unsafe class SiApiEnumerator
{
    private const int Failed = 2;

    [UnmanagedCallersOnly]
    public static int MoveNext(nint handle, nint* item)
    {
        try
        {
            IEnumerator enumerator = Handles.Self<IEnumerator>(handle);
            if (!enumerator.MoveNext())
            {
                return Status.End;
            }
            *item = PyWriter.Write(enumerator.Current);
            return *item == 0 ? Failed : Status.Item;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return Failed;
        }
    }

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) => Casts.IsAssignable<IEnumerator>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) => Casts.TypeOf(typeof(IEnumerator), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) => Casts.ToReference<IEnumerator>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) => Casts.AsReference<IEnumerator>(value, result);
}

public static unsafe class SiApiEnumerable
{
    [UnmanagedCallersOnly]
    public static int GetEnumerator(nint handle, PyObjectOutArg* result)
    {
        try
        {
            References.Write(Handles.Self<IEnumerable>(handle).GetEnumerator(), result);
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyIterable(nint value) => Proxies.NewIterable(value);

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) => Casts.IsAssignable<IEnumerable>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) => Casts.TypeOf(typeof(IEnumerable), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) => Casts.ToReference<IEnumerable>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) => Casts.AsReference<IEnumerable>(value, result);
}

/// <summary>Handles of managed faces of Python objects, which keep their object alive.</summary>
internal static class Proxies
{
    internal static nint NewIterable(nint value) => New(value, static reference => new PyIterable(reference));

    internal static nint NewCollection(nint value) => New(value, static reference => new PyCollection(reference));

    internal static nint NewList(nint value) => New(value, static reference => new PyList(reference));

    internal static nint NewSequence(nint value) => New(value, static reference => new PySequence(reference));

    /// <summary>A copy: the base classes of collections can't be stood in for.</summary>
    internal static nint NewArrayList(nint value) =>
        New(value, static reference => new ArrayList(new PyCollection(reference)));

    internal static nint NewArray(nint value) =>
        New(value, static reference => new ArrayList(new PyCollection(reference)).ToArray());

    internal static nint Unsupported(Type type)
    {
        Boundary.Fail(new NotSupportedException($"A Python object can't stand in for {type.Name}."));
        return 0;
    }

    private static nint New(nint value, Func<PyReference, object> make)
    {
        try
        {
            return Handles.New(make(PyReference.Kept(value)));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }
}
