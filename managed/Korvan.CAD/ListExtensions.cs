using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;

namespace Korvan.CAD;

/// <summary>Extensions of lists.</summary>
internal static class ListExtensions
{
    internal static void AddRange<T>(this IList<T> list, IEnumerable<T> items)
    {
        foreach (T item in items)
        {
            list.Add(item);
        }
    }

    /// <summary>Reserves capacity for items that a file announces.</summary>
    internal static void EnsureCapacity<T>(this IList<T> list, int capacity)
        where T : class => ItemsOf(list).EnsureCapacity(capacity);

    internal static T? Find<T>(this IList<T> list, Predicate<T> match)
        where T : class => ItemsOf(list).Find(match);

    internal static void ForEach<T>(this IList<T> list, Action<T> action)
        where T : class => ItemsOf(list).ForEach(action);

    internal static List<T> FindAll<T>(this IList<T> list, Predicate<T> match)
        where T : class => ItemsOf(list).FindAll(match);

    internal static bool Exists<T>(this IList<T> list, Predicate<T> match)
        where T : class => ItemsOf(list).Exists(match);

    internal static List<TOut> ConvertAll<T, TOut>(this IList<T> list, Converter<T, TOut> convert)
        where T : class => ItemsOf(list).ConvertAll(convert);

    internal static int RemoveAll<T>(this IList<T> list, Predicate<T> match)
    {
        int before = list.Count;
        for (int i = list.Count - 1; i >= 0; i--)
        {
            if (match(list[i]))
            {
                list.RemoveAt(i);
            }
        }

        return before - list.Count;
    }

    /// <summary>Returns the items as a list that only its owner may change.</summary>
    internal static List<T> ItemsOf<T>(this IList<T> list)
        where T : class => (list as CheckedList<T>)?.Items ?? (list as List<T>) ?? [.. list];
}
