using System;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Lines that reach far outside of the page are clipped, with their direction and their dashes.</summary>
public class FarLineTests
{
    private static readonly DrawingList.NearBox Near = new(Bounds2.Of(-100, -100, 100, 100), 0.1);

    [Fact]
    public void Lines_keep_their_direction_and_the_phase_of_their_dashes()
    {
        DrawingList list = Clipped(
            path =>
            {
                path.MoveTo(new Vec2(-1e9, -3e8));
                path.LineTo(new Vec2(1e9, 3e8));
            }, [7, 3], 2);
        DisplayItem piece = Assert.Single(list.Items.ToArray());
        double[] c = list.CoordsOf(piece)[..4].ToArray();
        Assert.Equal([-100, -30, 100, 30], c.Select(value => Math.Round(value, 3)));
        double walked = new Vec2(1e9 - 100, 3e8 - 30).Length + 2;
        Assert.Equal(walked % 10, piece.DashOffset, 0.01);
    }

    [Fact]
    public void Each_part_of_a_path_near_the_page_is_a_line()
    {
        DrawingList list = Clipped(
            path =>
            {
                path.MoveTo(new Vec2(0, 0));
                path.LineTo(new Vec2(50, 0));
                path.LineTo(new Vec2(50, 5000));
                path.LineTo(new Vec2(-50, 5000));
                path.LineTo(new Vec2(-50, 0));
                path.Close();
            }, null, 0);
        DisplayItem[] pieces = list.Items.ToArray();
        Assert.Equal([6, 6], pieces.Select(piece => 2 * list.VerbsOf(piece).Length));
        Assert.Equal([0, 0, 50, 0, 50, 100], list.CoordsOf(pieces[0])[..6].ToArray());
        Assert.Equal([-50, 100, -50, 0, 0, 0], list.CoordsOf(pieces[1])[..6].ToArray());
    }

    [Fact]
    public void Lines_that_pass_the_page_by_are_removed_and_near_ones_are_kept()
    {
        DrawingList list = Clipped(
            path =>
            {
                path.MoveTo(new Vec2(-1e6, 200));
                path.LineTo(new Vec2(1e6, 200));
            }, null, 0);
        Assert.Empty(list.Items.ToArray());
        list = Clipped(
            path =>
            {
                path.MoveTo(default);
                path.LineTo(new Vec2(10, 0));
                path.Close();
            }, null, 0);
        Assert.Equal(3, Assert.Single(list.Items.ToArray()).VerbCount);
    }

    [Fact]
    public void Dashed_curves_are_flattened_with_their_phase_and_others_are_kept()
    {
        static void Draw(PathBuffer path)
        {
            path.MoveTo(new Vec2(-1000, 0));
            path.CurveTo(new Vec2(-400, 0), new Vec2(400, 0), new Vec2(1000, 0));
        }

        DrawingList list = Clipped(Draw, [7, 3], 2);
        DisplayItem piece = Assert.Single(list.Items.ToArray());
        int last = 2 * piece.VerbCount;
        Assert.Equal([-100, 0], list.CoordsOf(piece)[..2].ToArray().Select(value => Math.Round(value, 6)));
        Assert.Equal([100, 0], list.CoordsOf(piece)[(last - 2)..last].ToArray().Select(value => Math.Round(value, 6)));
        Assert.Equal(902 % 10, piece.DashOffset, 0.01);

        list = Clipped(Draw, null, 0);
        Assert.Contains(PathVerb.Curve, list.VerbsOf(Assert.Single(list.Items.ToArray())).ToArray());
    }

    private static DrawingList Clipped(Action<PathBuffer> draw, double[]? dashes, float offset)
    {
        var list = new DrawingList();
        var path = new PathBuffer();
        draw(path);
        list.Stroke(path, new StrokeAttributes
        {
            Dash = dashes is null ? -1 : list.Dash(dashes),
            DashOffset = offset,
        });
        list.Resolve(static (in DisplayItem _, PatternArea _, PathBuffer _, Bounds2? _) => { }, Near);
        return list;
    }
}
