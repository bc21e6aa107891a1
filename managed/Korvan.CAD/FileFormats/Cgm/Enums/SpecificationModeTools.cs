using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>Leads from the numbers and words of files to modes.</summary>
public static class SpecificationModeTools
{
    internal static readonly string[] Words = ["ABS", "SCALED", "FRACTIONAL", "MM"];

    /// <summary>Gives the mode of a number in a binary file.</summary>
    /// <param name="mode">The number, 0 to 3.</param>
    /// <returns>The mode of a number in a binary file.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such mode.</exception>
    public static SpecificationMode GetMode(int mode)
    {
        Verify.InRange(mode, 0, Words.Length - 1);
        return (SpecificationMode)mode;
    }

    /// <summary>Gives the word of a mode in a clear text file.</summary>
    /// <param name="mode">The mode.</param>
    /// <returns>The word of a mode in a clear text file.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such mode.</exception>
    public static string GetWord(SpecificationMode mode) => Words[(int)GetMode((int)mode)];
}
