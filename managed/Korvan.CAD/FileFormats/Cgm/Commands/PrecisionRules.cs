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

    /// <summary>Gives the width that was read or shall be written, or tells that files cannot have it. Clear text states a
    /// range instead; the smallest width that holds it is taken.</summary>
    internal static int Check(ParameterExchange x, int bits, int[] allowed)
    {
        if (x.IsClearText && x.IsReading)
        {
            return Array.Find(allowed, width => width >= bits) is var found and > 0 ? found : bits == 0 ? 0 : allowed[^1];
        }

        return Array.IndexOf(allowed, bits) >= 0
            ? bits
            : throw new CgmDataException($"a precision of {bits} bits is none of {string.Join(", ", allowed)}");
    }

    /// <summary>The precision of the colours of one cell array, pattern or tile: bits, in clear text the largest
    /// number.</summary>
    internal static int ExchangeLocal(ParameterExchange x, int bits)
    {
        if (!x.IsReading)
        {
            Check(x, bits, Local);
        }

        if (!x.IsClearText)
        {
            return Check(x, x.Integer(bits), Local);
        }

        long largest = x.Unsigned((1L << bits) - 1, 32);
        return Check(x, largest <= 0 ? 0 : System.Numerics.BitOperations.Log2((ulong)largest) + 1, Local);
    }
}
