using System;
using System.Xml;
using System.Xml.Linq;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>An element that violates the schema.</summary>
internal sealed class IfcXmlException(LoadDefectCode code, XElement element, string message) : Exception(message)
{
    internal LoadDefectCode Code { get; } = code;

    internal int Line { get; } = ((IXmlLineInfo)element).LineNumber;
}
