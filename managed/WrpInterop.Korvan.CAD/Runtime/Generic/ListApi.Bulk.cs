using System;
using System.Collections;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

// Operations on many items at once.
public static unsafe partial class ListApi<TList, T, TAccess, TIn, TOut, TCodec>
{
    /// <summary>1 when the other is a managed collection whose items fit, and they are appended.</summary>
    public static int SqInplaceConcat(nint handle, VariantArg* other)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if (!TryTakeItems(other, out List<T> items))
            {
                return 0;
            }
            Append(list, items);
            return 1;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static void SqInplaceRepeat(nint handle, int count)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if (count <= 0)
            {
                TAccess.Clear(list);
                return;
            }
            List<T> items = Snapshot(list);
            for (int i = 1; i < count && items.Count > 0; i++)
            {
                Append(list, items);
            }
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>1 when the value is a managed collection of that many fitting items, which are now
    /// at start, start + step and so on.</summary>
    public static int MpSetItems(nint handle, VariantArg* value, int start, int count, int step)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if (!TryTakeItems(value, out List<T> items) || items.Count != count)
            {
                return 0;
            }
            for (int i = 0; i < count; i++)
            {
                TAccess.Set(list, start + (i * step), items[i]);
            }
            return 1;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>Removes from the highest index down: the caller has turned the walk around.</summary>
    public static void MpRemoveItems(nint handle, int start, int count, int step)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            if (count > 0)
            {
                // Of a single item, the step means nothing and may be anything.
                TAccess.RemoveEach(list, start + ((count - 1) * step), count, count == 1 ? 1 : -step);
            }
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>As <see cref="MpRemoveItems"/>, but a step of -1 gives a block by its lowest index.</summary>
    public static void MpRemoveItemsByLowest(nint handle, int start, int count, int step)
    {
        bool isBlock = step == -1 && count > 0;
        MpRemoveItems(handle, isBlock ? start + count - 1 : start, count, step);
    }

    public static void Reverse(nint handle)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            List<T> items = Snapshot(list);
            items.Reverse();
            Store(list, items);
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    /// <summary>A stable sort, also in reverse, as Python's is.</summary>
    public static void Sort(nint handle, int reverse)
    {
        try
        {
            TList list = Handles.Self<TList>(handle);
            List<T> items = Snapshot(list);
            Store(list, reverse != 0 ? items.OrderDescending() : items.Order());
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    private static bool TryTakeItems(VariantArg* value, out List<T> items)
    {
        items = [];
        object? target = Handles.Target(value->Value);
        if (ManagedItems.Of<T>(target) is { } same)
        {
            items.AddRange(same);
            return true;
        }
        if (target is not IEnumerable source)
        {
            return false;
        }
        foreach (object? item in source)
        {
            if (item is not T && !(item is null && default(T) is null))
            {
                return false;
            }
            items.Add((T)item!);
        }
        return true;
    }

    private static List<T> Snapshot(TList list)
    {
        int count = TAccess.Count(list);
        var items = new List<T>(count);
        for (int i = 0; i < count; i++)
        {
            items.Add(TAccess.Get(list, i));
        }
        return items;
    }

    private static void Append(TList list, List<T> items)
    {
        foreach (T item in items)
        {
            TAccess.Insert(list, TAccess.Count(list), item);
        }
    }

    private static void Store(TList list, IEnumerable<T> items)
    {
        int index = 0;
        foreach (T item in items)
        {
            TAccess.Set(list, index++, item);
        }
    }
}
