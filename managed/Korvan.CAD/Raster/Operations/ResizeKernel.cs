using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Raster.Operations;

/// <summary>The weights by which pixels of a line contribute to each pixel of the resized line. The weights of a pixel
/// sum to 1.</summary>
internal sealed class ResizeKernel
{
    private readonly int[] _first;
    private readonly float[] _weights;

    internal ResizeKernel(int from, int to, ResizeType type)
    {
        (Func<double, double> shape, double support) = Shape(type, from, to);
        double scale = Math.Max(1, (double)from / to); // reduction needs wider kernels
        double reach = support * scale;
        Taps = Math.Min(from, (int)Math.Ceiling(reach * 2) + 1);
        _first = new int[to];
        _weights = new float[(long)to * Taps];
        for (int i = 0; i < to; i++)
        {
            double center = (i + 0.5) * from / to;
            _first[i] = Math.Clamp((int)Math.Floor(center - reach), 0, from - Taps);
            Fill(_weights.AsSpan(i * Taps, Taps), _first[i], center, scale, shape);
        }
    }

    internal int Taps { get; }

    internal int First(int at) => _first[at];

    internal float Weight(int at, int tap) => _weights[(at * Taps) + tap];

    private static void Fill(Span<float> to, int first, double center, double scale, Func<double, double> shape)
    {
        double sum = 0;
        for (int k = 0; k < to.Length; k++)
        {
            double weight = shape((first + k + 0.5 - center) / scale);
            to[k] = (float)weight;
            sum += weight;
        }

        if (sum == 0)
        {
            to[to.Length / 2] = 1;
            return;
        }

        foreach (ref float weight in to)
        {
            weight = (float)(weight / sum);
        }
    }

    private static (Func<double, double> Shape, double Support) Shape(ResizeType type, int from, int to) => type switch
    {
        ResizeType.Box => (Box, 0.5),
        ResizeType.Bilinear => (Tent, 1),
        ResizeType.Bell => (Bell, 1.5),
        ResizeType.Hermite => (Cubic(0, 0), 1),
        ResizeType.CubicBSpline => (Cubic(1, 0), 2),
        ResizeType.CatmullRom => (Cubic(0, 0.5), 2),
        ResizeType.Mitchell => (Cubic(1 / 3.0, 1 / 3.0), 2),
        ResizeType.Lanczos => (Lanczos, 3),
        ResizeType.Adaptive => Shape(AdaptiveType(from, to), from, to),
        _ => throw Verify.OutOfRange(nameof(type), type, "There is no such resampling filter."),
    };

    private static ResizeType AdaptiveType(int from, int to) =>
        to * 2L < from ? ResizeType.Box : to < from ? ResizeType.Bilinear : ResizeType.CatmullRom;

    private static double Box(double x) => x is >= -0.5 and < 0.5 ? 1 : 0;

    private static double Tent(double x) => Math.Max(0, 1 - Math.Abs(x));

    private static double Bell(double x)
    {
        double a = Math.Abs(x);
        return a < 0.5 ? 0.75 - (a * a) : a < 1.5 ? 0.5 * (a - 1.5) * (a - 1.5) : 0;
    }

    private static double Lanczos(double x)
    {
        double a = Math.Abs(x) * Math.PI;
        return a == 0 ? 1 : a < 3 * Math.PI ? 3 * Math.Sin(a) * Math.Sin(a / 3) / (a * a) : 0;
    }

    // The family of D. Mitchell and A. Netravali, "Reconstruction filters in computer graphics", 1988.
    private static Func<double, double> Cubic(double b, double c) => x =>
    {
        double a = Math.Abs(x);
        return a switch
        {
            < 1 => ((12 - (9 * b) - (6 * c)) * a * a * a + ((-18 + (12 * b) + (6 * c)) * a * a) + (6 - (2 * b))) / 6,
            < 2 => (((-b - (6 * c)) * a * a * a) + (((6 * b) + (30 * c)) * a * a) + (((-12 * b) - (48 * c)) * a)
                + ((8 * b) + (24 * c))) / 6,
            _ => 0,
        };
    };
}
