namespace Korvan.CAD.ImageOptions;

/// <summary>How finely the kinds of objects are drawn.</summary>
public class RasterizationQuality
{
    /// <summary>Creates a quality that is medium in all respects.</summary>
    public RasterizationQuality()
    {
    }

    /// <summary>Gets or sets the quality of texts.</summary>
    public RasterizationQualityValue Text { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of hatches.</summary>
    public RasterizationQualityValue Hatch { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of arcs and other curves.</summary>
    public RasterizationQualityValue Arc { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of embedded documents.</summary>
    public RasterizationQualityValue Ole { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of curved surfaces of bodies.</summary>
    public RasterizationQualityValue ObjectsPrecision { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets whether the strokes of texts keep one width whatever the size of the text.</summary>
    public bool TextThicknessNormalization { get; set; }
}
