using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Hatch;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class HatchTests
{
    [Fact]
    public void Lines_are_cut_at_islands_and_spaced_by_their_offset()
    {
        List<(Vec2 From, Vec2 To)> lines = Fill([Square(0, 0, 10), Square(4, 4, 2)],
            new HatchLine(0, new Vec2(0, 0.5), new Vec2(0, 1), []));
        Assert.Equal(12, lines.Count); // ten rows, two of them cut in two
        Assert.Equal(100 - 4, TotalLength(lines), 9);
        Assert.Contains(lines, l => l is { From: { X: 0, Y: 4.5 }, To: { X: 4 } });
    }

    [Fact]
    public void Dashes_start_at_the_base_point_and_shift_with_each_row()
    {
        List<(Vec2 From, Vec2 To)> lines = Fill([Square(0, 0, 8)],
            new HatchLine(0, new Vec2(0, 1), new Vec2(1, 2), [2, -2]));
        Assert.Contains((new Vec2(0, 1), new Vec2(2, 1)), lines);
        Assert.Contains((new Vec2(1, 3), new Vec2(3, 3)), lines);
        Assert.Contains((new Vec2(0, 7), new Vec2(1, 7)), lines); // cut by the boundary
        Assert.Equal(16, TotalLength(lines), 9);
    }

    [Fact]
    public void Turned_lines_cover_the_area_in_proportion()
    {
        List<(Vec2 From, Vec2 To)> lines = Fill(
            [Square(-50, -50, 100)], new HatchLine(Math.PI / 6, new Vec2(3, 7), Vec2.Polar(2 * Math.PI / 3, 0.25), []));
        Assert.InRange(TotalLength(lines), 39900, 40100);
    }

    [Fact]
    public void Dots_are_lines_of_no_length()
    {
        List<(Vec2 From, Vec2 To)> lines = Fill([Square(0, 0, 4)],
            new HatchLine(0, new Vec2(0.5, 0.5), new Vec2(0, 1), [0, -1]));
        Assert.Equal(16, lines.Count);
        Assert.Equal(0, TotalLength(lines));
    }

    [Theory]
    [InlineData(1e-7, 0)] // rows without end
    [InlineData(1, 1e-7)] // dashes without end
    public void Patterns_of_millions_of_lines_are_refused(double spacing, double dash)
    {
        double[] dashes = dash > 0 ? [dash, -dash] : [];
        Assert.False(PatternFill.TryFill([Square(0, 0, 10)], [new HatchLine(0, default, new Vec2(0, spacing), dashes)],
            new PathBuffer()));
    }

    [Theory]
    [InlineData(HatchStyle.Normal, 3)]
    [InlineData(HatchStyle.Outer, 2)]
    [InlineData(HatchStyle.Ignore, 1)]
    public void Styles_choose_loops_by_nesting(object style, int count)
    {
        List<HatchLoop> loops = [Loop(2, 2, 6), Loop(0, 0, 10), Loop(4, 4, 2)];
        Assert.Equal(count, HatchLoops.Select(loops, (HatchStyle)style).Count);
    }

    [Theory]
    [InlineData(1, true)] // in the filled part: left out
    [InlineData(5, false)] // in an island: not filled again
    public void Boxes_of_texts_are_never_filled(double at, bool isLeftOut)
    {
        var box = new HatchLoop(Loop(at, at, 1).Path, 1e-3) { IsTextBox = true };
        List<HatchLoop> found = HatchLoops.Select([Loop(0, 0, 10), Loop(4, 4, 4), box], HatchStyle.Normal);
        Assert.Equal(isLeftOut, found.Contains(box));
        Assert.Equal(isLeftOut ? 3 : 2, found.Count);
    }

    [Fact]
    public void Loops_side_by_side_do_not_nest()
    {
        List<HatchLoop> loops = [Loop(0, 0, 2), Loop(2, 0, 2), Loop(4, 0, 2)];
        Assert.Equal(3, HatchLoops.Select(loops, HatchStyle.Ignore).Count);
    }

    [Theory]
    [InlineData(HatchStyle.Outer, 2 + 10_000)]
    [InlineData(HatchStyle.Ignore, 1)]
    public void Styles_hold_for_thousands_of_loops(object style, int count)
    {
        List<HatchLoop> loops = [Loop(0, 0, 1000), Loop(100, 100, 800), Loop(200, 200, 600)];
        for (int i = 0; i < 10_000; i++)
        {
            loops.Add(Loop(2 + (i % 1000 * 0.9), 2 + (i / 1000), 0.5));
        }

        Assert.Equal(count, HatchLoops.Select(loops, (HatchStyle)style).Count);
    }

    [Theory]
    [InlineData(0.1, new double[0], 255)] // ten lines a pixel cover all
    [InlineData(0.4, new[] { 1.0, -9.0 }, 128)] // dashes of 1 with an end of 1: a fifth of each line, 2.5 lines a pixel
    [InlineData(0.4, new[] { 0.0, -20.0 }, 32)] // dots
    public void Lines_too_near_to_be_told_apart_become_a_tone(double spacing, double[] dashes, int alpha)
    {
        DrawingList list = Resolved(new HatchLine(0, default, new Vec2(0, spacing), dashes));
        DisplayItem item = Assert.Single(list.Items.ToArray());
        Assert.Equal((DisplayKind.Fill, alpha), (item.Kind, item.Color.A));
    }

    [Fact]
    public void Only_lines_on_the_page_are_drawn_and_short_dashes_join()
    {
        var dashed = new HatchLine(0, default, new Vec2(0, 2), [0.1, -0.1]);
        DisplayItem item = Assert.Single(Resolved(dashed).Items.ToArray());
        Assert.Equal((DisplayKind.Stroke, 2 * 50), (item.Kind, item.VerbCount));

        // Of a square of 100 a window of 30 × 10 is seen: five lines and one to each side, cut to its width.
        DrawingList part = Resolved(dashed with { Dashes = [] }, Bounds2.Of(20, 41, 50, 51));
        item = Assert.Single(part.Items.ToArray());
        Assert.InRange(item.VerbCount, 2 * 5, 2 * 7);
        double[] c = part.CoordsOf(item)[..(2 * item.VerbCount)].ToArray();
        Assert.Equal((20.0, 50.0), (c[0], c[2]));
    }

    [Fact]
    public void Patterns_keep_their_place_among_other_items_and_are_mapped_to_colours_once()
    {
        var list = new DrawingList { ColorMap = static color => color with { R = (byte)(color.R + 10) } };
        PathBuffer outline = Loop(0, 0, 100).Path;
        var red = new Rgba(100, 0, 0, 255);
        list.Fill(outline, red, 0, evenOdd: false);
        list.Pattern(
            outline, new PatternArea([Square(0, 0, 100)], [new HatchLine(0, default, new Vec2(0, 9), [])],
                Affine3.Identity, 0), new StrokeAttributes { Color = red });
        list.Fill(outline, red, 0, evenOdd: true);
        PatternDetail.Resolve(list, Settings, null);
        Assert.Equal(
            [DisplayKind.Fill, DisplayKind.Stroke, DisplayKind.Fill],
            Array.ConvertAll(list.Items.ToArray(), static item => item.Kind));
        Assert.All(list.Items.ToArray(), static item => Assert.Equal(110, item.Color.R));
        Assert.True(list.Items[2].EvenOdd);
    }

    private static PaintSettings Settings => new()
    {
        ToDevice = Affine2.Identity,
        UnitsPerMillimetre = 1,
        Hairline = 1,
        LineScale = 1,
        Caps = LineCaps.Round,
    };

    private static DrawingList Resolved(HatchLine line, Bounds2? window = null)
    {
        var list = new DrawingList();
        var area = new PatternArea([Square(0, 0, 100)], [line], Affine3.Identity, 0);
        list.Pattern(Loop(0, 0, 100).Path, area, new StrokeAttributes { Color = Rgba.Black });
        PatternDetail.Resolve(list, Settings, window);
        return list;
    }

    private static Vec2[] Square(double x, double y, double side) =>
        [new(x, y), new(x + side, y), new(x + side, y + side), new(x, y + side)];

    private static HatchLoop Loop(double x, double y, double side)
    {
        var path = new PathBuffer();
        foreach (Vec2 p in Square(x, y, side))
        {
            path.LineTo(p);
        }

        path.Close();
        return new HatchLoop(path, 0.01);
    }

    private static List<(Vec2 From, Vec2 To)> Fill(Vec2[][] rings, HatchLine line)
    {
        var path = new PathBuffer();
        Assert.True(PatternFill.TryFill(rings, [line], path));
        var lines = new List<(Vec2, Vec2)>();
        ReadOnlySpan<double> c = path.Coords;
        for (int i = 0; i < c.Length; i += 4)
        {
            lines.Add((new Vec2(c[i], c[i + 1]), new Vec2(c[i + 2], c[i + 3])));
        }

        return lines;
    }

    private static double TotalLength(List<(Vec2 From, Vec2 To)> lines)
    {
        double total = 0;
        foreach ((Vec2 from, Vec2 to) in lines)
        {
            total += (to - from).Length;
        }

        return total;
    }
}
