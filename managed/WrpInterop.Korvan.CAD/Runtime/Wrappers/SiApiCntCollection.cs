using System;
using System.Collections;
using System.Linq;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>Any managed <see cref="ICollection"/>.</summary>
public static unsafe class SiApiCntCollection
{
    [UnmanagedCallersOnly]
    public static int SqLength(nint handle)
    {
        try
        {
            return Handles.Self<ICollection>(handle).Count;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static int SqContains(nint handle, VariantArg* value)
    {
        PyScope scope = PyScope.Lending();
        try
        {
            // A dictionary is asked for its keys as well, as Python's are.
            object? wanted = scope.Any(value);
            return wanted is string key && Handles.Self<ICollection>(handle) is IDictionary entries && entries.Contains(key)
                ? 1
                : Math.Sign(Count(handle, value));
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
        finally
        {
            scope.End();
        }
    }

    [UnmanagedCallersOnly]
    public static int CountOf(nint handle, VariantArg* value) => Count(handle, value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) => Proxies.NewList(value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyIterable(nint value) => Proxies.NewCollection(value);

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) => Casts.IsAssignable<ICollection>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) => Casts.TypeOf(typeof(ICollection), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) => Casts.ToReference<ICollection>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) => Casts.AsReference<ICollection>(value, result);

    private static int Count(nint handle, VariantArg* value)
    {
        PyScope scope = PyScope.Lending();
        try
        {
            object? wanted = scope.Any(value);
            return Handles.Self<ICollection>(handle).Cast<object?>().Count(item => Equals(item, wanted));
        }
        catch (Exception e)
        {
            scope.Fail(e);
            return Status.Failed;
        }
        finally
        {
            scope.End();
        }
    }
}
