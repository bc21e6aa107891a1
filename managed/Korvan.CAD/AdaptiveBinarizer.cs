using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Operations;

namespace Korvan.CAD;

/// <summary>Binarizes images by comparing each pixel with the mean of the square around it, for unevenly lit scans (D.
/// Bradley and G. Roth, 2007).</summary>
/// <remarks>D. Bradley and G. Roth, "Adaptive thresholding using the integral image", 2007.</remarks>
public class AdaptiveBinarizer : IImagePreprocessor
{
    private int _windowSize = 15;
    private double _brightnessDifference = 0.15;

    /// <summary>Creates a binarizer that compares with squares of 15 pixels.</summary>
    public AdaptiveBinarizer()
    {
    }

    /// <summary>Creates a binarizer.</summary>
    /// <param name="windowSize">The side of the square, 3 to 10000 pixels.</param>
    /// <param name="brightnessDifference">How much darker than the mean of the square black is, 0 to 1.</param>
    public AdaptiveBinarizer(int windowSize, double brightnessDifference)
    {
        WindowSize = windowSize;
        BrightnessDifference = brightnessDifference;
    }

    /// <summary>Gets or sets the side of the square, 3 to 10000 pixels.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public int WindowSize
    {
        get => _windowSize;
        set
        {
            Verify.InRange(value, 3, 10_000);
            _windowSize = value;
        }
    }

    /// <summary>Gets or sets how much darker than the mean of the square black is, 0 to 1.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public double BrightnessDifference
    {
        get => _brightnessDifference;
        set
        {
            if (!(value >= 0 && value <= 1))
            {
                throw Verify.OutOfRange(nameof(value), value, "The difference is 0 to 1.");
            }

            _brightnessDifference = value;
        }
    }

    /// <inheritdoc/>
    public void Process(RasterImage image)
    {
        Verify.NotNull(image);
        image.Replace(Binarization.Adaptive(image.Pixels, WindowSize, BrightnessDifference));
    }
}
