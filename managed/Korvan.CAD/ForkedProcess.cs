using System;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
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
    internal static bool IsChild => GetProcessId() != _owner;

    /// <summary>Runs pieces of work in parallel if there are threads for it, otherwise one after the other.</summary>
    /// <param name="count">The number of pieces.</param>
    /// <param name="run">Processes the piece with an index.</param>
    internal static void RunPieces(int count, Action<int> run)
    {
        if (count > 1 && !IsChild)
        {
            Parallel.For(0, count, run);
            return;
        }

        for (int i = 0; i < count; i++)
        {
            run(i);
        }
    }

    [ModuleInitializer]
    [SuppressMessage("Usage", "CA2255", Justification = "The first use may be in the child: too late to ask.")]
    internal static void Remember() => _owner = GetProcessId();

    [LibraryImport("libc", EntryPoint = "getpid")]
    private static partial int GetProcessId();
}
