using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a picture is loaded as a drawing. Its units are millimetres, its origin is the lower left corner.</summary>
public class VectorizationOptions
{
    private double _dotsPerInch;
    private int _threshold = -1;

    /// <summary>Creates options with their defaults.</summary>
    public VectorizationOptions()
    {
    }

    /// <summary>Gets or sets how lines and areas are found. Outlines by default.</summary>
    public VectorizationMethod Method { get; set; } = VectorizationMethod.Contour;

    /// <summary>Gets or sets below which lightness a pixel is dark, 1 to 255; -1 to find that of the picture by Otsu's
    /// method. -1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is neither -1 nor 1 to 255.</exception>
    public int Threshold
    {
        get => _threshold;
        set
        {
            if (value is not -1 and (< 1 or > 255))
            {
                throw Verify.OutOfRange(nameof(value), value, "A threshold is 1 to 255, or -1 to find it.");
            }

            _threshold = value;
        }
    }

    /// <summary>Gets or sets the pixels of an inch; 0 for what the picture says. 0 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative or not finite.</exception>
    public double DotsPerInch
    {
        get => _dotsPerInch;
        set => _dotsPerInch = NotNegative(value);
    }

    /// <summary>Gets or sets the layer that lines and areas lie on. "0" by default.</summary>
    public string LayerName { get; set; } = "0";

    /// <summary>Gets how outlines are drawn.</summary>
    public ContourOptions ContourOptions { get; } = new();

    /// <summary>Gets how strokes become lines.</summary>
    public PaperToCadOptions PaperToCadOptions { get; } = new();

    internal static double NotNegative(double value, [CallerMemberName] string member = "")
    {
        return double.IsFinite(value) && value >= 0
            ? value
            : throw Verify.OutOfRange(member, value, "A finite number that is not below 0 was expected.");
    }
}
