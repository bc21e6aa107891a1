using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Releases of the format, by their codes and as years.</summary>
internal static class DxfRelease
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

    internal static CadAcadVersion From(DxfOutputVersion version) => version switch
    {
        DxfOutputVersion.R12 => CadAcadVersion.AC1009,
        DxfOutputVersion.R2000 => CadAcadVersion.AC1015,
        DxfOutputVersion.R2004 => CadAcadVersion.AC1018,
        DxfOutputVersion.R2007 => CadAcadVersion.AC1021,
        DxfOutputVersion.R2010 => CadAcadVersion.AC1024,
        DxfOutputVersion.R2013 => CadAcadVersion.AC1027,
        DxfOutputVersion.R2018 => CadAcadVersion.AC1032,
        _ => CadAcadVersion.None,
    };

    internal static FileFormat ToFileFormat(CadAcadVersion version) => version switch
    {
        CadAcadVersion.AC1001 => FileFormat.DxfCadR0222,
        CadAcadVersion.AC1002 => FileFormat.DxfCadR025,
        CadAcadVersion.AC1003 => FileFormat.DxfCadR026,
        CadAcadVersion.AC1004 => FileFormat.DxfCadR9,
        CadAcadVersion.AC1006 => FileFormat.DxfCadR10,
        CadAcadVersion.AC1012 => FileFormat.DxfCadR13,
        CadAcadVersion.AC1014 => FileFormat.DxfCadR14,
        CadAcadVersion.AC1015 => FileFormat.DxfCadR2000,
        CadAcadVersion.AC1018 => FileFormat.DxfCadR2004,
        CadAcadVersion.AC1021 => FileFormat.DxfCadR2007,
        CadAcadVersion.AC1024 => FileFormat.DxfCadR2010,
        CadAcadVersion.AC1027 or CadAcadVersion.AC1032 => FileFormat.DxfCadR2013,
        _ => FileFormat.DxfCadR012,
    };
}
