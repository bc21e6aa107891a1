using System;
using System.Collections;
using System.Runtime.InteropServices;
using Api = Korvan.WrpGen.Generic.ListApi<
    System.Collections.IList, object?, Korvan.WrpGen.Generic.ObjectAccess, nint, nint,
    Korvan.WrpGen.Generic.ObjectCodec>;

namespace Korvan.WrpGen.Interop;

/// <summary>Any managed <see cref="IList"/>, item by item as variants.</summary>
public static unsafe class SiApiCntList
{
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
    public static void SqSetItemNoCheck(nint handle, int index, VariantArg* value) =>
        Api.SqSetItemNoCheck(handle, index, (nint)value);

    [UnmanagedCallersOnly]
    public static void Add(nint handle, VariantArg* value) =>
        Api.Add(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static void Insert(nint handle, int index, VariantArg* value) =>
        Api.Insert(handle, index, (nint)value);

    [UnmanagedCallersOnly]
    public static int Remove(nint handle, VariantArg* value) =>
        Api.Remove(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static int RemoveAt(nint handle, int index) =>
        Api.RemoveAt(handle, index);

    [UnmanagedCallersOnly]
    public static int Pop(nint handle, int hasIndex, int index, nint* result) =>
        Status.OfItem(Api.Pop(handle, hasIndex, index, result), result);

    [UnmanagedCallersOnly]
    public static void Clear(nint handle) =>
        Api.Clear(handle);

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
        Api.MpRemoveItems(handle, start, count, step);

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
    public static int SqContains(nint handle, VariantArg* value)
    {
        PyScope scope = PyScope.Lending();
        try
        {
            // The list's own answer: one of named objects knows them by their names, too.
            return Handles.Self<IList>(handle).Contains(scope.Any(value)) ? 1 : 0;
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
    public static int CountOf(nint handle, VariantArg* value) =>
        Api.CountOf(handle, (nint)value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPyList(nint value) =>
        Proxies.NewList(value);

    [UnmanagedCallersOnly]
    public static nint CreateInstanceFromPySequence(nint value) =>
        Proxies.NewSequence(value);

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) =>
        Casts.IsAssignable<IList>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) =>
        Casts.TypeOf(typeof(IList), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) =>
        Casts.ToReference<IList>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) =>
        Casts.AsReference<IList>(value, result);
}
