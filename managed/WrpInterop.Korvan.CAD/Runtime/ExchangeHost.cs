using System;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Where the two sides introduce themselves: the native side hands over its callbacks, starts the
/// managed services, and from then on frees handles and asks for type names here.
/// </summary>
public static unsafe class ExchangeHost
{
    /// <summary>A native holder of the full name of an object's type; the caller frees it.</summary>
    [UnmanagedCallersOnly]
    public static nint GetTypeName(nint handle)
    {
        try
        {
            return NewU16(Handles.Target(handle)?.GetType().FullName ?? "");
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return NewU16("");
        }
    }

    [UnmanagedCallersOnly]
    public static void SetExceptionCallback(nint callback) =>
        PyHost.OnException = (delegate* unmanaged<nint, nint, void>)callback;

    [UnmanagedCallersOnly]
    public static void SetCatchAndClearErrorCallback(nint callback) =>
        PyHost.CatchAndClearError = (delegate* unmanaged<nint*, PyStringArg*, int>)callback;

    [UnmanagedCallersOnly]
    public static void SetU16StrBuilderCallback(nint callback) =>
        PyHost.NewU16Buffer = (delegate* unmanaged<char*, int, nint>)callback;

    [UnmanagedCallersOnly]
    public static void SetPyStrBuilderCallback(nint callback) =>
        PyHost.NewString = (delegate* unmanaged<char*, int, nint>)callback;

    [UnmanagedCallersOnly]
    public static void SetPyUnraisableStrBuilderCallback(nint callback) =>
        PyHost.NewStringUnraisable = (delegate* unmanaged<char*, int, nint>)callback;

    [UnmanagedCallersOnly]
    public static void SetPyBytesBuilderCallback(nint callback) =>
        PyHost.NewBytes = (delegate* unmanaged<byte*, int, nint>)callback;

    [UnmanagedCallersOnly]
    public static void SetPyObjApiCallbacks(nint table) => PyObjects.SetTable((void**)table);

    [UnmanagedCallersOnly]
    public static void SetPyStaticCallbacks(nint tables) => PyTables.Set((void***)tables);

    [UnmanagedCallersOnly]
    public static void SetPyGenericCallbacks(nint tables) => PyHost.GenericTables = (void***)tables;

    /// <summary>Frees the handles that pending arguments hold; Python objects in them are borrowed.</summary>
    [UnmanagedCallersOnly]
    public static void FreePendingArgs(nint arguments, int count)
    {
        try
        {
            for (int i = 0; i < count; i++)
            {
                FreePending((VariantArg*)arguments + i);
            }
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    [UnmanagedCallersOnly]
    public static void FreeInstance(nint handle)
    {
        try
        {
            Handles.Free(handle);
            KeptReferences.Settle();
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>Runs the paths that every call takes once, so that the first call finds them ready.</summary>
    [UnmanagedCallersOnly]
    public static void InitServices()
    {
        try
        {
            nint handle = Handles.New(typeof(ExchangeHost));
            _ = Handles.Object<Type>(handle);
            Handles.Free(handle);
            Interruption.Install();
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>A new handle, of a copy of the struct behind a handle.</summary>
    [UnmanagedCallersOnly]
    public static nint BoxStcTarget(nint handle)
    {
        try
        {
            return Handles.New(RuntimeHelpers.GetObjectValue(Handles.Target(handle)));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>How many handles Python holds.</summary>
    [UnmanagedCallersOnly]
    public static long GetLiveHandleCount() => Handles.LiveCount;

    private static void FreePending(VariantArg* argument)
    {
        if ((ReferenceKind)argument->Kind <= ReferenceKind.Struct)
        {
            Handles.Free(argument->Value);
            argument->Value = 0;
        }
    }

    private static nint NewU16(string text)
    {
        fixed (char* start = text)
        {
            return PyHost.NewU16Buffer(start, text.Length);
        }
    }
}
