using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Options for the outlines of dark areas of an image.</summary>
public class ContourOptions
{
    private double _tolerance = 1;
    private int _minimumArea = 4;

    /// <summary>Creates options with default values.</summary>
    public ContourOptions()
    {
    }

    /// <summary>Gets or sets the tolerance: the largest distance of an outline from the pixel edges, in pixels; 0 keeps
    /// every step. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative or not finite.</exception>
    public double Tolerance
    {
        get => _tolerance;
        set => _tolerance = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets the minimum area of an outlined region, in pixels; smaller specks and holes are left out.
    /// 4 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative.</exception>
    public int MinimumArea
    {
        get => _minimumArea;
        set
        {
            Verify.NotNegative(value);
            _minimumArea = value;
        }
    }

    /// <summary>Gets or sets whether the areas are also filled with a hatch. Off by default.</summary>
    public bool Fill { get; set; }
}
