namespace Korvan.CAD.ImageOptions;

/// <summary>How shapes, texts and pictures are smoothed in pixels. Page formats leave that to whoever shows them and refuse it,
/// unless <see cref="VectorRasterizationOptions.ContentAsBitmap"/> makes pixels of their content.</summary>
public class GraphicsOptions
{
    /// <summary>Creates options that leave smoothing to the device.</summary>
    public GraphicsOptions()
    {
    }

    /// <summary>Gets or sets how letters are smoothed.</summary>
    public TextRenderingHint TextRenderingHint { get; set; } = TextRenderingHint.SystemDefault;

    /// <summary>Gets or sets how shapes are smoothed.</summary>
    public SmoothingMode SmoothingMode { get; set; } = SmoothingMode.Default;

    /// <summary>Gets or sets how pictures are resampled.</summary>
    public InterpolationMode InterpolationMode { get; set; } = InterpolationMode.Default;
}
