using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>The dimension line of an angle: an arc, counterclockwise, with angles in radians.</summary>
internal readonly record struct DimensionArc(Vec2 Center, double Radius, double Start, double Sweep)
{
    private const double Parallel = 1e-12;

    internal double End => Start + Sweep;

    internal double Length => Radius * Sweep;

    /// <summary>Returns where a line first meets the circle ahead; the point itself where it does not.</summary>
    internal Vec2 Crossing(Vec2 point, Vec2 along)
    {
        Vec2 way = point - Center;
        double before = Vec2.Dot(way, along);
        double rest = (before * before) + (Radius * Radius) - Vec2.Dot(way, way);
        return rest < 0 ? point : point + (along * (Math.Sqrt(rest) - before));
    }

    internal Vec2 At(double angle) => Center + Vec2.Polar(angle, Radius);

    /// <summary>The one of two arcs between two points that the definition point is on.</summary>
    internal static DimensionArc Of(CadAngularDimension d, DimensionPen pen) => Between(
        pen.Flat(d.ThirdPoint), pen.Flat(d.FirstPoint), pen.Flat(d.SecondPoint), pen.Flat(d.DefinitionPoint));

    internal static DimensionArc Of(CadArcLengthDimension d, DimensionPen pen) => Between(
        pen.Flat(d.ArcCenter), pen.Flat(d.FirstExtensionPoint), pen.Flat(d.SecondExtensionPoint),
        pen.Flat(d.DefinitionPoint));

    /// <summary>The one of four angles between two lines that a point of the arc is in.</summary>
    internal static DimensionArc Of(Cad2LineAngularDimension d, DimensionPen pen)
    {
        (Vec2 a, Vec2 b) = (pen.Flat(d.FirstPoint), pen.Flat(d.SecondPoint));
        (Vec2 c, Vec2 e) = (pen.Flat(d.ThirdPoint), pen.Flat(d.DefinitionPoint));
        (Vec2 first, Vec2 second) = ((b - a).Unit(), (e - c).Unit());
        double cross = Vec2.Cross(first, second);
        if (!(Math.Abs(cross) > Parallel))
        {
            return default;
        }

        Vec2 center = a + (first * (Vec2.Cross(c - a, second) / cross));
        Vec2 on = new(d.ArcPoint.X, d.ArcPoint.Y);
        Vec2 way = on - center;
        double radius = way.Length;

        // In coordinates along the lines the signs of a point are those of its angle.
        bool isBehindFirst = Vec2.Cross(way, second) / cross < 0;
        bool isBehindSecond = Vec2.Cross(first, way) / cross < 0;
        first *= isBehindFirst ? -1 : 1;
        second *= isBehindSecond ? -1 : 1;
        return Vec2.Cross(first, second) > 0
            ? Spanned(center, radius, AngleOf(first), AngleOf(second))
            : Spanned(center, radius, AngleOf(second), AngleOf(first));
    }

    internal static double AngleOf(Vec2 direction) => Math.Atan2(direction.Y, direction.X);

    private static DimensionArc Between(Vec2 center, Vec2 from, Vec2 to, Vec2 on)
    {
        double radius = (on - center).Length;
        (double start, double end) = (AngleOf(from - center), AngleOf(to - center));
        double place = AngleOf(on - center);
        bool isBetween = Angles.Sweep(start, place) <= Angles.Sweep(start, end);
        return isBetween ? Spanned(center, radius, start, end) : Spanned(center, radius, end, start);
    }

    private static DimensionArc Spanned(Vec2 center, double radius, double start, double end) =>
        new(center, radius, start, Angles.Sweep(start, end));
}
