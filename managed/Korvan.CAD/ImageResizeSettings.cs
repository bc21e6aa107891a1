using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Settings of resizing an image.</summary>
public class ImageResizeSettings
{
    private int _entriesCount;

    /// <summary>Creates settings of adaptive resizing to any number of colours.</summary>
    public ImageResizeSettings()
    {
    }

    /// <summary>Gets or sets the resampling filter.</summary>
    public ResizeType Mode { get; set; } = ResizeType.Adaptive;

    /// <summary>Gets or sets the number of colours of the result, 2 to 256; 0 for no limit. 0 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is neither 0 nor 2 to 256.</exception>
    public int EntriesCount
    {
        get => _entriesCount;
        set
        {
            if (value is not (0 or (>= 2 and <= 256)))
            {
                throw Verify.OutOfRange(nameof(value), value, "The number of colours is 0, or 2 to 256.");
            }

            _entriesCount = value;
        }
    }

    /// <summary>Gets or sets how the colours of the result are chosen.</summary>
    public ColorQuantizationMethod ColorQuantizationMethod { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets or sets the colour of borders, where the resampling filter does not scale. Transparent by
    /// default.</summary>
    public Color BackgroundColor { get; set; } = Color.Transparent;
}
