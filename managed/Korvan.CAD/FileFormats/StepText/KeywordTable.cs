using System;
using System.Collections.Generic;
using System.Numerics;
using System.Text;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Numbers of keywords, looked up by their bytes without allocating a string.</summary>
internal sealed class KeywordTable
{
    private readonly (byte[] Keyword, short Number)[] _slots;
    private readonly int _mask;

    internal KeywordTable(IReadOnlyList<string> keywords)
    {
        _mask = (int)BitOperations.RoundUpToPowerOf2((uint)keywords.Count * 4) - 1;
        _slots = new (byte[], short)[_mask + 1];
        for (int i = 0; i < keywords.Count; i++)
        {
            byte[] keyword = Encoding.ASCII.GetBytes(keywords[i]);
            int at = Hash(keyword) & _mask;
            while (_slots[at].Keyword is not null)
            {
                at = (at + 1) & _mask;
            }

            _slots[at] = (keyword, (short)i);
        }
    }

    /// <summary>Returns the number of a keyword; -1 if there is no such keyword.</summary>
    internal short Find(ReadOnlySpan<byte> keyword)
    {
        for (int at = Hash(keyword) & _mask; _slots[at].Keyword is { } known; at = (at + 1) & _mask)
        {
            if (keyword.SequenceEqual(known))
            {
                return _slots[at].Number;
            }
        }

        return -1;
    }

    private static int Hash(ReadOnlySpan<byte> keyword)
    {
        uint hash = 2166136261;
        foreach (byte one in keyword)
        {
            hash = (hash ^ one) * 16777619;
        }

        return (int)(hash ^ (hash >> 15));
    }
}
