using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// Adds straight lines on cylinders and cones, which have no edges along them. Only faces are considered that end at
/// circles around the axis and at straight edges.
/// </summary>
/// <param name="records">The records of the body.</param>
/// <param name="endsOf">Returns what an edge points to.</param>
/// <param name="arcOf">Returns the arc of an edge on an ellipse.</param>
internal sealed class AcisIsolines(
    List<SatRecord> records, Func<SatRecord, AcisEdge?> endsOf, Func<SatRecord, AcisEdge, AcisArc?> arcOf)
{
    /// <summary>The default of the header variable ISOLINES.</summary>
    private const int Count = 4;

    /// <summary>Within this part of the radius, points are one.</summary>
    private const double Tolerance = 1e-6;
    private const int MaxEdges = 4_096;

    internal void AddTo(AcisWireframe wireframe, Affine3 map)
    {
        foreach (SatRecord face in records)
        {
            if (face.Type == "face" && Find(face, static type => type == "cone-surface") is SatRecord surface)
            {
                AddLines(face, surface, wireframe, map);
            }
        }
    }

    private void AddLines(SatRecord face, SatRecord surface, AcisWireframe wireframe, in Affine3 map)
    {
        int at = surface.Values;
        (Vec3 origin, Vec3 axis) = (surface.Vector(at), surface.Vector(at + 3).Unit());
        Vec3 major = surface.Vector(at + 6);
        if (!(major.Length > 0) || EndsOf(face, origin, axis, major.Length * Tolerance) is not { Count: > 1 } ends)
        {
            return;
        }

        Vec3 minor = Vec3.Cross(axis, major);
        ends.Sort(static (a, b) => a.Height.CompareTo(b.Height));
        for (int i = 0; i < Count; i++)
        {
            (double sin, double cos) = Math.SinCos(Math.Tau * i / Count);
            Vec3 way = (major * cos) + (minor * sin);
            if (PointAt(ends, ends[0].Height, way, major.Length) is Vec3 from
                && PointAt(ends, ends[^1].Height, way, major.Length) is Vec3 to && from != to)
            {
                wireframe.Lines.Add((map.Point(from), map.Point(to)));
            }
        }
    }

    /// <summary>Returns the arcs and the apex that a face ends at, with their places along the axis; null where it has
    /// other edges, or ends at more than two places.</summary>
    private List<(double Height, AcisArc Arc)>? EndsOf(SatRecord face, Vec3 origin, Vec3 axis, double tolerance)
    {
        var ends = new List<(double Height, AcisArc Arc)>();
        var heights = new List<double>();
        foreach (SatRecord record in EdgesOf(face))
        {
            if (endsOf(record) is not AcisEdge edge)
            {
                return null;
            }

            if (edge.Curve >= 0 && records[edge.Curve].Type == "straight-curve")
            {
                continue;
            }

            AcisArc? end = edge.Curve < 0 ? new AcisArc(edge.Start, default, default, 0, Math.Tau)
                : records[edge.Curve].Type == "ellipse-curve" ? arcOf(records[edge.Curve], edge) : null;
            if (end is not AcisArc arc || !IsAround(arc, origin, axis, tolerance))
            {
                return null;
            }

            double height = Vec3.Dot(arc.Center - origin, axis);
            int known = heights.FindIndex(other => Math.Abs(other - height) <= tolerance);
            if (known < 0)
            {
                heights.Add(height);
            }

            ends.Add((known < 0 ? height : heights[known], arc));
        }

        return heights.Count == 2 ? ends : null;
    }

    private static bool IsAround(in AcisArc arc, Vec3 origin, Vec3 axis, double tolerance)
    {
        Vec3 off = arc.Center - origin;
        bool isCentred = (off - (axis * Vec3.Dot(off, axis))).Length <= tolerance;
        return isCentred && Math.Abs(Vec3.Dot(arc.Major, axis)) <= tolerance
            && Math.Abs(Vec3.Dot(arc.Minor, axis)) <= tolerance;
    }

    /// <summary>Returns the point at a height in a direction from the axis; null where no arc reaches it.</summary>
    private static Vec3? PointAt(List<(double Height, AcisArc Arc)> ends, double height, Vec3 way, double radius)
    {
        foreach ((double at, AcisArc arc) in ends)
        {
            if (at != height)
            {
                continue;
            }

            if (arc.Major == default)
            {
                return arc.Center;
            }

            double angle = Math.Atan2(
                Vec3.Dot(way, arc.Minor) / Vec3.Dot(arc.Minor, arc.Minor),
                Vec3.Dot(way, arc.Major) / Vec3.Dot(arc.Major, arc.Major));
            double turn = Angles.Sweep(arc.Start, angle);
            double slack = Tolerance * radius / arc.Major.Length;
            if (turn <= arc.Sweep + slack || turn >= Math.Tau - slack)
            {
                return arc.At(angle);
            }
        }

        return null;
    }

    /// <summary>Walks the loops of a face and the coedges of each loop, which form rings.</summary>
    private List<SatRecord> EdgesOf(SatRecord face)
    {
        var edges = new List<SatRecord>();
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
                    edges.Add(edge);
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
