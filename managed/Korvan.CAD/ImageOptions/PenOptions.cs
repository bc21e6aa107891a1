namespace Korvan.CAD.ImageOptions;

/// <summary>How lines end. Both ends of a line have one shape: different ones are refused, and so is
/// <see cref="LineCap.Triangle"/>. Lines of metafiles say themselves how they end.</summary>
public class PenOptions
{
    /// <summary>Creates options with round ends.</summary>
    public PenOptions()
    {
    }

    /// <summary>Gets or sets the shape of the start of open lines. Round by default.</summary>
    public LineCap StartCap { get; set; } = LineCap.Round;

    /// <summary>Gets or sets the shape of the end of open lines. Round by default.</summary>
    public LineCap EndCap { get; set; } = LineCap.Round;
}
