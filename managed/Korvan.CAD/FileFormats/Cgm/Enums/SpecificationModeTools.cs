using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>Conversions between modes and their numbers and keywords in files.</summary>
public static class SpecificationModeTools
{
    /// <summary>Returns the mode of a number in a binary file.</summary>
    /// <param name="mode">The number, 0 to 3.</param>
    /// <returns>The mode of a number in a binary file.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such mode.</exception>
    public static SpecificationMode GetMode(int mode)
    {
        Verify.InRange(mode, 0, (int)SpecificationMode.Millimetres);
        return (SpecificationMode)mode;
    }

    /// <summary>Returns the keyword of a mode in a clear text file.</summary>
    /// <param name="mode">The mode.</param>
    /// <returns>The keyword of a mode in a clear text file.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such mode.</exception>
    public static string GetWord(SpecificationMode mode) =>
        EnumKeywords.SpecificationMode.KeywordOf((int)GetMode((int)mode));
}
