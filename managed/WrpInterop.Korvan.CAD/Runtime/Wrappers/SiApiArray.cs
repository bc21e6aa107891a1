using System;
using System.Runtime.InteropServices;
using Api = Korvan.WrpGen.Generic.ListApi<
    System.Collections.IList, object?, Korvan.WrpGen.Generic.ObjectAccess, nint, nint,
    Korvan.WrpGen.Generic.ObjectCodec>;

namespace Korvan.WrpGen.Interop;

/// <summary>Managed arrays of one dimension.</summary>
public static unsafe class SiApiArray
{
    [UnmanagedCallersOnly]
    public static int SqLength(nint handle) =>
        Api.SqLength(handle);

    [UnmanagedCallersOnly]
    public static int SqContains(nint handle, VariantArg* value) =>
        Api.SqContains(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static int SqGetItem(nint handle, int index, nint* result) =>
        Status.OfItem(Api.SqGetItem(handle, index, result), result);

    [UnmanagedCallersOnly]
    public static nint SqGetItemNoCheck(nint handle, int index) =>
        Api.SqGetItemNoCheck(handle, index);

    [UnmanagedCallersOnly]
    public static int SqSetItem(nint handle, int index, VariantArg* value) =>
        Api.SqSetItem(handle, index, (nint)value);

    [UnmanagedCallersOnly]
    public static void SqSetItemNoChek(nint handle, int index, VariantArg* value) =>
        Api.SqSetItemNoCheck(handle, index, (nint)value);

    [UnmanagedCallersOnly]
    public static int MpSetItems(nint handle, VariantArg* value, int start, int count, int step) =>
        Api.MpSetItems(handle, value, start, count, step);

    [UnmanagedCallersOnly]
    public static void Reverse(nint handle) =>
        Api.Reverse(handle);

    [UnmanagedCallersOnly]
    public static void Sort(nint handle, int reverse) =>
        Api.Sort(handle, reverse);

    [UnmanagedCallersOnly]
    public static int IndexBy(nint handle, int hasStart, int start, int hasStop, int stop, VariantArg* value) =>
        Api.IndexBy(handle, hasStart, start, hasStop, stop, (nint)value);

    [UnmanagedCallersOnly]
    public static int CountOf(nint handle, VariantArg* value) =>
        Api.CountOf(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) =>
        Proxies.NewArray(value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPySequence(nint value) =>
        Proxies.NewArray(value);

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) =>
        Casts.IsAssignable<Array>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) =>
        Casts.TypeOf(typeof(Array), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) =>
        Casts.ToReference<Array>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) =>
        Casts.AsReference<Array>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_ReInterpretObj(nint handle, nint* result) =>
        Casts.ReinterpretReference<Array>(handle, result);
}
