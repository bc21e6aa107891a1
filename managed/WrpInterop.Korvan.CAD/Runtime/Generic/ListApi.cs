using System;
using System.Collections.Generic;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>
/// The bodies of the list delegates, for every kind of list and every element type. Indices come
/// from Python already adjusted to the length, save where a body says otherwise.
/// </summary>
public static unsafe partial class ListApi<TList, T, TAccess, TIn, TOut, TCodec>
    where TList : class
    where TAccess : struct, IListAccess<TList, T>
    where TIn : unmanaged
    where TOut : unmanaged
    where TCodec : struct, ICodec<T, TIn, TOut>
{
    public static int SqLength(nint handle)
    {
        try
        {
            return TAccess.Count(Handles.Self<TList>(handle));
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static int SqGetItem(nint handle, int index, TOut* result)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if ((uint)index >= (uint)TAccess.Count(list))
            {
                return Status.OutOfRange;
            }
            *result = TCodec.Write(TAccess.Get(list, index));
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static TOut SqGetItemNoCheck(nint handle, int index)
    {
        try
        {
            return TCodec.Write(TAccess.Get(Handles.Self<TList>(handle), index));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return default;
        }
    }

    public static int SqSetItem(nint handle, int index, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if ((uint)index >= (uint)TAccess.Count(list))
            {
                return Status.OutOfRange;
            }
            TAccess.Set(list, index, TCodec.Read(value));
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static void SqSetItemNoCheck(nint handle, int index, TIn value)
    {
        try
        {
            TAccess.Set(Handles.Self<TList>(handle), index, TCodec.Read(value));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    public static void Add(nint handle, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            TAccess.Insert(list, TAccess.Count(list), TCodec.Read(value));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>Takes any index and clamps it, as a Python list does.</summary>
    public static void Insert(nint handle, int index, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            TAccess.Insert(list, Clamp(index, TAccess.Count(list)), TCodec.Read(value));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    public static int Remove(nint handle, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            int index = Find(list, TCodec.Read(value), 0, TAccess.Count(list));
            if (index < 0)
            {
                return 0;
            }
            TAccess.RemoveAt(list, index);
            return 1;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    public static int RemoveAt(nint handle, int index)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if ((uint)index >= (uint)TAccess.Count(list))
            {
                return Status.OutOfRange;
            }
            TAccess.RemoveAt(list, index);
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>Takes an index as given: a negative one counts from the end.</summary>
    public static int Pop(nint handle, int hasIndex, int index, TOut* result)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            int count = TAccess.Count(list);
            if (count == 0)
            {
                return Status.End;
            }
            int at = hasIndex == 0 ? count - 1 : index < 0 ? index + count : index;
            if ((uint)at >= (uint)count)
            {
                return Status.OutOfRange;
            }
            T item = TAccess.Get(list, at);
            TAccess.RemoveAt(list, at);
            *result = TCodec.Write(item);
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static void Clear(nint handle)
    {
        try
        {
            TAccess.Clear(Handles.Self<TList>(handle));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>Takes the bounds as given, as Python's list.index does.</summary>
    public static int IndexBy(nint handle, int hasStart, int start, int hasStop, int stop, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            int count = TAccess.Count(list);
            int from = hasStart == 0 ? 0 : Clamp(start, count);
            int to = hasStop == 0 ? count : Clamp(stop, count);
            return Find(list, TCodec.Read(value), from, to);
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static int SqContains(nint handle, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            return Find(list, TCodec.Read(value), 0, TAccess.Count(list)) >= 0 ? 1 : 0;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static int CountOf(nint handle, TIn value)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            T wanted = TCodec.Read(value);
            int result = 0;
            for (int i = 0; i < TAccess.Count(list); i++)
            {
                result += EqualityComparer<T>.Default.Equals(TAccess.Get(list, i), wanted) ? 1 : 0;
            }
            return result;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    private static int Find(TList list, T wanted, int from, int to)
    {
        for (int i = from; i < to; i++)
        {
            if (EqualityComparer<T>.Default.Equals(TAccess.Get(list, i), wanted))
            {
                return i;
            }
        }
        return -1;
    }

    private static int Clamp(int index, int count) =>
        int.Clamp(index < 0 ? index + count : index, 0, count);
}
