using System;
using System.Collections.Frozen;
using System.Collections.Generic;
using System.Text;

namespace Korvan.CAD.Formats.Dwg;

/// <summary>Drawing databases (DWG), detected by the release in their first six bytes.</summary>
internal static class DwgFormat
{
    private const int VersionLength = 6;

    private static readonly FrozenDictionary<string, FileFormat> Releases = new Dictionary<string, FileFormat>
    {
        ["AC1001"] = FileFormat.CadR2_22,
        ["AC1002"] = FileFormat.CadR2_5,
        ["AC1003"] = FileFormat.CadR2_6,
        ["AC1004"] = FileFormat.CadR9,
        ["AC1006"] = FileFormat.CadR010,
        ["AC1009"] = FileFormat.CadR011_012,
        ["AC1012"] = FileFormat.CadR013,
        ["AC1014"] = FileFormat.CadR014,
        ["AC1015"] = FileFormat.CadR2000,
        ["AC1018"] = FileFormat.CadR2004,
        ["AC1021"] = FileFormat.CadR2007,
        ["AC1024"] = FileFormat.CadR2010,
        ["AC1027"] = FileFormat.CadR2013,
        ["AC1032"] = FileFormat.CadR2018,
    }.ToFrozenDictionary();

    internal static FormatRecord Record { get; } = new()
    {
        Name = "DWG",
        Formats = [FileFormat.CadR1_4, FileFormat.CadR2_10, .. Releases.Values],
        Detect = static source => Detect(source.FirstBytes),
    };

    private static FileFormat Detect(ReadOnlySpan<byte> start) => start switch
    {
        _ when start.StartsWith("AC10"u8) && start.Length > VersionLength =>
            Releases.GetValueOrDefault(Encoding.ASCII.GetString(start[..VersionLength])),
        _ when start.StartsWith("AC1."u8) => FileFormat.CadR1_4,
        _ when start.StartsWith("AC2."u8) => FileFormat.CadR2_10,
        _ => FileFormat.Undefined,
    };
}
