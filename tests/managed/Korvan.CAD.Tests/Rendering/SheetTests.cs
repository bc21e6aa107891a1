using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Sheets, viewports and what multi-line text and multi-leaders read from tags.</summary>
public class SheetTests
{
    [Theory]
    [InlineData(CadPlotRotation.NoRotation, 10, 20, -10, -20, 287, 190)]
    [InlineData(CadPlotRotation.Counterclockwise90Degrees, 10, 20, -40, -10, 170, 287)] // top margin to the left
    [InlineData(CadPlotRotation.UpsideDown, 10, 20, -30, -40, 267, 170)]
    [InlineData(CadPlotRotation.Clockwise90Degrees, 10, 20, -20, -30, 190, 267)]
    public void Paper_reaches_past_the_printable_area_by_its_turned_margins(
        object rotation, double left, double bottom, double minX, double minY, double maxX, double maxY)
    {
        CadImage drawing = TestPage.Drawing();
        CadLayout layout = TestPage.Sheet(drawing);
        (layout.PaperWidth, layout.PaperHeight, layout.LeftMargin, layout.BottomMargin) = (297, 210, left, bottom);
        (layout.RightMargin, layout.TopMargin, layout.PlotRotation) = (30, 40, (CadPlotRotation)rotation);
        Bounds2 region = SceneReader.Read(drawing.Drawing).Layouts.First(l => !l.IsModel).Plot!
            .SheetFor(Bounds2.Empty).Region;
        Assert.Equal((minX, minY, maxX, maxY), (region.MinX, region.MinY, region.MaxX, region.MaxY));
    }

    [Fact]
    public void Viewports_look_along_their_direction_and_turn_by_their_twist()
    {
        // From the front: the model's z runs up the sheet, its x to the right.
        Affine3 front = ViewTransform.Viewport(default, new Vec3(0, -1, 0), 0, default, 10, new Vec2(100, 50), 20);
        AssertAt(102, 56, front.Project(1, 99, 3));
        Affine3 twisted = ViewTransform.Viewport(new Vec3(5, 5, 0), Vec3.UnitZ, Math.PI / 2, default, 10, default, 10);
        AssertAt(0, 1, twisted.Project(6, 5, 0));
        Affine3 turned = ViewTransform.Turned(90, 0, 0);
        AssertAt(1, -3, turned.Project(1, 2, 3));
    }

    [Fact]
    public void Viewports_are_clipped_by_the_shape_that_bounds_them()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(-100, -100, 200, 1));
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.PaperWidth, sheet.PaperHeight, sheet.LeftMargin, sheet.BottomMargin) = (100, 100, 0, 0);
        var circle = new CadCircle { CenterPoint = new Cad3DPoint(50, 50, 0), Radius = 20, ObjectHandle = "F1" };
        drawing.PaperSpaceEntities.Add(circle);
        drawing.PaperSpaceEntities.Add(new CadViewport
        {
            ViewportId = 2,
            CenterPoint = new Cad3DPoint(50, 50, 0),
            Width = 80,
            Height = 80,
            ViewHeight = 80,
            StatusFlags = 0x10000,
            ClippingBoundaryHandle = "F1",
        });
        using TestPage picture = TestPage.Of(drawing, o => o.Layouts = [sheet.LayoutName]);
        Assert.Equal(255, picture[50, 60].R);
        Assert.Equal(Rgba.White, picture[75, 75]);
    }

    [Theory]
    [InlineData(1, 2)] // paper units, whatever the scale
    [InlineData(0, 20)] // scaled with the view
    public void Line_types_keep_their_size_on_paper_when_the_drawing_says_so(int paperScale, double expected)
    {
        var line = new CadLine { SecondPoint = new Cad3DPoint(10, 0, 0), LineTypeName = "D" };
        CadImage drawing = TestPage.Drawing(line);
        drawing.Header.PsLtScale = paperScale;
        var type = new CadLineTypeTableObject { Name = "D" };
        type.Pattern.AddRange([2, -1]);
        drawing.LineTypes.Add(type);
        drawing.PaperSpaceEntities.Add(new CadViewport { ViewportId = 2, Width = 400, Height = 400, ViewHeight = 40 });
        DrawingList list = BuildSheet(drawing);
        DisplayItem stroke = list.Items.ToArray().First(i => i.Dash >= 0);
        Assert.Equal(expected, list.DashOf(stroke)[0]);
    }

    [Fact]
    public void Layers_have_properties_of_their_own_in_a_viewport()
    {
        CadImage drawing = TestPage.Drawing(new CadLine { SecondPoint = new Cad3DPoint(9, 0, 0), LayerName = "walls" });
        TestPage.AddLayer(drawing, "walls", 3);
        var type = new CadLineTypeTableObject { Name = "D", ObjectHandle = "D0" };
        type.Pattern.AddRange([2, -1]);
        drawing.LineTypes.Add(type);
        for (short id = 2; id < 4; id++)
        {
            drawing.PaperSpaceEntities.Add(
                new CadViewport { ViewportId = id, Width = 40, Height = 40, ViewHeight = 40, ObjectHandle = $"F{id}" });
        }

        var extension = new CadDictionary();
        drawing.Objects.Add(extension);
        extension.ObjectHandle = "E0";
        foreach ((string kind, int code, string value) in ((string, int, string)[])[
            ("COLOR", 420, "-1023410170"), ("LINETYPE", 343, type.ObjectHandle), ("LINEWT", 91, "100"),
            ("ALPHA", 440, "33554560")])
        {
            var record = new CadXRecord();
            drawing.Objects.Add(record);
            record.ObjectHandle = $"E{drawing.Objects.Count:X4}";
            foreach ((int at, string text) in ((int, string)[])[(335, "F9"), (code, "1"), (335, "F3"), (code, value)])
            {
                record.Data.Add(new CadCodeValue(at, text));
            }

            extension.Set($"ADSK_XREC_LAYER_{kind}_OVR", record.ObjectHandle);
        }

        var group = new CadApplicationCodes(CadApplicationCodesContainerValues.ExtensionDictionary);
        group.Codes.Add(new CadCodeValue(360, extension.ObjectHandle));
        drawing.Layers["walls"].ApplicationCodesContainer.ApplicationCodes.Add(group);
        DisplayItem[] lines = [.. BuildSheet(drawing).Items.ToArray().Where(static one => one.VerbCount == 2)];
        Assert.Equal([new Rgba(0, 255, 0), new Rgba(255, 0, 255, 128)], lines.Select(static one => one.Color));
        Assert.Equal([false, true], lines.Select(static one => one.Dash >= 0));
        Assert.Equal([0.25f, 1], lines.Select(static one => one.LineWeight));
    }

    [Fact]
    public void The_first_viewport_and_those_that_are_off_show_nothing()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 1, 1));
        drawing.PaperSpaceEntities.Add(new CadViewport { ViewportId = 1, Width = 10, Height = 10, ViewHeight = 10 });
        drawing.PaperSpaceEntities
            .Add(new CadViewport { ViewportId = 2, Width = 10, Height = 10, ViewHeight = 10, ViewportStatus = 0 });
        drawing.PaperSpaceEntities
            .Add(new CadViewport { ViewportId = 3, Width = 10, Height = 10, ViewHeight = 10, StatusFlags = 0x20000 });
        drawing.PaperSpaceEntities.Add(new CadViewport { ViewportId = 4, Width = 10, Height = 10, ViewHeight = 0 });
        Assert.True(BuildSheet(drawing).Items.IsEmpty);
    }

    [Fact]
    public void Old_viewports_keep_their_view_in_extended_data()
    {
        var viewport = new CadViewport { ViewHeight = 1 };
        var data = new CadXdata("ACAD");
        (int, string)[] tags =
        [
            (1000, "MVIEW"), (1002, "{"), (1070, "16"), (1010, "1"), (1020, "2"), (1030, "3"), (1010, "0"), (1020, "0"),
                (1030, "1"),
            (1040, "90"), (1040, "42.5"), (1040, "7"), (1040, "8"), (1040, "50"), (1002, "{"), (1003, "HIDDEN"),
                (1002, "}"), (1002, "}"),
        ];
        data.Data.AddRange(tags.Select(t => new CadCodeValue(t.Item1, t.Item2)));
        viewport.XdataContainer.XdataEntities.Add(data);
        ViewportView view = ViewportView.Read(viewport);
        Assert.Equal((new Vec3(1, 2, 3), 42.5, new Vec2(7, 8)), (view.Target, view.Height, view.Center));
        Assert.Equal(Math.PI / 2, view.Twist, 12);
        Assert.Equal(["HIDDEN"], view.FrozenNames);
    }

    [Fact]
    public void Columns_of_text_come_from_extended_data_or_an_embedded_object()
    {
        var text = new CadMText();
        var data = new CadXdata("ACAD");
        (int, string)[] tags =
        [
            (1000, "ACAD_MTEXT_COLUMN_INFO_BEGIN"), (1070, "75"), (1070, "2"), (1070, "76"), (1070, "3"), (1070, "48"),
            (1040, "40"), (1070, "49"), (1040, "5"), (1070, "50"), (1070, "2"), (1040, "100"), (1040, "50"),
            (1000, "ACAD_MTEXT_COLUMN_INFO_END"),
        ];
        data.Data.AddRange(tags.Select(t => new CadCodeValue(t.Item1, t.Item2)));
        text.XdataContainer.XdataEntities.Add(data);
        TextColumnFrame columns = MTextColumns.Read(text)!;
        Assert.Equal((3, 40.0, 5.0), (columns.Count, columns.Width, columns.Gutter));
        Assert.Equal([100.0, 50, 0], Enumerable.Range(0, 3).Select(columns.HeightOf));
        Assert.Null(MTextColumns.Read(new CadMText()));

        // Of automatic height: no number of columns is stated.
        var automatic = new CadMText();
        (int, string)[] embedded = [(41, "30"), (71, "2"), (72, "0"), (44, "20"), (45, "3"), (73, "1")];
        KeptTags.Of(automatic).Embedded = [.. embedded.Select(t => new CadCodeValue(t.Item1, t.Item2))];
        Assert.Equal(30, MTextColumns.Read(automatic)!.HeightOf(7));
    }

    [Fact]
    public void Text_flows_from_column_to_column()
    {
        using var engine = new TextEngine();
        var start = new MTextFormat(FontSpec.Default, 1, 1, 0, 1, default, StackAlign.Baseline, false, false, false,
            false);
        var frame = new MTextFrame(0, 1, 1, true, new TextColumnFrame(4, 10, 2, [4, 2, 0]));
        IEnumerable<MTextToken> tokens = MTextParser.Parse("a\\Pb\\Pc\\Pd\\Pe\\Pf\\Ng", start);
        MTextLayout layout = MTextLayout.Create(engine, tokens, frame, 1);
        Assert.Equal([0.0, 0, 12, 24, 24, 24, 36], layout.Runs.Select(r => r.X));
        Assert.Equal(layout.Runs.First().Y, layout.Runs.ElementAt(2).Y);
    }

    [Fact]
    public void Fractions_of_the_first_line_stay_within_the_text_box()
    {
        using var engine = new TextEngine();
        var start = new MTextFormat(FontSpec.Default, 1, 1, 0, 1, default, StackAlign.Baseline, false, false, false,
            false);
        MTextLayout layout = MTextLayout.Create(
            engine, MTextParser.Parse("\\S1/2;", start), new MTextFrame(0, 1, 1, false), 1);
        Assert.InRange(layout.Runs.Max(run => run.Y) + 1, -0.2, 0.01);
    }

    [Fact]
    public void Mirrored_text_keeps_its_axes()
    {
        // Seen from below, without a direction of its own: the world's x still leads, and y runs down.
        CadImage drawing = TestPage.Drawing(new CadMText
        {
            Text = "W",
            InitialTextHeight = 10,
            ExtrusionDirection = new Cad3DPoint(0, 0, -1),
            InsertionPoint = new Cad3DPoint(20, 20, 0),
        });
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        using var engine = new TextEngine();
        DrawingList list = scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
        Assert.Equal(20, list.Bounds.MinX, 6);
        Assert.Equal(30, list.Bounds.MaxY, 6);
    }

    private static DrawingList BuildSheet(CadImage drawing)
    {
        TestPage.Sheet(drawing);
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        using var engine = new TextEngine();
        return scene.Build(scene.Layouts.First(l => !l.IsModel), new RenderStyle(), engine);
    }

    private static void AssertAt(double x, double y, Vec2 actual)
    {
        Assert.Equal(x, actual.X, 9);
        Assert.Equal(y, actual.Y, 9);
    }
}
