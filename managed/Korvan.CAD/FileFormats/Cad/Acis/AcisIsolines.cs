using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// Adds lines on cylinders, cones, spheres, tori and splines, which have few edges of their own, as far as they are in
/// the face.
/// Faces with edges that are not on their surface get none.
/// </summary>
/// <param name="records">The records of the body.</param>
/// <param name="endsOf">Returns what an edge points to.</param>
/// <param name="pointsOf">Returns points along an edge from its start to its end; null for unknown curves.</param>
/// <param name="splines">The splines of the body.</param>
internal sealed class AcisIsolines(
    List<SatRecord> records, Func<SatRecord, AcisEdge?> endsOf, Func<AcisEdge, List<Vec3>?> pointsOf,
    SatSplines splines)
{
    /// <summary>The default of the header variable ISOLINES.</summary>
    private const int Count = 4;
    private const int MaxEdges = 4_096;
    private const string Reversed = "reversed";

    internal void AddTo(AcisWireframe wireframe, Affine3 map)
    {
        foreach (SatRecord face in records)
        {
            if (face.Type != "face" || Find(face, static type => type.EndsWith("-surface", StringComparison.Ordinal))
                is not SatRecord record)
            {
                continue;
            }

            if (record.Type == "spline-surface")
            {
                AddSplineLines(face, record, wireframe, map);
            }
            else if (AcisSurface.Of(record) is AcisSurface surface && TrimOf(face, surface) is AcisTrim trim)
            {
                AddLines(surface, trim, surface.IsInward != face.HasKeyword(Reversed), wireframe, map);
            }
        }
    }

    private void AddSplineLines(SatRecord face, SatRecord record, AcisWireframe wireframe, Affine3 map)
    {
        if (splines.DefinitionOf(record) is not var (definition, token) || BoundaryOf(face) is not { } edges)
        {
            return;
        }

        bool isFlipped = record.HasKeyword(Reversed) != face.HasKeyword(Reversed);
        foreach (AcisSplineSurface surface in AcisSplineSurface.Read(definition, token))
        {
            if (AcisSplineFace.Lines(surface, edges, Count, isFlipped) is { } lines)
            {
                lines.ForEach(line => wireframe.Polylines.Add(Array.ConvertAll(line, map.Point)));
                return;
            }
        }
    }

    /// <summary>Returns points along the edges of a face; null where one has a curve that is not known. Edges that the
    /// face has on both sides are no boundary.</summary>
    private List<List<Vec3>>? BoundaryOf(SatRecord face)
    {
        List<(SatRecord Edge, bool IsReversed)> coedges = EdgesOf(face);
        var uses = new Dictionary<string[], int>();
        coedges.ForEach(one => uses[one.Edge.Tokens] = uses.GetValueOrDefault(one.Edge.Tokens) + 1);
        List<List<Vec3>> boundary = [];
        foreach ((SatRecord record, bool isReversed) in coedges)
        {
            if (endsOf(record) is not AcisEdge edge)
            {
                return null;
            }

            if (edge.Curve < 0 || uses[record.Tokens] > 1)
            {
                continue;
            }

            if (pointsOf(edge) is not List<Vec3> points)
            {
                return null;
            }

            if (isReversed)
            {
                points.Reverse();
            }

            boundary.Add(points);
        }

        return boundary;
    }

    private static void AddLines(
        AcisSurface surface, AcisTrim trim, bool isFlipped, AcisWireframe wireframe, Affine3 map)
    {
        (double From, double To) limits = surface.Limits;
        for (int i = 0; i < Count; i++)
        {
            double u = Math.Tau * i / Count;
            foreach ((double from, double to) in trim.PartsOf(
                u, true, limits, surface.IsPeriodic, true, isFlipped) ?? Whole(trim, limits))
            {
                surface.AddMeridian(u, from, to, AddArc, (a, b) => wireframe.Lines.Add((map.Point(a), map.Point(b))));
            }
        }

        (double, double) turn = (0, Math.Tau);
        foreach (double v in surface.Rings)
        {
            foreach ((double from, double to) in trim.PartsOf(
                v, false, turn, true, surface.IsPeriodic, isFlipped) ?? Whole(trim, turn))
            {
                AddArc(surface.Ring(v, from, to - from));
            }
        }

        void AddArc(AcisArc arc) => wireframe.Arcs.Add(arc with
        {
            Center = map.Point(arc.Center),
            Major = map.Vector(arc.Major),
            Minor = map.Vector(arc.Minor),
        });
    }

    // Isolines that no edge crosses are whole on closed surfaces. Elsewhere they are left out, as they may be outside.
    private static List<(double From, double To)> Whole(AcisTrim trim, (double From, double To) limits) =>
        trim.IsEmpty && double.IsFinite(limits.From) && double.IsFinite(limits.To) ? [limits] : [];

    /// <summary>Returns the boundary of a face; null where an edge is not on the surface.</summary>
    private AcisTrim? TrimOf(SatRecord face, AcisSurface surface)
    {
        AcisTrim trim = new();
        foreach ((SatRecord record, bool isReversed) in EdgesOf(face))
        {
            if (endsOf(record) is not AcisEdge edge)
            {
                return null;
            }

            if (edge.Curve < 0)
            {
                continue;
            }

            if (pointsOf(edge) is not List<Vec3> points)
            {
                return null;
            }

            List<(double U, double V)> found = [];
            foreach (Vec3 point in points)
            {
                if (surface.Find(point) is not { } place)
                {
                    return null;
                }

                if (!double.IsNaN(place.U))
                {
                    found.Add(place);
                }
            }

            if (isReversed)
            {
                found.Reverse();
            }

            trim.Add(found, surface.IsPeriodic);
        }

        return trim;
    }

    /// <summary>Walks the loops of a face and the coedges of each loop, which form rings.</summary>
    private List<(SatRecord Edge, bool IsReversed)> EdgesOf(SatRecord face)
    {
        var edges = new List<(SatRecord Edge, bool IsReversed)>();
        var loops = new HashSet<int>();
        int loop = IndexOf(face, "loop");
        while (loop >= 0 && loops.Add(loop) && edges.Count < MaxEdges)
        {
            var ring = new HashSet<int>();
            int coedge = IndexOf(records[loop], "coedge");
            while (coedge >= 0 && ring.Add(coedge) && edges.Count < MaxEdges)
            {
                if (Find(records[coedge], static type => type == "edge") is SatRecord edge)
                {
                    edges.Add((edge, records[coedge].HasKeyword(Reversed)));
                }

                coedge = IndexOf(records[coedge], "coedge");
            }

            loop = IndexOf(records[loop], "loop");
        }

        return edges;
    }

    private SatRecord? Find(SatRecord from, Predicate<string> isWanted)
    {
        int index = IndexOf(from, isWanted);
        return index >= 0 ? records[index] : null;
    }

    private int IndexOf(SatRecord from, string wanted) => IndexOf(from, type => type == wanted);

    /// <summary>Returns the first record of a type that another points to; negative for none.</summary>
    private int IndexOf(SatRecord from, Predicate<string> isWanted)
    {
        from.Step();
        for (int i = 1; i < from.Tokens.Length; i++)
        {
            int target = from.Target(i);
            if (target >= 0 && target < records.Count && isWanted(records[target].Type))
            {
                return target;
            }
        }

        return -1;
    }
}
