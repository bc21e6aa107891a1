using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>A polyline vertex with the width and bulge of the segment that leaves it.</summary>
internal readonly record struct PolyVertex(Vec2 Point, double StartWidth, double EndWidth, double Bulge);

/// <summary>
/// Outlines of polylines that have a width. Every segment becomes one closed band, walked on its right side first,
/// so all bands wind the same way and a non-zero fill shows their union; corners between straight bands are mitred.
/// </summary>
internal static class WidePolyline
{
    private const double SharpestMiter = 6;
    private const double ArcStep = Math.PI / 36;
    private const int BandsPerStep = 32;

    internal static bool HasWidth(ReadOnlySpan<PolyVertex> vertices)
    {
        foreach (ref readonly PolyVertex v in vertices)
        {
            if (v.StartWidth > 0 || v.EndWidth > 0)
            {
                return true;
            }
        }

        return false;
    }

    internal static void AddOutline(in PathPen pen, ReadOnlySpan<PolyVertex> vertices, bool closed)
    {
        List<Band> bands = Bands(vertices, closed);
        for (int i = 0; i < bands.Count; i++)
        {
            int next = i + 1 < bands.Count ? i + 1 : closed ? 0 : -1;
            if (next >= 0 && next != i)
            {
                Join(pen, bands[i], bands[next]);
            }
        }

        // Only now: a closing mitre moves the start of the first band.
        int drawn = 0;
        foreach (Band band in bands)
        {
            Workload.Count(ref drawn, BandsPerStep);
            band.Draw(pen);
        }
    }

    private static List<Band> Bands(ReadOnlySpan<PolyVertex> vertices, bool closed)
    {
        var bands = new List<Band>(vertices.Length);
        int segments = closed ? vertices.Length : vertices.Length - 1;
        for (int i = 0; i < segments; i++)
        {
            PolyVertex from = vertices[i];
            Vec2 to = vertices[(i + 1) % vertices.Length].Point;
            if (from.Point != to)
            {
                bands.Add(new Band(from, to));
            }
        }

        return bands;
    }

    /// <summary>Moves the ends of two straight bands of one width to their mitre, or fills the gap between any
    /// others.</summary>
    private static void Join(in PathPen pen, Band a, Band b)
    {
        double width = a.EndHalf;
        double turn = Vec2.Cross(a.EndDirection, b.StartDirection);
        double along = Vec2.Dot(a.EndDirection, b.StartDirection);
        if (width <= 0 || Math.Abs(turn) < 1e-9)
        {
            return;
        }

        bool miter = !a.IsArc && !b.IsArc && a.IsEven && b.IsEven && Math.Abs(a.EndHalf - b.StartHalf) < 1e-9 * width;
        double reach = Math.Sqrt(2 / Math.Max(1e-12, 1 + along));
        if (miter && reach <= SharpestMiter && ShorterThan(a, b, width * reach))
        {
            Vec2 corner = a.EndLeft + b.StartLeft - (a.End * 2);
            Vec2 offset = corner.Unit() * (width * reach);
            a.EndLeft = b.StartLeft = a.End + offset;
            a.EndRight = b.StartRight = a.End - offset;
            return;
        }

        // The wedge on the outer side, wound like the bands.
        (Vec2 p, Vec2 q) = turn > 0 ? (a.EndRight, b.StartRight) : (b.StartLeft, a.EndLeft);
        pen.MoveTo(a.End);
        pen.LineTo(p);
        pen.LineTo(q);
        pen.Close();
    }

    private static bool ShorterThan(Band a, Band b, double reach) => reach < a.Length && reach < b.Length;

    private sealed class Band
    {
        private readonly BulgeArc _arc;

        internal Band(in PolyVertex from, Vec2 to)
        {
            Start = from.Point;
            End = to;
            StartHalf = Math.Max(0, from.StartWidth) / 2;
            EndHalf = Math.Max(0, from.EndWidth) / 2;
            IsArc = BulgeArc.TryCreate(Start, End, from.Bulge, out _arc);
            Length = IsArc ? _arc.Radius * Math.Abs(_arc.Sweep) : (End - Start).Length;
            Vec2 chord = (End - Start).Unit();
            StartDirection = IsArc ? Tangent(_arc.Start) : chord;
            EndDirection = IsArc ? Tangent(_arc.Start + _arc.Sweep) : chord;
            StartLeft = Start + (StartDirection.Left * StartHalf);
            StartRight = Start - (StartDirection.Left * StartHalf);
            EndLeft = End + (EndDirection.Left * EndHalf);
            EndRight = End - (EndDirection.Left * EndHalf);
        }

        internal Vec2 Start { get; }

        internal Vec2 End { get; }

        internal double StartHalf { get; }

        internal double EndHalf { get; }

        internal double Length { get; }

        internal bool IsArc { get; }

        internal bool IsEven => StartHalf == EndHalf;

        internal Vec2 StartDirection { get; }

        internal Vec2 EndDirection { get; }

        internal Vec2 StartLeft { get; set; }

        internal Vec2 StartRight { get; set; }

        internal Vec2 EndLeft { get; set; }

        internal Vec2 EndRight { get; set; }

        internal void Draw(in PathPen pen)
        {
            if (StartHalf == 0 && EndHalf == 0)
            {
                return;
            }

            pen.MoveTo(StartRight);
            DrawSide(pen, -1, false, EndRight);
            pen.LineTo(EndLeft);
            DrawSide(pen, 1, true, StartLeft);
            pen.Close();
        }

        private Vec2 Tangent(double angle) => Vec2.Polar(angle + (Math.Sign(_arc.Sweep) * Math.PI / 2));

        private void DrawSide(in PathPen pen, int side, bool backwards, Vec2 to)
        {
            if (!IsArc)
            {
                pen.LineTo(to);
                return;
            }

            // The left of a counter-clockwise arc lies towards its centre.
            double outward = -side * Math.Sign(_arc.Sweep);
            if (IsEven && _arc.Radius + (outward * StartHalf) > 0)
            {
                double start = backwards ? _arc.Start + _arc.Sweep : _arc.Start;
                pen.ArcTo(
                    _arc.Center, _arc.Radius + (outward * StartHalf), start, backwards ? -_arc.Sweep : _arc.Sweep);
                return;
            }

            int steps = Math.Max(2, (int)Math.Ceiling(Math.Abs(_arc.Sweep) / ArcStep));
            for (int i = 1; i <= steps; i++)
            {
                double t = backwards ? 1 - ((double)i / steps) : (double)i / steps;
                double radius = _arc.Radius + (outward * (StartHalf + ((EndHalf - StartHalf) * t)));
                pen.LineTo(_arc.Center + Vec2.Polar(_arc.Start + (_arc.Sweep * t), radius));
            }
        }
    }
}
