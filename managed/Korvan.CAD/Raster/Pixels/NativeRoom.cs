using System;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>Memory that a native codec takes for pixels: it counts as theirs while the call lasts.</summary>
internal sealed class NativeRoom : IDisposable
{
    private readonly Budget? _budget;
    private readonly long _bytes;

    /// <summary>Books memory.</summary>
    /// <exception cref="LimitMemoryException">The call may not take as much.</exception>
    internal NativeRoom(long bytes)
        : this(Budget.Current, bytes)
    {
        if (_budget?.TryTakePixels(bytes) == false)
        {
            throw new LimitMemoryException(
                $"The codec needs {bytes >> 20} MiB of memory for the image, and {_budget.Memory >> 20} MiB are the "
                    + $"limit for a file of its size; {Cache.HowToRaise}.");
        }
    }

    private NativeRoom(Budget? budget, long bytes) => (_budget, _bytes) = (budget, bytes);

    /// <summary>Books memory if the call may take as much; returns null if not.</summary>
    internal static NativeRoom? TryTake(long bytes) =>
        Budget.Current is { } budget && !budget.TryTakePixels(bytes) ? null : new NativeRoom(Budget.Current, bytes);

    public void Dispose() => _budget?.ReturnPixels(_bytes);
}
