using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>
/// The twice differentiable cubic through fit points, over chord lengths as parameters. End tangents are taken
/// where given; without one the end is natural (no curvature). C. de Boor, A Practical Guide to Splines, ch. IV.
/// </summary>
internal static class FitSpline
{
    internal static void Draw(
        in PathPen pen, IReadOnlyList<Vec3> fitPoints, Vec3? startTangent, Vec3? endTangent, bool closed)
    {
        List<Vec3> p = Distinct(fitPoints, closed);
        if (p.Count < 2)
        {
            return;
        }

        if (closed && p.Count > 2)
        {
            // Wrapping a few points on either side makes the seam smooth without a cyclic solver.
            DrawClosed(pen, p);
            return;
        }

        DrawPieces(pen, p, Slopes(p, startTangent, endTangent), 0, p.Count - 1);
    }

    /// <summary>Returns the knots and control points of the curve as a clamped cubic B-spline; none where there are no
    /// two points.</summary>
    internal static (List<double> Knots, List<Vec3> Points) ControlsOf(
        IReadOnlyList<Vec3> fitPoints, Vec3? startTangent, Vec3? endTangent, bool closed)
    {
        List<Vec3> p = Distinct(fitPoints, closed);
        if (p.Count < 2)
        {
            return ([], []);
        }

        if (closed && p.Count > 2)
        {
            (List<Vec3> ring, int first) = Unrolled(p);
            return ControlsOf(ring, Slopes(ring, null, null), first, first + p.Count);
        }

        return ControlsOf(p, Slopes(p, startTangent, endTangent), 0, p.Count - 1);
    }

    // The parameters of a control point are three knots in turn; within a piece, two of them are its ends.
    private static (List<double> Knots, List<Vec3> Points) ControlsOf(List<Vec3> p, Vec3[] slopes, int first, int last)
    {
        List<double> knots = [0, 0, 0, 0];
        List<Vec3> points = [p[first]];
        double before = 0;
        for (int i = first; i < last; i++)
        {
            double length = (p[i + 1] - p[i]).Length;
            Vec3 near = p[i] + (slopes[i] * (length / 3));
            Vec3 far = p[i + 1] - (slopes[i + 1] * (length / 3));
            double outside = before / length;
            points.Add((near * (1 + outside)) - (far * outside));
            if (i + 1 == last)
            {
                points.Add(far);
            }

            knots.Add(knots[^1] + length);
            before = length;
        }

        points.Add(p[last]);
        knots.AddRange([knots[^1], knots[^1], knots[^1]]);
        return (knots, points);
    }

    private static void DrawClosed(in PathPen pen, List<Vec3> ring)
    {
        (List<Vec3> extended, int first) = Unrolled(ring);
        DrawPieces(pen, extended, Slopes(extended, null, null), first, first + ring.Count);
        pen.Close();
    }

    private static (List<Vec3> Points, int First) Unrolled(List<Vec3> ring)
    {
        int n = ring.Count;
        int wrap = Math.Min(n, 8);
        var extended = new List<Vec3>(n + (2 * wrap) + 1);
        for (int i = -wrap; i <= n + wrap; i++)
        {
            extended.Add(ring[((i % n) + n) % n]);
        }

        return (extended, wrap);
    }

    private static void DrawPieces(in PathPen pen, List<Vec3> p, Vec3[] slopes, int first, int last)
    {
        pen.MoveTo(p[first]);
        for (int i = first; i < last; i++)
        {
            double third = (p[i + 1] - p[i]).Length / 3;
            pen.CurveTo(p[i] + (slopes[i] * third), p[i + 1] - (slopes[i + 1] * third), p[i + 1]);
        }
    }

    // The tridiagonal system of C2 continuity for the slopes, solved by elimination and back substitution.
    private static Vec3[] Slopes(List<Vec3> p, Vec3? startTangent, Vec3? endTangent)
    {
        int n = p.Count;
        var upper = new double[n];
        var slope = new Vec3[n];
        double h = (p[1] - p[0]).Length;
        Vec3 delta = (p[1] - p[0]) * (1 / h);
        bool clamped = startTangent is { Length: > 0 };
        upper[0] = clamped ? 0 : 0.5;
        slope[0] = clamped ? startTangent!.Value.Unit() : delta * 1.5;
        for (int i = 1; i < n - 1; i++)
        {
            double next = (p[i + 1] - p[i]).Length;
            Vec3 nextDelta = (p[i + 1] - p[i]) * (1 / next);
            double pivot = (2 * (h + next)) - (next * upper[i - 1]);
            upper[i] = h / pivot;
            slope[i] = (((delta * next) + (nextDelta * h)) * 3 - (slope[i - 1] * next)) * (1 / pivot);
            (h, delta) = (next, nextDelta);
        }

        slope[n - 1] = endTangent is { Length: > 0 }
            ? endTangent.Value.Unit()
            : ((delta * 3) - slope[n - 2]) * (1 / (2 - upper[n - 2]));
        for (int i = n - 2; i >= 0; i--)
        {
            slope[i] -= slope[i + 1] * upper[i];
        }

        return slope;
    }

    private static List<Vec3> Distinct(IReadOnlyList<Vec3> points, bool closed)
    {
        var result = new List<Vec3>(points.Count);
        foreach (Vec3 p in points)
        {
            if (p.IsFinite && (result.Count == 0 || (p - result[^1]).Length > 0))
            {
                result.Add(p);
            }
        }

        while (closed && result.Count > 1 && result[0] == result[^1])
        {
            result.RemoveAt(result.Count - 1);
        }

        return result;
    }
}
