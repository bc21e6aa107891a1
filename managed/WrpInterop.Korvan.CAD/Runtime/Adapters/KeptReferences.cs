using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// The Python objects that managed objects keep, and when they are given back: after a collection that found their
/// keepers dead. The collector does not know what Python objects weigh, so it is asked for a collection when many
/// were kept since the last one, or when the process has grown since.
/// </summary>
/// <remarks>
/// All of it happens under the interpreter lock, on the thread that Python called on. The collector's own threads,
/// which a forked process does not have, only tell that it ran.
/// </remarks>
internal static class KeptReferences
{
    // What is kept is counted by cost: of files, a process may have 1,024.
    private const int StreamCost = 8;
    private const int MostYoungCost = 1024;
    private const int FewestOld = 256;

    // The size of the process is asked for each time so many were kept, or each time while it grows quickly.
    private const int DefaultInterval = 8;
    private const long QuickGrowth = 8L << 20;
    private const long YoungGrowth = 64L << 20;
    private const long OldGrowth = 256L << 20;

    private const int YoungGenerations = 1;

    // Nothing here has an initial value: a class without a constructor of its statics is asked for them faster.
    private static Entry[]? s_entries;
    private static int s_count;

    // Entries ahead of s_middle lie in the second generation of the collector, those ahead of s_old in the oldest, of
    // which a collection is dear. It is made when they have become half as many again.
    private static int s_middle;
    private static int s_old;
    private static int s_oldAtLast;
    private static (int Any, int Young, int Old) s_collections;

    private static int s_cost;
    private static int s_keptUntilLook;
    private static long s_sizeAtLook;
    private static long s_sizeAtYoung;
    private static long s_sizeAtOld;

    private static bool s_isSettling;
    private static volatile bool s_isDue;

    /// <summary>Counts what is about to be kept, so that <see cref="Settle"/> makes room for it in time.</summary>
    internal static void Note(bool isStream)
    {
        s_cost += isStream ? StreamCost : 1;
        if (--s_keptUntilLook <= 0 || s_cost >= MostYoungCost)
        {
            s_isDue = true;
        }
        // Where nobody settles: items put into a managed collection.
        if (s_cost >= 2 * MostYoungCost)
        {
            Settle();
        }
    }

    internal static void Add(KeptPyReference reference, nint value)
    {
        if (s_entries is null)
        {
            s_entries = new Entry[64];
            _ = new CollectionWatch();
        }
        if (s_count == s_entries.Length)
        {
            Array.Resize(ref s_entries, 2 * s_count);
        }
        s_entries[s_count].Fill(reference, value);
        reference.Place = s_count++;
    }

    internal static void Remove(KeptPyReference reference)
    {
        s_entries![reference.Place].Clear();
        Move(--s_count, reference.Place);
        s_middle = int.Min(s_middle, s_count);
        s_old = int.Min(s_old, s_count);
    }

    /// <summary>Gives back what is dead. Belongs where no call is half done: Python code may run.</summary>
    internal static void Settle()
    {
        if (s_isDue && !s_isSettling)
        {
            SettleNow();
        }
    }

    private static void SettleNow()
    {
        s_isSettling = true;
        s_isDue = false;
        Collect();
        // All of them are off the list before the first one goes: that runs Python code, which may come back here.
        List<nint> dead = TakeDead();
        s_isSettling = false;
        dead.ForEach(PyObjects.DecRef);
    }

    private static void Collect()
    {
        long size = ProcessMemory.Used();
        bool isQuick = size - s_sizeAtLook >= QuickGrowth;
        bool isFirst = s_sizeAtLook == 0;
        s_sizeAtLook = size;
        s_sizeAtYoung = isFirst ? size : long.Min(s_sizeAtYoung, size);
        s_sizeAtOld = isFirst ? size : long.Min(s_sizeAtOld, size);
        if (s_cost >= MostYoungCost || size - s_sizeAtYoung >= YoungGrowth)
        {
            bool isOld = s_old >= s_oldAtLast + (s_oldAtLast / 2) + FewestOld || size - s_sizeAtOld >= OldGrowth;
            GC.Collect(isOld ? GC.MaxGeneration : YoungGenerations, GCCollectionMode.Forced, blocking: true);
            s_cost = 0;
            s_sizeAtYoung = size;
            s_sizeAtOld = isOld ? size : s_sizeAtOld;
        }
        s_keptUntilLook = isQuick ? 1 : DefaultInterval;
    }

    private static List<nint> TakeDead()
    {
        var dead = new List<nint>();
        (int any, int young, int old) = s_collections;
        s_collections = CollectionCounts();
        if (s_collections.Any == any)
        {
            return dead;
        }
        bool isOld = s_collections.Old != old;
        int live = isOld ? 0 : s_old;
        int promoted = 0;
        for (int at = live; at < s_count; at++)
        {
            promoted = at == s_middle ? live : promoted;
            if (s_entries![at].IsAlive)
            {
                Move(at, live++);
            }
            else
            {
                dead.Add(s_entries[at].Value);
                s_entries[at].Clear();
            }
        }
        promoted = s_middle == s_count ? live : promoted;
        s_old = s_collections.Young != young ? promoted : s_old;
        s_count = s_middle = live;
        s_oldAtLast = isOld ? live : s_oldAtLast;
        return dead;
    }

    private static (int Any, int Young, int Old) CollectionCounts() =>
        (GC.CollectionCount(0), GC.CollectionCount(YoungGenerations), GC.CollectionCount(GC.MaxGeneration));

    // The entry that stood there goes where the other one came from: its handle serves again.
    private static void Move(int from, int to)
    {
        if (from != to)
        {
            (s_entries![to], s_entries[from]) = (s_entries[from], s_entries[to]);
            s_entries[to].SetPlace(to);
        }
    }

    private struct Entry
    {
        private GCHandle _keeper;

        internal nint Value { get; private set; }

        internal readonly bool IsAlive => _keeper.Target is not null;

        internal void Fill(KeptPyReference keeper, nint value)
        {
            Value = value;
            if (_keeper.IsAllocated)
            {
                _keeper.Target = keeper;
                return;
            }
            _keeper = GCHandle.Alloc(keeper, GCHandleType.Weak);
        }

        internal void Clear() => _keeper.Target = null;

        internal readonly void SetPlace(int place)
        {
            // Dead ones are moved as well.
            if (_keeper.Target is KeptPyReference keeper)
            {
                keeper.Place = place;
            }
        }
    }

    // Dies in each collection, and says so.
    private sealed class CollectionWatch
    {
        ~CollectionWatch()
        {
            if (s_count > 0)
            {
                s_isDue = true;
            }
            _ = new CollectionWatch();
        }
    }
}
