using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Flattens curves in space: the segments stay within a ten-thousandth of the size of the curve.</summary>
internal static class SpaceCurve
{
    private const double RelativeTolerance = 1e-4;
    private const double SmallestTolerance = 1e-9;
    private const int MaxPieces = 1000;

    // The pens draw what they are given in two views, which have the same pieces.
    private static readonly Affine3 Front = new(Vec3.UnitX, default, Vec3.UnitY, default);

    internal delegate void Drawing(in PathPen pen, double tolerance);

    /// <summary>Gets the points of a curve that a pen can draw.</summary>
    /// <param name="size">The size of the curve.</param>
    /// <param name="draw">Draws the curve.</param>
    internal static List<Vec3> Flatten(double size, Drawing draw)
    {
        double tolerance = Math.Max(size * RelativeTolerance, SmallestTolerance);
        PathBuffer plan = new();
        PathBuffer elevation = new();
        draw(new PathPen(plan, Affine3.Identity), tolerance / 2);
        draw(new PathPen(elevation, Front), tolerance / 2);
        List<Vec3> points = [];
        int at = 0;
        foreach (PathVerb verb in plan.Verbs)
        {
            if (verb == PathVerb.Curve && points.Count > 0)
            {
                AddCurve(points, PointAt(at), PointAt(at + 2), PointAt(at + 4), tolerance / 2);
                at += 6;
            }
            else if (verb != PathVerb.Close)
            {
                points.Add(PointAt(at));
                at += 2;
            }
        }

        return points;

        Vec3 PointAt(int index) => new(plan.Coords[index], plan.Coords[index + 1], elevation.Coords[index + 1]);
    }

    /// <summary>Gets the size of a set of points: the diagonal of their box.</summary>
    internal static double SizeOf(IReadOnlyList<Vec3> points)
    {
        if (points.Count == 0)
        {
            return 0;
        }

        (Vec3 min, Vec3 max) = (points[0], points[0]);
        foreach (Vec3 p in points)
        {
            min = new Vec3(Math.Min(min.X, p.X), Math.Min(min.Y, p.Y), Math.Min(min.Z, p.Z));
            max = new Vec3(Math.Max(max.X, p.X), Math.Max(max.Y, p.Y), Math.Max(max.Z, p.Z));
        }

        return (max - min).Length;
    }

    // Segments of a cubic deviate by at most an eighth of the square of their length times its second derivative.
    private static void AddCurve(List<Vec3> points, Vec3 p1, Vec3 p2, Vec3 p3, double tolerance)
    {
        Vec3 p0 = points[^1];
        double bend = 6 * Math.Max((p0 - (p1 * 2) + p2).Length, (p1 - (p2 * 2) + p3).Length);
        int pieces = (int)Math.Clamp(Math.Ceiling(Math.Sqrt(bend / (8 * tolerance))), 1, MaxPieces);
        for (int i = 1; i < pieces; i++)
        {
            double t = (double)i / pieces;
            double s = 1 - t;
            points.Add((p0 * (s * s * s)) + (p1 * (3 * s * s * t)) + (p2 * (3 * s * t * t)) + (p3 * (t * t * t)));
        }

        points.Add(p3);
    }
}
