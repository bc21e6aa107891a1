using System.IO;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class SceneTests
{
    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Green = new(0, 255, 0);
    private static readonly Rgba Blue = new(0, 0, 255);

    [Theory]
    [InlineData(1, 255, 0, 0)]
    [InlineData(11, 255, 127, 127)]
    [InlineData(12, 165, 0, 0)]
    [InlineData(20, 255, 63, 0)]
    [InlineData(94, 0, 127, 0)]
    [InlineData(171, 127, 127, 255)]
    [InlineData(249, 38, 19, 23)] // the last hue, darkest and faded
    [InlineData(254, 190, 190, 190)]
    public void Indexed_colours_are_those_of_the_chart(int index, int r, int g, int b) =>
        Assert.InRange(Distance(AciPalette.Color(index), new Rgba((byte)r, (byte)g, (byte)b)), 0, 5);

    [Fact]
    public void Colours_come_from_layers_blocks_and_nested_references()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddLayer(drawing, "GREEN", 3);
        TestPage.AddBlock(drawing, "INNER", TestPage.Square(0, 0, 10, 0), TestPage.Square(20, 0, 10),
            TestPage.Square(40, 0, 10, 256, "GREEN"));
        TestPage.AddBlock(drawing, "OUTER", TestPage.Insert("INNER", 0, 0, 0));
        TestPage.AddLayer(drawing, "BLUE", 5);
        drawing.AddEntity(TestPage.Insert("OUTER", 10, 10, 1, "BLUE"));
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(Red, picture[15, 15]); // by block, through two references
        Assert.Equal(Blue, picture[35, 15]); // layer 0 stands for the reference's layer
        Assert.Equal(Green, picture[55, 15]); // a layer of its own
    }

    [Theory]
    [InlineData(true, false, false, false)] // frozen: the whole reference goes
    [InlineData(false, true, true, false)] // off: only what lies on it goes
    public void Frozen_and_off_layers_hide_references_differently(bool frozen, bool off, bool ownShown, bool zeroShown)
    {
        CadImage drawing = TestPage.Drawing();
        CadLayerTable layer = TestPage.AddLayer(drawing, "SWITCHED", 5);
        layer.IsFrozen = frozen;
        layer.IsOn = !off;
        TestPage.AddLayer(drawing, "OWN", 1);
        TestPage.AddBlock(drawing, "B", TestPage.Square(0, 0, 10, 256, "OWN"), TestPage.Square(20, 0, 10));
        drawing.AddEntity(TestPage.Insert("B", 10, 10, 256, "SWITCHED"));
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(ownShown, picture[15, 15] == Red);
        Assert.Equal(zeroShown, picture[35, 15] == Blue);
    }

    [Fact]
    public void References_are_mirrored_stretched_turned_and_repeated()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddBlock(drawing, "B", TestPage.Square(1, 1, 4, 1)).BasePoint = new Cad3DPoint(1, 1, 0);
        CadInsertObject insert = TestPage.Insert("B", 50, 50);
        (insert.ScaleX, insert.ScaleY, insert.RotationAngle) = (-2, 1, 90);
        (insert.ColumnCount, insert.ColumnSpacing) = (2, 20);
        drawing.AddEntity(insert);
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(Red, picture[48, 45]); // 8 long down, 4 wide to the left
        Assert.Equal(Rgba.White, picture[48, 40]);
        Assert.Equal(Red, picture[48, 65]); // the second column, up along the turned axis
        Assert.Equal(Rgba.White, picture[52, 45]);
    }

    [Fact]
    public void References_without_end_are_left_out_by_name()
    {
        CadImage loop = TestPage.Drawing(TestPage.Insert("A"));
        TestPage.AddBlock(loop, "A", TestPage.Insert("B"));
        TestPage.AddBlock(loop, "B", TestPage.Insert("a"));
        Assert.Contains("\"A\" in itself", NotesOf(loop));

        CadImage deep = TestPage.Drawing(TestPage.Insert("L0"));
        for (int i = 0; i < 70; i++)
        {
            TestPage.AddBlock(deep, "L" + i, TestPage.Insert("L" + (i + 1)));
        }

        Assert.Contains("\"L64\", nested", NotesOf(deep));

        CadInsertObject array = TestPage.Insert("CELL");
        (array.ColumnCount, array.RowCount) = (32000, 32000);
        CadImage huge = TestPage.Drawing(array);
        TestPage.AddBlock(huge, "CELL", TestPage.Square(0, 0, 1));
        Assert.Contains("\"CELL\" more than", NotesOf(huge));
    }

    private static string NotesOf(CadImage drawing)
    {
        drawing.AddEntity(TestPage.Square(0, 0, 1));
        var options = new PdfOptions();
        drawing.Save(new MemoryStream(), options);
        return string.Join(' ', options.RenderResult!.Failures.Select(static note => note.Message));
    }

    [Fact]
    public void Attributes_show_their_values_and_definitions_do_not_show_in_references()
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddBlock(drawing, "B",
            new CadAttDef { DefinitionTagString = "TAG", DefaultValue = "DEFAULT", TextHeight = 5 });
        CadInsertObject insert = TestPage.Insert("B", 10, 10);
        insert.Attributes
            .Add(new CadAttrib { DefaultValue = "SHOWN", TextHeight = 5, FirstAlignment = new Cad3DPoint(10, 10, 0) });
        insert.Attributes.Add(new CadAttrib { DefaultValue = "HIDDEN", TextHeight = 5, AttFlags = 1 });
        drawing.AddEntity(insert);
        string text = Tools.Run("pdftotext", TestPage.SaveTo(drawing, new PdfOptions(), ".pdf"), "-");
        Assert.Contains("SHOWN", text);
        Assert.DoesNotContain("TAG", text);
        Assert.DoesNotContain("HIDDEN", text);
    }

    [Theory]
    [InlineData(0, 3)]
    [InlineData(1, 0)] // hidden
    public void Attributes_of_several_lines_show_all_of_them(short flags, int runs)
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddBlock(drawing, "B");
        CadInsertObject insert = TestPage.Insert("B");
        var lines = new CadMText { Text = "one\\Ptwo\\Pthree", InitialTextHeight = 5 };
        var attribute = new CadAttrib { DefaultValue = "one", TextHeight = 5, AttFlags = flags };
        KeptTags.Of(attribute).Embedded = EmbeddedMText.ToTags(lines);
        insert.Attributes.Add(attribute);
        drawing.AddEntity(insert);
        Assert.Equal(runs, SceneList.Kinds(SceneList.Build(drawing)).Count(static kind => kind == DisplayKind.Text));
    }

    [Fact]
    public void Hatches_leave_their_islands_and_wipeouts_mask_what_lies_below()
    {
        CadHatch hatch = Hatch(Rectangle(10, 10, 60), Rectangle(30, 30, 20));
        hatch.ColorId = 1;
        var wipeout = new CadWipeout
        {
            InsertionPoint = new Cad3DPoint(10, 10, 0),
            VectorU = new Cad3DPoint(10, 0, 0),
            VectorV = new Cad3DPoint(0, 10, 0)
        };
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch, wipeout, TestPage.Square(80, 80, 5, 5)));
        Assert.Equal(Red, picture[60, 25]);
        Assert.Equal(Rgba.White, picture[40, 40]);
        Assert.Equal(Rgba.White, picture[15, 15]);
        Assert.Equal(Blue, picture[82, 82]);
    }

    [Fact]
    public void Arc_edges_of_a_hatch_run_both_ways()
    {
        // Two half circles make a disc: the upper one anticlockwise, the lower one clockwise by its own measure.
        var upper = new CadBoundaryPathCircularArc
        {
            CenterPoint = new Cad2DPoint(50, 50),
            Radius = 30,
            StartAngle = 0,
            EndAngle = 180
        };
        var lower = new CadBoundaryPathCircularArc
        {
            CenterPoint = new Cad2DPoint(50, 50),
            Radius = 30,
            StartAngle = 0,
            EndAngle = 180,
            CounterClockwise = false,
        };
        var path = new CadEdgeBoundaryPath();
        path.Edges.Add(upper);
        path.Edges
            .Add(new CadBoundaryPathLine { FirstPoint = new Cad2DPoint(20, 50), SecondPoint = new Cad2DPoint(80, 50) });
        path.Edges.Add(lower);
        CadHatch hatch = Hatch(path);
        hatch.ColorId = 1;
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch));
        Assert.Equal(Red, picture[50, 75]);
        Assert.Equal(Red, picture[50, 25]);
        Assert.Equal(Rgba.White, picture[22, 75]);
    }

    [Fact]
    public void Line_types_leave_gaps_scaled_by_drawing_and_entity()
    {
        var dashed = new CadLineTypeTableObject { Name = "GAPS" };
        dashed.Pattern.AddRange([5, -5]);
        var line = new CadLine
        {
            FirstPoint = new Cad3DPoint(5, 50, 0),
            SecondPoint = new Cad3DPoint(95, 50, 0),
            ColorId = 1,
            LineTypeName = "gaps",
            LinetypeScale = 2,
            LineWeight = 211,
        };
        CadImage drawing = TestPage.Drawing(line);
        drawing.LineTypes.Add(dashed);
        using TestPage picture = TestPage.Of(
            drawing, o =>
                (o.PenOptions, o.VisibilityMode) = (new PenOptions { StartCap = LineCap.Flat },
                    VisibilityMode.AsPrint));
        Assert.Equal(Red, picture[10, 50]);
        Assert.Equal(Rgba.White, picture[20, 50]);
        Assert.Equal(Red, picture[90, 50]); // begins and ends with a dash
    }

    [Fact]
    public void Black_and_white_swap_with_the_background_and_one_colour_may_serve_all()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(10, 10, 20, 7), TestPage.Square(50, 10, 20, 3));
        using TestPage dark = TestPage.Of(drawing, o => o.BackgroundColor = Color.Black);
        Assert.Equal(Rgba.White, dark[20, 20]);
        using TestPage light = TestPage.Of(drawing);
        Assert.Equal(Rgba.Black, light[20, 20]);
        using TestPage single = TestPage.Of(drawing, o =>
            (o.DrawType, o.DrawColor) = (CadDrawTypeMode.UseDrawColor, Color.FromArgb(0, 0, 255)));
        Assert.Equal(Blue, single[20, 20]);
        Assert.Equal(Blue, single[60, 20]);
    }

    [Fact]
    public void Only_named_layers_are_drawn()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(10, 10, 20, 1, "A"), TestPage.Square(50, 10, 20, 3, "B"),
            TestPage.Square(0, 0, 100, 7, "C"));
        using TestPage picture = TestPage.Of(
            drawing, o => (o.Layers, o.ScaleMethod) = (["a", "0"], ScaleType.GrowToFit));
        Assert.Equal(Red, picture[20, 20]);
        Assert.Equal(Rgba.White, picture[60, 20]);
    }

    [Fact]
    public void Viewports_show_the_model_scaled_clipped_and_without_their_frozen_layers()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(1000, 1000, 10, 1),
            TestPage.Square(1020, 1000, 10, 3, "FROZEN"), TestPage.Square(1100, 1000, 10, 5));
        CadLayerTable frozen = TestPage.AddLayer(drawing, "FROZEN", 3);
        frozen.ObjectHandle = "ABC";
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.PaperWidth, sheet.PaperHeight, sheet.LeftMargin, sheet.BottomMargin) = (100, 100, 0, 0);
        var viewport = new CadViewport
        {
            ViewportId = 2,
            CenterPoint = new Cad3DPoint(50, 50, 0),
            Width = 60,
            Height = 60,
            ViewHeight = 30,
            ViewCenter = new Cad2DPoint(1015, 1015),
        };
        viewport.FrozenLayers.Add("ABC");
        drawing.PaperSpaceEntities.Add(viewport);
        using TestPage picture = TestPage.Of(drawing, o => o.Layouts = [sheet.LayoutName]);
        Assert.Equal(Red, picture[30, 30]); // model (1005, 1005) at twice its size
        Assert.Equal(Rgba.White, picture[70, 30]);
        Assert.Equal(Rgba.White, picture[90, 30]);
    }

    [Theory]
    [InlineData("red.png", true)]
    [InlineData("C:\\elsewhere\\red.png", true)] // found by its name beside the drawing
    [InlineData("../red.png", false)] // outside of the drawing's folder
    [InlineData("absent.png", false)]
    public void Pictures_are_looked_for_in_the_folder_of_the_drawing_alone(string file, bool shown)
    {
        string folder = Directory.CreateTempSubdirectory("korvan-").FullName;
        string inner = Directory.CreateDirectory(Path.Combine(folder, "drawings")).FullName;
        string target = Path.Combine(file.StartsWith("..", System.StringComparison.Ordinal) ? folder
            : inner, "red.png");
        using (FileStream png = File.Create(target))
        {
            PngEncoder.Write(2, 2, _ => [0, 0, 255, 255, 0, 0, 255, 255], png, 6, 96);
        }

        var image = new CadRasterImage
        {
            InsertionPoint = new Cad3DPoint(20, 20, 0),
            VectorU = new Cad3DPoint(10, 0, 0),
            VectorV = new Cad3DPoint(0, 10, 0),
            ImageSize = new Cad2DPoint(2, 2),
            ImageDefReference = "77",
        };
        CadImage drawing = TestPage.Drawing(image);
        drawing.FilePath = Path.Combine(inner, "plan.dxf");
        drawing.Objects.Add(new CadRasterImageDef { FileName = file, ObjectHandle = "77" });
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(shown ? Red : Rgba.White, picture[30, 30]);
    }

    [Fact]
    public void Boundaries_of_images_may_hide_what_is_inside_of_them()
    {
        var image = new CadWipeout
        {
            InsertionPoint = new Cad3DPoint(20, 20, 0),
            VectorU = new Cad3DPoint(60, 0, 0),
            VectorV = new Cad3DPoint(0, 60, 0),
            ImageSize = new Cad2DPoint(1, 1),
            ClipMode = 1,
        };
        image.ClipBoundaryVertices.AddRange([new Cad2DPoint(-0.25, -0.25), new Cad2DPoint(0.25, 0.25)]);
        using TestPage picture = TestPage.Of(TestPage.Drawing(TestPage.Square(0, 0, 100, 1), image));
        Assert.Equal((Rgba.White, Red), (picture[25, 25], picture[50, 50]));
    }

    private static int Distance(Rgba a, Rgba b) =>
        System.Math.Abs(a.R - b.R) + System.Math.Abs(a.G - b.G) + System.Math.Abs(a.B - b.B);

    private static CadHatch Hatch(params ICadBoundaryPath[] paths)
    {
        var hatch = new CadHatch { SolidFillFlag = 1 };
        foreach (ICadBoundaryPath path in paths)
        {
            hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(path));
        }

        return hatch;
    }

    private static CadPolylineBoundaryPath Rectangle(double x, double y, double side)
    {
        var path = new CadPolylineBoundaryPath();
        path.Vertices.AddRange([new(x, y), new(x + side, y), new(x + side, y + side), new(x, y + side)]);
        return path;
    }
}
