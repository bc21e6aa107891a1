using System;
using System.Collections.Generic;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.PlotStyles;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What plot style tables make of drawings: a line on the model, one on the sheet of paper.</summary>
public class PlotStyleTests
{
    private const string Plain = "color=-1\n color_policy=1\n screen=100\n lineweight=0\n end_style=4\n join_style=5";

    // The stored colour is the nearest of a table; the mode has the one that was chosen.
    private const string Styled =
        "color=-1006665984\n mode_color=-1024751852\n color_policy=1\n screen=50\n lineweight=18\n"
        + " end_style=0\n join_style=0\n linetype=0";

    private static readonly Rgba StyledColor = new(245, 195, 138);

    [Fact]
    public void The_styles_of_colours_are_in_the_file_beside_the_drawing()
    {
        using var folder = new Folder("Office.ctb", Packed("CTBVER1", ("Color_1", Plain), ("Color_2", Styled)));
        CadImage drawing = Drawing("C:\\Plot Styles\\Office.ctb", CadPlotLayoutFlag.PlotPlotStyles);
        drawing.Drawing.Folder = folder.Path;
        CadLine red = Line(1), yellow = Line(2), own = Line(2);
        own.ColorValue = 0x102030;
        TestPage.AddBlock(drawing, "B", Line(0));
        CadEntityBase[] shown = [red, yellow, own, TestPage.Insert("B", color: 2)];
        Array.ForEach(shown, drawing.PaperSpaceEntities.Add);
        DrawingList list = Build(drawing, isPaper: true);
        Assert.Equal(
            [AciPalette.Color(1), StyledColor, Rgba.FromRgb(0x102030), StyledColor],
            list.Items.ToArray().Select(static item => item.Color));
        Assert.Equal([0.25f, 0.7f, 0.25f, 0.7f], list.Items.ToArray().Select(static item => item.LineWeight));
        Assert.Null(list.StyleOf(list.Items[0]));
        Assert.Equal(new StrokeStyle(LineCaps.Butt, LineJoins.Miter), list.StyleOf(list.Items[1]));
        Assert.Empty(list.Skipped);
    }

    [Fact]
    public void Named_styles_are_those_of_the_object_or_its_layer()
    {
        using var folder = new Folder("Office.stb", Packed("STBVER1", ("Normal", Plain), ("Fine", Styled)));
        CadImage drawing = Drawing("Office.stb", CadPlotLayoutFlag.PlotPlotStyles);
        drawing.Drawing.Folder = folder.Path;
        var names = new CadDictionary { ObjectHandle = "F01" };
        names.Set("Normal", "F02");
        names.Set("Fine", "F03");
        var root = new CadDictionary { ObjectHandle = "F00" };
        root.Set("ACAD_PLOTSTYLENAME", names.ObjectHandle);
        drawing.Objects.Add(root);
        drawing.Objects.Add(names);
        TestPage.AddLayer(drawing, "L", 3).PlotStyleHandle = "F03";
        CadLine plain = Line(1), styled = Line(1), byLayer = Line(1);
        styled.PlotStyle = "F03";
        styled.ColorValue = 0x102030;
        byLayer.LayerName = "L";
        Array.ForEach<CadEntityBase>([plain, styled, byLayer], drawing.PaperSpaceEntities.Add);
        Assert.Equal(
            [AciPalette.Color(1), StyledColor, StyledColor],
            Build(drawing, isPaper: true).Items.ToArray().Select(static item => item.Color));
    }

    [Theory]
    [InlineData("monochrome.ctb", 0, 0, 0)]
    [InlineData("Grayscale.CTB", 76, 76, 76)]
    [InlineData("Screening 25%.ctb", 255, 192, 192)]
    [InlineData("acad.ctb", 255, 0, 0)]
    [InlineData("own.ctb", 255, 0, 0)]
    public void Standard_tables_are_known_by_their_names(string name, byte red, byte green, byte blue)
    {
        CadImage drawing = Drawing(name, CadPlotLayoutFlag.PlotPlotStyles);
        drawing.PaperSpaceEntities.Add(Line(1));
        DrawingList list = Build(drawing, isPaper: true);
        Assert.Equal(new Rgba(red, green, blue), list.Items[0].Color);
        Assert.Equal(name == "own.ctb", list.Skipped.ContainsKey("plot style table own.ctb whose file is not there"));
    }

    // The model is a plot only where that was asked for; screens show the styles where the page setup says so.
    [Theory]
    [InlineData(CadPlotLayoutFlag.PlotPlotStyles, true, false, true)]
    [InlineData(CadPlotLayoutFlag.PlotPlotStyles, false, false, false)]
    [InlineData(CadPlotLayoutFlag.PlotPlotStyles, false, true, true)]
    [InlineData(CadPlotLayoutFlag.ShowPlotStyles, false, false, true)]
    [InlineData(CadPlotLayoutFlag.ShowPlotStyles, true, true, false)]
    [InlineData(CadPlotLayoutFlag.None, true, true, false)]
    public void Flags_of_the_page_setup_say_where_styles_hold(object flags, bool isPaper, bool asPlotted, bool isStyled)
    {
        CadImage drawing = Drawing("monochrome.ctb", (CadPlotLayoutFlag)flags);
        drawing.AddEntity(Line(1));
        drawing.PaperSpaceEntities.Add(Line(1));
        DrawingList list = Build(drawing, isPaper, new RenderStyle { AsPlotted = asPlotted });
        Assert.Equal(isStyled ? Rgba.Black : AciPalette.Color(1), list.Items[0].Color);
    }

    [Fact]
    public void Black_of_a_style_is_white_on_dark_pages()
    {
        CadImage drawing = Drawing("monochrome.ctb", CadPlotLayoutFlag.PlotPlotStyles);
        drawing.PaperSpaceEntities.Add(Line(5));
        Assert.Equal(
            Rgba.White, Build(drawing, isPaper: true, new RenderStyle { Background = Rgba.Black }).Items[0].Color);
    }

    [Fact]
    public void Damaged_tables_are_as_missing_ones()
    {
        byte[] whole = Packed("CTBVER1", ("Color_1", Styled));
        var random = new Random(5);
        for (int i = 0; i < 300; i++)
        {
            byte[] damaged = whole[..random.Next(whole.Length + 1)];
            damaged.AsSpan(Math.Min(damaged.Length, random.Next(60, 90))..).Reverse();
            Assert.Null(PlotStyleReader.Read(damaged)?.Of(300));
        }

        Assert.Equal(0.7f, PlotStyleReader.Read(whole)!.Of(1)!.LineWeight);
    }

    [Fact]
    public void Line_types_and_fills_of_styles_are_measured_on_the_paper()
    {
        const string dashed = "color=-1\n linetype=1\n fill_style=68";
        const string iso = "color=-1\n linetype=17\n lineweight=18\n fill_style=64";
        using var folder = new Folder("Office.ctb", Packed("CTBVER1", ("Color_1", dashed), ("Color_2", iso)));
        CadImage drawing = Drawing("Office.ctb", CadPlotLayoutFlag.PlotPlotStyles);
        drawing.Drawing.Folder = folder.Path;
        foreach (CadLayout layout in drawing.Layouts)
        {
            (layout.PaperUnits, layout.ScaleNumerator, layout.ScaleDenominator) = (CadPlotPaperUnits.Millimeters, 1, 2);
        }

        CadLine hidden = Line(1), wide = Line(2);
        hidden.LineTypeName = "CONTINUOUS";
        Array.ForEach<CadEntityBase>(
            [hidden, wide, TestPage.Square(20, 20, 40, 1), TestPage.Square(20, 20, 40, 2)],
            drawing.PaperSpaceEntities.Add);
        DrawingList list = SceneList.WithHatchLines(Build(drawing, isPaper: true));

        // Two units of the drawing are a millimetre; dashes of standard lines are 12 line widths long.
        DisplayItem[] items = list.Items.ToArray();
        Assert.Equal([8.0, 4.0], list.DashOf(items[0])!.ToArray());
        Assert.Equal([16.8, 4.2], list.DashOf(items[1])!.ToArray().Select(static n => Math.Round(n, 5)));

        // Bars of half a millimetre, each after a millimetre, in place of the area.
        Assert.Equal((DisplayKind.Stroke, 0.5f), (items[2].Kind, items[2].LineWeight));
        Assert.Equal(20 * 40, PathMeasure.Length(SceneList.PathOf(list, items[2])), 41.0);
        Assert.Equal(LineCaps.Butt, list.StyleOf(items[2])!.Value.Cap);
        Assert.Equal(DisplayKind.Fill, items[3].Kind);
    }

    private static CadLine Line(short color) => new()
    {
        FirstPoint = new Cad3DPoint(10, 10, 0),
        SecondPoint = new Cad3DPoint(90, 10, 0),
        ColorId = color,
    };

    private static CadImage Drawing(string sheet, CadPlotLayoutFlag flags)
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.Sheet(drawing);
        foreach (CadLayout layout in drawing.Layouts)
        {
            (layout.CurrentStyleSheet, layout.PlotFlags) = (sheet, flags);
        }

        return drawing;
    }

    private static DrawingList Build(CadImage drawing, bool isPaper, RenderStyle? style = null)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        LayoutInfo page = scene.Layouts.First(layout => layout.IsModel != isPaper);
        return scene.Build(page, style ?? new RenderStyle(), engine);
    }

    private static byte[] Packed(string kind, params (string Name, string Values)[] styles)
    {
        IEnumerable<string> sections = styles.Select(
            static (style, i) => $" {i}{{\n  name=\"{style.Name}\n  {style.Values}\n }}\n");
        string text = "description=\"A table\nplot_style{\n" + string.Concat(sections)
            + "}\ncustom_lineweight_table{\n 0=0.0\n 17=0.7\n}\n";
        using var file = new MemoryStream();
        file.Write(Encoding.ASCII.GetBytes($"PIAFILEVERSION_2.0,{kind},compress\r\npmzlibcodec"));
        file.Write(new byte[12]);
        using (var packed = new ZLibStream(file, CompressionLevel.Optimal))
        {
            packed.Write(Encoding.ASCII.GetBytes(text));
        }

        return file.ToArray();
    }

    private sealed class Folder : IDisposable
    {
        internal Folder(string name, byte[] data)
        {
            Path = Directory.CreateTempSubdirectory("korvan").FullName;
            File.WriteAllBytes(System.IO.Path.Combine(Path, name), data);
        }

        internal string Path { get; }

        public void Dispose() => Directory.Delete(Path, recursive: true);
    }
}
