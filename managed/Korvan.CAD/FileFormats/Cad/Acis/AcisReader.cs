using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// Reads the edges of a body out of the text or the binary data of its modeler. An edge points to two vertices and to a
/// curve; the places of the pointers differ between versions of the modeler, but not the types of what they point to.
/// </summary>
internal sealed class AcisReader
{
    private const string Edge = "edge";
    private const string Vertex = "vertex";
    private const string Point = "point";
    private const string Transform = "transform";
    private const string Curve = "-curve";
    private const string Reversed = "reversed";

    // A point is on a curve, and two points are one, within this part of the size of the curve.
    private const double Tolerance = 1e-6;
    private const int TrimmedPoints = 129;
    private const int ArcPoints = 65;
    private const int PointsPerStep = 512;

    private readonly List<SatRecord> _records;
    private readonly SatSplines _splines;
    private readonly SatSplines _plainSplines;
    private readonly AcisWireframe _wireframe = new();
    private readonly Affine3 _map;

    private AcisReader(List<SatRecord> records)
    {
        _records = records;
        _map = MapOf(_records);
        _splines = new SatSplines(_records, _map);
        _plainSplines = new SatSplines(_records, Affine3.Identity);
    }

    /// <summary>Returns the edges; null where the text has none that are known.</summary>
    internal static AcisWireframe? Read(IReadOnlyList<string> lines) =>
        SatText.Parse(lines) is not SatText text ? null
            : text.Version >= AcisVersions.Keywords ? Read(text.Records)
            : SatReader.Read(lines) is AcisFile file ? Read([.. SatWriter.Records(file, AcisVersions.Keywords)]) : null;

    /// <summary>Returns the edges of binary data; null where they have none that are known.</summary>
    internal static AcisWireframe? Read(ReadOnlySpan<byte> data) =>
        SabReader.Read(data, out _) is AcisFile file ? Read([.. SatWriter.Records(
            file, Math.Max(file.Version, AcisVersions.Keywords))]) : null;

    private static AcisWireframe? Read(List<SatRecord> records)
    {
        var reader = new AcisReader(records);
        bool hasEdges = false;
        foreach (SatRecord record in reader._records)
        {
            if (record.Type == Edge)
            {
                hasEdges = true;
                reader.AddEdge(record);
            }
        }

        if (hasEdges)
        {
            new AcisIsolines(reader._records, reader.EndsOf, reader.PointsOf, reader._plainSplines)
                .AddTo(reader._wireframe, reader._map);
        }
        else
        {
            reader.AddClosedSurfaces();
        }

        return reader._wireframe.IsEmpty ? null : reader._wireframe;
    }

    private void AddEdge(SatRecord edge)
    {
        // An edge without a curve is a point, as the apex of a cone.
        if (EndsOf(edge) is { Curve: >= 0 } ends && !TryAdd(_records[ends.Curve], ends))
        {
            _wireframe.UnreadEdges++;
        }
    }

    /// <summary>Returns what an edge points to; null for one without vertices.</summary>
    private AcisEdge? EndsOf(SatRecord edge)
    {
        edge.Step();
        (Vec3 start, Vec3 end) = (default, default);
        int vertices = 0;
        int curve = -1;
        int sense = -1;
        for (int i = 1; i < edge.Tokens.Length; i++)
        {
            int target = edge.Target(i);
            string type = target >= 0 && target < _records.Count ? _records[target].Type : "";
            if (type == Vertex && vertices < 2)
            {
                Vec3 point = PointOf(_records[target]);
                (start, end) = vertices++ == 0 ? (point, point) : (start, point);
            }
            else if (type.EndsWith(Curve, StringComparison.Ordinal))
            {
                (curve, sense) = (target, i + 1);
            }
        }

        bool isReversed = sense >= 0 && sense < edge.Tokens.Length && edge.Tokens[sense] == Reversed;
        return vertices > 0 ? new AcisEdge(start, end, curve, isReversed) : null;
    }

    private bool TryAdd(SatRecord curve, in AcisEdge edge)
    {
        (Vec3 start, Vec3 end, _, _) = edge;
        if (!start.IsFinite || !end.IsFinite)
        {
            return false;
        }

        switch (curve.Type)
        {
            case "straight-curve":
                _wireframe.Lines.Add((_map.Point(start), _map.Point(end)));
                return true;
            case "ellipse-curve":
                if (ArcOf(curve, edge) is not AcisArc arc)
                {
                    return false;
                }

                AddArc(arc);
                return true;
            case "intcurve-curve":
                if (_splines.Of(curve) is not AcisSpline spline)
                {
                    return false;
                }

                AddSpline(spline, _map.Point(start), _map.Point(end), edge.IsReversed);
                return true;
            default:
                return false;
        }
    }

    /// <summary>Returns the arc of an edge on an ellipse: its centre, normal, major axis and the ratio of its
    /// axes.</summary>
    private static AcisArc? ArcOf(SatRecord curve, AcisEdge edge)
    {
        int at = curve.Values;
        (Vec3 center, Vec3 normal, Vec3 major) = (curve.Vector(at), curve.Vector(at + 3), curve.Vector(at + 6));
        Vec3 minor = Vec3.Cross(normal.Unit(), major) * curve.Number(at + 9);
        if (!center.IsFinite || !major.IsFinite || !minor.IsFinite || major == default || minor == default)
        {
            return null;
        }

        double AngleOf(Vec3 point) => Math.Atan2(
            Vec3.Dot(point - center, minor) / Vec3.Dot(minor, minor),
            Vec3.Dot(point - center, major) / Vec3.Dot(major, major));

        (double from, double to) = (AngleOf(edge.Start), AngleOf(edge.End));
        (from, to) = edge.IsReversed ? (to, from) : (from, to);
        bool isWhole = (edge.End - edge.Start).Length <= Tolerance * major.Length;
        double sweep = isWhole ? Math.Tau : Angles.Sweep(from, to);
        return new AcisArc(center, major, minor, from, sweep);
    }

    private void AddSpline(in AcisSpline spline, Vec3 start, Vec3 end, bool isReversed)
    {
        Workload.Step(spline.Control.Count / PointsPerStep);
        if (IsWhole(spline, start, end))
        {
            _wireframe.Splines.Add(spline);
        }
        else
        {
            _wireframe.Polylines.Add(PartOf(spline, start, end, isReversed));
        }
    }

    private static bool IsWhole(in AcisSpline spline, Vec3 start, Vec3 end)
    {
        (Vec3 first, Vec3 last) = (spline.Curve.At(spline.Curve.First), spline.Curve.At(spline.Curve.Last));
        double tolerance = ToleranceOf(spline);
        bool AreOne(Vec3 a, Vec3 b) => (a - b).Length <= tolerance;
        return (AreOne(first, start) && AreOne(last, end)) || (AreOne(first, end) && AreOne(last, start));
    }

    private static double ToleranceOf(in AcisSpline spline)
    {
        Vec3 first = spline.Curve.At(spline.Curve.First);
        double size = 0;
        spline.Control.ForEach(point => size = Math.Max(size, (point - first).Length));
        return Tolerance * size;
    }

    // The parameters of an edge depend on the version of the modeler; its ends do not. On a closed curve the direction
    // of the edge decides which of two parts it is.
    private static Vec3[] PartOf(in AcisSpline spline, Vec3 start, Vec3 end, bool isReversed)
    {
        Nurbs curve = spline.Curve;
        (double from, double to) = (Nearest(curve, start), Nearest(curve, end));
        double period = curve.Last - curve.First;
        if ((curve.At(curve.First) - curve.At(curve.Last)).Length <= ToleranceOf(spline))
        {
            (from, to) = isReversed ? (to, from) : (from, to);
            to += to <= from ? period : 0;
        }

        var points = new Vec3[TrimmedPoints];
        for (int i = 0; i < points.Length; i++)
        {
            double at = from + ((to - from) * i / (points.Length - 1));
            points[i] = curve.At(at > curve.Last ? at - period : at);
        }

        return points;
    }

    /// <summary>Returns points along an edge from its start to its end, where the body says it is; null for curves that
    /// are not known.</summary>
    private List<Vec3>? PointsOf(AcisEdge edge)
    {
        SatRecord curve = _records[edge.Curve];
        if (curve.Type == "straight-curve")
        {
            return [edge.Start, edge.End];
        }

        Vec3[] points;
        if (curve.Type == "ellipse-curve" && ArcOf(curve, edge) is AcisArc arc)
        {
            points = new Vec3[ArcPoints];
            for (int i = 0; i < ArcPoints; i++)
            {
                points[i] = arc.At(arc.Start + (arc.Sweep * i / (ArcPoints - 1)));
            }
        }
        else if (_plainSplines.Of(curve) is AcisSpline spline)
        {
            points = PartOf(spline, edge.Start, edge.End, edge.IsReversed);
        }
        else
        {
            return null;
        }

        bool isBackwards = (points[0] - edge.End).Length < (points[0] - edge.Start).Length
            || (edge.IsReversed && edge.Start == edge.End);
        return isBackwards ? [.. points.Reverse()] : [.. points];
    }

    private static double Nearest(Nurbs curve, Vec3 point)
    {
        const int samples = 256;
        double step = (curve.Last - curve.First) / samples;
        double best = curve.First;
        for (int round = 0; round < 4; round++, step /= samples / 4)
        {
            double around = round == 0 ? (curve.First + curve.Last) / 2 : best;
            double nearest = double.PositiveInfinity;
            for (int i = 0; i <= samples; i++)
            {
                double t = Math.Clamp(around + ((i - (samples / 2)) * step), curve.First, curve.Last);
                double distance = (curve.At(t) - point).Length;
                (best, nearest) = distance < nearest ? (t, distance) : (best, nearest);
            }
        }

        return best;
    }

    private void AddArc(in AcisArc arc) => _wireframe.Arcs.Add(arc with
    {
        Center = _map.Point(arc.Center),
        Major = _map.Vector(arc.Major),
        Minor = _map.Vector(arc.Minor),
    });

    /// <summary>Adds circles of spheres and tori, which have no edges.</summary>
    private void AddClosedSurfaces()
    {
        foreach (SatRecord surface in _records)
        {
            int at = surface.Values;
            if (surface.Type == "sphere-surface")
            {
                double radius = Math.Abs(surface.Number(at + 3));
                AddCircles(surface.Vector(at), [Vec3.UnitX * radius, Vec3.UnitY * radius, Vec3.UnitZ * radius]);
            }
            else if (surface.Type == "torus-surface")
            {
                AddTorus(surface.Vector(at), surface.Vector(at + 3).Unit(), surface.Number(at + 6),
                    surface.Number(at + 7));
            }
        }
    }

    private void AddTorus(Vec3 center, Vec3 normal, double ring, double tube)
    {
        Vec3 x = Ocs.ToWorld(normal).AxisX;
        Vec3 y = Vec3.Cross(normal, x);
        foreach (double radius in (ReadOnlySpan<double>)[ring + tube, ring - tube])
        {
            TryAddCircle(center, x * radius, y * radius);
        }

        foreach (Vec3 way in (ReadOnlySpan<Vec3>)[x, y, -x, -y])
        {
            TryAddCircle(center + (way * ring), way * tube, normal * tube);
        }
    }

    private void AddCircles(Vec3 center, ReadOnlySpan<Vec3> axes)
    {
        for (int i = 0; i < axes.Length; i++)
        {
            TryAddCircle(center, axes[i], axes[(i + 1) % axes.Length]);
        }
    }

    private void TryAddCircle(Vec3 center, Vec3 u, Vec3 v)
    {
        if (center.IsFinite && u.IsFinite && v.IsFinite && u != default && v != default)
        {
            AddArc(new AcisArc(center, u, v, 0, Math.Tau));
        }
    }

    private Vec3 PointOf(in SatRecord vertex)
    {
        vertex.Step();
        for (int i = vertex.Tokens.Length - 1; i > 0; i--)
        {
            int target = vertex.Target(i);
            if (target >= 0 && target < _records.Count && _records[target].Type == Point)
            {
                return _records[target].Vector(_records[target].Values);
            }
        }

        return new Vec3(double.NaN, 0, 0);
    }

    /// <summary>Returns the map of the body: three rows of a rotation, a translation and a scale.</summary>
    private static Affine3 MapOf(List<SatRecord> records)
    {
        int at = records.FindIndex(static record => record.Type == Transform);
        if (at < 0)
        {
            return Affine3.Identity;
        }

        SatRecord r = records[at];
        int first = r.Values;
        double scale = r.Number(first + 12) is > 0 and var stated && double.IsFinite(stated) ? stated : 1;
        var map = new Affine3(
            r.Vector(first) * scale, r.Vector(first + 3) * scale, r.Vector(first + 6) * scale, r.Vector(first + 9));
        return map.IsFinite ? map : Affine3.Identity;
    }
}
