using System;

namespace Korvan.CAD;

/// <summary>How the strokes of a scanned drawing become lines.</summary>
public class PaperToCadOptions
{
    private double _tolerance = 1;
    private double _minimumLength = 5;

    /// <summary>Creates options with their defaults.</summary>
    public PaperToCadOptions()
    {
    }

    /// <summary>Gets or sets how far a line may lie from the middle of its stroke, in pixels. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative or not finite.</exception>
    public double Tolerance
    {
        get => _tolerance;
        set => _tolerance = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets the least length of a line with a free end, in pixels; shorter spurs are left out. 5 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative or not finite.</exception>
    public double MinimumLength
    {
        get => _minimumLength;
        set => _minimumLength = VectorizationOptions.NotNegative(value);
    }

    /// <summary>Gets or sets whether lines get the weight that is nearest to the width of their stroke. On by
    /// default.</summary>
    public bool KeepLineWeights { get; set; } = true;
}
