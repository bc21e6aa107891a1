using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>A tag that is written back as it was read, behind the marker that it stood behind.</summary>
internal readonly record struct KeptTag(string? Subclass, CadCodeValue Value);
