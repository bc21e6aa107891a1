using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Raster.Vectorizing;

/// <summary>Polyline simplification (U. Ramer, 1972; D. Douglas and T. Peucker, 1973).</summary>
internal static class Simplifier
{
    internal static List<Vec2> Open(List<Vec2> points, double tolerance)
    {
        if (points.Count < 3)
        {
            return points;
        }

        bool[] kept = new bool[points.Count];
        kept[0] = kept[^1] = true;
        Keep(points, 0, points.Count - 1, tolerance, kept);
        return points.FindAll(new Picker(kept).Next);
    }

    /// <summary>Simplifies a closed polyline, which does not repeat its first point; it is split at the point farthest
    /// from the first.</summary>
    internal static List<Vec2> Ring(List<Vec2> points, double tolerance)
    {
        if (points.Count < 4)
        {
            return points;
        }

        int far = 0;
        for (int i = 1; i < points.Count; i++)
        {
            far = (points[i] - points[0]).Length > (points[far] - points[0]).Length ? i : far;
        }

        List<Vec2> line = [.. points, points[0]];
        bool[] kept = new bool[line.Count];
        kept[0] = kept[far] = kept[^1] = true;
        Keep(line, 0, far, tolerance, kept);
        Keep(line, far, line.Count - 1, tolerance, kept);
        kept[^1] = false;
        List<Vec2> ring = line.FindAll(new Picker(kept).Next);
        return ring.Count >= 3 ? ring : points;
    }

    private static void Keep(List<Vec2> points, int first, int last, double tolerance, bool[] kept)
    {
        Stack<(int First, int Last)> open = new([(first, last)]);
        while (open.TryPop(out (int First, int Last) part))
        {
            int farthest = -1;
            double max = tolerance;
            for (int i = part.First + 1; i < part.Last; i++)
            {
                double distance = Distance(points[i], points[part.First], points[part.Last]);
                (farthest, max) = distance > max ? (i, distance) : (farthest, max);
            }

            if (farthest >= 0)
            {
                kept[farthest] = true;
                open.Push((part.First, farthest));
                open.Push((farthest, part.Last));
            }
        }
    }

    private static double Distance(Vec2 p, Vec2 a, Vec2 b)
    {
        Vec2 along = b - a;
        double length = Vec2.Dot(along, along);
        double at = length > 0 ? Math.Clamp(Vec2.Dot(p - a, along) / length, 0, 1) : 0;
        return (p - Vec2.Lerp(a, b, at)).Length;
    }

    private sealed class Picker(bool[] kept)
    {
        private int _place;

        internal bool Next(Vec2 point) => kept[_place++];
    }
}
