namespace Korvan.CAD.ImageOptions;

/// <summary>Options of formats that can write text as unfilled outlines.</summary>
public interface ITextAsLinesOptions
{
    /// <summary>Gets or sets whether text is written as the outlines of its glyphs instead of filled glyphs.</summary>
    bool TextAsLines { get; set; }
}
