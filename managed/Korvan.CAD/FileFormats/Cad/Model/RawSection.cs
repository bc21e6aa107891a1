namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A section that the library does not interpret, without the tags that begin and end it.</summary>
internal sealed class RawSection(string name)
{
    internal string Name { get; } = name;

    internal KeptData Content { get; init; } = new KeptTags();
}
