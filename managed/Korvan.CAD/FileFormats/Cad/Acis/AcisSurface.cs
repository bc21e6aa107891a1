using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The surfaces whose isolines are lines or arcs: points by an angle around an axis, and a height or an angle
/// along it.</summary>
internal abstract class AcisSurface
{
    /// <summary>Within this part of its size, a point is on a surface.</summary>
    private const double Tolerance = 1e-4;

    /// <summary>Gets whether its normal is inwards.</summary>
    internal bool IsInward { get; init; }

    /// <summary>Gets the limits of the second parameter; a period where they are the same point.</summary>
    internal virtual (double From, double To) Limits => (double.NegativeInfinity, double.PositiveInfinity);

    internal virtual bool IsPeriodic => false;

    /// <summary>Gets the second parameters of the rings that are drawn.</summary>
    internal virtual double[] Rings => [];

    protected abstract double Size { get; }

    /// <summary>Returns the surface of a record; null for others and for damaged ones.</summary>
    internal static AcisSurface? Of(SatRecord record)
    {
        int at = record.Values;
        Vec3 origin = record.Vector(at);
        AcisSurface? surface = record.Type switch
        {
            "cone-surface" => new Cone(
                origin, record.Vector(at + 3).Unit(), record.Vector(at + 6), record.Number(at + 9),
                SlopeOf(record, at + 10))
            {
                IsInward = SlopeOf(record, at + 10).Cos < 0,
            },
            "sphere-surface" => new Sphere(
                origin, record.Vector(at + 4).Unit(), record.Vector(at + 7).Unit(), Math.Abs(record.Number(at + 3)))
            {
                IsInward = record.Number(at + 3) < 0,
            },
            "torus-surface" => new Torus(
                origin, record.Vector(at + 8).Unit(), record.Vector(at + 3).Unit(), record.Number(at + 6),
                Math.Abs(record.Number(at + 7)))
            {
                IsInward = record.Number(at + 7) < 0,
            },
            _ => null,
        };
        return surface is not null && origin.IsFinite && surface.At(1, 0).IsFinite && surface.Size > 0 ? surface : null;
    }

    // The sine and the cosine of the angle of a cone follow two ends of a range, each "I", or "F" and a number.
    private static (double Sin, double Cos) SlopeOf(SatRecord record, int at)
    {
        for (int i = 0; i < 2; i++)
        {
            at += at < record.Tokens.Length && record.Tokens[at] == "F" ? 2 : 1;
        }

        return (record.Number(at), record.Number(at + 1));
    }

    internal abstract Vec3 At(double u, double v);

    /// <summary>Adds the part of an isoline between two angles or heights.</summary>
    internal abstract void AddMeridian(
        double u, double from, double to, Action<AcisArc> addArc, Action<Vec3, Vec3> addLine);

    internal virtual AcisArc Ring(double v, double from, double sweep) => default;

    /// <summary>Returns the parameters of a point; null for one that is not on the surface. The angle is not a number
    /// where all angles meet.</summary>
    internal (double U, double V)? Find(Vec3 point)
    {
        (double u, double v) = Guess(point);
        return (At(double.IsNaN(u) ? 0 : u, v) - point).Length <= Tolerance * Size ? (u, v) : null;
    }

    protected abstract (double U, double V) Guess(Vec3 point);

    /// <summary>A cylinder or a cone, with a circle or an ellipse around the axis.</summary>
    private sealed class Cone(
        Vec3 origin, Vec3 axis, Vec3 major, double ratio, (double Sin, double Cos) slope) : AcisSurface
    {
        private readonly Vec3 _minor = Vec3.Cross(axis, major) * ratio;
        private readonly double _growth = slope.Sin / slope.Cos / major.Length;

        internal override (double From, double To) Limits => Math.Abs(_growth) * Size < Tolerance ? base.Limits
            : _growth > 0 ? (-1 / _growth, double.PositiveInfinity) : (double.NegativeInfinity, -1 / _growth);

        protected override double Size => major.Length;

        internal override Vec3 At(double u, double v)
        {
            (double sin, double cos) = Math.SinCos(u);
            return origin + (axis * v) + (((major * cos) + (_minor * sin)) * (1 + (v * _growth)));
        }

        internal override void AddMeridian(
            double u, double from, double to, Action<AcisArc> addArc, Action<Vec3, Vec3> addLine) =>
            addLine(At(u, from), At(u, to));

        protected override (double U, double V) Guess(Vec3 point)
        {
            Vec3 off = point - origin;
            double v = Vec3.Dot(off, axis);
            double turn = 1 + (v * _growth) < 0 ? Math.PI : 0;
            Vec3 flat = off - (axis * v);
            double u = Math.Atan2(
                Vec3.Dot(flat, _minor) / Vec3.Dot(_minor, _minor), Vec3.Dot(flat, major) / Vec3.Dot(major, major));
            return (flat.Length <= Tolerance * Size ? double.NaN : turn + u, v);
        }
    }

    private sealed class Sphere(Vec3 center, Vec3 x, Vec3 pole, double radius) : AcisSurface
    {
        private readonly Vec3 _y = Vec3.Cross(pole, x);

        internal override (double From, double To) Limits => (-Math.PI / 2, Math.PI / 2);

        internal override double[] Rings => [0];

        protected override double Size => radius;

        internal override Vec3 At(double u, double v)
        {
            (double sin, double cos) = Math.SinCos(v);
            return center + (Direction(u) * (radius * cos)) + (pole * (radius * sin));
        }

        internal override void AddMeridian(
            double u, double from, double to, Action<AcisArc> addArc, Action<Vec3, Vec3> addLine) =>
            addArc(new AcisArc(center, Direction(u) * radius, pole * radius, from, to - from));

        internal override AcisArc Ring(double v, double from, double sweep)
        {
            (double sin, double cos) = Math.SinCos(v);
            return new AcisArc(
                center + (pole * (radius * sin)), x * (radius * cos), _y * (radius * cos), from, sweep);
        }

        protected override (double U, double V) Guess(Vec3 point)
        {
            Vec3 off = point - center;
            double height = Vec3.Dot(off, pole);
            Vec3 flat = off - (pole * height);
            return (flat.Length <= Tolerance * radius ? double.NaN
                : Math.Atan2(Vec3.Dot(flat, _y), Vec3.Dot(flat, x)), Math.Atan2(height, flat.Length));
        }

        private Vec3 Direction(double u) => (x * Math.Cos(u)) + (_y * Math.Sin(u));
    }

    private sealed class Torus(Vec3 center, Vec3 x, Vec3 axis, double ring, double tube) : AcisSurface
    {
        private readonly Vec3 _y = Vec3.Cross(axis, x);

        internal override (double From, double To) Limits => (-Math.PI, Math.PI);

        internal override bool IsPeriodic => true;

        internal override double[] Rings => [0, Math.PI];

        protected override double Size => Math.Abs(ring) + tube;

        internal override Vec3 At(double u, double v)
        {
            (double sin, double cos) = Math.SinCos(v);
            return center + (Direction(u) * (ring + (tube * cos))) + (axis * (tube * sin));
        }

        internal override void AddMeridian(
            double u, double from, double to, Action<AcisArc> addArc, Action<Vec3, Vec3> addLine) =>
            addArc(new AcisArc(center + (Direction(u) * ring), Direction(u) * tube, axis * tube, from, to - from));

        internal override AcisArc Ring(double v, double from, double sweep)
        {
            (double sin, double cos) = Math.SinCos(v);
            double radius = ring + (tube * cos);
            return new AcisArc(center + (axis * (tube * sin)), x * radius, _y * radius, from, sweep);
        }

        protected override (double U, double V) Guess(Vec3 point)
        {
            Vec3 off = point - center;
            double height = Vec3.Dot(off, axis);
            Vec3 flat = off - (axis * height);
            double u = Math.Atan2(Vec3.Dot(flat, _y), Vec3.Dot(flat, x));
            return (u, Math.Atan2(height, Vec3.Dot(flat, Direction(u)) - ring));
        }

        private Vec3 Direction(double u) => (x * Math.Cos(u)) + (_y * Math.Sin(u));
    }
}
