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
    private const int MaxYoungCost = 1024;
    private const int MinOld = 256;

    // The size of the process is asked for each time so many were kept, or each time while it grows quickly.
    private const int DefaultInterval = 8;
    private const long QuickGrowth = 8L << 20;
    private const long YoungGrowth = 64L << 20;
    private const long OldGrowth = 256L << 20;

    private const int YoungGenerations = 1;

    // Nothing here has an initial value: a class without a constructor of its statics is asked for them faster.
    private static Entry[]? _entries;
    private static int _count;

    // Entries ahead of _middle lie in the second generation of the collector, those ahead of _old in the oldest, of
    // which a collection is expensive. It is made when they have become half as many again.
    private static int _middle;
    private static int _old;
    private static int _oldAtLast;
    private static (int Any, int Young, int Old) _collections;

    private static int _cost;
    private static int _keptUntilCheck;
    private static long _sizeAtCheck;
    private static long _sizeAtYoung;
    private static long _sizeAtOld;

    private static bool _isSettling;
    private static volatile bool _isDue;

    /// <summary>Counts what is about to be kept, so that <see cref="Settle"/> makes room for it in time.</summary>
    internal static void Note(bool isStream)
    {
        _cost += isStream ? StreamCost : 1;
        if (--_keptUntilCheck <= 0 || _cost >= MaxYoungCost)
        {
            _isDue = true;
        }
        // Where nobody settles: items put into a managed collection.
        if (_cost >= 2 * MaxYoungCost)
        {
            Settle();
        }
    }

    internal static void Add(KeptPyReference reference, nint value)
    {
        if (_entries is null)
        {
            _entries = new Entry[64];
            _ = new CollectionWatch();
        }
        if (_count == _entries.Length)
        {
            Array.Resize(ref _entries, 2 * _count);
        }
        _entries[_count].Fill(reference, value);
        reference.Place = _count++;
    }

    internal static void Remove(KeptPyReference reference)
    {
        _entries![reference.Place].Clear();
        Move(--_count, reference.Place);
        _middle = int.Min(_middle, _count);
        _old = int.Min(_old, _count);
    }

    /// <summary>Gives back what is dead. Belongs where no call is half done: Python code may run.</summary>
    internal static void Settle()
    {
        if (_isDue && !_isSettling)
        {
            SettleNow();
        }
    }

    private static void SettleNow()
    {
        _isSettling = true;
        _isDue = false;
        Collect();
        // All of them are off the list before the first one goes: that runs Python code, which may come back here.
        List<nint> dead = TakeDead();
        _isSettling = false;
        dead.ForEach(PyObjects.DecRef);
    }

    private static void Collect()
    {
        long size = ProcessMemory.Used();
        bool isQuick = size - _sizeAtCheck >= QuickGrowth;
        bool isFirst = _sizeAtCheck == 0;
        _sizeAtCheck = size;
        _sizeAtYoung = isFirst ? size : long.Min(_sizeAtYoung, size);
        _sizeAtOld = isFirst ? size : long.Min(_sizeAtOld, size);
        if (_cost >= MaxYoungCost || size - _sizeAtYoung >= YoungGrowth)
        {
            bool isOld = _old >= _oldAtLast + (_oldAtLast / 2) + MinOld || size - _sizeAtOld >= OldGrowth;
            GC.Collect(isOld ? GC.MaxGeneration : YoungGenerations, GCCollectionMode.Forced, blocking: true);
            _cost = 0;
            _sizeAtYoung = size;
            _sizeAtOld = isOld ? size : _sizeAtOld;
        }
        _keptUntilCheck = isQuick ? 1 : DefaultInterval;
    }

    private static List<nint> TakeDead()
    {
        var dead = new List<nint>();
        (int any, int young, int old) = _collections;
        _collections = CollectionCounts();
        if (_collections.Any == any)
        {
            return dead;
        }
        bool isOld = _collections.Old != old;
        int live = isOld ? 0 : _old;
        int promoted = 0;
        for (int at = live; at < _count; at++)
        {
            promoted = at == _middle ? live : promoted;
            if (_entries![at].IsAlive)
            {
                Move(at, live++);
            }
            else
            {
                dead.Add(_entries[at].Value);
                _entries[at].Clear();
            }
        }
        promoted = _middle == _count ? live : promoted;
        _old = _collections.Young != young ? promoted : _old;
        _count = _middle = live;
        _oldAtLast = isOld ? live : _oldAtLast;
        return dead;
    }

    private static (int Any, int Young, int Old) CollectionCounts() =>
        (GC.CollectionCount(0), GC.CollectionCount(YoungGenerations), GC.CollectionCount(GC.MaxGeneration));

    // The entry that stood there goes where the other one came from: its handle serves again.
    private static void Move(int from, int to)
    {
        if (from != to)
        {
            (_entries![to], _entries[from]) = (_entries[from], _entries[to]);
            _entries[to].SetPlace(to);
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
            if (_count > 0)
            {
                _isDue = true;
            }
            _ = new CollectionWatch();
        }
    }
}
