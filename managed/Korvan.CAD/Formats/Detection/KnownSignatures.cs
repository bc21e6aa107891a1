using System;
using System.Text;

namespace Korvan.CAD.Formats.Detection;

/// <summary>Formats that are told apart by their first bytes, and neither read nor written.</summary>
internal static class KnownSignatures
{
    internal static FormatRecord[] Records { get; } =
    [
        RecordOf("DWF", FileFormat.Dwf, "(DWF V"),
        RecordOf("FBX", FileFormat.Fbx, "Kaydara FBX Binary"),
        RecordOf("U3D", FileFormat.U3D, "U3D\0"),
        RecordOf("Draco", FileFormat.Draco, "DRACO"),
        RecordOf("DXB", FileFormat.Dxb, "AutoCAD DXB"),
    ];

    private static FormatRecord RecordOf(string name, FileFormat format, string signature)
    {
        byte[] start = Encoding.ASCII.GetBytes(signature);
        return new()
        {
            Name = name,
            Formats = [format],
            Detect = source => source.FirstBytes.StartsWith(start) ? format : FileFormat.Undefined,
        };
    }
}
