using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How outlines are drawn around what is dark in a picture.</summary>
public class ContourOptions
{
    private double _tolerance = 1;
    private int _minimumArea = 4;

    /// <summary>Creates options with their defaults.</summary>
    public ContourOptions()
    {
    }

    /// <summary>Gets or sets how far the outline may lie from the edges of pixels, in pixels; 0 keeps every step. 1 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative or not finite.</exception>
    public double Tolerance
    {
        get => _tolerance;
        set => _tolerance = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets the least area of what gets an outline, in pixels; smaller specks and holes are left out. 4
    /// by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative.</exception>
    public int MinimumArea
    {
        get => _minimumArea;
        set
        {
            Verify.NotNegative(value);
            _minimumArea = value;
        }
    }

    /// <summary>Gets or sets whether the areas are filled as well, by one hatch. Off by default.</summary>
    public bool Fill { get; set; }
}
