using System;
using System.Collections.Generic;
using System.Collections.ObjectModel;
using System.Runtime.CompilerServices;
using System.Linq;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>The bodies of the delegates of <see cref="IEnumerable{T}"/>.</summary>
public static unsafe class EnumerableApi<T>
{
    public static int GetEnumerator(nint handle, PyObjectOutArg* result)
    {
        try
        {
            References.Write(Walk(Handles.Self<IEnumerable<T>>(handle)), result);
            return Status.Item;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    private static IEnumerator<T> Walk(IEnumerable<T> items)
    {
        IEnumerator<T> walk = items.GetEnumerator();
        if (typeof(T).IsValueType || walk.GetType() != typeof(List<T>.Enumerator))
        {
            return walk;
        }
        object list = items is Collection<T> collection ? Items(collection) : items;
        return list.GetType() == typeof(List<T>) ? new ListCursor<T>(Unsafe.As<List<T>>(list)) : walk;
    }

    [UnsafeAccessor(UnsafeAccessorKind.Method, Name = "get_Items")]
    private static extern IList<T> Items(Collection<T> collection);
}

/// <summary>The bodies of the delegates of <see cref="IEnumerator{T}"/>.</summary>
public static unsafe class EnumeratorApi<T, TIn, TOut, TCodec>
    where TIn : unmanaged
    where TOut : unmanaged
    where TCodec : struct, ICodec<T, TIn, TOut>
{
    private const int Failed = 2;

    public static int MoveNext(nint handle, TOut* result)
    {
        try
        {
            // The wrapper's type vouches for the object's; asking again would cost as much as the step.
            var enumerator = Unsafe.As<IEnumerator<T>>(Handles.Self<object>(handle));
            if (!enumerator.MoveNext())
            {
                return Status.End;
            }
            *result = TCodec.Write(enumerator.Current);
            return Status.Item;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return Failed;
        }
    }
}

/// <summary>The bodies of the delegates of <see cref="ICollection{T}"/>.</summary>
public static unsafe class CntCollectionApi<T, TIn, TOut, TCodec>
    where TIn : unmanaged
    where TOut : unmanaged
    where TCodec : struct, ICodec<T, TIn, TOut>
{
    public static int SqLength(nint handle)
    {
        try
        {
            return Handles.Self<ICollection<T>>(handle).Count;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static void Add(nint handle, TIn value)
    {
        try
        {
            Handles.Self<ICollection<T>>(handle).Add(TCodec.Read(value));
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
            return Handles.Self<ICollection<T>>(handle).Remove(TCodec.Read(value)) ? 1 : 0;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    public static void Clear(nint handle)
    {
        try
        {
            Handles.Self<ICollection<T>>(handle).Clear();
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    public static int SqInplaceConcat(nint handle, VariantArg* other)
    {
        try
        {
            ICollection<T> collection = Handles.Self<ICollection<T>>(handle);
            if (ManagedItems.Of<T>(Handles.Target(other->Value)) is not { } items)
            {
                return 0;
            }
            foreach (T item in items.ToArray())
            {
                collection.Add(item);
            }
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
            ICollection<T> collection = Handles.Self<ICollection<T>>(handle);
            T[] items = [.. collection];
            if (count <= 0)
            {
                collection.Clear();
            }
            for (int i = 1; i < count; i++)
            {
                Array.ForEach(items, collection.Add);
            }
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    public static int SqContains(nint handle, TIn value)
    {
        try
        {
            return Handles.Self<ICollection<T>>(handle).Contains(TCodec.Read(value)) ? 1 : 0;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    public static int CountOf(nint handle, TIn value) =>
        ReadOnlyCollectionApi<T, TIn, TOut, TCodec>.CountOf(handle, value);
}

/// <summary>The bodies of the delegates of <see cref="IReadOnlyCollection{T}"/>.</summary>
public static unsafe class ReadOnlyCollectionApi<T, TIn, TOut, TCodec>
    where TIn : unmanaged
    where TOut : unmanaged
    where TCodec : struct, ICodec<T, TIn, TOut>
{
    public static int SqLength(nint handle)
    {
        try
        {
            return Handles.Self<IReadOnlyCollection<T>>(handle).Count;
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
            return Handles.Self<IEnumerable<T>>(handle).Contains(TCodec.Read(value)) ? 1 : 0;
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
            T wanted = TCodec.Read(value);
            return Handles.Self<IEnumerable<T>>(handle)
                .Count(item => EqualityComparer<T>.Default.Equals(item, wanted));
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }
}

/// <summary>Managed collections taken over whole.</summary>
internal static class ManagedItems
{
    /// <summary>The items; null when the target is not of such items. An array of uint is not one of int, though
    /// the runtime would take it for one.</summary>
    internal static IEnumerable<T>? Of<T>(object? target) =>
        typeof(T).IsValueType && target is Array && target.GetType() != typeof(T[]) ? null : target as IEnumerable<T>;
}

/// <summary>What only a <see cref="List{T}"/> can do.</summary>
public static class ConcreteListApi<T>
{
    public static void EnsureCapacity(nint handle, int capacity)
    {
        try
        {
            // Room for what comes behind the items that are there.
            List<T> list = Handles.Self<List<T>>(handle);
            list.EnsureCapacity(checked(list.Count + int.Max(capacity, 0)));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }
}
