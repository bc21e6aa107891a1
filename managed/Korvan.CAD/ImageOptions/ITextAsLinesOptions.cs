namespace Korvan.CAD.ImageOptions;

/// <summary>Options of formats in which texts can be lines.</summary>
public interface ITextAsLinesOptions
{
    /// <summary>Gets or sets whether texts become lines around their letters instead of filled letters.</summary>
    bool TextAsLines { get; set; }
}
