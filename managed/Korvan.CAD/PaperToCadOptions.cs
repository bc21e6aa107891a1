using System;

namespace Korvan.CAD;

/// <summary>Options for the lines that strokes of a scanned drawing become.</summary>
public class PaperToCadOptions
{
    private double _tolerance = 1;
    private double _minimumLength = 5;

    /// <summary>Creates options with default values.</summary>
    public PaperToCadOptions()
    {
    }

    /// <summary>Gets or sets the tolerance: the largest distance of a line from the centre of its stroke, in pixels. 1
    /// by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative or not finite.</exception>
    public double Tolerance
    {
        get => _tolerance;
        set => _tolerance = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets the minimum length of a line with a free end, in pixels; shorter spurs are left out. 5 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative or not finite.</exception>
    public double MinimumLength
    {
        get => _minimumLength;
        set => _minimumLength = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets whether lines get the line weight that is nearest to the width of their stroke. On by
    /// default.</summary>
    public bool KeepLineWeights { get; set; } = true;
}
