using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>The offsets of the records of a file, in file order.</summary>
internal sealed class StepIndex
{
    private int[] _starts = [];
    private int[] _ends = [];
    private long[] _ids = [];
    private short[] _keywords = [];

    internal int Count { get; private set; }

    /// <summary>Gets the offsets of the # signs.</summary>
    internal ReadOnlySpan<int> Starts => _starts.AsSpan(0, Count);

    /// <summary>Gets the offsets after the semicolons.</summary>
    internal ReadOnlySpan<int> Ends => _ends.AsSpan(0, Count);

    /// <summary>Gets the numbers of the instances.</summary>
    internal ReadOnlySpan<long> Ids => _ids.AsSpan(0, Count);

    /// <summary>Gets the numbers of the keywords; -1 for an unknown one.</summary>
    internal ReadOnlySpan<short> Keywords => _keywords.AsSpan(0, Count);

    internal void Reserve(int count)
    {
        if (count > _starts.Length)
        {
            Array.Resize(ref _starts, count);
            Array.Resize(ref _ends, count);
            Array.Resize(ref _ids, count);
            Array.Resize(ref _keywords, count);
        }
    }

    internal void Add(int start, int end, long id, short keyword)
    {
        if (Count == _starts.Length)
        {
            Reserve(Math.Max(1024, Count + (Count / 2)));
        }

        _starts[Count] = start;
        _ends[Count] = end;
        _ids[Count] = id;
        _keywords[Count++] = keyword;
    }

    /// <summary>Joins the indexes of consecutive pieces of a file.</summary>
    internal static StepIndex Join(IReadOnlyList<StepIndex> parts)
    {
        StepIndex all = new();
        int count = 0;
        foreach (StepIndex part in parts)
        {
            count += part.Count;
        }

        all.Reserve(count);
        foreach (StepIndex part in parts)
        {
            part.Starts.CopyTo(all._starts.AsSpan(all.Count));
            part.Ends.CopyTo(all._ends.AsSpan(all.Count));
            part.Ids.CopyTo(all._ids.AsSpan(all.Count));
            part.Keywords.CopyTo(all._keywords.AsSpan(all.Count));
            all.Count += part.Count;
        }

        return all;
    }
}
