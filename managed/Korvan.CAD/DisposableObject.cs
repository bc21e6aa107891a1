using System;
using System.Diagnostics.CodeAnalysis;

namespace Korvan.CAD;

/// <summary>The root of the classes that hold something which has to be let go.</summary>
public abstract class DisposableObject : IDisposable
{
    /// <summary>Gets whether <see cref="Dispose()"/> has been called.</summary>
    public bool Disposed { get; private set; }

    /// <summary>Lets go of what the object holds. Calling it again does nothing.</summary>
    public void Dispose()
    {
        if (!Disposed)
        {
            Disposed = true;
            ReleaseManagedResources();
        }

        GC.SuppressFinalize(this);
    }

    /// <summary>Lets go of what this class holds; called once.</summary>
    internal virtual void ReleaseManagedResources()
    {
    }

    internal void VerifyNotDisposed()
    {
        if (Disposed)
        {
            ThrowDisposed();
        }
    }

    [DoesNotReturn]
    private void ThrowDisposed() =>
        throw new ObjectDisposedException(null, $"This {GetType().Name} has been disposed and is of no use any more.");
}
