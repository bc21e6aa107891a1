namespace Korvan.CAD.ImageOptions;

/// <summary>The line caps. Both ends of a line have the same cap: different caps raise an error, and so does
/// <see cref="LineCap.Triangle"/>. Metafiles define their own line caps.</summary>
public class PenOptions
{
    /// <summary>Creates options with round caps.</summary>
    public PenOptions()
    {
    }

    /// <summary>Gets or sets the cap at the start of open lines. Round by default.</summary>
    public LineCap StartCap { get; set; } = LineCap.Round;

    /// <summary>Gets or sets the cap at the end of open lines. Round by default.</summary>
    public LineCap EndCap { get; set; } = LineCap.Round;
}
