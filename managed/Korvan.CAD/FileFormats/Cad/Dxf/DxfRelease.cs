using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Releases of the interchange format.</summary>
internal static class DxfRelease
{
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
