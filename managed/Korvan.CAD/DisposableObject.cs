using System;
using System.Diagnostics.CodeAnalysis;

namespace Korvan.CAD;

/// <summary>The base of classes with resources that have to be released.</summary>
public abstract class DisposableObject : IDisposable
{
    /// <summary>Gets whether <see cref="Dispose()"/> has been called.</summary>
    public bool Disposed { get; private set; }

    /// <summary>Releases the resources of the object. Further calls have no effect.</summary>
    public void Dispose()
    {
        if (!Disposed)
        {
            Disposed = true;
            ReleaseManagedResources();
        }

        GC.SuppressFinalize(this);
    }

    /// <summary>Releases the resources of this class; called once.</summary>
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
