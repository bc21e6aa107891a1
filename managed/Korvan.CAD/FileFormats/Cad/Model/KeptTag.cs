using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A tag that is written back as it was read, behind the marker that it stood behind.</summary>
internal readonly record struct KeptTag(string? Subclass, CadCodeValue Value)
{
    /// <summary>Stands for the marker of tags among which markers are kept as well.</summary>
    internal const string Verbatim = "*";
}
