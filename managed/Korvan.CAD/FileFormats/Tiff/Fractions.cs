using System;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>Approximates numbers by fractions.</summary>
internal static class Fractions
{
    /// <summary>The first convergent of the continued fraction that is near enough, or the last whose parts
    /// fit.</summary>
    internal static (long Numerator, long Denominator) Nearest(double value, double precision, long max)
    {
        double rest = Math.Abs(value);
        (long p0, long q0, long p1, long q1) = (0, 1, 1, 0);
        while (true)
        {
            double whole = Math.Floor(rest);
            double p = (whole * p1) + p0;
            double q = (whole * q1) + q0;
            if (p > max || q > max)
            {
                break;
            }

            (p0, q0, p1, q1) = (p1, q1, (long)p, (long)q);
            if (Math.Abs(((double)p1 / q1) - Math.Abs(value)) <= precision * Math.Abs(value) || rest == whole)
            {
                break;
            }

            rest = 1 / (rest - whole);
        }

        return (value < 0 ? -p1 : p1, q1);
    }
}
