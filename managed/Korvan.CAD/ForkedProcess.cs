using System;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;
using System.Threading;
using System.Threading.Tasks;

namespace Korvan.CAD;

/// <summary>
/// Determines whether this process is a fork of the one in which the runtime was started. A fork has one thread:
/// whatever that thread can do alone works, including garbage collection. Waiting for another thread of the runtime
/// never ends: the thread pool, timers and tasks. Finalizers never run.
/// </summary>
internal static partial class ForkedProcess
{
    private static int _owner;

    /// <summary>Gets whether this process is a fork, which lacks the threads of the runtime.</summary>
    /// <remarks><see cref="Environment.ProcessId"/> is remembered from before the fork.</remarks>
    internal static bool IsChild => Id != _owner;

    /// <summary>Gets the number of this process, that of a fork in a fork.</summary>
    internal static int Id => GetProcessId();

    /// <summary>Runs pieces of work in parallel if there are threads for it, otherwise one after the other.</summary>
    /// <param name="count">The number of pieces.</param>
    /// <param name="run">Processes the piece with an index.</param>
    internal static void RunPieces(int count, Action<int> run)
    {
        int next = 0;
        Budget? budget = Budget.Current;
        var helpers = new Task[count > 1 && !IsChild ? Math.Min(count, Environment.ProcessorCount) - 1 : 0];
        bool[] hasBegun = new bool[helpers.Length];
        for (int i = 0; i < helpers.Length; i++)
        {
            int helper = i;
            helpers[i] = Task.Run(() =>
            {
                Volatile.Write(ref hasBegun[helper], true);
                RunNext();
            });
        }

        Exception? failure = null;
        try
        {
            RunNext();
        }
        catch (Exception e)
        {
            failure = e;
        }

        // No piece is left for a thread that begins from now on: on a busy machine, that may be much later.
        Interlocked.Exchange(ref next, count);
        helpers = Array.FindAll(helpers, helper => Volatile.Read(ref hasBegun[Array.IndexOf(helpers, helper)]));
        WaitFor(helpers, budget, failure);

        void RunNext()
        {
            using Budget.ThreadShare share = Budget.Share(budget);
            for (int i = Interlocked.Increment(ref next) - 1; i < count; i = Interlocked.Increment(ref next) - 1)
            {
                run(i);
            }
        }
    }

    // The calling thread is the one that notices interruptions. It leaves when no thread works for it any more.
    private static void WaitFor(Task[] helpers, Budget? budget, Exception? failure)
    {
        const int pollInterval = 20;
        while (Array.Exists(helpers, static helper => !helper.IsCompleted))
        {
            try
            {
                if (!Task.WaitAll(helpers, pollInterval) && failure is null)
                {
                    budget?.Poll();
                }
            }
            catch (Exception e)
            {
                failure ??= e is AggregateException { InnerException: { } first } ? first : e;
            }
        }

        failure ??= Array.Find(helpers, static helper => helper.IsFaulted)?.Exception!.InnerException;
        if (failure is not null)
        {
            ExceptionDispatchInfo.Throw(failure);
        }
    }

    [ModuleInitializer]
    [SuppressMessage("Usage", "CA2255", Justification = "The first use may be in the child: too late to ask.")]
    internal static void Remember() => _owner = Id;

    [LibraryImport("libc", EntryPoint = "getpid")]
    private static partial int GetProcessId();
}
