using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Releases of drawings, by their codes and as years.</summary>
internal static class DrawingRelease
{
    internal static CadAcadVersion Parse(string code) => code.Trim().ToUpperInvariant() switch
    {
        "AC1001" => CadAcadVersion.AC1001,
        "AC1002" => CadAcadVersion.AC1002,
        "AC1003" => CadAcadVersion.AC1003,
        "AC1004" => CadAcadVersion.AC1004,
        "AC1006" => CadAcadVersion.AC1006,
        "AC1009" => CadAcadVersion.AC1009,
        "AC1012" => CadAcadVersion.AC1012,
        "AC1014" => CadAcadVersion.AC1014,
        "AC1015" => CadAcadVersion.AC1015,
        "AC1018" => CadAcadVersion.AC1018,
        "AC1021" => CadAcadVersion.AC1021,
        "AC1024" => CadAcadVersion.AC1024,
        "AC1027" => CadAcadVersion.AC1027,
        "AC1032" => CadAcadVersion.AC1032,
        _ => CadAcadVersion.None,
    };

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
