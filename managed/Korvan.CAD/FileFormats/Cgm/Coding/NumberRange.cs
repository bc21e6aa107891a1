using System;
using System.Globalization;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>The ranges of integers by their bits: numbers outside raise errors, they are never truncated.</summary>
internal static class NumberRange
{
    internal static (long Lowest, long Highest) Signed(int bits) => (-(1L << (bits - 1)), (1L << (bits - 1)) - 1);

    internal static (long Lowest, long Highest) Unsigned(int bits) => (0, (1L << bits) - 1);

    internal static void Verify(long value, (long Lowest, long Highest) range, int bits)
    {
        if (value < range.Lowest || value > range.Highest)
        {
            throw new CgmDataException(
                $"the number {value} does not fit into {bits} bits, which hold {range.Lowest} to {range.Highest}");
        }
    }

    internal static bool IsWhole(double value) =>
        value == Math.Floor(value) && value is >= int.MinValue and <= int.MaxValue;

    /// <summary>Returns a whole coordinate as an integer.</summary>
    internal static int Whole(double value)
    {
        return IsWhole(value)
            ? (int)value
            : throw new CgmDataException(string.Create(
                CultureInfo.InvariantCulture,
                $"the coordinate {value} is not whole or too large, but the VDC type is INTEGER"));
    }

    internal static double Finite(double value) =>
        double.IsFinite(value) ? value : throw new CgmDataException("a real number is infinite or not a number");
}
