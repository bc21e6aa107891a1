using Korvan.CAD.FileFormats.Ifc.Header;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>What a file of a building model holds.</summary>
/// <param name="Model">The instances.</param>
/// <param name="Header">The header.</param>
/// <param name="Form">The notation that it was read from.</param>
internal sealed record IfcContent(IfcModel Model, IfcHeader Header, IfcFileForm Form);
