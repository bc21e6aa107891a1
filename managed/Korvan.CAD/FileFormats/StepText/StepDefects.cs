using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>A defect of a file.</summary>
/// <param name="Code">The kind of defect.</param>
/// <param name="Offset">Where it is, in bytes from the start of the file.</param>
/// <param name="Id">The instance that it is in; 0 outside of all instances.</param>
/// <param name="Cause">What is wrong, without a period.</param>
/// <param name="Other">The offset whose line number follows the cause; -1 for none.</param>
internal readonly record struct StepDefect(LoadDefectCode Code, int Offset, long Id, string Cause, int Other = -1);

/// <summary>The defects of a file. At most 10,000 are kept, so that a file that is damaged throughout takes no memory
/// for messages that nobody reads; the others are counted.</summary>
internal sealed class StepDefects
{
    private const int MaxKept = 10_000;

    private readonly List<StepDefect> _kept = [];

    /// <summary>Gets the number of defects, kept or not.</summary>
    internal int Count { get; private set; }

    /// <summary>Gets the defects that are kept, in file order.</summary>
    internal IEnumerable<StepDefect> Kept => _kept.OrderBy(static defect => defect.Offset);

    internal int KeptCount => _kept.Count;

    /// <summary>Gets whether no further defect is kept, so that its message is not
    /// needed.</summary>
    internal bool IsFull => _kept.Count >= MaxKept;

    internal void Add(StepDefect defect)
    {
        Count++;
        if (!IsFull)
        {
            _kept.Add(defect);
        }
    }

    /// <summary>Counts a defect that is not kept.</summary>
    internal void CountOne() => Count++;

    internal void Add(StepDefects others)
    {
        int notKept = others.Count - others.KeptCount;
        foreach (StepDefect defect in others._kept)
        {
            Add(defect);
        }

        Count += notKept;
    }
}
