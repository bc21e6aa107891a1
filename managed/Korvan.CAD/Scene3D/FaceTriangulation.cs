using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Geometry;
using Korvan.CAD.Geometry.Triangulation;

namespace Korvan.CAD.Scene3D;

/// <summary>Triangles of faces in space, by the plane that their corners nearly lie in.</summary>
internal static class FaceTriangulation
{
    /// <summary>Whether a ring turns left at each corner, and once around in all.</summary>
    internal static bool IsConvex(List<Vec3> points, ReadOnlySpan<int> ring)
    {
        Affine3 plane = PlaneOf(points, ring);
        Vec2 a = Flat(points[ring[^2]], plane);
        Vec2 b = Flat(points[ring[^1]], plane);
        bool rising = Orientation.Compare(a, b) < 0;
        int turnings = 0;
        foreach (int corner in ring)
        {
            Vec2 c = Flat(points[corner], plane);
            if (Orientation.Sign(a, b, c) <= 0)
            {
                return false;
            }

            bool rises = Orientation.Compare(b, c) < 0;
            turnings += rises == rising ? 0 : 1;
            rising = rises;
            (a, b) = (b, c);
        }

        return turnings == 2;
    }

    /// <summary>
    /// The corners of triangles, three for each; nothing where the rings cross too often. Points where rings cross are
    /// added by <paramref name="place"/>.
    /// </summary>
    internal static int[]? TryTriangulate(List<Vec3> points, List<int[]> rings, Func<Vec3, int> place)
    {
        Affine3 plane = PlaneOf(points, rings[0]);
        List<Vec2[]> flat = rings.ConvertAll(ring => Array.ConvertAll(ring, corner => Flat(points[corner], plane)));
        if (PolygonTriangulator.TryTriangulate(flat, FillRule.EvenOdd) is not { } polygon)
        {
            return null;
        }

        List<int> corners = [.. rings.SelectMany(ring => ring)];
        foreach (AddedPoint added in polygon.Added)
        {
            (Vec3 from, Vec3 to) = (points[corners[added.From]], points[corners[added.To]]);
            corners.Add(place(from + ((to - from) * added.Share)));
        }

        return Array.ConvertAll(polygon.Triangles, corner => corners[corner]);
    }

    private static Vec2 Flat(Vec3 p, in Affine3 plane) => new(Vec3.Dot(p, plane.AxisX), Vec3.Dot(p, plane.AxisY));

    /// <summary>Axes with which the ring runs counterclockwise; the normal is Newell's.</summary>
    private static Affine3 PlaneOf(List<Vec3> points, ReadOnlySpan<int> ring)
    {
        Vec3 normal = default;
        Vec3 steepest = default;
        Vec3 origin = points[ring[0]];
        Vec3 a = points[ring[^1]] - origin;
        foreach (int corner in ring)
        {
            Vec3 b = points[corner] - origin;
            Vec3 cross = Vec3.Cross(a, b);
            normal += cross;
            steepest = cross.Length > steepest.Length ? cross : steepest;
            a = b;
        }

        // The halves of a ring that crosses itself may cancel each other out.
        return Ocs.ToWorld(normal.Length > 1e-9 * steepest.Length ? normal : steepest);
    }
}
