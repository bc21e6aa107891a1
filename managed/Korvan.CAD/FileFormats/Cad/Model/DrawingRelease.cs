using System;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Releases of drawings, by their codes and as years.</summary>
internal static class DrawingRelease
{
    private const int CodeLength = 6;

    /// <summary>Gives the release of a code such as AC1015. The names of the enumeration would be found by reflection,
    /// which takes longer than a small file.</summary>
    internal static CadAcadVersion Parse(string code)
    {
        ReadOnlySpan<char> text = code.AsSpan().Trim();
        bool isCode = text.Length == CodeLength && text.StartsWith("AC", StringComparison.OrdinalIgnoreCase);
        return isCode && int.TryParse(text[2..], NumberStyles.None, CultureInfo.InvariantCulture, out int number)
            && number is 1001 or 1002 or 1003 or 1004 or 1006 or 1009 or 1012 or 1014 or 1015 or 1018 or 1021 or 1024
                or 1027 or 1032
            ? (CadAcadVersion)number
            : CadAcadVersion.None;
    }

    /// <summary>Gives the release as a year; drawings that state none are of release 12.</summary>
    internal static int Year(CadAcadVersion version) => version switch
    {
        CadAcadVersion.AC1012 => 1994,
        CadAcadVersion.AC1014 => 1997,
        CadAcadVersion.AC1015 => 2000,
        CadAcadVersion.AC1018 => 2004,
        CadAcadVersion.AC1021 => 2007,
        CadAcadVersion.AC1024 => 2010,
        CadAcadVersion.AC1027 => 2013,
        CadAcadVersion.AC1032 => 2018,
        _ => 1992,
    };
}
