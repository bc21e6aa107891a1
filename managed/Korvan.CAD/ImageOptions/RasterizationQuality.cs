namespace Korvan.CAD.ImageOptions;

/// <summary>How finely the kinds of objects are drawn. Members that an output has no use for are refused by name when it is
/// written.</summary>
public class RasterizationQuality
{
    /// <summary>Creates a quality that is medium in all respects.</summary>
    public RasterizationQuality()
    {
    }

    /// <summary>Gets or sets the quality of texts in pixels: low without smoothing, high as outlines that lie exactly where they
    /// shall, not on whole pixels. Page formats keep letters or their exact outlines in all qualities.</summary>
    public RasterizationQualityValue Text { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of pattern hatches: low fills their areas evenly in half their colour; above, each line is
    /// drawn.</summary>
    public RasterizationQualityValue Hatch { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets how near chords keep to curves where these become lines: in pixels and in metafiles without curves.
    /// Low takes ten times the usual distance, high a tenth.</summary>
    public RasterizationQualityValue Arc { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of embedded documents. They are not drawn: other values than medium are refused.</summary>
    public RasterizationQualityValue Ole { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets how many chords stand for a circle in formats of faces: 16, 64 or 256. Refused in others, where bodies
    /// are drawn by their edges.</summary>
    public RasterizationQualityValue ObjectsPrecision { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets whether the strokes of texts keep one width whatever the size of the text. Outline fonts, with which
    /// texts are drawn, have no such strokes: setting it is refused.</summary>
    public bool TextThicknessNormalization { get; set; }
}
