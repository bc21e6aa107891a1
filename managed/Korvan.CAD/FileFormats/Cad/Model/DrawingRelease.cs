using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Releases of drawings, by their codes and as years.</summary>
internal static class DrawingRelease
{
    internal static CadAcadVersion Parse(string code)
    {
        return Enum.TryParse(code.Trim(), true, out CadAcadVersion version) && Enum.IsDefined(version)
            ? version
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
