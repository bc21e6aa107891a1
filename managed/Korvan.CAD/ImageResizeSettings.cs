using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a picture changes its size.</summary>
public class ImageResizeSettings
{
    private int _entriesCount;

    /// <summary>Creates settings with their defaults.</summary>
    public ImageResizeSettings()
    {
    }

    /// <summary>Gets or sets how pixels are found.</summary>
    public ResizeType Mode { get; set; } = ResizeType.Adaptive;

    /// <summary>Gets or sets to how many colours the result is brought; 0 for all that come out, else 2 to
    /// 256.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is none of these.</exception>
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

    /// <summary>Gets or sets how these colours are chosen.</summary>
    public ColorQuantizationMethod ColorQuantizationMethod { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets or sets the colour of a border, where the way of resizing does not scale.</summary>
    public Color BackgroundColor { get; set; } = Color.Transparent;
}
