using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Korvan.CAD.Formats.Detection;

/// <summary>Formats that are detected by their first bytes, but neither read nor written.</summary>
internal static class KnownSignatures
{
    private static readonly (string Name, FileFormat Format, string Signature)[] Known =
    [
        ("DWF", FileFormat.Dwf, "(DWF V"),
        ("FBX", FileFormat.Fbx, "Kaydara FBX Binary"),
        ("U3D", FileFormat.U3D, "U3D\0"),
        ("Draco", FileFormat.Draco, "DRACO"),
        ("DXB", FileFormat.Dxb, "AutoCAD DXB"),
    ];

    internal static IReadOnlyList<FormatRecord> Records { get; } =
        [.. Known.Select(static one => RecordOf(one.Name, one.Format, Encoding.ASCII.GetBytes(one.Signature)))];

    private static FormatRecord RecordOf(string name, FileFormat format, byte[] signature) => new()
    {
        Name = name,
        Formats = [format],
        Detect = source => source.FirstBytes.StartsWith(signature) ? format : FileFormat.Undefined,
    };
}
