using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.ImageOptions;

/// <summary>A limit on the size of an encoded image, and the range of qualities that are tried: the best quality within
/// the limit is written.</summary>
public class RdOptimizerSettings
{
    private double _bppMax = 4;
    private int _minQuality = 10;
    private int _maxQuality = 95;

    /// <summary>Creates settings with default values.</summary>
    public RdOptimizerSettings()
    {
    }

    /// <summary>Gets or sets the maximum number of bits per pixel, above 0. 4 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not above 0.</exception>
    public double BppMax
    {
        get => _bppMax;
        set
        {
            if (!(value > 0) || !double.IsFinite(value))
            {
                throw Verify.OutOfRange(nameof(value), value, "Bits per pixel are a finite number above 0.");
            }

            _bppMax = value;
        }
    }

    /// <summary>Gets or sets the lowest acceptable quality, 1 to 100. 10 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 1 to 100.</exception>
    public int MinQuality
    {
        get => _minQuality;
        set => _minQuality = Quality(value);
    }

    /// <summary>Gets or sets the highest quality to try, 1 to 100. 95 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 1 to 100.</exception>
    public int MaxQuality
    {
        get => _maxQuality;
        set => _maxQuality = Quality(value);
    }

    /// <summary>Finds the best quality within the limit by binary search and returns the encoded image.</summary>
    /// <param name="pixels">The number of pixels of the image.</param>
    /// <param name="encode">Encodes the image with a quality.</param>
    /// <exception cref="RdOptimizationError">Even the lowest quality exceeds the limit.</exception>
    internal byte[] Optimize(long pixels, Func<int, byte[]> encode)
    {
        if (MinQuality > MaxQuality)
        {
            throw new RdOptimizationError($"min_quality, {MinQuality}, is above max_quality, {MaxQuality}.");
        }

        double most = BppMax * pixels / 8;
        byte[]? best = null;
        int low = MinQuality;
        int high = MaxQuality;
        int smallest = int.MaxValue;
        while (low <= high)
        {
            int quality = (low + high) / 2;
            byte[] tried = encode(quality);
            smallest = Math.Min(smallest, tried.Length);
            if (tried.Length <= most)
            {
                best = tried;
                low = quality + 1;
            }
            else
            {
                high = quality - 1;
            }
        }

        return best ?? throw new RdOptimizationError(
            $"At min_quality, {MinQuality}, the image takes {8.0 * smallest / pixels:0.##} bits per pixel; "
            + $"bpp_max allows {BppMax:0.##}.");
    }

    private static int Quality(int value, [CallerMemberName] string member = "")
    {
        Verify.InRange(value, 1, 100, member);
        return value;
    }
}
