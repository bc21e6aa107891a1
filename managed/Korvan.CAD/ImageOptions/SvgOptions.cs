namespace Korvan.CAD.ImageOptions;

/// <summary>Writes scalable vector graphics.</summary>
public class SvgOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public SvgOptions()
        : base(FileFormat.Svg)
    {
    }

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. On by
    /// default.</summary>
    public bool TextAsShapes { get; set; } = true;
}
