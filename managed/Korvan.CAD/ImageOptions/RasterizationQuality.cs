namespace Korvan.CAD.ImageOptions;

/// <summary>The rendering quality by kind of object. Saving raises an error that names a property which is set, but not
/// supported by the output.</summary>
public class RasterizationQuality
{
    /// <summary>Creates a quality whose properties are all medium.</summary>
    public RasterizationQuality()
    {
    }

    /// <summary>Gets or sets the quality of rasterized text: low without antialiasing, high as glyph outlines at
    /// subpixel positions. Page formats have glyphs or exact outlines in all qualities.</summary>
    public RasterizationQualityValue Text { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of pattern hatches: low fills their areas with half the colour; otherwise each
    /// line is drawn.</summary>
    public RasterizationQualityValue Hatch { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of flattened curves, in raster output and in metafiles without curves. Low has
    /// ten times the default tolerance, high a tenth of it.</summary>
    public RasterizationQualityValue Arc { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the quality of embedded documents. They are not rendered: values other than medium raise
    /// an error.</summary>
    public RasterizationQualityValue Ole { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets the tessellation of circles in mesh formats: 16, 64 or 256 segments. Not supported by
    /// other formats, in which solids are drawn as edges.</summary>
    public RasterizationQualityValue ObjectsPrecision { get; set; } = RasterizationQualityValue.Medium;

    /// <summary>Gets or sets whether the strokes of text have a width that is independent of its height. Text is drawn
    /// with outline fonts, which have no strokes: setting it raises an error.</summary>
    public bool TextThicknessNormalization { get; set; }
}
