using System.Collections;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>Collections that are lists by their base class.</summary>
public static unsafe class SiApiCollectionBase
{
    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) =>
        Proxies.Unsupported(typeof(CollectionBase));

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPySequence(nint value) =>
        Proxies.Unsupported(typeof(CollectionBase));

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) =>
        Casts.IsAssignable<CollectionBase>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) =>
        Casts.TypeOf(typeof(CollectionBase), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) =>
        Casts.ToReference<CollectionBase>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) =>
        Casts.AsReference<CollectionBase>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_ReInterpretObj(nint handle, nint* result) =>
        Casts.ReinterpretReference<CollectionBase>(handle, result);
}

/// <summary>Collections that are read only by their base class.</summary>
public static unsafe class SiApiReadOnlyCollectionBase
{
    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) =>
        Proxies.Unsupported(typeof(ReadOnlyCollectionBase));

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPySequence(nint value) =>
        Proxies.Unsupported(typeof(ReadOnlyCollectionBase));

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) =>
        Casts.IsAssignable<ReadOnlyCollectionBase>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) =>
        Casts.TypeOf(typeof(ReadOnlyCollectionBase), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) =>
        Casts.ToReference<ReadOnlyCollectionBase>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) =>
        Casts.AsReference<ReadOnlyCollectionBase>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_ReInterpretObj(nint handle, nint* result) =>
        Casts.ReinterpretReference<ReadOnlyCollectionBase>(handle, result);
}
