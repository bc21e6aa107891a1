namespace Korvan.CAD.ImageOptions;

/// <summary>Options of formats that can write text as glyph outlines.</summary>
public interface ITextAsShapesOptions
{
    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts.</summary>
    bool TextAsShapes { get; set; }
}
