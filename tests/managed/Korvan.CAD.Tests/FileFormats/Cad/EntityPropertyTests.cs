using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Extents, lengths and areas of arcs against points on them, which are found without their
/// formulas.</summary>
public class EntityPropertyTests
{
    private const int Samples = 20_000;

    public static TheoryData<double, bool> Bulges
    {
        get
        {
            var rows = new TheoryData<double, bool>();
            for (int i = -20; i <= 20; i++)
            {
                rows.Add(i / 10.0, false);
                rows.Add(i / 10.0, true);
            }

            return rows;
        }
    }

    [Theory]
    [MemberData(nameof(Bulges))]
    public void Bulges_are_arcs_through_the_ends_and_the_height_of_their_segment(double bulge, bool mirrored)
    {
        var random = new Random((int)(bulge * 10) + 100);
        for (int run = 0; run < 4; run++)
        {
            Vec2 a = new(random.NextDouble() * 10, random.NextDouble() * 10);
            Vec2 b = new((random.NextDouble() * 10) + 11, random.NextDouble() * 10);
            var polyline = new CadLwPolyline { Flag = CadLwPolylineFlag.Closed, Elevation = 3 };
            polyline.Coordinates.AddRange([new Cad2DPoint(a.X, a.Y), new Cad2DPoint(b.X, b.Y)]);
            polyline.Bulges.AddRange([bulge, 0]);
            polyline.ExtrusionDirection = new Cad3DPoint(0, 0, mirrored ? -1 : 1);

            List<Vec2> points = [.. Arc(a, b, bulge), a];
            double length = points.Zip(points.Skip(1)).Sum(pair => (pair.Second - pair.First).Length);
            double area = Math.Abs(Polygons.SignedArea(points.ToArray()));
            Assert.Equal(length, polyline.GetLength()!.Value, length * 1e-6);
            Assert.Equal(area, polyline.GetArea()!.Value, 1e-4);

            double side = mirrored ? -1 : 1;
            var extents = new Extents();
            EntityExtents.Add(polyline, extents);
            Assert.Equal(points.Min(p => p.X * side), extents.Min.X, 1e-4);
            Assert.Equal(points.Max(p => p.X * side), extents.Max.X, 1e-4);
            Assert.Equal(points.Min(p => p.Y), extents.Min.Y, 1e-4);
            Assert.Equal(points.Max(p => p.Y), extents.Max.Y, 1e-4);
            Assert.Equal((3 * side, 3 * side), (extents.Min.Z, extents.Max.Z));
        }
    }

    [Theory]
    [InlineData(0, 0, 1)]
    [InlineData(0, 0, -1)]
    [InlineData(1, 0, 0)]
    [InlineData(0.3, -0.5, 0.8)]
    [InlineData(-0.001, 0.01, -1)] // within 1/64 of the pole
    public void Shapes_take_the_box_of_their_points_whichever_way_they_look(double x, double y, double z)
    {
        Cad3DPoint normal = new(x, y, z);
        Affine3 plane = Ocs.ToWorld(new Vec3(x, y, z));
        var circle = new CadCircle { CenterPoint = new(4, -2, 7), Radius = 3, ExtrusionDirection = normal };
        AssertBox(
            circle, At(0, Math.Tau, t => plane.Point(new Vec3(4 + (3 * Math.Cos(t)), -2 + (3 * Math.Sin(t)), 7))));
        var arc = new CadArc { Radius = 5, StartAngle = 200, EndAngle = 30, ExtrusionDirection = normal };
        double start = 200 * Math.PI / 180;
        AssertBox(arc,
            At(start, start + (190 * Math.PI / 180), t => plane.Point(new Vec3(5 * Math.Cos(t), 5 * Math.Sin(t), 0))));
        var solid = new CadSolid
        {
            FirstPoint = new(0, 0, 1),
            SecondPoint = new(4, 1, 1),
            ThirdPoint = new(1, 5, 1),
            FourthPoint = new(6, 6, 1),
            ExtrusionDirection = normal,
        };
        AssertBox(
            solid, [.. new Vec3[] { new(0, 0, 1), new(4, 1, 1), new(1, 5, 1), new(6, 6, 1) }.Select(plane.Point)]);
        Assert.Equal(5 * 190 * Math.PI / 180, arc.GetLength()!.Value, 9);
        Assert.Null(arc.GetArea());
    }

    /// <summary>Points on the circle through both ends and the top of the segment, which lies right of the
    /// chord.</summary>
    private static IEnumerable<Vec2> Arc(Vec2 a, Vec2 b, double bulge)
    {
        Vec2 chord = b - a;
        if (bulge == 0)
        {
            return [a, b];
        }

        Vec2 top = Vec2.Lerp(a, b, 0.5) - (chord.Left * (bulge / 2));
        Vec2 center = Circumcenter(a, top, b);
        double from = Angle(a - center);
        double by = Turn(Angle(top - center) - from) + Turn(Angle(b - center) - Angle(top - center));
        return Enumerable.Range(0, Samples + 1).Select(
            i => center + Vec2.Polar(from + (by * i / Samples), (a - center).Length));
    }

    private static double Angle(Vec2 v) => Math.Atan2(v.Y, v.X);

    private static double Turn(double angle) => Math.IEEERemainder(angle, Math.Tau);

    private static Vec2 Circumcenter(Vec2 a, Vec2 b, Vec2 c)
    {
        (Vec2 p, Vec2 q) = (b - a, c - a);
        double d = 2 * Vec2.Cross(p, q);
        double pp = Vec2.Dot(p, p);
        double qq = Vec2.Dot(q, q);
        return a + new Vec2(((q.Y * pp) - (p.Y * qq)) / d, ((p.X * qq) - (q.X * pp)) / d);
    }

    private static List<Vec3> At(double from, double to, Func<double, Vec3> point) =>
        [.. Enumerable.Range(0, Samples + 1).Select(i => point(from + ((to - from) * i / Samples)))];

    private static void AssertBox(CadEntityBase entity, List<Vec3> points)
    {
        var extents = new Extents();
        EntityExtents.Add(entity, extents);
        Bounds3 box = points.Aggregate(Bounds3.Empty, (box, p) => box.With(p));
        Assert.Equal(0, (new Vec3(extents.Min.X, extents.Min.Y, extents.Min.Z) - box.Min).Length, 1e-5);
        Assert.Equal(0, (new Vec3(extents.Max.X, extents.Max.Y, extents.Max.Z) - box.Max).Length, 1e-5);
    }
}
