using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Foreground at places computed by hand, on a page of one pixel to a unit.</summary>
public class PixelTests
{
    private static readonly Rgba Red = new(255, 0, 0, 255);

    /// <summary>What is drawn thick in red, and where there is foreground and where there is none.</summary>
    public static readonly TheoryData<string, CadEntityBase, int[], int[]> Strokes = new()
    {
        { "a line", new CadLine { FirstPoint = P(10, 10), SecondPoint = P(90, 90) }, [50, 50, 20, 20],
            [50, 60, 95, 95] },
        { "a circle", new CadCircle { CenterPoint = P(50, 50), Radius = 30 }, [80, 50, 50, 20, 20, 50],
            [50, 50, 75, 75] },
        { "an arc through 0", new CadArc { CenterPoint = P(50, 50), Radius = 30, StartAngle = 270, EndAngle = 90 },
            [80, 50, 71, 71], [20, 50, 29, 71] },
        { "an arc seen from below",
            new CadArc { CenterPoint = P(-50, 50), Radius = 30, StartAngle = 270, EndAngle = 90,
                ExtrusionDirection = P(0, 0, -1) }, [20, 50], [80, 50] },
        { "an ellipse", new CadEllipse { CenterPoint = P(50, 50), MajorEndPoint = P(0, 40), AxisRatio = 0.5 },
            [50, 90, 70, 50], [90, 50, 50, 70] },
        { "an ellipse seen from below",
            new CadEllipse { CenterPoint = P(50, 50), MajorEndPoint = P(40, 0), AxisRatio = 0.5, EndAngle = Math.PI,
                ExtrusionDirection = P(0, 0, -1) }, [50, 30], [50, 70] },
        { "a bulged polyline", Poly([(20, 50, 1), (80, 50, 0)]), [50, 20], [50, 80, 50, 50] },
        { "a polyline that bulges the other way", Poly([(20, 50, -1), (80, 50, 0)]), [50, 80], [50, 20] },
        { "a wide polyline", Poly([(20, 50, 0), (80, 50, 0)], 20), [50, 58, 50, 42, 22, 55], [50, 63, 15, 50] },
        { "a ray", new CadRay { FirstPoint = P(50, 50), UnitDirection = P(1, 0) }, [70, 50], [30, 50] },
        { "a face without its first edge",
            new Cad3DFace { FirstPoint = P(20, 20), SecondPoint = P(80, 20), ThirdPoint = P(80, 80),
                FourthPoint = P(20, 80), InvisibleEdges = 1 }, [80, 50, 50, 80, 20, 50], [50, 20] },
    };

    [Theory]
    [MemberData(nameof(Strokes))]
    public void Strokes_lie_where_geometry_puts_them(string why, CadEntityBase entity, int[] drawn, int[] blank)
    {
        (entity.ColorId, entity.LineWeight) = (1, 100); // almost four pixels
        using TestPage picture = TestPage.Of(TestPage.Drawing(entity), o => o.VisibilityMode = VisibilityMode.AsPrint);
        foreach (int[] place in drawn.Chunk(2))
        {
            Assert.True(picture[place[0], place[1]] == Red,
                $"{why}: no foreground at {place[0]}, {place[1]} but {picture[place[0], place[1]]}");
        }

        foreach (int[] place in blank.Chunk(2))
        {
            Assert.True(picture[place[0], place[1]] == Rgba.White, $"{why}: foreground at {place[0]}, {place[1]}");
        }
    }

    [Theory]
    [InlineData(211, -1, VisibilityMode.AsPrint, 8)] // 2.11 mm at 96 pixels to an inch
    [InlineData(100, -1, VisibilityMode.AsPrint, 4)]
    [InlineData(-1, 211, VisibilityMode.AsPrint, 8)] // that of the layer
    [InlineData(100, 211, VisibilityMode.AsPrint, 4)]
    [InlineData(-2, 211, VisibilityMode.AsPrint, 1)] // by block outside of one
    [InlineData(211, -1, VisibilityMode.AsScreen, 1)] // weights are not shown
    public void Lines_are_as_thick_as_they_or_their_layer_say(short own, short layer, VisibilityMode mode, int pixels)
    {
        CadImage drawing = TestPage
            .Drawing(new CadLine { FirstPoint = P(10, 50), SecondPoint = P(90, 50), LineWeight = own, ColorId = 1 });
        drawing.Layers["0"].LineWeight = layer;
        using TestPage picture = TestPage.Of(drawing, o => o.VisibilityMode = mode);
        double coverage = Enumerable.Range(30, 40).Sum(y => 1 - (picture[50, y].G / 255.0));
        Assert.InRange(coverage, pixels - 0.6, pixels + 0.6);
    }

    [Theory]
    [InlineData(10, 1, 5)] // 10 on and 10 off over 90: dashes at both ends
    [InlineData(5, 1, 10)]
    [InlineData(5, 2, 5)]
    public void Dashes_are_as_many_as_fit(double dash, double scale, int dashes)
    {
        CadImage drawing = TestPage
            .Drawing(new CadLine
            {
                FirstPoint = P(5, 50),
                SecondPoint = P(95, 50),
                LineTypeName = "GAPS",
                LinetypeScale = scale,
                ColorId = 1,
                LineWeight = 100
            });
        drawing.LineTypes.Add(new CadLineTypeTableObject { Name = "GAPS", Pattern = { dash, -dash } });
        using TestPage picture = TestPage.Of(drawing, o =>
            (o.VisibilityMode, o.PenOptions) = (VisibilityMode.AsPrint,
                new PenOptions { StartCap = LineCap.Flat, EndCap = LineCap.Flat }));
        int found = Enumerable.Range(1, 98).Count(x => picture[x, 50].G < 128 && picture[x - 1, 50].G >= 128);
        Assert.Equal(dashes, found);
    }

    [Theory]
    [InlineData("plain", VisibilityMode.AsScreen, true)]
    [InlineData("off", VisibilityMode.AsScreen, false)]
    [InlineData("frozen", VisibilityMode.AsScreen, false)]
    [InlineData("no plot", VisibilityMode.AsScreen, true)]
    [InlineData("no plot", VisibilityMode.AsPrint, false)]
    [InlineData("invisible", VisibilityMode.AsScreen, false)]
    public void Layers_hide_what_lies_on_them(string state, VisibilityMode mode, bool shown)
    {
        CadSolid square = TestPage.Square(20, 20, 60, 1, "L");
        CadImage drawing = TestPage.Drawing(square);
        CadLayerTable layer = TestPage.AddLayer(drawing, "l", 5); // found whatever the case
        layer.IsOn = state != "off";
        layer.IsFrozen = state == "frozen";
        layer.PlotFlag = (short)(state == "no plot" ? 0 : 1);
        square.Visible = (short)(state == "invisible" ? 1 : 0);
        using TestPage picture = TestPage.Of(drawing, o => o.VisibilityMode = mode);
        Assert.Equal(shown ? Red : Rgba.White, picture[50, 50]);
    }

    [Fact]
    public void By_block_goes_up_to_the_first_reference_that_has_a_colour()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddLayer(drawing, "GREEN", 3);
        TestPage.AddBlock(drawing, "INNER", TestPage.Square(0, 0, 10, 0), TestPage.Square(20, 0, 10, 256),
            TestPage.Square(40, 0, 10, 4));
        TestPage.AddBlock(drawing, "OUTER", TestPage.Insert("INNER", 0, 0, 0), TestPage.Insert("INNER", 0, 20, 2));
        drawing.AddEntity(TestPage.Insert("OUTER", 10, 10, 1, "GREEN"));
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(Red, picture[15, 15]); // by block twice: that of the outermost
        Assert.Equal(new Rgba(255, 255, 0, 255), picture[15, 35]); // the inner reference has its own
        Assert.Equal(new Rgba(0, 255, 255, 255), picture[55, 15]); // a colour stays itself
    }

    [Fact]
    public void Wipeouts_hide_what_was_drawn_before_and_not_what_comes_behind()
    {
        CadWipeout wipeout = new() { InsertionPoint = P(30, 30), VectorU = P(40, 0), VectorV = P(0, 40) };
        using TestPage picture = TestPage
            .Of(TestPage.Drawing(TestPage.Square(0, 0, 100, 1), wipeout, TestPage.Square(60, 60, 5, 5)));
        Assert.Equal(Red, picture[20, 50]);
        Assert.Equal(Rgba.White, picture[40, 40]);
        Assert.Equal(255, picture[62, 62].B);
        Assert.Equal(0, picture[62, 62].R);
    }

    [Theory]
    [InlineData(0, 60 * 60 - 40 * 40 + 20 * 20)] // every other one
    [InlineData(1, 60 * 60 - 40 * 40)] // the outermost ring
    [InlineData(2, 60 * 60)] // islands do not count
    public void Nested_outlines_fill_by_their_style(short style, int area)
    {
        CadHatch hatch = Hatch(Box(20, 60), Box(30, 40), Box(40, 20));
        (hatch.HatchStyle, hatch.ColorId) = (style, 1);
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch));
        Assert.InRange(Coverage(picture), area - 2, area + 2);
    }

    [Fact]
    public void Fills_with_round_outlines_have_the_area_of_geometry()
    {
        CadPolylineBoundaryPath disc = new();
        disc.Vertices.AddRange([new(20, 50), new(80, 50)]);
        disc.Bulges.AddRange([1, 1]);
        CadEdgeBoundaryPath oval = new();
        oval.Edges
            .Add(new CadBoundaryPathCircularEllipse
            {
                CenterPoint = new(50, 50),
                MajorEndPoint = new(20, 0),
                AxisRatio = 0.5
            });
        CadHatch hatch = Hatch(disc, oval);
        hatch.ColorId = 1;
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch));
        double area = Math.PI * ((30 * 30) - (20 * 10));
        Assert.InRange(Coverage(picture), area * 0.995, area * 1.005);
    }

    [Fact]
    public void Gradients_begin_and_end_with_their_colours()
    {
        CadHatch hatch = Hatch(Box(10, 80));
        (hatch.IsGradient, hatch.GradientName) = (1, "LINEAR");
        hatch.GradientColors.AddRange([0xFF0000, 0x0000FF]);
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch));
        (Rgba left, Rgba right) = (picture[11, 50], picture[88, 50]);
        Assert.True(left.R > 235 && left.B < 20, $"left {left}");
        Assert.True(right.B > 235 && right.R < 20, $"right {right}");
        Assert.InRange(picture[50, 20].R, 110, 145);
    }

    [Theory]
    [InlineData(0, 0, 0, 1, 0, 1)] // left on the base line: right of and above the point
    [InlineData(1, 0, -0.5, 0.5, 0, 1)]
    [InlineData(2, 0, -1, 0, 0, 1)]
    [InlineData(4, 0, -0.5, 0.5, -1 / 3.0, 2 / 3.0)] // the middle of all, with what is below the base line
    [InlineData(0, 3, 0, 1, -1, 0)] // top left
    [InlineData(1, 2, -0.5, 0.5, -0.5, 0.5)]
    [InlineData(2, 3, -1, 0, -1, 0)]
    public void Aligned_text_lies_around_its_point(short horizontal, short vertical, double left, double right,
        double bottom, double top)
    {
        CadText text = new()
        {
            DefaultValue = "HHH",
            TextHeight = 12,
            FirstAlignment = P(50, 50),
            SecondAlignment = P(50, 50),
            HorizontalAlignment = horizontal,
            VerticalAlignment = vertical,
            ColorId = 1
        };
        using TestPage picture = TestPage.Of(TestPage.Drawing(text));
        (int minX, int minY, int maxX, int maxY) = InkBox(picture);
        double width = maxX - minX;
        Assert.InRange(maxY - minY, 11, 13);
        Assert.InRange(minX, 50 + (left * width) - 3, 50 + (left * width) + 3);
        Assert.InRange(maxX, 50 + (right * width) - 3, 50 + (right * width) + 3);
        Assert.InRange(minY, 50 + (bottom * 12) - 1.5, 50 + (bottom * 12) + 1.5);
        Assert.InRange(maxY, 50 + (top * 12) - 1.5, 50 + (top * 12) + 1.5);
    }

    [Fact]
    public void Text_in_a_mirrored_reference_is_mirrored_with_it()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddBlock(drawing, "T", new CadText { DefaultValue = "LLL", TextHeight = 20, ColorId = 1 });
        CadInsertObject insert = TestPage.Insert("T", 90, 40);
        insert.ScaleX = -1;
        drawing.AddEntity(insert);
        using TestPage mirrored = TestPage.Of(drawing);
        CadImage plain = TestPage
            .Drawing(new CadText { DefaultValue = "LLL", TextHeight = 20, FirstAlignment = P(10, 40), ColorId = 1 });
        using TestPage expected = TestPage.Of(plain);
        int[] different = [.. Enumerable.Range(0, 100 * 100).Where(i =>
            Math.Abs(mirrored[i % 100, i / 100].G - expected[99 - (i % 100), i / 100].G) > 60)];
        Assert.True(different.Length < 20, $"{different.Length} pixels differ");
        Assert.True(Coverage(expected) > 100);
    }

    [Fact]
    public void Viewports_scale_turn_and_clip_what_they_show()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(100, 100, 10, 1), TestPage.Square(100, 118, 4, 5),
            TestPage.Square(160, 100, 10, 3));
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.PaperWidth, sheet.PaperHeight, sheet.LeftMargin, sheet.BottomMargin, sheet.RightMargin,
            sheet.TopMargin) = (100, 100, 0, 0, 0, 0);
        drawing.PaperSpaceEntities.Add(new CadViewport
        {
            ViewportId = 2,
            CenterPoint = P(50, 50),
            Width = 80,
            Height = 80,
            ViewHeight = 40, // two to one
            ViewTarget = P(100, 100),
            ViewTwistAngle = 90,
        });
        using TestPage picture = TestPage.Of(drawing, o => o.Layouts = [sheet.LayoutName]);
        Assert.Equal(Red, picture[40, 60]); // what lay up and right lies up and left
        Assert.Equal(Rgba.White, picture[60, 60]);
        Assert.Equal(255, picture[12, 54].B);
        Assert.Equal(0, picture[12, 54].R);
        Assert.DoesNotContain(Enumerable.Range(0, 10000), i => picture[i % 100, i / 100] == new Rgba(0, 255, 0, 255));
    }

    private static Cad3DPoint P(double x, double y, double z = 0) => new(x, y, z);

    private static CadLwPolyline Poly((double X, double Y, double Bulge)[] vertices, double width = 0)
    {
        CadLwPolyline line = new() { ConstantWidth = width };
        line.Coordinates.AddRange(vertices.Select(vertex => new Cad2DPoint(vertex.X, vertex.Y)));
        line.Bulges.AddRange(vertices.Select(vertex => vertex.Bulge));
        return line;
    }

    private static CadPolylineBoundaryPath Box(double corner, double side)
    {
        CadPolylineBoundaryPath path = new();
        path.Vertices
            .AddRange([new(corner, corner), new(corner + side, corner), new(corner + side, corner + side),
            new(corner, corner + side)]);
        return path;
    }

    private static CadHatch Hatch(params ICadBoundaryPath[] paths)
    {
        CadHatch hatch = new();
        hatch.BoundaryPaths.AddRange(paths.Select(path => new CadHatchBoundaryPathContainer(path)));
        for (int i = 1; i < paths.Length; i++)
        {
            hatch.BoundaryPaths[i].PathTypeFlag &= ~CadBoundaryPathTypeFlag.External;
        }

        return hatch;
    }

    private static double Coverage(TestPage picture) =>
        Enumerable.Range(0, 100 * 100).Sum(i => 1 - (picture[i % 100, i / 100].G / 255.0));

    private static (int MinX, int MinY, int MaxX, int MaxY) InkBox(TestPage picture)
    {
        List<(int X,
            int Y)> inked = [.. Enumerable.Range(0, 100 * 100).Select(i => (X: i % 100, Y: i / 100)).Where(place =>
                picture[place.X, place.Y].G < 128)];
        Assert.NotEmpty(inked);
        return (inked.Min(place => place.X), inked.Min(place => place.Y), inked.Max(place => place.X)
            + 1, inked.Max(place => place.Y) + 1);
    }
}
