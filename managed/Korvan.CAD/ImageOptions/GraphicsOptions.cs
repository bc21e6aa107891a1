namespace Korvan.CAD.ImageOptions;

/// <summary>Antialiasing of shapes, text and images in raster output. Page formats leave it to the viewer, so that
/// setting an option raises an error, unless <see cref="VectorRasterizationOptions.ContentAsBitmap"/> rasterizes their
/// content.</summary>
public class GraphicsOptions
{
    /// <summary>Creates options that leave antialiasing to the device.</summary>
    public GraphicsOptions()
    {
    }

    /// <summary>Gets or sets the antialiasing and hinting of text.</summary>
    public TextRenderingHint TextRenderingHint { get; set; } = TextRenderingHint.SystemDefault;

    /// <summary>Gets or sets the antialiasing of shapes.</summary>
    public SmoothingMode SmoothingMode { get; set; } = SmoothingMode.Default;

    /// <summary>Gets or sets the interpolation of scaled images.</summary>
    public InterpolationMode InterpolationMode { get; set; } = InterpolationMode.Default;
}
