using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Lines of constant parameters on a face of splines, within its edges.</summary>
internal static class AcisSplineFace
{
    private const int PointsOfEdge = 16;
    private const int PointsOfLine = 32;

    /// <summary>Returns the lines; null where an edge is not on the surface.</summary>
    /// <param name="surface">The surface.</param>
    /// <param name="edges">Points along the edges, in the direction of the boundary.</param>
    /// <param name="count">How many lines a closed surface has in each direction.</param>
    /// <param name="isFlipped">Whether the face is on the right of its boundary.</param>
    internal static List<Vec3[]>? Lines(
        AcisSplineSurface surface, IReadOnlyList<List<Vec3>> edges, int count, bool isFlipped)
    {
        AcisTrim trim = new();
        Bounds2 box = Bounds2.Empty;
        foreach (List<Vec3> edge in edges)
        {
            List<(double U, double V)> found = [];
            int step = Math.Max(1, (edge.Count - 1) / PointsOfEdge);
            for (int i = 0; i < edge.Count; i += i == edge.Count - 1 ? 1 : Math.Min(step, edge.Count - 1 - i))
            {
                if (surface.Find(edge[i]) is not { } place)
                {
                    return null;
                }

                found.Add(place);
                box.Add(place.U, place.V);
            }

            trim.Add(found, surface.PeriodV > 0);
        }

        List<Vec3[]> lines = [];
        AddDirection(lines, trim, count, true, isFlipped, surface.PeriodU, surface.PeriodV, (box.MinX, box.MaxX),
            surface.Point);
        AddDirection(lines, trim, count, false, isFlipped, surface.PeriodV, surface.PeriodU, (box.MinY, box.MaxY),
            (v, u) => surface.Point(u, v));
        return lines;
    }

    private static void AddDirection(
        List<Vec3[]> lines, AcisTrim trim, int count, bool alongV, bool isFlipped, double across, double along,
        (double Min, double Max) used, Func<double, double, Vec3> point)
    {
        bool isTurn = along > 0;
        (double, double) whole = (0, isTurn ? along : 1);
        (double, double) limits = isTurn ? whole : (double.NegativeInfinity, double.PositiveInfinity);
        for (int i = across > 0 ? 0 : 1; i < count; i++)
        {
            double at = (across > 0 ? across : 1) * i / count;
            bool isInside = trim.IsEmpty || (at > used.Min && at < used.Max && isTurn);
            IEnumerable<(double From, double To)> parts =
                trim.PartsOf(at, alongV, limits, isTurn, across > 0, isFlipped)
                ?? (isInside ? [whole] : Enumerable.Empty<(double, double)>());
            foreach ((double from, double to) in parts)
            {
                var line = new Vec3[PointsOfLine + 1];
                for (int k = 0; k <= PointsOfLine; k++)
                {
                    line[k] = point(at, from + ((to - from) * k / PointsOfLine));
                }

                lines.Add(line);
            }
        }
    }
}
