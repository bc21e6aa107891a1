using System;
using System.Collections.Concurrent;
using System.Diagnostics.CodeAnalysis;

namespace Korvan.WrpGen.Interop;

/// <summary>The Python object behind an adapter, lent to it for one call.</summary>
public class PyReference
{
    private nint _value;

    private protected PyReference(nint value) => _value = value;

    internal nint Value
    {
        get
        {
            if (_value == 0)
            {
                ThrowEnded();
            }
            return _value;
        }
    }

    internal static PyReference Lent(nint value) => new(value);

    internal static PyReference Kept(nint value) => KeptPyReference.Of(value);

    /// <summary>Forgets a lent object.</summary>
    internal void End() => _value = 0;

    [DoesNotReturn]
    private static void ThrowEnded() => throw new ObjectDisposedException(
        null, "A Python object given to a method is of use only until that method returns.");
}

/// <summary>A Python object that a managed object keeps, with a reference of its own.</summary>
/// <remarks>
/// The collector's threads must not touch Python. A kept reference that is found dead waits in a
/// queue until the next call that Python makes.
/// </remarks>
internal sealed class KeptPyReference : PyReference
{
    private static readonly ConcurrentQueue<nint> s_dead = new();
    private static volatile bool s_anyDead;

    private KeptPyReference(nint value) : base(value)
    {
    }

    ~KeptPyReference()
    {
        s_dead.Enqueue(Value);
        s_anyDead = true;
    }

    /// <summary>Keeps a borrowed object.</summary>
    internal static KeptPyReference Of(nint value)
    {
        PyObjects.IncRef(value);
        return new KeptPyReference(value);
    }

    /// <summary>Keeps an object whose reference is handed over.</summary>
    internal static KeptPyReference Taking(nint value) => new(value);

    /// <summary>Gives the object back at once.</summary>
    internal void Release()
    {
        GC.SuppressFinalize(this);
        PyObjects.DecRef(Value);
        End();
    }

    internal static void ReleaseDead()
    {
        if (s_anyDead)
        {
            ReleaseQueued();
        }
    }

    private static void ReleaseQueued()
    {
        s_anyDead = false;
        while (s_dead.TryDequeue(out nint value))
        {
            PyObjects.DecRef(value);
        }
    }
}
