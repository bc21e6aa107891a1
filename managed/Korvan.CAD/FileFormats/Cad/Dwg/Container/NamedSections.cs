using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The sections of release 2004 and later by their names.</summary>
internal static class NamedSections
{
    private const int LastShortSizes = 3; // the maintenance release up to which sizes have 32 bits

    /// <summary>Puts a section where it belongs; sections without use are not even decompressed.</summary>
    internal static void Store(DwgFile file, string name, Func<byte[]> read)
    {
        switch (name)
        {
            case "AcDb:Header":
                file.Header = FramedSection.Open(file.Source, read(), name, Sentinels.Header, ExtraOf(file), -1);
                break;
            case "AcDb:Classes":
                file.Classes = FramedSection.Open(file.Source, read(), name, Sentinels.Classes, ExtraOf(file), -1);
                break;
            case ObjectMap.Section:
                file.Map = ObjectMap.Read(file.Source, read(), -1);
                break;
            case "AcDb:AcDbObjects":
                file.Objects = read();
                break;
            case "AcDb:Preview":
                file.Preview = read();
                break;
            case "AcDb:SummaryInfo":
                file.SummaryInfo = read();
                break;
            case "AcDb:AppInfo":
                file.AppInfo = read();
                break;
            case "AcDb:AppInfoHistory":
                file.AppInfoHistory = read();
                break;
            case "AcDb:RevHistory":
                file.RevHistory = read();
                break;
            default:
                StoreMinor(file, name, read);
                break;
        }
    }

    /// <summary>Reports sections without which there is no drawing.</summary>
    internal static void VerifyComplete(DwgFile file)
    {
        Verify(file, file.Header.IsEmpty, "AcDb:Header");
        Verify(file, file.Objects.Length == 0, "AcDb:AcDbObjects");
        Verify(file, file.Map.Count == 0, ObjectMap.Section);
    }

    private static void StoreMinor(DwgFile file, string name, Func<byte[]> read)
    {
        switch (name)
        {
            case "AcDb:VBAProject":
                file.VbaProject = read();
                break;
            case "AcDb:FileDepList":
                file.FileDepList = read();
                break;
            case "AcDb:Template":
                file.Template = read();
                break;
            case "AcDb:ObjFreeSpace":
                file.ObjFreeSpace = read();
                break;
            case "AcDb:AuxHeader":
                file.AuxHeader = read();
                break;
            case "AcDb:AcDsPrototype_1b":
                file.AcdsPrototype = read();
                break;
            case "AcDb:Signature":
                file.Signature = read();
                break;
            case "AcDb:Security":
                file.Security = read();
                break;
        }
    }

    private static void Verify(DwgFile file, bool isMissing, string name)
    {
        if (isMissing)
        {
            file.Source.Report(LoadDefectCode.InvalidSection, name, -1, "the file has no such section");
        }
    }

    /// <summary>Returns the number of bytes of further sizes: from some maintenance release of 2010 on, sizes have 64
    /// bits, of which the first size counts only the lower half.</summary>
    internal static int ExtraOf(CadAcadVersion version, int maintenance) => version switch
    {
        CadAcadVersion.AC1024 or CadAcadVersion.AC1027 => maintenance > LastShortSizes ? 4 : 0,
        >= CadAcadVersion.AC1032 => 4,
        _ => 0,
    };

    private static int ExtraOf(DwgFile file) => ExtraOf(file.Version, file.MaintenanceVersion);
}
