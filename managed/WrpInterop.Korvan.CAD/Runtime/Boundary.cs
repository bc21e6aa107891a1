using System;
using System.Diagnostics.CodeAnalysis;
using System.Text;

namespace Korvan.WrpGen.Interop;

/// <summary>A Python exception that a callback raised, as its text.</summary>
public sealed class PythonException(string message) : Exception(message);

/// <summary>
/// Where exceptions stop. No managed exception unwinds through native frames, and no Python error
/// stays pending while managed code goes on.
/// </summary>
public static unsafe class Boundary
{
    private const int DeepestInner = 16;

    /// <summary>Makes a Python error of a managed exception.</summary>
    public static void Fail(Exception exception)
    {
        if (Interruption.TryRaise())
        {
            return;
        }
        nint name = NewString(exception.GetType().Name);
        nint text = NewString(Describe(exception));
        PyHost.OnException(name, text);
    }

    /// <summary><see cref="Fail"/>, for delegates that answer with a status.</summary>
    public static int Failed(Exception exception)
    {
        Fail(exception);
        return Status.Failed;
    }

    /// <summary>Turns the pending Python error into an exception with its text.</summary>
    [DoesNotReturn]
    internal static void ThrowPythonError() =>
        throw new PythonException(TakePythonError() ?? "A Python callback failed.");

    /// <summary>As <see cref="ThrowPythonError"/>, for a status that means an index out of range.</summary>
    [DoesNotReturn]
    internal static void ThrowIndexError() =>
        throw new ArgumentOutOfRangeException("index", TakePythonError());

    /// <summary>The text of the pending Python error, which is cleared; null if none can be had.</summary>
    internal static string? TakePythonError()
    {
        nint owner = 0;
        PyStringArg text = default;
        if (PyHost.CatchAndClearError(&owner, &text) != 0)
        {
            return null;
        }
        try
        {
            return PyText.Read(&text);
        }
        finally
        {
            PyObjects.DecRef(owner);
        }
    }

    /// <summary>The message with those of the inner exceptions behind it, each under its type's name.</summary>
    internal static string Describe(Exception exception)
    {
        if (exception.InnerException is null)
        {
            return FailureText.Of(exception);
        }
        var text = new StringBuilder(FailureText.Of(exception));
        int depth = 0;
        Exception last = exception;
        for (Exception? inner = exception.InnerException; inner is not null; inner = inner.InnerException)
        {
            last = inner;
            if (depth++ < DeepestInner)
            {
                AppendInner(text, inner);
            }
        }
        if (depth > DeepestInner)
        {
            text.Append(" ---> ...");
            AppendInner(text, last);
        }
        return text.ToString();
    }

    private static void AppendInner(StringBuilder text, Exception inner) =>
        text.Append(" ---> ").Append(inner.GetType().Name).Append(": ").Append(FailureText.Of(inner));

    // What can't be decoded is reported aside and printed as unknown: the error at hand comes first.
    private static nint NewString(string text)
    {
        fixed (char* start = text)
        {
            return PyHost.NewStringUnraisable(start, text.Length);
        }
    }
}
