namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the outlines of a drawing are written for cutting machines.</summary>
public class ApsGroupOptions : ImageOptionsBase, ITextAsLinesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public ApsGroupOptions()
        : base(FileFormat.ApsGroup)
    {
    }

    /// <summary>Gets or sets how far a chord may lie from its curve, in drawing units. 0.01 by default.</summary>
    public double Tolerance { get; set; } = 0.01;

    /// <summary>Gets or sets whether texts become lines around their letters instead of filled letters. Off by default.</summary>
    public bool TextAsLines { get; set; }
}
