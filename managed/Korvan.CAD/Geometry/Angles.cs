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
}
