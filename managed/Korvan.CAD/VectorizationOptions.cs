using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Options for loading a raster image as a drawing. Its unit is the millimetre, its origin the lower left
/// corner.</summary>
public class VectorizationOptions
{
    private double _dotsPerInch;
    private int _threshold = -1;

    /// <summary>Creates options with default values.</summary>
    public VectorizationOptions()
    {
    }

    /// <summary>Gets or sets the method of vectorization. Outlines by default.</summary>
    public VectorizationMethod Method { get; set; } = VectorizationMethod.Contour;

    /// <summary>Gets or sets the threshold of lightness below which a pixel is dark, 1 to 255; -1, the default, for
    /// Otsu's method.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is neither -1 nor 1 to 255.</exception>
    public int Threshold
    {
        get => _threshold;
        set
        {
            if (value is not -1 and (< 1 or > 255))
            {
                throw Verify.OutOfRange(nameof(value), value, "A threshold is 1 to 255, or -1 for Otsu's method.");
            }

            _threshold = value;
        }
    }

    /// <summary>Gets or sets the resolution in pixels per inch; 0, the default, for that of the image.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative or not finite.</exception>
    public double DotsPerInch
    {
        get => _dotsPerInch;
        set => _dotsPerInch = NotNegative(value);
    }

    /// <summary>Gets or sets the layer of the entities. "0" by default.</summary>
    public string LayerName { get; set; } = "0";

    /// <summary>Gets the options for outlines.</summary>
    public ContourOptions ContourOptions { get; } = new();

    /// <summary>Gets the options for centre lines.</summary>
    public PaperToCadOptions PaperToCadOptions { get; } = new();

    internal static double NotNegative(double value, [CallerMemberName] string member = "")
    {
        return double.IsFinite(value) && value >= 0
            ? value
            : throw Verify.OutOfRange(member, value, "A finite number that is not below 0 was expected.");
    }
}
