using System;
using System.Linq;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.Geometry;

/// <summary>Laws of vectors, maps, curves and polygons over random values.</summary>
public class GeometryPropertyTests
{
    private const double Small = 1e-9;
    private readonly Random _random = new(11);

    [Fact]
    public void Maps_multiply_as_they_are_applied_and_invert()
    {
        for (int run = 0; run < 200; run++)
        {
            (Affine2 a, Affine2 b) = (RandomMap(), RandomMap());
            Vec2 p = new(Value(), Value());
            Near(a.Point(b.Point(p)), (a * b).Point(p));
            Assert.Equal(a.Determinant * b.Determinant, (a * b).Determinant, 1e-6);
            Assert.True(a.TryInvert(out Affine2 inverse));
            Near(p, inverse.Point(a.Point(p)), 1e-6);

            Affine3 outer = Affine3.RotationZ(Value()) * Affine3.Translation(RandomVector());
            Affine3 inner = Ocs.ToWorld(RandomVector()) * Affine3.Scaling(2, -3, 0.5);
            Vec3 q = RandomVector();
            Near(outer.Point(inner.Point(q)), (outer * inner).Point(q));
            Near(outer.Vector(inner.Vector(q)), (outer * inner).Vector(q));
            Assert.True((outer * inner).IsMirror);
            Assert.False(outer.IsMirror);
            Near((outer * inner).Point(q).Xy, (outer * inner).Project(q));
            Near((outer * inner).Point(q).Xy, (outer * inner).Project(q.X, q.Y, q.Z));
        }

        Assert.False(new Affine2(1, 2, 2, 4, 5, 6).TryInvert(out _)); // everything on one line
    }

    [Fact]
    public void Planes_of_entities_are_right_handed_and_orthonormal()
    {
        Vec3[] normals = [.. Enumerable.Range(0, 200).Select(_ => RandomVector()),
            new(0, 0, -1), new(1e-9, 0, 1), new(0, 1.0 / 64, 1), new(0, 1, 0)];
        foreach (Vec3 normal in normals)
        {
            Affine3 plane = Ocs.ToWorld(normal);
            Near(normal.Unit(), plane.AxisZ, 1e-6);
            Near(plane.AxisZ, Vec3.Cross(plane.AxisX, plane.AxisY));
            Assert.Equal(1, plane.AxisX.Length, Small);
            Assert.Equal(0, Vec3.Dot(plane.AxisX, plane.AxisY), Small);
            Assert.Equal(0, Math.Abs(normal.X) + Math.Abs(normal.Y) > 0.1 ? plane.AxisX.Z : 0, Small); // x is level
        }

        Assert.True(Ocs.ToWorld(default).IsIdentity && Ocs.ToWorld(new Vec3(double.NaN, 0, 0)).IsIdentity);
    }

    [Theory]
    [InlineData(0, 90, 90)]
    [InlineData(350, 10, 20)]
    [InlineData(10, 350, 340)]
    [InlineData(0, 0, 360)]
    [InlineData(-720, 0, 360)]
    [InlineData(0, 180, 180)]
    [InlineData(180, 0, 180)]
    [InlineData(0, 1080 + 30, 30)]
    public void Sweeps_run_counter_clockwise_and_are_never_empty(double start, double end, double sweep) =>
        Assert.Equal(sweep, Angles.Sweep(Angles.Radians(start), Angles.Radians(end)) * 180 / Math.PI, 1e-6);

    [Fact]
    public void Polygons_hold_the_points_that_their_triangles_hold()
    {
        for (int run = 0; run < 50; run++)
        {
            // A star around the origin: each point is in just one of its triangles or outside.
            Vec2[] star = [.. Enumerable.Range(0, 9)
                .Select(i => Vec2.Polar(i * Math.Tau / 9, 1 + (_random.NextDouble() * 9)))];
            double area = 0;
            for (int i = 0; i < star.Length; i++)
            {
                area += Vec2.Cross(star[i], star[(i + 1) % star.Length]) / 2;
            }

            Assert.Equal(area, Polygons.SignedArea(star), Small);
            Assert.Equal(-area, Polygons.SignedArea([.. star.Reverse()]), Small);
            for (int i = 0; i < 40; i++)
            {
                Vec2 p = new(Value(), Value());
                bool inside = Enumerable.Range(0, star.Length)
                    .Any(at => InTriangle(p, default, star[at], star[(at + 1) % star.Length]));
                Assert.Equal(inside, Polygons.Contains(star, p));
            }
        }

        Assert.False(Polygons.Contains([], default));
        Assert.Equal(0, Polygons.SignedArea([]));
    }

    [Theory]
    [InlineData(new double[] { 3, 2 }, 0.0)]
    [InlineData(new double[] { 3, 2 }, 4.5)]
    [InlineData(new double[] { 3, 2 }, -1)]
    [InlineData(new double[] { 1, 0.5, 0, 0.5 }, 0.7)]
    [InlineData(new double[] { 10, 90 }, 50)]
    public void Dashes_cover_their_share_of_a_path_wherever_it_bends(double[] lengths, double offset)
    {
        var path = new PathBuffer();
        Vec2 at = default;
        path.MoveTo(at);
        double walked = 0;
        for (int i = 0; i < 40; i++)
        {
            Vec2 next = at + Vec2.Polar(_random.NextDouble() * Math.Tau, 1 + (_random.NextDouble() * 9));
            walked += (next - at).Length;
            path.LineTo(at = next);
        }

        var dashes = new PathBuffer();
        Assert.True(DashSplitter.TrySplit(path, lengths, offset, 0.01, dashes));
        double drawn = FlatLine.Of(dashes, 0.01).Sum(line =>
            line.Points.Zip(line.Points.Skip(1)).Sum(pair => (pair.Second - pair.First).Length));
        Assert.Equal(Covered(lengths, offset, walked), drawn, 1e-6);
    }

    [Fact]
    public void Rational_curves_are_arcs_and_keep_their_ends_in_pieces()
    {
        // A whole circle of nine points.
        double w = Math.Sqrt(0.5);
        Vec3[] points = [new(1, 0, 0), new(1, 1, 0), new(0, 1, 0), new(-1, 1, 0), new(-1, 0, 0), new(-1, -1, 0),
            new(0, -1, 0), new(1, -1, 0), new(1, 0, 0)];
        Nurbs circle = Nurbs.Create(2, [0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4], points, [1, w, 1, w, 1, w, 1, w, 1])!;
        for (int i = 0; i <= 40; i++)
        {
            Assert.Equal(1, circle.At(i / 10.0).Length, Small);
        }

        (Vec2 from, Vec2 to) = (circle.At(0.3).Xy, circle.At(2.6).Xy);
        var path = new PathBuffer();
        circle.Draw(new PathPen(path, Affine3.Identity), 1e-7, 0.3, 2.6);
        Near(from, new Vec2(path.Coords[0], path.Coords[1]));
        Near(to, path.Current);
        Assert.Equal(-1, path.Bounds.MinX, 1e-6);
        Assert.InRange(path.Bounds.MaxX, from.X, from.X + 1e-6);
        path.Clear();
        circle.Draw(new PathPen(path, Affine3.Identity), 1e-7, 3, 1); // no piece: the whole curve
        Assert.Equal(1, path.Bounds.MaxX, 1e-6);
    }

    [Fact]
    public void Bounds_of_paths_are_those_of_their_points()
    {
        for (int run = 0; run < 100; run++)
        {
            var path = new PathBuffer();
            path.MoveTo(new Vec2(500, 500)); // moved on from, so no part of it
            Vec2[] p = [.. Enumerable.Range(0, 4).Select(_ => new Vec2(Value(), Value()))];
            path.MoveTo(p[0]);
            path.CurveTo(p[1], p[2], p[3]);
            Vec2[] on = [.. Enumerable.Range(0, 2001).Select(i => Cubic.At(p[0], p[1], p[2], p[3], i / 2000.0))];
            Assert.Equal(on.Min(q => q.X), path.Bounds.MinX, 1e-4);
            Assert.Equal(on.Max(q => q.X), path.Bounds.MaxX, 1e-4);
            Assert.Equal(on.Min(q => q.Y), path.Bounds.MinY, 1e-4);
            Assert.Equal(on.Max(q => q.Y), path.Bounds.MaxY, 1e-4);
            int pieces = Cubic.PieceCount(p[0], p[1], p[2], p[3], 0.01);
            for (int i = 0; i < pieces; i++)
            {
                Vec2 a = Cubic.At(p[0], p[1], p[2], p[3], (double)i / pieces);
                Vec2 b = Cubic.At(p[0], p[1], p[2], p[3], (i + 1.0) / pieces);
                Vec2 middle = Cubic.At(p[0], p[1], p[2], p[3], (i + 0.5) / pieces);
                double off = Math.Abs(Vec2.Cross(b - a, middle - a)) / Math.Max((b - a).Length, Small);
                Assert.InRange(off, 0, 0.01);
            }
        }
    }

    private static double Covered(double[] lengths, double offset, double walked)
    {
        double period = lengths.Sum();
        double at = ((offset % period) + period) % period;
        double covered = 0;
        double left = walked;
        for (int i = 0; left > 0; i++)
        {
            double step = lengths[i % lengths.Length];
            double skipped = Math.Min(at, step);
            at -= skipped;
            double taken = Math.Min(step - skipped, left);
            covered += i % 2 == 0 ? taken : 0;
            left -= taken;
        }

        return covered;
    }

    private static bool InTriangle(Vec2 p, Vec2 a, Vec2 b, Vec2 c) =>
        Vec2.Cross(b - a, p - a) >= 0 && Vec2.Cross(c - b, p - b) >= 0 && Vec2.Cross(a - c, p - c) >= 0;

    private Affine2 RandomMap()
    {
        while (true)
        {
            var map = new Affine2(Value(), Value(), Value(), Value(), Value(), Value());
            if (Math.Abs(map.Determinant) > 1)
            {
                return map;
            }
        }
    }

    private double Value() => (_random.NextDouble() * 20) - 10;

    private Vec3 RandomVector() => new(Value(), Value(), Value());

    private static void Near(Vec2 expected, Vec2 actual, double tolerance = 1e-8) =>
        Assert.InRange((expected - actual).Length, 0, tolerance);

    private static void Near(Vec3 expected, Vec3 actual, double tolerance = 1e-8) =>
        Assert.InRange((expected - actual).Length, 0, tolerance);
}
