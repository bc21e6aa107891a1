using System;
using System.Threading;
using System.Threading.Tasks;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>
/// Work that cannot be ended in its middle, such as a call into a native codec. It runs on another thread, while this
/// one watches the <see cref="Budget"/>: if that ends, nobody waits for the work, which releases what it has used and
/// made when it is done.
/// </summary>
internal static class LongCall
{
    private const int PollInterval = 20; // milliseconds
    private const int LongestWait = 1000;

    /// <summary>Runs work that touches nothing of Python and nothing that others change meanwhile.</summary>
    /// <param name="work">The work.</param>
    /// <param name="discard">Releases a result that nobody waits for.</param>
    /// <param name="used">What the work uses, which is not released before it is done.</param>
    internal static T Run<T>(Func<T> work, Action<T>? discard, params ReadOnlySpan<Lifetime> used) =>
        Run(work, discard, isShort: false, used);

    /// <summary>Runs work as above.</summary>
    /// <param name="work">The work.</param>
    /// <param name="discard">Releases a result that nobody waits for.</param>
    /// <param name="isShort">Whether the work takes a few milliseconds at most: it is done here, as a thread would take
    /// as long to start.</param>
    /// <param name="used">What the work uses, which is not released before it is done.</param>
    internal static T Run<T>(
        Func<T> work, Action<T>? discard, bool isShort, params ReadOnlySpan<Lifetime> used)
    {
        if (isShort || Budget.Current is not { } budget || ForkedProcess.IsChild)
        {
            return work();
        }

        Lifetime[] held = used.ToArray();
        Array.ForEach(held, static lifetime => lifetime.Hold());
        Task<T> task = Start(() =>
        {
            try
            {
                using Budget.ThreadShare share = Budget.Share(budget);
                return work();
            }
            finally
            {
                Array.ForEach(held, static lifetime => lifetime.Release());
            }
        });
        try
        {
            while (Task.WaitAny([task], PollInterval) < 0)
            {
                budget.Poll();
                MappedMemory.TrimAll();
            }
        }
        catch (Exception e)
        {
            if (e is LimitMemoryException)
            {
                // Its memory is not to add up with that of the next call.
                Task.WaitAny([task], LongestWait);
            }

            task.ContinueWith(done => Discard(done, discard), TaskContinuationOptions.ExecuteSynchronously);
            throw;
        }

        return task.GetAwaiter().GetResult();
    }

    // A thread that ends leaves its part of the native heap to the next one; those of the pool would keep one each.
    private static Task<T> Start<T>(Func<T> work)
    {
        var result = new TaskCompletionSource<T>();
        var thread = new Thread(() =>
        {
            try
            {
                result.SetResult(work());
            }
            catch (Exception e)
            {
                result.SetException(e);
            }
        });
        thread.IsBackground = true;
        thread.Start();
        return result.Task;
    }

    // A failure that nobody waits for is observed, so that it is not reported by the runtime.
    private static void Discard<T>(Task<T> done, Action<T>? discard)
    {
        if (done.Exception is null)
        {
            discard?.Invoke(done.Result);
        }
    }
}
