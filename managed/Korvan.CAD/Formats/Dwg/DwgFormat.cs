using System;
using System.Text;

namespace Korvan.CAD.Formats.Dwg;

/// <summary>Drawing databases, which are told apart by the release that their first six bytes name.</summary>
internal static class DwgFormat
{
    private const int VersionLength = 6;

    internal static FormatRecord Record { get; } = new()
    {
        Name = "DWG",
        Formats =
        [
            FileFormat.CadR1_4, FileFormat.CadR2_10, FileFormat.CadR2_22, FileFormat.CadR2_5, FileFormat.CadR2_6,
            FileFormat.CadR9, FileFormat.CadR010, FileFormat.CadR011_012, FileFormat.CadR013, FileFormat.CadR014,
            FileFormat.CadR2000, FileFormat.CadR2004, FileFormat.CadR2007, FileFormat.CadR2010, FileFormat.CadR2013,
            FileFormat.CadR2018,
        ],
        Detect = static source => Detect(source.FirstBytes),
    };

    private static FileFormat Detect(ReadOnlySpan<byte> head) => head switch
    {
        _ when head.StartsWith("AC10"u8) && head.Length > VersionLength =>
            Release(Encoding.ASCII.GetString(head[..VersionLength])),
        _ when head.StartsWith("AC1."u8) => FileFormat.CadR1_4,
        _ when head.StartsWith("AC2."u8) => FileFormat.CadR2_10,
        _ => FileFormat.Undefined,
    };

    private static FileFormat Release(string version) => version switch
    {
        "AC1001" => FileFormat.CadR2_22,
        "AC1002" => FileFormat.CadR2_5,
        "AC1003" => FileFormat.CadR2_6,
        "AC1004" => FileFormat.CadR9,
        "AC1006" => FileFormat.CadR010,
        "AC1009" => FileFormat.CadR011_012,
        "AC1012" => FileFormat.CadR013,
        "AC1014" => FileFormat.CadR014,
        "AC1015" => FileFormat.CadR2000,
        "AC1018" => FileFormat.CadR2004,
        "AC1021" => FileFormat.CadR2007,
        "AC1024" => FileFormat.CadR2010,
        "AC1027" => FileFormat.CadR2013,
        "AC1032" => FileFormat.CadR2018,
        _ => FileFormat.Undefined,
    };
}
