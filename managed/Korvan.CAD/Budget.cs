using System;
using System.Collections.Generic;
using System.Threading;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Geometry;

namespace Korvan.CAD;

/// <summary>
/// What one load or save may take: time, memory and steps of work. Memory and steps are in proportion to the file, so
/// that a small file cannot exhaust the machine. Everything that is made of a file on the calling thread, or on threads
/// that work for it, counts against the budget of the call.
/// </summary>
internal sealed class Budget : IDisposable
{
    /// <summary>The name under which the host of the library leaves a function that returns whether the user has
    /// interrupted the call.</summary>
    internal const string InterruptionName = "Korvan.IsInterrupted";

    /// <summary>The memory for the smallest file.</summary>
    internal const long MinMemory = 192L << 20;

    /// <summary>The memory for each byte of larger files.</summary>
    internal const int MemoryPerByte = 44;

    /// <summary>The memory that stands for one step, which takes about 5 µs: drawing an entity, a dash, a
    /// glyph.</summary>
    private const int MemoryPerStep = 192;
    private const long PollInterval = 10; // milliseconds

    /// <summary>The part of the memory that a collection needs while it moves objects.</summary>
    private const int CollectionShare = 16;

    /// <summary>The part of the memory that each cache may take.</summary>
    private const int KeptShare = 8;

    /// <summary>The part of the memory that a page takes besides its pixels.</summary>
    private const int PageShare = 3;
    private const long MinUnsettled = 48L << 20;
    private const long MaxUnsettled = 128L << 20;

    /// <summary>The memory that a call on another thread is taken to need, where it has no limit itself.</summary>
    private const long MaxOther = 1L << 30;

    [ThreadStatic]
    private static Budget? _current;
    [ThreadStatic]
    private static Func<bool>? _question;
    private static long _settled;
    private static volatile bool _hasLeftGarbage;

    private static readonly Lock ActiveLock = new();
    private static readonly List<Budget> Active = [];

    private readonly Budget? _outer;
    private readonly int _owner = Environment.CurrentManagedThreadId;
    private readonly Func<bool>? _isInterrupted = _question ?? AppContext.GetData(InterruptionName) as Func<bool>;
    private readonly long _deadline;
    private readonly int _timeout;
    private readonly long _heapAtStart;
    private long _maxSteps;
    private long _nextPoll;
    private long _nextCollection;
    private long _pixels;
    private long _others;
    private long _steps;
    private Exception? _end;

    static Budget()
    {
        Workload.Counter = Step;
        Workload.Limiter = VerifyRoom;
    }

    private Budget(long memory, long maxSteps, int timeout)
    {
        SettleHeap(memory);
        _outer = _current;
        _timeout = timeout;
        _deadline = timeout > 0 ? Environment.TickCount64 + timeout : long.MaxValue;
        _heapAtStart = GC.GetTotalMemory(false);
        Memory = memory;
        _maxSteps = maxSteps;
        AddToActive();
    }

    /// <summary>Gets the budget of the call that runs on this thread.</summary>
    internal static Budget? Current => _current;

    /// <summary>Gets the bytes that the call may take.</summary>
    internal long Memory { get; private set; }

    /// <summary>Gets the managed memory that the call has taken so far, in bytes.</summary>
    internal long Taken => GC.GetTotalMemory(false) - _heapAtStart;

    /// <summary>Gets the memory that pixels of the call take now, in bytes.</summary>
    internal long PixelMemory => Interlocked.Read(ref _pixels);

    /// <summary>Begins a call; disposing the result ends it.</summary>
    /// <param name="sourceLength">The length of the file in bytes; null for content that is not from a file, which has
    /// no limits of memory and steps.</param>
    /// <param name="timeout">The time in milliseconds; 0 for no limit.</param>
    /// <param name="loaded">The memory that the file has taken before.</param>
    internal static Budget Begin(long? sourceLength, int timeout = 0, long loaded = 0)
    {
        if (sourceLength is not long length)
        {
            return _current = new Budget(long.MaxValue, long.MaxValue, timeout);
        }

        long whole = Math.Max(length * MemoryPerByte, Cache.MemoryOfOneFile);
        long all = Math.Max(MinMemory, whole);
        long left = Math.Clamp(all - Math.Max(loaded, 0), MinMemory / 2, all);
        return _current = new Budget(left, Math.Max(MinMemory, whole) / MemoryPerStep, timeout);
    }

    /// <summary>Makes a thread work for a call until the result is disposed.</summary>
    internal static ThreadShare Share(Budget? budget)
    {
        Budget? own = _current;
        _current = budget;
        return new ThreadShare(own);
    }

    /// <summary>Lets calls of this thread, which is the library's own, ask a question instead of the user, and count
    /// for nobody else, until the result is disposed.</summary>
    internal static ThreadQuestion Ask(Func<bool> isInterrupted)
    {
        _question = isInterrupted;
        return default;
    }

    /// <summary>Ends the call if its time is over, if the user interrupts it, or if it has taken too much memory.
    /// Takes next to no time, so that loops call it at each step.</summary>
    internal static void Check()
    {
        if (_current is { } budget && Environment.TickCount64 >= budget._nextPoll)
        {
            budget.Poll();
        }
    }

    /// <summary>Counts steps of work.</summary>
    /// <exception cref="LimitMemoryException">The call has taken all its steps.</exception>
    internal static void Step(long count = 1)
    {
        if (_current is not { } budget)
        {
            return;
        }

        if (Interlocked.Add(ref budget._steps, count) > budget._maxSteps)
        {
            throw budget.End(new LimitMemoryException(
                $"The file takes more than {budget._maxSteps} steps to be drawn or converted, the limit for a file of "
                + $"its size; {Cache.HowToRaise}."));
        }

        Check();
    }

    /// <summary>Throws if an array of a length, in bytes, would take more memory than is left.</summary>
    internal static void VerifyRoom(long bytes)
    {
        if (_current is { } budget && bytes > 1 << 20)
        {
            budget.VerifyHeap(bytes);
        }
    }

    /// <summary>Returns how many things of a size may be kept to save time: at most a number, and no more than a small
    /// part of the memory that the call may take.</summary>
    internal static int Room(int most, int bytes) => _current is { } budget
        ? (int)Math.Min(most, (budget.Memory - budget.PixelMemory) / KeptShare / bytes)
        : most;

    /// <summary>Adds what the call may take for a further file.</summary>
    internal void AddSource(long length)
    {
        if (Memory < long.MaxValue)
        {
            Memory += length * MemoryPerByte;
            _maxSteps += length * MemoryPerByte / MemoryPerStep;
        }
    }

    /// <summary>Takes memory for pixels if there is enough left.</summary>
    /// <param name="bytes">The memory.</param>
    /// <param name="forPage">Whether a page is drawn into the pixels, which takes memory itself.</param>
    internal bool TryTakePixels(long bytes, bool forPage = false)
    {
        if (Interlocked.Add(ref _pixels, bytes) <= Memory - (forPage ? Memory / PageShare : 0))
        {
            return true;
        }

        ReturnPixels(bytes);
        return false;
    }

    /// <summary>Gives back what <see cref="TryTakePixels"/> took.</summary>
    internal void ReturnPixels(long bytes) => Interlocked.Add(ref _pixels, -bytes);

    /// <summary>Looks at clock, user and memory without delay.</summary>
    internal void Poll()
    {
        long now = Environment.TickCount64;
        Volatile.Write(ref _nextPoll, now + PollInterval);
        if (_end is not null)
        {
            throw End(_end);
        }

        if (now >= _deadline)
        {
            throw End(new OperationInterruptedException(
                $"The export was not done after {_timeout} milliseconds, the time that its options allow."));
        }

        if (Environment.CurrentManagedThreadId == _owner && _isInterrupted?.Invoke() == true)
        {
            throw End(new OperationInterruptedException("The call was interrupted."));
        }

        VerifyHeap(0);
    }

    /// <inheritdoc/>
    public void Dispose()
    {
        _current = _outer;
        lock (ActiveLock)
        {
            Active.Remove(this);
        }
    }

    // The heap is one for all threads: what calls on others may take at the same time is no fault of this one.
    private void AddToActive()
    {
        if (_question is not null)
        {
            return;
        }

        lock (ActiveLock)
        {
            foreach (Budget other in Active)
            {
                if (other._owner != _owner)
                {
                    other._others += Math.Min(Memory, MaxOther);
                    _others += Math.Min(other.Memory, MaxOther);
                }
            }

            Active.Add(this);
        }
    }

    // What a call before has left would hide what this one takes. A collection costs as much as a tenth of the first
    // save of a large drawing, so what is little beside the memory of this call may stay.
    private static void SettleHeap(long memory)
    {
        long unsettled = Math.Clamp(memory / 4, MinUnsettled, MaxUnsettled);
        long taken = GC.GetTotalMemory(false);
        if (_hasLeftGarbage)
        {
            // A call that has failed leaves much, and the collector would keep the pages for the next such call.
            GC.Collect(GC.MaxGeneration, GCCollectionMode.Aggressive);
            NativeHeap.Trim();
        }

        if (_hasLeftGarbage || taken > _settled + Math.Max(unsettled, _settled / 2))
        {
            _hasLeftGarbage = false;
            GC.Collect();
            taken = GC.GetTotalMemory(false);
            _settled = taken;
        }

        _settled = Math.Min(_settled, taken);
    }

    private void VerifyHeap(long more)
    {
        long own = Memory - Interlocked.Read(ref _pixels);
        long limit = Memory == long.MaxValue
            ? Memory : own - (own / CollectionShare) + Interlocked.Read(ref _others);
        if (more <= own && (Taken + more <= limit || Taken + more < _nextCollection))
        {
            return;
        }

        GC.Collect();
        long taken = Taken + more;
        _nextCollection = taken + (limit / 8);
        if (taken > limit || more > own)
        {
            throw End(new LimitMemoryException(
                $"The file needs more than {Memory >> 20} MiB of memory, the limit for a file of its size; "
                + $"{Cache.HowToRaise}."));
        }
    }

    // Every thread of the call ends, and whoever hides the exception meets it again.
    private Exception End(Exception reason)
    {
        _end = reason;
        _hasLeftGarbage |= reason is LimitMemoryException;
        Volatile.Write(ref _nextPoll, 0);
        return reason switch
        {
            OperationInterruptedException => new OperationInterruptedException(reason.Message),
            _ => new LimitMemoryException(reason.Message),
        };
    }

    /// <summary>The time in which calls of a thread ask its own question.</summary>
    internal readonly ref struct ThreadQuestion
    {
        /// <summary>Ends the time.</summary>
        public void Dispose() => _question = null;
    }

    /// <summary>The time in which a thread works for the budget of another.</summary>
    internal readonly ref struct ThreadShare(Budget? own)
    {
        /// <summary>Ends the work for the other budget.</summary>
        public void Dispose() => _current = own;
    }
}
