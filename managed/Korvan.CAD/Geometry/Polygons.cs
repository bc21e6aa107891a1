using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>Closed rings of points, flattened from paths.</summary>
internal static class Polygons
{
    private const int VerbsPerStep = 128;

    /// <summary>Flattens the curves of a path; each subpath becomes a ring of at least three points.</summary>
    internal static List<Vec2[]> Flatten(PathBuffer path, double tolerance)
    {
        var rings = new List<Vec2[]>();
        var ring = new List<Vec2>();
        ReadOnlySpan<double> c = path.Coords;
        int at = 0;
        int count = 0;
        foreach (PathVerb verb in path.Verbs)
        {
            Workload.Count(ref count, VerbsPerStep);
            switch (verb)
            {
                case PathVerb.Move:
                    Finish(rings, ring);
                    ring.Add(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    ring.Add(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    AddCurve(ring, c.Slice(at, 6), tolerance);
                    at += 6;
                    break;
            }
        }

        Finish(rings, ring);
        return rings;
    }

    internal static double SignedArea(ReadOnlySpan<Vec2> ring)
    {
        double twice = 0;
        Vec2 previous = ring.Length > 0 ? ring[^1] : default;
        foreach (Vec2 p in ring)
        {
            twice += Vec2.Cross(previous, p);
            previous = p;
        }

        return twice / 2;
    }

    /// <summary>Returns the mean of the corners.</summary>
    internal static Vec2 Center(ReadOnlySpan<Vec2> ring)
    {
        Vec2 sum = default;
        foreach (Vec2 corner in ring)
        {
            sum += corner;
        }

        return sum * (1.0 / ring.Length);
    }

    /// <summary>Even-odd test by crossings of a ray to the right.</summary>
    internal static bool Contains(ReadOnlySpan<Vec2> ring, Vec2 p)
    {
        bool inside = false;
        Vec2 a = ring.Length > 0 ? ring[^1] : default;
        foreach (Vec2 b in ring)
        {
            if ((a.Y > p.Y) != (b.Y > p.Y) && p.X < a.X + ((p.Y - a.Y) / (b.Y - a.Y) * (b.X - a.X)))
            {
                inside = !inside;
            }

            a = b;
        }

        return inside;
    }

    /// <summary>Returns the corners of the convex hull of points, by the monotone chain of Andrew, 1979.</summary>
    internal static Vec2[] ConvexHull(List<Vec2> points)
    {
        points.Sort(static (a, b) => a.X != b.X ? a.X.CompareTo(b.X) : a.Y.CompareTo(b.Y));
        var hull = new List<Vec2>();
        for (int side = 0; side < 2; side++)
        {
            int start = hull.Count;
            foreach (Vec2 p in points)
            {
                while (hull.Count >= start + 2 && Vec2.Cross(hull[^1] - hull[^2], p - hull[^1]) <= 0)
                {
                    hull.RemoveAt(hull.Count - 1);
                }

                hull.Add(p);
            }

            // The last corner begins the other side.
            if (hull.Count > 1)
            {
                hull.RemoveAt(hull.Count - 1);
            }

            points.Reverse();
        }

        return [.. hull];
    }

    private static void AddCurve(List<Vec2> ring, ReadOnlySpan<double> c, double tolerance)
    {
        Vec2 p0 = ring.Count > 0 ? ring[^1] : new Vec2(c[0], c[1]);
        Vec2 p1 = new(c[0], c[1]);
        Vec2 p2 = new(c[2], c[3]);
        Vec2 p3 = new(c[4], c[5]);
        int pieces = Cubic.PieceCount(p0, p1, p2, p3, tolerance);
        for (int i = 1; i < pieces; i++)
        {
            ring.Add(Cubic.At(p0, p1, p2, p3, (double)i / pieces));
        }

        ring.Add(p3);
    }

    private static void Finish(List<Vec2[]> rings, List<Vec2> ring)
    {
        if (ring.Count >= 3)
        {
            rings.Add(ring.ToArray());
        }

        ring.Clear();
    }
}
