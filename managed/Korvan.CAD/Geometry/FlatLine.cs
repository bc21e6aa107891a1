using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;

namespace Korvan.CAD.Geometry;

/// <summary>A subpath as points; the first stands again at the end of one that is closed.</summary>
internal readonly record struct FlatLine(Vec2[] Points, bool Closed)
{
    private const long CheckedBytes = 2 << 20;

    /// <summary>Flattens the curves of a path within the tolerance.</summary>
    internal static List<FlatLine> Of(PathBuffer path, double tolerance)
    {
        var lines = new List<FlatLine>();
        var points = new List<Vec2>();
        long taken = 0;
        ReadOnlySpan<double> c = path.Coords;
        int at = 0;
        foreach (PathVerb verb in path.Verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Finish(lines, points, closed: false, ref taken);
                    points.Add(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    points.Add(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    AddCurve(points, c.Slice(at, 6), tolerance);
                    at += 6;
                    break;
                default:
                    Vec2 start = points.Count > 0 ? points[0] : default;
                    Finish(lines, points, closed: true, ref taken);

                    // What follows a closed subpath without a move begins where that began.
                    points.Add(start);
                    break;
            }
        }

        Finish(lines, points, closed: false, ref taken);
        return lines;
    }

    private static void AddCurve(List<Vec2> points, ReadOnlySpan<double> c, double tolerance)
    {
        (Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3) = (
            points[^1], new Vec2(c[0], c[1]), new Vec2(c[2], c[3]), new Vec2(c[4], c[5]));
        int pieces = Cubic.PieceCount(p0, p1, p2, p3, tolerance);
        if (points.Count + pieces > points.Capacity)
        {
            // It doubles, and what it was before is garbage from then on.
            Workload.Reserve(points.Capacity * 3L * Unsafe.SizeOf<Vec2>());
        }

        for (int i = 1; i <= pieces; i++)
        {
            points.Add(Cubic.At(p0, p1, p2, p3, (double)i / pieces));
        }
    }

    private static void Finish(List<FlatLine> lines, List<Vec2> points, bool closed, ref long taken)
    {
        if (points.Count > 1)
        {
            if (closed && points[0] != points[^1])
            {
                points.Add(points[0]);
            }

            // Memory is looked at for amounts that count; many small subpaths are one.
            taken += (long)points.Count * Unsafe.SizeOf<Vec2>();
            if (taken > CheckedBytes)
            {
                Workload.Reserve(taken);
                taken = 0;
            }

            lines.Add(new FlatLine([.. points], closed));
        }

        points.Clear();
    }
}
