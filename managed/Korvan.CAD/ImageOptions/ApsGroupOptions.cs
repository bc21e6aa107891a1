namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the outlines of a drawing as input for cutting machines.</summary>
public class ApsGroupOptions : ImageOptionsBase, ITextAsLinesOptions
{
    /// <summary>Creates options with default values.</summary>
    public ApsGroupOptions()
        : base(FileFormat.ApsGroup)
    {
    }

    /// <summary>Gets or sets the flattening tolerance: the largest distance of a line segment from the curve that it
    /// approximates, in drawing units. 0.01 by default.</summary>
    public double Tolerance { get; set; } = 0.01;

    /// <summary>Gets or sets whether text is written as the outlines of its glyphs instead of filled glyphs. Off by
    /// default.</summary>
    public bool TextAsLines { get; set; }
}
