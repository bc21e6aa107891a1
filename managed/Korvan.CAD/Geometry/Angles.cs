using System;

namespace Korvan.CAD.Geometry;

internal static class Angles
{
    private const double SmallestSweep = 1e-12;

    internal static double Radians(double degrees) => degrees * Math.PI / 180;

    internal static double Degrees(double radians) => radians * 180 / Math.PI;

    /// <summary>The counterclockwise way from one angle to another, in radians; equal angles are a full turn.</summary>
    internal static double Sweep(double start, double end)
    {
        double sweep = Math.IEEERemainder(end - start, Math.Tau);
        return sweep <= SmallestSweep ? sweep + Math.Tau : sweep;
    }

    /// <summary>The parameter of an ellipse at which its point lies in a direction from the centre: tan t = tan a / r,
    /// in the same quadrant and turn.</summary>
    /// <param name="angle">The direction in radians, measured from the major axis.</param>
    /// <param name="ratio">The length of the minor axis as part of the major axis.</param>
    internal static double EllipseParameter(double angle, double ratio)
    {
        if (!(ratio > 0))
        {
            return angle;
        }

        (double sin, double cos) = Math.SinCos(angle);
        return angle + Math.IEEERemainder(Math.Atan2(sin / ratio, cos) - angle, Math.Tau);
    }
}
