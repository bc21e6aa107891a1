using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What formats without curves, or dashes get instead.</summary>
public class FlatteningTests
{
    [Fact]
    public void A_curve_becomes_chords_within_the_tolerance()
    {
        const double k = 0.5522847498;
        PathBuffer path = new();
        path.MoveTo(new Vec2(100, 0));
        path.CurveTo(new Vec2(100, 100 * k), new Vec2(100 * k, 100), new Vec2(0, 100));
        FlatLine coarse = Assert.Single(FlatLine.Of(path, 5));
        FlatLine fine = Assert.Single(FlatLine.Of(path, 0.01));
        Assert.True(fine.Points.Length > coarse.Points.Length);
        foreach ((Vec2 a, Vec2 b) in fine.Points.Zip(fine.Points.Skip(1)))
        {
            Assert.InRange(Vec2.Lerp(a, b, 0.5).Length, 99.94, 100.06);
        }
    }

    [Fact]
    public void A_line_behind_a_closed_piece_begins_where_that_began()
    {
        PathBuffer path = new();
        path.MoveTo(new Vec2(1, 1));
        path.LineTo(new Vec2(2, 1));
        path.LineTo(new Vec2(2, 2));
        path.Close();
        path.LineTo(new Vec2(5, 5));
        List<FlatLine> lines = FlatLine.Of(path, 1);
        Assert.Equal([true, false], lines.Select(line => line.Closed));
        Assert.Equal([new Vec2(1, 1), new Vec2(2, 1), new Vec2(2, 2), new Vec2(1, 1)], lines[0].Points);
        Assert.Equal([new Vec2(1, 1), new Vec2(5, 5)], lines[1].Points);
    }

    [Theory]
    [InlineData(0, new double[] { 0, 2, 3, 5, 6, 8, 9, 10 })]
    [InlineData(1, new double[] { 0, 1, 2, 4, 5, 7, 8, 10 })]
    [InlineData(2.5, new double[] { 0.5, 2.5, 3.5, 5.5, 6.5, 8.5, 9.5, 10 })]
    [InlineData(-1, new double[] { 1, 3, 4, 6, 7, 9 })]
    public void Dashes_begin_where_the_offset_says_and_go_on_around_corners(double offset, double[] expected)
    {
        PathBuffer path = new();
        path.MoveTo(new Vec2(0, 0));
        path.LineTo(new Vec2(4.5, 0));
        path.LineTo(new Vec2(10, 0));
        PathBuffer dashes = new();
        Assert.True(DashSplitter.TrySplit(path, [2, 1], offset, 0.1, dashes));
        List<double> ends = FlatLine.Of(dashes, 0.1).SelectMany(line =>
            new[] { line.Points[0].X, line.Points[^1].X }).ToList();
        Assert.Equal(expected, ends.ConvertAll(x => Math.Round(x, 9)));
    }

    [Fact]
    public void Dashes_too_many_to_tell_apart_are_not_cut()
    {
        PathBuffer path = new();
        path.MoveTo(new Vec2(0, 0));
        path.LineTo(new Vec2(1e9, 0));
        Assert.False(DashSplitter.TrySplit(path, [0.5, 0.5], 0, 0.1, new PathBuffer()));
    }

    [Theory]
    [InlineData(1.0, 50)]
    [InlineData(1.5, 75)]
    [InlineData(100.0, 95)]
    public void The_best_quality_within_the_limit_is_taken(double bitsPerPixel, int quality)
    {
        // An encoding whose quality is its size in bits for a pixel, by 50.
        var settings = new RdOptimizerSettings { BppMax = bitsPerPixel };
        byte[] best = settings.Optimize(8000, tried => new byte[tried * 20]);
        Assert.Equal(quality * 20, best.Length);
    }

    [Fact]
    public void A_limit_that_no_quality_keeps_to_is_an_error()
    {
        var settings = new RdOptimizerSettings { BppMax = 0.1, MinQuality = 30 };
        RdOptimizationError error = Assert.Throws<RdOptimizationError>(() =>
            settings.Optimize(8000, tried => new byte[tried * 20]));
        Assert.Contains("takes 0.6 bits", error.Message, StringComparison.Ordinal);
    }
}
