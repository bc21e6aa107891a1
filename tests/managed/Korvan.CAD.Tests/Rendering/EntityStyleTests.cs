using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Xunit;
using static Korvan.CAD.Tests.Rendering.SceneList;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What modes of the drawing, thicknesses, patterns and styles make of an entity.</summary>
public class EntityStyleTests
{
    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Green = new(0, 255, 0);
    private static readonly Rgba Blue = new(0, 0, 255);

    [Fact]
    public void Without_fill_mode_areas_are_their_outlines_and_hatches_are_left_out()
    {
        (string Why, CadEntityBase Entity, double Area, double Outline)[] rows =
        [
            ("a solid", TestPage.Square(0, 0, 10), 100, 40),
            ("a wide polyline", Polyline(CadLwPolylineFlag.None, 2, (0, 0, 0), (10, 0, 0)), 20, 24),
            ("a hatch", SolidHatch(), 100, 0),
        ];
        foreach ((string why, CadEntityBase entity, double area, double outline) in rows)
        {
            CadImage drawing = TestPage.Drawing(entity);
            DrawingList filled = Build(drawing);
            Assert.True(Math.Abs(Area(filled) - area) < 1e-6 && Length(filled) == 0, why);
            drawing.Header.FillMode = 0;
            DrawingList open = Build(drawing);
            Assert.True(Area(open) == 0 && Math.Abs(Length(open) - outline) < 1e-6, $"{why}: {Length(open)}");
        }
    }

    [Theory]
    [InlineData(CadLwPolylineFlag.None, 3)] // each segment begins the pattern anew
    [InlineData(CadLwPolylineFlag.Closed, 4)]
    [InlineData(CadLwPolylineFlag.Plinegen, 1)] // the pattern runs through the vertices
    public void Patterns_of_polylines_run_by_segment_or_through(CadLwPolylineFlag flag, int strokes)
    {
        CadLwPolyline polyline = Polyline(flag, 0, (0, 0, 0), (30, 0, 1), (30, 30, 0), (0, 30, 0));
        polyline.LineTypeName = "D";
        CadImage drawing = TestPage.Drawing(polyline);
        drawing.LineTypes.Add(LineType("D", 2, -1));
        DrawingList list = Build(drawing);
        Assert.Equal(strokes, list.Items.Length);
        double closing = (flag & CadLwPolylineFlag.Closed) != 0 ? 30 : 0;
        Assert.Equal(60 + (15 * Math.PI) + closing, Length(list), 0.02);
        Assert.All(list.Items.ToArray(), item => Assert.True(item.Dash >= 0));
    }

    [Fact]
    public void Thick_entities_have_a_second_edge_and_sides_between()
    {
        // From the front, heights run up the page.
        var front = new RenderStyle { ModelView = ViewTransform.Turned(-90, 0, 0) };
        CadLwPolyline square = Polyline(CadLwPolylineFlag.Closed, 0, (0, 0, 0), (10, 0, 0), (10, 10, 0), (0, 10, 0));
        (square.Thickness, square.Elevation) = (4, 1);
        CadLwPolyline dashed = Polyline(CadLwPolylineFlag.None, 0, (0, 0, 0), (10, 0, 0));
        (dashed.Thickness, dashed.Elevation, dashed.LineTypeName) = (4, 1, "D");
        CadEntityBase[] entities =
        [
            square, dashed,
            new CadLine { FirstPoint = P(0, 0, 1), SecondPoint = P(10, 0, 1), Thickness = 4 },
            new CadCircle { CenterPoint = P(5, 0, 1), Radius = 5, Thickness = 4 },
        ];
        foreach (CadEntityBase entity in entities)
        {
            CadImage drawing = TestPage.Drawing(entity);
            drawing.LineTypes.Add(LineType("D", 2, -1));
            AssertBox(Build(drawing, front), 0, 1, 10, 5);
        }

        Assert.Equal((4 * 10) + (4 * 4), Length(Build(TestPage.Drawing(square), front)), 9);
        CadImage pattern = TestPage.Drawing(dashed);
        pattern.LineTypes.Add(LineType("D", 2, -1));
        Assert.Equal((2 * 10) + (2 * 4), Length(Build(pattern, front)), 9);
    }

    [Fact]
    public void Segments_without_width_among_wide_ones_are_lines()
    {
        var polyline = new CadPolyline { Flag = CadPolylineFlag.None };
        foreach ((double x, double width) in new[] { (0.0, 2.0), (10, 0), (20, 4), (30, 0) })
        {
            polyline.Vertices.Add(
                new Cad2DVertex { LocationPoint = P(x, 0, 0), StartWidth = width, EndWidth = width });
        }

        DrawingList list = Build(polyline);
        Assert.Equal(20 + 40, Area(list), 6);
        Assert.Equal(10, Length(list), 6);
        AssertBox(list, 0, -2, 30, 2);
    }

    [Theory]
    [InlineData(0, 0.0, 0.0)]
    [InlineData(16, 10, 0)] // straight at the start
    [InlineData(256, 10, 0)]
    [InlineData(64, 5 * Math.PI, -5)] // a half circle beyond the start
    [InlineData(1024, 5 * Math.PI, 5)]
    [InlineData(16 | 64 | 256 | 1024, 20 + (10 * Math.PI), 0)]
    public void Multilines_have_the_caps_of_their_style(int flags, double caps, double beyond)
    {
        DrawingList list = Build(DoubleLine(flags, CadMultiLineFlag.HasVertices));
        Assert.Equal(200 + caps, Length(list), 0.02);
        bool both = flags > 1024;
        AssertBox(list, both || beyond < 0 ? -5 : 0, -5, both || beyond > 0 ? 105 : 100, 5);
        const CadMultiLineFlag none = CadMultiLineFlag.HasVertices | CadMultiLineFlag.SuppressStartCaps
            | CadMultiLineFlag.SuppressEndCaps;
        Assert.Equal(200, Length(Build(DoubleLine(flags, none))), 0.01);
    }

    [Fact]
    public void Multilines_are_filled_below_their_elements_which_have_their_own_colours()
    {
        DrawingList list = Build(DoubleLine(1, CadMultiLineFlag.HasVertices));
        Assert.Equal([DisplayKind.Fill, DisplayKind.Stroke, DisplayKind.Stroke], Kinds(list));
        Assert.Equal([Green, Red, Blue], list.Items.ToArray().Select(item => item.Color));
        Assert.Equal(1000, Area(list), 9);
        CadImage closed = DoubleLine(1 | 2, CadMultiLineFlag.HasVertices | CadMultiLineFlag.Closed);
        Assert.Equal(2 * 200 + 20, Length(Build(closed)), 9); // to the end and back, with two joints
    }

    [Fact]
    public void Texts_in_a_line_type_stand_in_its_gaps_along_the_line()
    {
        CadLineTypeTableObject type = LineType("GAS", 10, -8, 2);
        foreach ((int code, string value) in new[]
        {
            (74, "2"), (75, "0"), (340, "0"), (46, "3"), (50, "90"), (44, "-2"), (45, "1"), (9, "GAS"),
        })
        {
            type.ComplexTags.Add((2, new CadCodeValue(code, value)));
        }

        CadImage drawing = TestPage.Drawing(
            new CadLine { FirstPoint = P(5, 0, 0), SecondPoint = P(5, 60, 0), LineTypeName = "GAS", ColorId = 1 });
        drawing.LineTypes.Add(type);
        DrawingList list = Build(drawing);
        DisplayItem[] texts = [.. list.Items.ToArray().Where(item => item.Kind == DisplayKind.Text)];
        Assert.Equal(3, texts.Length); // a period is 20
        Affine2[] places = [.. texts.Select(item => list.TextOf(item).Matrix)];
        Assert.All(texts, item => Assert.Equal(("GAS", Red), (list.TextOf(item).Text, item.Color)));
        Assert.All(places, m => Assert.True(m.Xx < 0 && Math.Abs(m.Yx) < 1e-9, "it runs up the line, turned by 90"));
        Assert.All(places, m => Assert.Equal(4, m.X0, 9)); // offset to the left of the line
        Assert.Equal([20.0, 20.0], places.Zip(places.Skip(1), (a, b) => b.Y0 - a.Y0), (a, b) => Math.Abs(a - b) < 1e-9);

        type.ComplexTags[0] = (2, new CadCodeValue(74, "4")); // a shape, which no font has
        Assert.DoesNotContain(DisplayKind.Text, Kinds(Build(drawing)));

        // Strokes of the texts leave the dashes of the line as they are.
        type.ComplexTags[0] = (2, new CadCodeValue(74, "2"));
        drawing.Styles[0].PrimaryFontName = "txt.shx";
        list = Build(drawing);
        Assert.Equal(60, PathMeasure.Length(PathOf(
            list, Assert.Single(list.Items.ToArray(), static item => item.Dash >= 0))), 9);
    }

    [Theory]
    [InlineData(1, 0, 0x02000000 | 51, 51)] // of its own
    [InlineData(0, 0, 0, 128)] // of its layer
    [InlineData(0, 0, 0x01000000, 77)] // of the reference
    [InlineData(1, 1, 0x02000000 | 51, 51)]
    public void Transparency_comes_from_the_entity_its_layer_or_the_reference(
        short color, short insertColor, int own, int alpha)
    {
        CadImage drawing = TestPage.Drawing();
        CadLayerTable layer = TestPage.AddLayer(drawing, "GLASS", 5);
        var xdata = new CadXdata("AcCmTransparency");
        xdata.Data.Add(new CadCodeValue(1071, (0x02000000 | 128).ToString()));
        layer.XdataContainer.XdataEntities.Add(xdata);
        CadSolid square = TestPage.Square(0, 0, 10, color, "GLASS");
        square.Transparency = own;
        TestPage.AddBlock(drawing, "B", square);
        CadInsertObject insert = TestPage.Insert("B", 0, 0, insertColor);
        insert.Transparency = 0x02000000 | 77;
        drawing.AddEntity(insert);
        Assert.Equal(alpha, Build(drawing).Items[0].Color.A);
    }

    [Fact]
    public void Multileaders_show_their_block_scaled_and_turned()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddBlock(drawing, "TAG", new CadLine { FirstPoint = P(1, 1, 0), SecondPoint = P(4, 1, 0) })
            .BasePoint = P(1, 1, 0);
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = "TAG", ObjectHandle = "AB1" });
        var leader = new CadMLeader();
        leader.ContextData.HasBlock = true;
        CadMLeaderBlock content = leader.ContextData.Block;
        (content.BlockRecordHandle, content.Location, content.Scale) = ("AB1", P(20, 30, 0), P(2, 2, 2));
        content.Rotation = Math.PI / 2;
        drawing.AddEntity(leader);
        AssertBox(Build(drawing), 20, 30, 20, 36);
        content.BlockRecordHandle = "FFFF";
        leader = (CadMLeader)drawing.Entities[0];
        leader.ContextData.Block.BlockRecordHandle = "FFFF";
        Assert.Equal(0, Build(drawing).Items.Length);
    }

    private static CadLwPolyline Polyline(
        CadLwPolylineFlag flag, double width, params (double X, double Y, double Bulge)[] vertices)
    {
        var polyline = new CadLwPolyline { Flag = flag, ConstantWidth = width };
        foreach ((double x, double y, double bulge) in vertices)
        {
            polyline.Coordinates.Add(new Cad2DPoint(x, y));
            polyline.Bulges.Add(bulge);
        }

        return polyline;
    }

    private static CadHatch SolidHatch()
    {
        var outline = new CadPolylineBoundaryPath();
        outline.Vertices.AddRange([new(0, 0), new(10, 0), new(10, 10), new(0, 10)]);
        var hatch = new CadHatch();
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(outline));
        return hatch;
    }

    private static CadLineTypeTableObject LineType(string name, params double[] pattern)
    {
        var type = new CadLineTypeTableObject { Name = name };
        type.Pattern.AddRange(pattern);
        return type;
    }

    /// <summary>Two lines of 100, ten apart, red above and blue below, on a green ground.</summary>
    private static CadImage DoubleLine(int flags, CadMultiLineFlag lineFlags)
    {
        var line = new CadMultiLine { StyleName = "DOUBLE", Flags = lineFlags };
        foreach (double x in new[] { 0.0, 100 })
        {
            var vertex = new CadMultiLineVectorBlock
            {
                Location = P(x, 0, 0),
                Direction = P(1, 0, 0),
                Miter = P(0, 1, 0),
            };
            vertex.ElementParameters.AddRange(new List<double>[] { [5, 0], [-5, 0] });
            line.Vertices.Add(vertex);
        }

        CadImage drawing = TestPage.Drawing(line);
        var style = new CadMLineStyleObject { StyleName = "DOUBLE", Flags = (short)flags, FillColorId = 3 };
        style.Elements.AddRange([
            new CadMLineStyleElement { Offset = 5, ColorId = 1 }, new CadMLineStyleElement { Offset = -5, ColorId = 5 },
        ]);
        drawing.Objects.Add(style);
        return drawing;
    }
}
