using System;
using System.Collections;
using System.Runtime.InteropServices;
using Api = Korvan.WrpGen.Generic.ListApi<
    System.Collections.IList, object?, Korvan.WrpGen.Generic.ObjectAccess, nint, nint,
    Korvan.WrpGen.Generic.ObjectCodec>;

namespace Korvan.WrpGen.Interop;

/// <summary>Managed <see cref="ArrayList"/>.</summary>
public static unsafe class SiApiArrayList
{
    [UnmanagedCallersOnly]
    public static int SqLength(nint handle) =>
        Api.SqLength(handle);

    [UnmanagedCallersOnly]
    public static void Add(nint handle, VariantArg* value) =>
        Api.Add(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static int Remove(nint handle, VariantArg* value) =>
        Api.Remove(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static void Clear(nint handle) =>
        Api.Clear(handle);

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
    public static void Insert(nint handle, int index, VariantArg* value) =>
        Api.Insert(handle, index, (nint)value);

    [UnmanagedCallersOnly]
    public static int RemoveAt(nint handle, int index) =>
        Api.RemoveAt(handle, index);

    [UnmanagedCallersOnly]
    public static int Pop(nint handle, int hasIndex, int index, nint* result) =>
        Status.OfItem(Api.Pop(handle, hasIndex, index, result), result);

    [UnmanagedCallersOnly]
    public static int SqInplaceConcat(nint handle, VariantArg* other) =>
        Api.SqInplaceConcat(handle, other);

    [UnmanagedCallersOnly]
    public static void SqInplaceRepeat(nint handle, int count) =>
        Api.SqInplaceRepeat(handle, count);

    [UnmanagedCallersOnly]
    public static int MpSetItems(nint handle, VariantArg* value, int start, int count, int step) =>
        Api.MpSetItems(handle, value, start, count, step);

    [UnmanagedCallersOnly]
    public static void MpRemoveItems(nint handle, int start, int count, int step) =>
        Api.MpRemoveItemsByLowest(handle, start, count, step);

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
    public static void EnsureCapacity(nint handle, int capacity)
    {
        try
        {
            ArrayList list = Handles.Self<ArrayList>(handle);
            list.Capacity = int.Max(list.Capacity, checked(list.Count + int.Max(capacity, 0)));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) =>
        Proxies.NewArrayList(value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPySequence(nint value) =>
        Proxies.NewArrayList(value);

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) =>
        Casts.IsAssignable<ArrayList>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) =>
        Casts.TypeOf(typeof(ArrayList), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) =>
        Casts.ToReference<ArrayList>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) =>
        Casts.AsReference<ArrayList>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_ReInterpretObj(nint handle, nint* result) =>
        Casts.ReinterpretReference<ArrayList>(handle, result);
}
