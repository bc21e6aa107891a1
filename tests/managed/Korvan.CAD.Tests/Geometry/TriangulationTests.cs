using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Geometry;
using Korvan.CAD.Geometry.Triangulation;
using Xunit;

namespace Korvan.CAD.Tests.Geometry;

public class TriangulationTests
{
    public static TheoryData<string, int, double> Degenerate => new()
    {
        // Rings by name, the number of triangles, the area under the even-odd rule.
        { "square", 2, 100 },
        { "clockwise", 2, 100 },
        { "collinear corners", 6, 100 },
        { "repeated corners", 2, 100 },
        { "spike without area", 2, 100 },
        { "no area", 0, 0 },
        { "slit to the hole", 8, 96 },
        { "hole at a corner", 6, 92 },
        { "hole corner on an edge", 7, 96 },
        { "hole edge on an edge", 6, 96 },
        { "ring that touches itself", 2, 16 },
        { "neighbours with one edge in common", 4, 200 },
        { "island in a hole", 10, 68 },
        { "twice the same", 0, 0 },
        { "bow tie", 2, 50 },
    };

    [Theory]
    [MemberData(nameof(Degenerate))]
    public void Rings_may_touch_repeat_and_run_either_way(string name, int triangles, double area)
    {
        Vec2[][] rings = Rings(name);
        TriangulatedPolygon polygon = PolygonTriangulator.TryTriangulate(rings, FillRule.EvenOdd)!;
        Assert.Equal(triangles, polygon.Triangles.Length / 3);
        Assert.Equal(area, PositiveArea(rings, polygon), 9);
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    public void Simple_polygons_with_holes_are_covered_once_by_as_few_triangles_as_there_can_be(int seed)
    {
        var random = new Random(seed);
        for (int run = 0; run < 60; run++)
        {
            Vec2[][] rings = RandomPolygon(random, out int corners);
            TriangulatedPolygon polygon = PolygonTriangulator.TryTriangulate(rings, FillRule.EvenOdd)!;
            Assert.Equal(corners + (2 * (rings.Length - 1)) - 2, polygon.Triangles.Length / 3);
            Assert.Empty(polygon.Added);
            double area = Math.Abs(Polygons.SignedArea(rings[0]))
                - rings.Skip(1).Sum(hole => Math.Abs(Polygons.SignedArea(hole)));
            Assert.Equal(area, PositiveArea(rings, polygon), area * 1e-9);
        }
    }

    [Theory]
    [InlineData(FillRule.EvenOdd, 0.5, 11)]
    [InlineData(FillRule.NonZero, 0.5, 12)]
    [InlineData(FillRule.EvenOdd, 0, 13)] // corners at whole numbers: they touch, overlap and repeat
    [InlineData(FillRule.NonZero, 0, 14)]
    public void Rings_that_cross_are_filled_by_the_rule(object rule, double scatter, int seed)
    {
        var random = new Random(seed);
        for (int run = 0; run < 100; run++)
        {
            Vec2[][] rings = new Vec2[1 + random.Next(3)][];
            for (int i = 0; i < rings.Length; i++)
            {
                rings[i] = [.. Enumerable.Range(0, 3 + random.Next(12)).Select(_ => new Vec2(
                    random.Next(8) + (scatter * random.NextDouble()),
                    random.Next(8) + (scatter * random.NextDouble())))];
            }

            TriangulatedPolygon polygon = PolygonTriangulator.TryTriangulate(rings, (FillRule)rule)!;
            List<Vec2> points = Points(rings, polygon);
            for (int probe = 0; probe < 40; probe++)
            {
                Vec2 p = new(random.NextDouble() * 9, random.NextDouble() * 9);
                int winding = rings.Sum(ring => Winding(ring, p));
                bool inside = (FillRule)rule == FillRule.EvenOdd ? winding % 2 != 0 : winding != 0;
                Assert.Equal(inside ? 1 : 0, Covers(points, polygon, p));
            }
        }
    }

    [Fact]
    public void A_crossing_lies_on_both_edges()
    {
        TriangulatedPolygon polygon = PolygonTriangulator.TryTriangulate(Rings("bow tie"), FillRule.EvenOdd)!;
        AddedPoint added = Assert.Single(polygon.Added);
        Assert.Equal(new Vec2(5, 5), added.At);
        Assert.Equal(0.5, added.Share, 12);
        Assert.Equal(1, Math.Abs(added.From - added.To));
    }

    [Fact]
    public void A_pentagram_has_its_centre_by_one_rule_only()
    {
        Vec2[] star = [.. Enumerable.Range(0, 5).Select(i => Vec2.Polar(Math.PI * ((0.8 * i) + 0.5)))];
        Assert.Equal(5, PolygonTriangulator.TryTriangulate([star], FillRule.EvenOdd)!.Triangles.Length / 3);
        Assert.Equal(8, PolygonTriangulator.TryTriangulate([star], FillRule.NonZero)!.Triangles.Length / 3);
    }

    [Theory]
    [InlineData("comb")]
    [InlineData("slanted comb")]
    [InlineData("spiral")]
    [InlineData("holes")]
    public void Work_grows_with_n_log_n(string shape)
    {
        foreach (int size in (int[])[1_000, 10_000, 100_000])
        {
            Vec2[][] rings = Large(shape, size);
            int corners = rings.Sum(ring => ring.Length);
            TriangulatedPolygon polygon = PolygonTriangulator.TryTriangulate(rings, FillRule.EvenOdd)!;
            Assert.Equal(corners + (2 * (rings.Length - 1)) - 2, polygon.Triangles.Length / 3);
            Assert.InRange(polygon.Comparisons, 0, 2.5 * corners * Math.Log2(corners));
        }
    }

    [Fact]
    public void What_cannot_be_filled_is_said()
    {
        Assert.Null(PolygonTriangulator.TryTriangulate([[new(0, 0), new(double.NaN, 1), new(1, 0)]], FillRule.EvenOdd));
        var random = new Random(5);
        Vec2[] tangle = [.. Enumerable.Range(0, 4000).Select(_ => new Vec2(random.NextDouble(), random.NextDouble()))];
        Assert.Null(PolygonTriangulator.TryTriangulate([tangle], FillRule.EvenOdd));
    }

    [Theory]
    [InlineData(0, 0, 12, 12, 24, 24, 0)]
    [InlineData(0.5, 0.5, 12, 12, 24, 24, 0)]
    [InlineData(1e-300, 0, 1, 0, 3, 0, 0)]
    [InlineData(0.1, 0.1, 0.2, 0.2, 0.3, 0.30000000000000004, 1)] // last digits count
    [InlineData(0.1, 0.1, 0.2, 0.2, 0.3, 0.3, 0)]
    [InlineData(1e15, 1e15, 1e15, -1e15, 0.125, 1e-9, -1)]
    public void Orientation_is_exact(double ax, double ay, double bx, double by, double cx, double cy, int sign)
    {
        (Vec2 a, Vec2 b, Vec2 c) = (new Vec2(ax, ay), new Vec2(bx, by), new Vec2(cx, cy));
        Assert.Equal(sign, Orientation.Sign(a, b, c));
        Assert.Equal(-sign, Orientation.Sign(b, a, c));
        Assert.Equal(sign, Orientation.Sign(c, a, b));
    }

    [Fact]
    public void Rings_know_how_deep_they_lie()
    {
        Vec2[] clockwise = [.. Box(2, 2, 6, 6).Reverse()];
        Vec2[][] rings = [Box(0, 0, 10, 10), clockwise, Box(3, 3, 5, 5), Box(6, 2, 10, 6), Box(20, 0, 30, 10)];
        Assert.Equal([0, 1, 2, 1, 0], RingNesting.TryDepths(rings)!);

        // One that sticks out by a rounding error lies where the rest of it does.
        Assert.Equal([0, 1], RingNesting.TryDepths([Box(0, 0, 10, 10), Box(-1e-9, 2, 3, 4)])!);
    }

    private static Vec2[][] Rings(string name) => name switch
    {
        "square" => [Box(0, 0, 10, 10)],
        "clockwise" => [[.. Box(0, 0, 10, 10).Reverse()]],
        "collinear corners" =>
            [[new(0, 0), new(3, 0), new(10, 0), new(10, 4), new(10, 10), new(5, 10), new(0, 10), new(0, 1)]],
        "repeated corners" => [[new(0, 0), new(0, 0), new(10, 0), new(10, 10), new(10, 10), new(0, 10), new(0, 0)]],
        "spike without area" => [[new(0, 0), new(10, 0), new(10, 10), new(0, 10), new(0, 15), new(0, 10)]],
        "no area" => [[new(0, 0), new(5, 5), new(10, 10)]],
        "slit to the hole" =>
            [[new(0, 0), new(10, 0), new(10, 10), new(0, 10), new(0, 0), new(4, 4), new(4, 6), new(6, 6), new(6, 4),
                new(4, 4)]],
        "hole at a corner" => [Box(0, 0, 10, 10), [new(0, 0), new(3, 1), new(4, 4), new(1, 3)], Box(20, 20, 20, 20)],
        "hole corner on an edge" => [Box(0, 0, 10, 10), [new(5, 0), new(7, 1), new(5, 2), new(3, 1)]],
        "hole edge on an edge" => [Box(0, 0, 10, 10), Box(4, 0, 6, 2)],
        "ring that touches itself" =>
            [[new(0, 0), new(4, 2), new(8, 0), new(8, 4), new(4, 2), new(0, 4)], Box(1, 1, 1, 1)],
        "neighbours with one edge in common" => [Box(0, 0, 10, 10), Box(10, 0, 20, 10)],
        "island in a hole" => [Box(0, 0, 10, 10), Box(2, 2, 8, 8), Box(4, 4, 6, 6)],
        "twice the same" => [Box(0, 0, 10, 10), Box(0, 0, 10, 10)],
        "bow tie" => [[new(0, 0), new(10, 10), new(10, 0), new(0, 10)]],
        _ => throw new ArgumentOutOfRangeException(nameof(name)),
    };

    private static Vec2[][] Large(string shape, int size)
    {
        Vec2 Lean(double x, double y) => new(x + (shape == "slanted comb" ? 0.7 * y : 0), y);
        double turn = 40.0 * Math.Tau / size;
        return shape switch
        {
            "spiral" =>
            [
                [
                    .. Enumerable.Range(0, size / 2).Select(i => Vec2.Polar(turn * i, 1 + (turn * i))),
                    .. Enumerable.Range(0, size / 2).Reverse().Select(i => Vec2.Polar(turn * i, 3 + (turn * i))),
                ],
            ],
            "holes" =>
            [
                Box(-1, -1, 1000, 1000),
                .. Enumerable.Range(0, size / 4).Select(
                    i => Box(3 * (i % 300), 3 * (i / 300), (3 * (i % 300)) + 1, (3 * (i / 300)) + 2)),
            ],
            _ =>
            [
                [
                    .. Enumerable.Range(0, size / 2).SelectMany(i => (Vec2[])[Lean(i, 0), Lean(i + 0.5, size)]),
                    Lean(size / 2, -1), Lean(0, -1),
                ],
            ],
        };
    }

    /// <summary>A star around holes, which are stars in cells of a grid.</summary>
    private static Vec2[][] RandomPolygon(Random random, out int corners)
    {
        int side = random.Next(6);
        List<Vec2[]> rings = [Star(random, default, 20, 60, 3 + random.Next(80))];
        for (int i = 0; i < side * side; i++)
        {
            Vec2 center = new(((i % side) - (side / 2.0)) * 3, ((i / side) - (side / 2.0)) * 3);
            rings.Add(Star(random, center, 0.01, 1.4, 3 + random.Next(20)));
        }

        // A triangle around the holes need not hold them all.
        rings[0] = rings[0].Length < 6 ? Box(-30, -30, 30, 30) : rings[0];
        corners = rings.Sum(ring => ring.Length);
        return [.. rings];
    }

    private static Vec2[] Star(Random random, Vec2 center, double inner, double outer, int count)
    {
        Vec2[] ring = [.. Enumerable.Range(0, count).Select(i =>
            center + Vec2.Polar((i + (0.8 * random.NextDouble())) * Math.Tau / count, inner
                + (random.NextDouble() * (outer - inner))))];
        if (random.Next(2) == 0)
        {
            Array.Reverse(ring);
        }

        return ring;
    }

    private static Vec2[] Box(double x0, double y0, double x1, double y1) =>
        [new(x0, y0), new(x1, y0), new(x1, y1), new(x0, y1)];

    private static List<Vec2> Points(Vec2[][] rings, TriangulatedPolygon polygon) =>
        [.. rings.SelectMany(ring => ring), .. polygon.Added.Select(added => added.At)];

    private static double PositiveArea(Vec2[][] rings, TriangulatedPolygon polygon)
    {
        List<Vec2> points = Points(rings, polygon);
        double area = 0;
        for (int i = 0; i < polygon.Triangles.Length; i += 3)
        {
            Vec2[] triangle = [.. polygon.Triangles[i..(i + 3)].Select(corner => points[corner])];
            Assert.True(Orientation.Sign(triangle[0], triangle[1], triangle[2]) > 0);
            area += Polygons.SignedArea(triangle);
        }

        return area;
    }

    private static int Covers(List<Vec2> points, TriangulatedPolygon polygon, Vec2 p)
    {
        int count = 0;
        for (int i = 0; i < polygon.Triangles.Length; i += 3)
        {
            Vec2[] triangle = [.. polygon.Triangles[i..(i + 3)].Select(corner => points[corner])];
            count += Winding(triangle, p);
        }

        return count;
    }

    private static int Winding(ReadOnlySpan<Vec2> ring, Vec2 p)
    {
        int winding = 0;
        for (int i = 0; i < ring.Length; i++)
        {
            (Vec2 a, Vec2 b) = (ring[i], ring[(i + 1) % ring.Length]);
            if ((a.Y > p.Y) != (b.Y > p.Y) && p.X < a.X + ((p.Y - a.Y) / (b.Y - a.Y) * (b.X - a.X)))
            {
                winding += b.Y > a.Y ? 1 : -1;
            }
        }

        return winding;
    }
}
