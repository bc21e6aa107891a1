using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Damage in a file.</summary>
/// <param name="Offset">Where it is, in bytes from the start.</param>
/// <param name="Id">The instance that it is in; 0 outside of all.</param>
/// <param name="Message">What is wrong.</param>
/// <param name="Other">Another place that the message ends with; -1 for none.</param>
internal readonly record struct StepError(int Offset, long Id, string Message, int Other = -1);

/// <summary>The damage of a file. Only so much is kept as somebody may want to read; the rest is counted.</summary>
internal sealed class StepErrors
{
    private const int MostKept = 10_000;

    private readonly List<StepError> _kept = [];

    /// <summary>Gets how many there are, kept or not.</summary>
    internal int Count { get; private set; }

    /// <summary>Gets those that are kept, in the order of the file.</summary>
    internal IEnumerable<StepError> Kept => _kept.OrderBy(static error => error.Offset);

    internal int KeptCount => _kept.Count;

    /// <summary>Gets whether a message would be kept, so that others need not be worded.</summary>
    internal bool IsFull => _kept.Count >= MostKept;

    internal void Add(StepError error)
    {
        Count++;
        if (!IsFull)
        {
            _kept.Add(error);
        }
    }

    /// <summary>Counts one that is not worded.</summary>
    internal void CountOne() => Count++;

    internal void Add(StepErrors others)
    {
        int unworded = others.Count - others.KeptCount;
        foreach (StepError error in others._kept)
        {
            Add(error);
        }

        Count += unworded;
    }
}
