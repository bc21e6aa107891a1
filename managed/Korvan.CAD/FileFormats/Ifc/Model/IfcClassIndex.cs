using System;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The records of a file by class. As a class and its subtypes have consecutive numbers, all instances of a
/// class are contiguous.</summary>
internal sealed class IfcClassIndex
{
    private readonly int[] _starts;
    private readonly int[] _records;

    internal IfcClassIndex(ReadOnlySpan<short> classes, int classCount)
    {
        _starts = new int[classCount + 1];
        foreach (short one in classes)
        {
            if (one >= 0)
            {
                _starts[one + 1]++;
            }
        }

        for (int i = 0; i < classCount; i++)
        {
            _starts[i + 1] += _starts[i];
        }

        int[] next = _starts.AsSpan(0, classCount).ToArray();
        _records = new int[_starts[classCount]];
        for (int i = 0; i < classes.Length; i++)
        {
            if (classes[i] >= 0)
            {
                _records[next[classes[i]]++] = i;
            }
        }
    }

    /// <summary>Returns the records of a class in file order.</summary>
    internal int[] Records(IfcClass one, bool isExact)
    {
        int last = isExact ? one.Number : one.Last;
        int[] found = _records[_starts[one.Number].._starts[last + 1]];
        if (last > one.Number)
        {
            Array.Sort(found);
        }

        return found;
    }
}
