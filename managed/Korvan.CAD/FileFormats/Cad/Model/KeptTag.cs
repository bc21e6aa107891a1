
namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A tag that is written back as it was read, after the subclass marker that it followed.</summary>
internal readonly record struct KeptTag(string? Subclass, CadCodeValue Value)
{
    /// <summary>The marker of tags that are kept together with the markers among them.</summary>
    internal const string Verbatim = "*";
}
