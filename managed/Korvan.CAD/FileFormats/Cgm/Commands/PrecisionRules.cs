using System;
using Korvan.CAD.FileFormats.Cgm.Coding;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The widths that numbers may have in binary files.</summary>
internal static class PrecisionRules
{
    internal static readonly int[] Bytes = [8, 16, 24, 32];

    internal static readonly int[] Coordinates = [16, 24, 32];

    /// <summary>Zero stands for the precision of the metafile.</summary>
    internal static readonly int[] Local = [0, 1, 2, 4, 8, 16, 24, 32];

    /// <summary>Gives the width that was read or shall be written, or tells that files cannot have it. Clear text
    /// states a range instead; the smallest width that holds it is taken.</summary>
    internal static int Check(ParameterExchange x, int bits, int[] allowed)
    {
        if (x.IsClearText && x.IsReading)
        {
            int place = Array.FindIndex(allowed, width => width >= bits);
            return place < 0 ? allowed[^1] : allowed[place];
        }

        return Array.IndexOf(allowed, bits) >= 0
            ? bits
            : throw new CgmDataException($"a precision of {bits} bits is none of {string.Join(", ", allowed)}");
    }

    /// <summary>Exchanges a width that has to be one of some; a wrong one is not written.</summary>
    internal static int Exchange(ParameterExchange x, int bits, int[] allowed, Func<int, int> exchange)
    {
        return x.IsReading ? Check(x, exchange(bits), allowed) : exchange(Check(x, bits, allowed));
    }

    /// <summary>The precision of the colours of one cell array, pattern or tile.</summary>
    internal static int ExchangeLocal(ParameterExchange x, int bits) => Exchange(x, bits, Local, x.LocalBits);
}
