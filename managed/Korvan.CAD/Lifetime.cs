using System;
using System.Threading;

namespace Korvan.CAD;

/// <summary>Releases something when its owner and all who work with it have released it.</summary>
internal sealed class Lifetime(Action release)
{
    private int _users = 1;
    private int _isEnded;

    /// <summary>Begins a use.</summary>
    internal void Hold() => Interlocked.Increment(ref _users);

    /// <summary>Ends a use.</summary>
    internal void Release()
    {
        if (Interlocked.Decrement(ref _users) == 0)
        {
            release();
        }
    }

    /// <summary>Ends the use by the owner, however often it is called.</summary>
    internal void End()
    {
        if (Interlocked.Exchange(ref _isEnded, 1) == 0)
        {
            Release();
        }
    }
}
