using System;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>Tells building models in XML.</summary>
internal static class IfcXml
{
    private const int HeaderLength = 4096;

    /// <summary>Tells a building model in XML of whatever edition.</summary>
    internal static bool IsIfcXml(ReadOnlySpan<byte> data)
    {
        ReadOnlySpan<byte> head = data[..Math.Min(data.Length, HeaderLength)].TrimStart("\uFEFF \t\r\n"u8);
        return head.StartsWith("<"u8) && (head.IndexOf("ifcXML"u8) >= 0 || head.IndexOf("iso_10303_28"u8) >= 0);
    }

    /// <summary>Tells a building model in XML of edition 2x3.</summary>
    internal static bool IsIfc2X3(ReadOnlySpan<byte> head) =>
        IsIfcXml(head) && head.IndexOf("iso_10303_28"u8) >= 0 && head.IndexOf("ifcXML/IFC2x3"u8) >= 0;
}
