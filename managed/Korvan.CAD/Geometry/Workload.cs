using System;

namespace Korvan.CAD.Geometry;

/// <summary>
/// How much loops of this layer do whose length the content of a file decides. Who limits what a file may take counts
/// the steps, and ends the work by an exception.
/// </summary>
internal static class Workload
{
    /// <summary>Gets or sets what counts steps of about 5 µs on the current thread; null for nobody.</summary>
    internal static Action<long>? Counter { get; set; }

    /// <summary>Gets or sets what ends the work if an array of a length, in bytes, is more than it may take; null for
    /// nobody.</summary>
    internal static Action<long>? Limiter { get; set; }

    /// <summary>Asks for an array of a length, in bytes.</summary>
    internal static void Reserve(long bytes) => Limiter?.Invoke(bytes);

    /// <summary>Counts steps.</summary>
    internal static void Step(long count = 1)
    {
        if (count > 0)
        {
            Counter?.Invoke(count);
        }
    }

    /// <summary>Counts a step each time that a counter has risen by a power of two.</summary>
    /// <param name="counter">Counts units of work.</param>
    /// <param name="unitsPerStep">A power of two.</param>
    internal static void Count(ref int counter, int unitsPerStep)
    {
        if ((++counter & (unitsPerStep - 1)) == 0)
        {
            Step();
        }
    }
}
