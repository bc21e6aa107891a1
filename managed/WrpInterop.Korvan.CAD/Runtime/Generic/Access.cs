using System;
using System.Collections;
using System.Collections.Generic;

namespace Korvan.WrpGen.Generic;

/// <summary>The few operations that all list bodies are made of, over one kind of managed list.</summary>
public interface IListAccess<TList, T>
{
    static abstract int Count(TList list);

    static abstract T Get(TList list, int index);

    static abstract void Set(TList list, int index, T value);

    static abstract void Insert(TList list, int index, T value);

    static abstract void RemoveAt(TList list, int index);

    /// <summary>Removes the items at <paramref name="lowest"/>, <paramref name="step"/> behind it and so on.</summary>
    static abstract void RemoveEach(TList list, int lowest, int count, int step);

    static abstract void Clear(TList list);
}

/// <summary>Any <see cref="IList"/>: items are objects.</summary>
public readonly struct ObjectAccess : IListAccess<IList, object?>
{
    public static int Count(IList list) => list.Count;

    public static object? Get(IList list, int index) => list[index];

    public static void Set(IList list, int index, object? value) => list[index] = value;

    public static void Insert(IList list, int index, object? value) => list.Insert(index, value);

    public static void RemoveAt(IList list, int index) => list.RemoveAt(index);

    public static void RemoveEach(IList list, int lowest, int count, int step)
    {
        // A class derived from it sees each removal.
        if (step == 1 && list.GetType() == typeof(ArrayList))
        {
            ((ArrayList)list).RemoveRange(lowest, count);
            return;
        }
        Removal.OneByOne(count, at => list.RemoveAt(lowest + (at * step)));
    }

    public static void Clear(IList list) => list.Clear();
}

/// <summary><see cref="List{T}"/> itself, without a detour over its interfaces.</summary>
public readonly struct ListAccess<T> : IListAccess<List<T>, T>
{
    public static int Count(List<T> list) => list.Count;

    public static T Get(List<T> list, int index) => list[index];

    public static void Set(List<T> list, int index, T value) => list[index] = value;

    public static void Insert(List<T> list, int index, T value) => list.Insert(index, value);

    public static void RemoveAt(List<T> list, int index) => list.RemoveAt(index);

    public static void RemoveEach(List<T> list, int lowest, int count, int step)
    {
        if (step == 1)
        {
            list.RemoveRange(lowest, count);
            return;
        }
        int from = -lowest;
        list.RemoveAll(_ =>
        {
            int at = from++;
            return at >= 0 && at % step == 0 && at / step < count;
        });
    }

    public static void Clear(List<T> list) => list.Clear();
}

/// <summary>Arrays, whose length stands.</summary>
public readonly struct ArrayAccess<T> : IListAccess<T[], T>
{
    public static int Count(T[] list) => list.Length;

    public static T Get(T[] list, int index) => list[index];

    public static void Set(T[] list, int index, T value) => list[index] = value;

    public static void Insert(T[] list, int index, T value) => throw FixedSize();

    public static void RemoveAt(T[] list, int index) => throw FixedSize();

    public static void RemoveEach(T[] list, int lowest, int count, int step) => throw FixedSize();

    public static void Clear(T[] list) => throw FixedSize();

    private static NotSupportedException FixedSize() => new("An array can't change its length.");
}

/// <summary>Anything that is an <see cref="IList{T}"/>.</summary>
public readonly struct InterfaceAccess<T> : IListAccess<IList<T>, T>
{
    public static int Count(IList<T> list) => list.Count;

    public static T Get(IList<T> list, int index) => list[index];

    public static void Set(IList<T> list, int index, T value) => list[index] = value;

    public static void Insert(IList<T> list, int index, T value) => list.Insert(index, value);

    public static void RemoveAt(IList<T> list, int index) => list.RemoveAt(index);

    public static void RemoveEach(IList<T> list, int lowest, int count, int step)
    {
        if (list is List<T> items)
        {
            ListAccess<T>.RemoveEach(items, lowest, count, step);
            return;
        }
        Removal.OneByOne(count, at => list.RemoveAt(lowest + (at * step)));
    }

    public static void Clear(IList<T> list) => list.Clear();
}

/// <summary>Lists that can only be read.</summary>
public readonly struct ReadOnlyAccess<T> : IListAccess<IReadOnlyList<T>, T>
{
    public static int Count(IReadOnlyList<T> list) => list.Count;

    public static T Get(IReadOnlyList<T> list, int index) => list[index];

    public static void Set(IReadOnlyList<T> list, int index, T value) => throw ReadOnly();

    public static void Insert(IReadOnlyList<T> list, int index, T value) => throw ReadOnly();

    public static void RemoveAt(IReadOnlyList<T> list, int index) => throw ReadOnly();

    public static void RemoveEach(IReadOnlyList<T> list, int lowest, int count, int step) => throw ReadOnly();

    public static void Clear(IReadOnlyList<T> list) => throw ReadOnly();

    private static NotSupportedException ReadOnly() => new("The list can only be read.");
}

internal static class Removal
{
    /// <summary>From the last one down, so that the others stay where they are.</summary>
    internal static void OneByOne(int count, Action<int> remove)
    {
        while (--count >= 0)
        {
            remove(count);
        }
    }
}
