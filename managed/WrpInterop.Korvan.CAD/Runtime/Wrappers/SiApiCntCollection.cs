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

    // A dictionary is asked for its keys as well, as Python's are.
    [UnmanagedCallersOnly]
    public static int SqContains(nint handle, VariantArg* value) => Ask(value, wanted =>
        (wanted is string && Handles.Self<ICollection>(handle) is IDictionary entries && entries.Contains(wanted))
        || Count(handle, wanted) > 0 ? 1 : 0);

    [UnmanagedCallersOnly]
    public static int CountOf(nint handle, VariantArg* value) => Ask(value, wanted => Count(handle, wanted));

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

    /// <summary>Puts a question about a value from Python, which is lent for it.</summary>
    internal static int Ask(VariantArg* value, Func<object?, int> question)
    {
        PyScope scope = PyScope.Lending();
        try
        {
            return question(scope.Any(value));
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

    private static int Count(nint handle, object? wanted) =>
        Handles.Self<ICollection>(handle).Cast<object?>().Count(item => Equals(item, wanted));
}
