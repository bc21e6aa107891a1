namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A file that a drawing refers to.</summary>
/// <param name="Feature">What refers to it: Acad:XRef, Acad:Image, Acad:PlotConfig or Acad:Text.</param>
/// <param name="FullName">The name as in the drawing.</param>
/// <param name="FoundPath">The folder in which it was found.</param>
/// <param name="Fingerprint">The identifier of an external reference; empty for other files.</param>
/// <param name="Version">The version of an external reference; empty for other files.</param>
/// <param name="Time">When it was changed, in seconds since 1980.</param>
/// <param name="Size">The size in bytes.</param>
/// <param name="AffectsGraphics">Whether the drawing is rendered differently without it.</param>
/// <param name="References">The number of references.</param>
internal sealed record FileDependency(string Feature, string FullName, string FoundPath, string Fingerprint,
    string Version, int Time, int Size, bool AffectsGraphics, int References);
