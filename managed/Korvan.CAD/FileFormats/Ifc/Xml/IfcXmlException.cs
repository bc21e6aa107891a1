using System;
using System.Xml;
using System.Xml.Linq;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>An element that has no place in the schema.</summary>
internal sealed class IfcXmlException(XElement element, string message) : Exception(message)
{
    internal int Line { get; } = ((IXmlLineInfo)element).LineNumber;
}
