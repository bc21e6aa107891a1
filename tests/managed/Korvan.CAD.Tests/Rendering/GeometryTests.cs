using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class GeometryTests
{
    private static readonly double Root2 = Math.Sqrt(2);

    [Theory]
    [InlineData(0, 0, 1, 1, 0, 0)] // the world's own plane
    [InlineData(0, 0, -1, -1, 0, 0)] // seen from below: x is mirrored
    [InlineData(1, 0, 0, 0, 1, 0)] // looking along x
    [InlineData(0, 1, 0, -1, 0, 0)]
    [InlineData(0.01, 0.01, 1, 1, 0, -0.01)] // within 1/64 of the pole: Wy × N
    public void Arbitrary_axis_gives_the_published_x_axis(double nx, double ny, double nz, double x, double y, double z)
    {
        Affine3 map = Ocs.ToWorld(new Vec3(nx, ny, nz));
        Assert.Equal(x, map.AxisX.X, 3);
        Assert.Equal(y, map.AxisX.Y, 3);
        Assert.Equal(z, map.AxisX.Z, 3);
        Assert.Equal(0, Vec3.Dot(map.AxisX, map.AxisY), 12);
        Assert.Equal(1, Vec3.Dot(Vec3.Cross(map.AxisX, map.AxisY), map.AxisZ), 12);
    }

    [Theory]
    [InlineData(1, 1, 0.5, 0)] // half circle
    [InlineData(-1, 1, 0.5, 0)] // the other way round
    [InlineData(0.41421356237309503, 0.70710678118654757, 0.5, 0.5)] // quarter circle: tan 22.5°
    public void Bulge_gives_the_circle_through_both_ends(double bulge, double diameter, double cx, double cy)
    {
        Assert.True(BulgeArc.TryCreate(new Vec2(0, 0), new Vec2(1, 0), bulge, out BulgeArc arc));
        Assert.Equal(Math.Abs(bulge) == 1 ? diameter / 2 : diameter, arc.Radius, 12);
        Assert.Equal(cx, arc.Center.X, 12);
        Assert.Equal(cy, arc.Center.Y, 12);
        Assert.Equal(4 * Math.Atan(bulge), arc.Sweep, 12);
        Assert.Equal(0, (arc.At(1) - new Vec2(1, 0)).Length, 12);
    }

    [Fact]
    public void Circles_stay_within_a_millionth_of_their_radius()
    {
        var path = new PathBuffer();
        new PathPen(path, Affine3.Identity).Circle(new Vec2(3, -2), 10);
        double worst = 0;
        foreach (Vec2 p in Samples(path))
        {
            worst = Math.Max(worst, Math.Abs((p - new Vec2(3, -2)).Length - 10));
        }

        Assert.InRange(worst, 0, 5e-5);
        Assert.Equal(-7, path.Bounds.MinX, 4);
        Assert.Equal(8, path.Bounds.MaxY, 4);
    }

    [Fact]
    public void A_circle_in_a_stretched_and_turned_block_is_an_ellipse()
    {
        var path = new PathBuffer();
        Affine3 map = Affine3.RotationZ(Math.PI / 2) * Affine3.Scaling(-3, 1, 1);
        new PathPen(path, map).Circle(default, 1);
        Assert.Equal(1, path.Bounds.MaxX, 5);
        Assert.Equal(3, path.Bounds.MaxY, 5);
        foreach (Vec2 p in Samples(path))
        {
            Assert.Equal(1, (p.X * p.X) + (p.Y * p.Y / 9), 4);
        }
    }

    [Fact]
    public void A_rational_quadratic_of_three_points_is_a_quarter_circle()
    {
        Nurbs curve = Nurbs.Create(
            2, [0, 0, 0, 1, 1, 1], [new Vec3(1, 0, 0), new Vec3(1, 1, 0), new Vec3(0, 1, 0)], [1, 1 / Root2, 1])!;
        var path = new PathBuffer();
        curve.Draw(new PathPen(path, Affine3.Identity), 1e-6);
        foreach (Vec2 p in Samples(path))
        {
            Assert.Equal(1, p.Length, 5);
        }

        Assert.Equal(0, path.Current.X, 12);
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    [InlineData(5)]
    public void Drawn_spline_lies_on_the_evaluated_one(int degree)
    {
        var points = new List<Vec3>();
        for (int i = 0; i < 9; i++)
        {
            points.Add(new Vec3(i, Math.Sin(i * 1.7) * 3, 0));
        }

        Nurbs curve = Nurbs.Create(degree, [], points, null)!;
        var path = new PathBuffer();
        curve.Draw(new PathPen(path, Affine3.Identity), 1e-5);
        var exact = new Vec2[4000];
        for (int i = 0; i < exact.Length; i++)
        {
            exact[i] = curve.At((9 - degree) * i / (exact.Length - 1.0)).Xy;
        }

        foreach (Vec2 p in Samples(path, 1e-3))
        {
            Assert.Contains(exact, e => (e - p).Length < 1.2e-2);
        }
    }

    [Theory]
    [InlineData(3, 3, 8)] // fewer points than the degree needs
    [InlineData(0, 4, 5)] // no degree
    [InlineData(200, 201, 402)] // a degree that nobody draws
    public void Nurbs_without_a_curve_are_refused(int degree, int points, int knots)
    {
        Assert.Null(Nurbs.Create(degree, new double[knots], new Vec3[points], null));
    }

    [Fact]
    public void Falling_knots_and_negative_weights_are_refused()
    {
        var points = new Vec3[4];
        Assert.Null(Nurbs.Create(3, [0, 0, 0, 0, 1, 1, 1, 0.5], points, null));
        Assert.Null(Nurbs.Create(3, [0, 0, 0, 0, 1, 1, 1, 1], points, [1, -1, 1, 1]));
        Assert.Null(Nurbs.Create(3, [0, 0, 0, 0, 1, 1, 1, 1], [default, default, default, new Vec3(double.NaN, 0, 0)],
            null));
    }

    [Fact]
    public void Fit_spline_passes_through_its_points_with_the_given_tangents()
    {
        Vec3[] points = [new(0, 0, 0), new(2, 3, 0), new(5, 1, 0), new(6, 6, 0)];
        var path = new PathBuffer();
        FitSpline.Draw(new PathPen(path, Affine3.Identity), points, new Vec3(0, 1, 0), null, closed: false);
        ReadOnlySpan<double> c = path.Coords;
        Assert.Equal(0, c[2], 12); // the first handle is straight above the first point
        Assert.True(c[3] > 0);
        Assert.Equal((2.0, 3.0), (c[6], c[7]));
        Assert.Equal((5.0, 1.0), (c[12], c[13]));
        Assert.Equal((6.0, 6.0), (c[18], c[19]));

        // Continuous slope: the handles around an inner point are in line with it.
        Vec2 before = new Vec2(c[6], c[7]) - new Vec2(c[4], c[5]);
        Vec2 after = new Vec2(c[8], c[9]) - new Vec2(c[6], c[7]);
        Assert.Equal(0, Vec2.Cross(before.Unit(), after.Unit()), 9);
    }

    [Fact]
    public void Wide_corner_is_mitred_and_filled_once()
    {
        PolyVertex[] vertices = [new(new Vec2(0, 0), 2, 2, 0), new(new Vec2(10, 0), 2, 2, 0),
            new(new Vec2(10, 10), 2, 2, 0)];
        var path = new PathBuffer();
        WidePolyline.AddOutline(new PathPen(path, Affine3.Identity), vertices, closed: false);
        Assert.Equal((0.0, -1.0, 11.0, 10.0), (path.Bounds.MinX, path.Bounds.MinY, path.Bounds.MaxX, path.Bounds.MaxY));
        double area = 0;
        foreach (Vec2[] ring in Polygons.Flatten(path, 0.01))
        {
            double signed = Polygons.SignedArea(ring);
            Assert.True(signed > 0, "all bands wind one way");
            area += signed;
        }

        Assert.Equal(40, area, 9);
    }

    [Fact]
    public void Tapering_half_circle_has_the_widths_of_its_ends()
    {
        PolyVertex[] vertices = [new(new Vec2(0, 0), 0, 2, 1), new(new Vec2(10, 0), 0, 0, 0)];
        var path = new PathBuffer();
        WidePolyline.AddOutline(new PathPen(path, Affine3.Identity), vertices, closed: false);
        Assert.Equal(11, path.Bounds.MaxX, 6);
        Assert.InRange(path.Bounds.MinX, -0.01, 1e-9);
        Assert.True(path.Bounds.MinY < -5.4, "the arc runs below its chord for a positive bulge");
    }

    [Fact]
    public void Bounds_of_a_cubic_hold_the_curve_and_not_its_handles()
    {
        var path = new PathBuffer();
        path.MoveTo(new Vec2(0, 0));
        path.CurveTo(new Vec2(0, 4), new Vec2(3, 4), new Vec2(3, 0));
        Assert.Equal(3, path.Bounds.MaxY, 12);
    }

    private static List<Vec2> Samples(PathBuffer path, double tolerance = 1e-7)
    {
        var samples = new List<Vec2>();
        foreach (Vec2[] ring in Polygons.Flatten(path, tolerance))
        {
            samples.AddRange(ring);
        }

        return samples;
    }
}
