using System;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using System.Threading.Tasks;

namespace Korvan.CAD;

/// <summary>
/// Tells whether this process is a fork of the one in which the runtime was started. A fork has one thread: what the
/// thread that forked can do alone works, collections included. What waits for another thread of the runtime waits for
/// ever: the thread pool, timers, tasks, and the finalizers, which never run.
/// </summary>
internal static partial class ForkedProcess
{
    private static int s_owner;

    /// <summary>Gets a value indicating whether the runtime's threads stayed behind in another process.</summary>
    /// <remarks><see cref="Environment.ProcessId"/> is remembered from before the fork.</remarks>
    internal static bool IsChild => GetProcessId() != s_owner;

    /// <summary>Runs pieces of work side by side where there are threads for it, else one after the other.</summary>
    /// <param name="count">How many pieces there are.</param>
    /// <param name="run">Does the piece of a number.</param>
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
    internal static void Remember() => s_owner = GetProcessId();

    [LibraryImport("libc", EntryPoint = "getpid")]
    private static partial int GetProcessId();
}
