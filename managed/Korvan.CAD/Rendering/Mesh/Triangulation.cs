using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>Cuts a face into triangles: ears are cut off until three corners are left (Meisters, 1975).</summary>
internal static class Triangulation
{
    /// <summary>Past this many corners a face is cut as a fan: the search for ears grows with the square.</summary>
    private const int MostForEars = 4096;

    internal static void Add(List<Vec3> points, ReadOnlySpan<int> ring, Action<int, int, int> triangle)
    {
        Vec2[] flat = Flatten(points, ring);
        if (ring.Length > MostForEars || IsConvex(flat))
        {
            for (int i = 1; i + 1 < ring.Length; i++)
            {
                triangle(ring[0], ring[i], ring[i + 1]);
            }

            return;
        }

        CutEars(flat, ring, triangle);
    }

    /// <summary>The corners in the plane that they nearly lie in, counterclockwise; the normal is Newell's.</summary>
    private static Vec2[] Flatten(List<Vec3> points, ReadOnlySpan<int> ring)
    {
        Vec3 normal = default;
        for (int i = 0; i < ring.Length; i++)
        {
            Vec3 a = points[ring[i]];
            Vec3 b = points[ring[(i + 1) % ring.Length]];
            normal += new Vec3((a.Y - b.Y) * (a.Z + b.Z), (a.Z - b.Z) * (a.X + b.X), (a.X - b.X) * (a.Y + b.Y));
        }

        Affine3 plane = Ocs.ToWorld(normal);
        var flat = new Vec2[ring.Length];
        for (int i = 0; i < flat.Length; i++)
        {
            flat[i] = new Vec2(Vec3.Dot(points[ring[i]], plane.AxisX), Vec3.Dot(points[ring[i]], plane.AxisY));
        }

        return flat;
    }

    private static bool IsConvex(Vec2[] ring)
    {
        for (int i = 0; i < ring.Length; i++)
        {
            if (Turn(ring[i], ring[(i + 1) % ring.Length], ring[(i + 2) % ring.Length]) < 0)
            {
                return false;
            }
        }

        return true;
    }

    private static double Turn(Vec2 a, Vec2 b, Vec2 c) => Vec2.Cross(b - a, c - b);

    private static void CutEars(Vec2[] flat, ReadOnlySpan<int> ring, Action<int, int, int> triangle)
    {
        List<int> left = [];
        for (int i = 0; i < flat.Length; i++)
        {
            left.Add(i);
        }

        while (left.Count > 3)
        {
            int ear = FindEar(flat, left);
            int before = left[(ear + left.Count - 1) % left.Count];
            int after = left[(ear + 1) % left.Count];
            triangle(ring[before], ring[left[ear]], ring[after]);
            left.RemoveAt(ear);
        }

        triangle(ring[left[0]], ring[left[1]], ring[left[2]]);
    }

    /// <summary>A ring that crosses itself may have no ear; then any corner is cut off, so that there is an end.</summary>
    private static int FindEar(Vec2[] flat, List<int> left)
    {
        for (int i = 0; i < left.Count; i++)
        {
            Vec2 a = flat[left[(i + left.Count - 1) % left.Count]];
            Vec2 b = flat[left[i]];
            Vec2 c = flat[left[(i + 1) % left.Count]];
            if (Turn(a, b, c) > 0 && !AnyInside(flat, left, a, b, c))
            {
                return i;
            }
        }

        return 0;
    }

    private static bool AnyInside(Vec2[] flat, List<int> left, Vec2 a, Vec2 b, Vec2 c)
    {
        foreach (int place in left)
        {
            Vec2 p = flat[place];
            bool corner = p == a || p == b || p == c;
            if (!corner && Turn(a, b, p) >= 0 && Turn(b, c, p) >= 0 && Turn(c, a, p) >= 0)
            {
                return true;
            }
        }

        return false;
    }
}
