using System;
using System.Collections.Generic;
using System.Numerics;
using System.Text;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Numbers of keywords, found by their bytes without making a string.</summary>
internal sealed class KeywordTable
{
    private readonly (byte[] Word, short Number)[] _slots;
    private readonly int _mask;

    internal KeywordTable(IReadOnlyList<string> keywords)
    {
        _mask = (int)BitOperations.RoundUpToPowerOf2((uint)keywords.Count * 4) - 1;
        _slots = new (byte[], short)[_mask + 1];
        for (int i = 0; i < keywords.Count; i++)
        {
            byte[] word = Encoding.ASCII.GetBytes(keywords[i]);
            int at = Hash(word) & _mask;
            while (_slots[at].Word is not null)
            {
                at = (at + 1) & _mask;
            }

            _slots[at] = (word, (short)i);
        }
    }

    /// <summary>Gives the number of a keyword, or -1.</summary>
    internal short Find(ReadOnlySpan<byte> word)
    {
        for (int at = Hash(word) & _mask; _slots[at].Word is { } known; at = (at + 1) & _mask)
        {
            if (word.SequenceEqual(known))
            {
                return _slots[at].Number;
            }
        }

        return -1;
    }

    private static int Hash(ReadOnlySpan<byte> word)
    {
        uint hash = 2166136261;
        foreach (byte one in word)
        {
            hash = (hash ^ one) * 16777619;
        }

        return (int)(hash ^ (hash >> 15));
    }
}
