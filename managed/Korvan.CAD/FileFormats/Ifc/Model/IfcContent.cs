using Korvan.CAD.FileFormats.Ifc.Header;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The content of a building model file.</summary>
/// <param name="Model">The instances.</param>
/// <param name="Header">The header.</param>
/// <param name="Form">The form in which it was read.</param>
internal sealed record IfcContent(IfcModel Model, IfcHeader Header, IfcFileForm Form);
