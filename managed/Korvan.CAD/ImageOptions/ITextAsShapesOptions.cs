namespace Korvan.CAD.ImageOptions;

/// <summary>Options of formats in which texts can be outlines.</summary>
public interface ITextAsShapesOptions
{
    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts.</summary>
    bool TextAsShapes { get; set; }
}
