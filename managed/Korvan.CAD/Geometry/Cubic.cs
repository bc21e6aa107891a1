using System;

namespace Korvan.CAD.Geometry;

internal static class Cubic
{
    private const int MaxPieces = 256;

    internal static Vec2 At(Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3, double t)
    {
        double s = 1 - t;
        return (p0 * (s * s * s)) + (p1 * (3 * s * s * t)) + (p2 * (3 * s * t * t)) + (p3 * (t * t * t));
    }

    /// <summary>
    /// How many equal steps of the parameter keep the segments within <paramref name="tolerance"/> of the curve: the
    /// second difference bounds the deviation (Wang's formula; R. Goldman, Pyramid Algorithms, 2003).
    /// </summary>
    internal static int PieceCount(Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3, double tolerance)
    {
        double d1 = (p0 - (p1 * 2) + p2).Length;
        double d2 = (p1 - (p2 * 2) + p3).Length;
        double n = Math.Sqrt(0.75 * Math.Max(d1, d2) / tolerance);
        return double.IsFinite(n) ? Math.Clamp((int)Math.Ceiling(n), 1, MaxPieces) : 1;
    }
}
