using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Conic arcs as metafiles state them: by points, by rays from the centre, by conjugate diameters.</summary>
internal static class ConicArcs
{
    private const double FullTurn = 2 * Math.PI;

    /// <summary>A circular arc by its start and sweep angles in radians; a negative sweep is clockwise.</summary>
    internal readonly record struct Arc(Vec2 Center, double Radius, double Start, double Sweep);

    /// <summary>The arc through three points, in their order. False when they lie on a line.</summary>
    internal static bool TryThrough(Vec2 first, Vec2 second, Vec2 third, out Arc arc)
    {
        Vec2 a = second - first;
        Vec2 b = third - first;
        double cross = 2 * Vec2.Cross(a, b);
        double size = Math.Max(a.Length, b.Length);
        arc = default;
        if (!(Math.Abs(cross) > 1e-12 * size * size))
        {
            return false;
        }

        double aa = Vec2.Dot(a, a);
        double bb = Vec2.Dot(b, b);
        var center = new Vec2(((b.Y * aa) - (a.Y * bb)) / cross, ((a.X * bb) - (b.X * aa)) / cross);
        double start = Math.Atan2(-center.Y, -center.X);
        double end = Math.Atan2(b.Y - center.Y, b.X - center.X);
        arc = new Arc(first + center, center.Length, start, Turn(start, end, cross > 0));
        return true;
    }

    /// <summary>The arc between two rays from the centre; equal rays make a whole turn.</summary>
    internal static Arc Between(Vec2 center, Vec2 startRay, Vec2 endRay, double radius, bool clockwise)
    {
        double start = Math.Atan2(startRay.Y, startRay.X);
        double end = Math.Atan2(endRay.Y, endRay.X);
        return new Arc(center, radius, start, Turn(start, end, !clockwise));
    }

    /// <summary>
    /// The parameters of an arc of the ellipse with conjugate half diameters u and v, between two rays: it runs from
    /// the first diameter towards the second (ISO/IEC 8632-1, 7.5.18).
    /// </summary>
    internal static (double Start, double Sweep) OnEllipse(Vec2 u, Vec2 v, Vec2 startRay, Vec2 endRay)
    {
        double start = Parameter(u, v, startRay);
        return (start, Turn(start, Parameter(u, v, endRay), true));
    }

    /// <summary>Adds the parabola through two points with the given intersection of the tangents there.</summary>
    internal static void Parabola(in PathPen pen, Vec2 start, Vec2 meeting, Vec2 end)
    {
        // A parabola is a quadratic Bézier curve, written here as a cubic one.
        pen.MoveTo(start);
        pen.CurveTo(Vec2.Lerp(start, meeting, 2.0 / 3), Vec2.Lerp(end, meeting, 2.0 / 3), end);
    }

    /// <summary>
    /// An arc of a hyperbola with its transverse half axis a and its conjugate half axis b: c + a cosh t + b sinh t,
    /// between two rays from the centre, by pieces with the curve's own tangents.
    /// </summary>
    internal static bool TryHyperbola(in PathPen pen, Vec2 center, Vec2 a, Vec2 b, Vec2 startRay, Vec2 endRay)
    {
        const int pieces = 16;
        if (!TryHyperbolic(a, b, startRay, out double first) || !TryHyperbolic(a, b, endRay, out double last))
        {
            return false;
        }

        double step = (last - first) / pieces;
        pen.MoveTo(At(first));
        for (int i = 0; i < pieces; i++)
        {
            double t = first + (i * step);
            Vec2 from = At(t);
            Vec2 to = At(t + step);
            pen.CurveTo(from + (Tangent(t) * (step / 3)), to - (Tangent(t + step) * (step / 3)), to);
        }

        return true;

        Vec2 At(double t) => center + (a * Math.Cosh(t)) + (b * Math.Sinh(t));
        Vec2 Tangent(double t) => (a * Math.Sinh(t)) + (b * Math.Cosh(t));
    }

    /// <summary>Where a ray from the centre meets the branch; it has to lie between the asymptotes.</summary>
    private static bool TryHyperbolic(Vec2 a, Vec2 b, Vec2 ray, out double t)
    {
        double d = Vec2.Cross(a, b);
        double x = Vec2.Cross(ray, b) / d;
        double y = Vec2.Cross(a, ray) / d;
        t = Math.Atanh(y / x);
        return double.IsFinite(t);
    }

    private static double Parameter(Vec2 u, Vec2 v, Vec2 ray)
    {
        double d = Vec2.Cross(u, v);
        return d == 0 ? 0 : Math.Atan2(Vec2.Cross(u, ray) / d, Vec2.Cross(ray, v) / d);
    }

    private static double Turn(double start, double end, bool counterclockwise)
    {
        const double epsilon = 1e-9;
        double sweep = (end - start) % FullTurn;
        sweep = sweep < 0 ? sweep + FullTurn : sweep;
        if (sweep < epsilon || sweep > FullTurn - epsilon)
        {
            return counterclockwise ? FullTurn : -FullTurn;
        }

        return counterclockwise ? sweep : sweep - FullTurn;
    }
}
