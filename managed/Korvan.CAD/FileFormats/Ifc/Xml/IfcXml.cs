using System;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>Detects building models in XML (ifcXML).</summary>
internal static class IfcXml
{
    private const int HeaderLength = 4096;

    /// <summary>Returns whether data is ifcXML of any version.</summary>
    internal static bool IsIfcXml(ReadOnlySpan<byte> data)
    {
        ReadOnlySpan<byte> head = data[..Math.Min(data.Length, HeaderLength)].TrimStart("\uFEFF \t\r\n"u8);
        return head.StartsWith("<"u8) && (head.IndexOf("ifcXML"u8) >= 0 || head.IndexOf("iso_10303_28"u8) >= 0);
    }

    /// <summary>Returns whether data is ifcXML of IFC2X3.</summary>
    internal static bool IsIfc2X3(ReadOnlySpan<byte> head) =>
        IsIfcXml(head) && head.IndexOf("iso_10303_28"u8) >= 0 && head.IndexOf("ifcXML/IFC2x3"u8) >= 0;
}
