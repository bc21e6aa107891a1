using System.Collections.Generic;
using System.Linq;

namespace Korvan.WrpGen.Model;

/// <summary>The kinds of typed callback tables.</summary>
public enum CallbackTable
{
    List,
    Iterator,
    Sequence,
}

/// <summary>
/// The one order of the typed callback tables, which both sides are written from: those of lists and iterators
/// take turns along the element list, those of sequences follow.
/// </summary>
public sealed class CallbackPositions
{
    private readonly Dictionary<(CallbackTable Table, string Hash), int> _positions = [];

    public CallbackPositions(IReadOnlyList<ElementUse> elements)
    {
        Ordered =
        [
            .. elements.SelectMany(TakingTurns),
            .. elements.Where(use => use.ReadsLists).Select(use => (CallbackTable.Sequence, use)),
        ];
        foreach ((CallbackTable table, ElementUse use) in Ordered)
        {
            _positions.Add((table, use.Hash), _positions.Count);
        }
    }

    /// <summary>Every table in its place.</summary>
    public IReadOnlyList<(CallbackTable Table, ElementUse Use)> Ordered { get; }

    /// <summary>-1 where there is none.</summary>
    public int Of(CallbackTable table, ElementUse use) =>
        _positions.TryGetValue((table, use.Hash), out int position) ? position : -1;

    private static IEnumerable<(CallbackTable, ElementUse)> TakingTurns(ElementUse use)
    {
        if (use.ReadsLists)
        {
            yield return (CallbackTable.List, use);
        }
        if (use.ReadsIterators)
        {
            yield return (CallbackTable.Iterator, use);
        }
    }
}
