using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Rendering.Text.Strokes;
using Korvan.CAD.Tests.FileFormats.Shx;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Text of stroke fonts: the face of the library, compiled fonts of folders, and what the result
/// lists.</summary>
public sealed class StrokeTextTests : IDisposable
{
    private const byte Up = 0x14;
    private readonly string _folder = Directory.CreateTempSubdirectory().FullName;

    public void Dispose() => Directory.Delete(_folder, recursive: true);

    [Fact]
    public void Paragraphs_are_columns_from_right_to_left_where_characters_are_below_each_other()
    {
        var text = new CadMText
        {
            Text = "AB\\PC",
            InitialTextHeight = 3,
            InsertionPoint = new Cad3DPoint(50, 50, 0),
            DrawingDirection = CadDrawingDirection.TopToBottom,
        };
        CadImage drawing = TestPage.Drawing(text);
        drawing.Styles.Add(new CadStyleTableObject { Name = "STANDARD", PrimaryFontName = "arial.ttf" });
        (string Text, Vec2 At)[] RunsOf()
        {
            DrawingList list = SceneList.Build(drawing);
            return [.. list.Items.ToArray().Select(item => list.TextOf(item))
                .Select(static run => (run.Text, run.Matrix.Point(0, 0)))];
        }

        (string Text, Vec2 At)[] runs = RunsOf();
        Assert.Equal(["A", "B", "C"], runs.Select(static run => run.Text));
        Assert.Equal([47.0, 42.5, 47], runs.Select(static run => Math.Round(run.At.Y, 6)));
        Assert.InRange(runs[0].At.X - runs[2].At.X, 4.8, 5.2);
        Assert.InRange(runs[1].At.X, 55, 58);

        // Styles that ask for it have to be of a stroke font.
        text.DrawingDirection = CadDrawingDirection.ByStyle;
        drawing.Styles[0].Flags = (short)CadFontStyleTableFlag.VerticalText;
        Assert.Equal(["AB", "C"], RunsOf().Select(static run => run.Text));
    }

    [Theory]
    [InlineData("Standard", "arial.ttf", false)]
    [InlineData("Standard", "txt.shx", true)]
    [InlineData("OTHER", "arial.ttf", true)]
    public void Texts_of_a_missing_style_have_the_standard_one(string present, string font, bool isStroked)
    {
        CadImage drawing = TestPage.Drawing(new CadText { DefaultValue = "text", TextHeight = 4, StyleType = "GONE" });
        drawing.Styles.Clear();
        drawing.Styles.Add(new CadStyleTableObject { Name = present, PrimaryFontName = font });
        DrawingList list = SceneList.Build(drawing);
        Assert.Equal(isStroked, list.Items.ToArray().Any(static item => item.Kind == DisplayKind.Stroke));
    }

    [Fact]
    public void The_face_has_all_letters_of_its_alphabets_and_the_signs_of_drafting()
    {
        IEnumerable<int> wanted = Enumerable.Range(0x20, 95).Concat(Enumerable.Range(0xA0, 224))
            .Concat(Enumerable.Range(0x391, 17)).Concat(Enumerable.Range(0x3A3, 39))
            .Concat(Enumerable.Range(0x401, 79))
            .Concat("ёђѓєѕіїјљњћќўџ⌀□⅓⅔⅛⅜⅝⅞≤≥–„“€".Select(
                static c => (int)c));
        int[] lacking = [.. wanted.Where(static c => StrokeGlyphs.Face.Find(c) is null)];
        Assert.True(lacking.Length == 0, string.Join(' ', lacking.Select(static c => $"U+{c:X4}")));
        foreach (int character in StrokeGlyphs.Face.Characters.Where(static c => !StrokeGlyphs.IsMark(c)))
        {
            StrokeGlyph glyph = StrokeGlyphs.Face.Find(character)!;
            Assert.InRange(glyph.Advance, 0.2, 1.8);
            bool isBlank = char.IsWhiteSpace((char)character);
            Assert.Equal(isBlank, glyph.Path.IsEmpty);
            Assert.True(
                isBlank || (glyph.Path.Bounds.MinX > -0.15 && glyph.Path.Bounds.MaxX < glyph.Advance + 0.15
                    && glyph.Path.Bounds.MinY > -0.4 && glyph.Path.Bounds.MaxY < 1.4), $"U+{character:X4}");
        }
    }

    [Theory]
    [InlineData('H', 0, 1, 22)]
    [InlineData('x', 0, 14.0 / 21, 17)]
    [InlineData('g', -7.0 / 21, 14.0 / 21, 19)]
    [InlineData('É', 0, 27.5 / 21, 19)] // marks are as high over capitals as over lower case
    [InlineData('é', 0, 20.5 / 21, 18)]
    [InlineData('ї', 0, 19.1 / 21, 8)] // without its dot
    [InlineData('½', -1.0 / 21, 22.0 / 21, 25)]
    public void Glyphs_keep_to_the_lines_of_the_face(char character, double low, double high, double advance)
    {
        StrokeGlyph glyph = StrokeGlyphs.Face.Find(character)!;
        Assert.Equal(low, glyph.Path.Bounds.MinY, 2);
        Assert.Equal(high, glyph.Path.Bounds.MaxY, 2);
        Assert.Equal(advance / 21, glyph.Advance, 9);
    }

    [Theory]
    [InlineData("simplex.shx", 22.0 / 21)]
    [InlineData("C:\\FONTS\\RomanS", 22.0 / 21)]
    [InlineData("txt", 0.95 * 22 / 21)]
    [InlineData("isocp.shx", 0.76 * 22 / 21)]
    [InlineData("monotxt", 1)]
    [InlineData("unheard_of.shx", 0.95 * 22 / 21)]
    public void Widths_are_those_of_the_font_that_is_named(string font, double advance)
    {
        using var engine = new TextEngine();
        int index = engine.Font(FontTable.FromFile(font));
        Assert.Equal(2 * advance, engine.Advance(index, "HH") / engine.CapRatio(index), 6);
        Assert.NotNull(engine.StrokesOf(index, "Hg", 0));
        Assert.Null(engine.StrokesOf(index, "H\u4e2d", 0)); // a character that the face does not have
        Assert.True(engine.Advance(index, "H\u4e2d") > engine.Advance(index, "H"));
        Assert.Equal("the stroke face of the library", engine.Replaced.Single().Value);
    }

    [Fact]
    public void Fonts_with_serifs_stay_outlines_and_common_families_are_as_wide_as_they_are()
    {
        using var engine = new TextEngine();
        int serif = engine.Font(FontTable.FromFile("romanc.shx"));
        Assert.Null(engine.StrokesOf(serif, "H", 0));
        Assert.Equal("Liberation Serif", engine.Replaced["romanc.shx"]);
        int narrow = engine.Font(FontTable.FromFamily("Segoe UI", false, false));
        Assert.Equal(0.539, engine.Advance(narrow, "0"), 3);
        Assert.Equal(0.539 * 4, engine.Advance(narrow, "0000"), 2);
        Assert.NotEqual(narrow, engine.OutlineOf(narrow));
        Assert.True(engine.Replaced.ContainsKey("Segoe UI"));
        int installed = engine.Font(FontTable.FromFamily("Liberation Sans", false, false));
        Assert.Equal((installed, 1.0), (engine.OutlineOf(installed), engine.WidthOf(installed)));
    }

    [Fact]
    public void Compiled_fonts_of_files_and_folders_draw_their_own_strokes()
    {
        Write("simplex.shx", ShapeBytes.Shapes((0, "font", [4, 1, 0, 0]), (65, "", [0x44, 2, 8, 3, 0xFC, 0])));
        Write("kanji.shx", ShapeBytes.Big(false, (0, [2, 0, 2, 2, 0]), (0x93FA, [Up, Up, 2, 8, 2, 0xFE, 0])));
        CadImage drawing = Drawing("Simplex", "A", "KANJI.SHX");
        drawing.AddEntity(new CadText
        {
            DefaultValue = "\u65e5",
            StyleType = "S",
            TextHeight = 10,
            FirstAlignment = new Cad3DPoint(50, 0, 0),
        });
        PngOptions options = Png([_folder], [CodePages.Japanese]);
        DrawingList list = Build(drawing, Faces([_folder], [CodePages.Japanese]));
        DisplayItem[] strokes = [.. list.Items.ToArray().Where(static item => item.TextHeight > 0)];
        Assert.Equal(
            ["0,0 0,10", "50,0 50,5 50,10"],
            strokes.Select(item => Text(list.CoordsOf(item)[..(2 * item.VerbCount)])));
        Assert.Equal(10, strokes[0].TextHeight, 4);
        drawing.Save(Stream.Null, options);
        Assert.Empty(Result(options).FontSubstitutions);
        Assert.True(Result(options).IsRenderComplete);
    }

    [Fact]
    public void Characters_of_vertical_styles_are_below_each_other()
    {
        CadImage drawing = Drawing("simplex", "HH", "", CadFontStyleTableFlag.VerticalText);
        ((CadText)drawing.Entities[0]).TextRotation = 270;
        Bounds2 box = Build(drawing).Bounds;
        Assert.Equal((0, -25), (Math.Round(box.MaxY, 6), Math.Round(box.MinY, 6)));
        Assert.Equal(-box.MinX, box.MaxX, 6);
    }

    [Fact]
    public void Characters_that_a_compiled_font_lacks_are_strokes_of_the_library()
    {
        Write("simplex.shx", ShapeBytes.Shapes((0, "font", [4, 1, 0, 0]), (65, "", [0x44, 2, 8, 3, 0xFC, 0])));
        using var engine = new TextEngine(strokes: Faces([_folder], []));
        int font = engine.Font(FontTable.FromFile("simplex.shx"));
        double blank = 16.0 / 21;
        Assert.Equal(0.75 + blank + 0.75, engine.Advance(font, "A A") / engine.CapRatio(font), 6);
        Assert.NotNull(engine.StrokesOf(font, "A A: A", 0));
    }

    [Theory]
    [InlineData("simplex.shx", "simplex.shx: the stroke face of the library")]
    [InlineData("Arial.ttf", "Arial: Liberation Sans")]
    [InlineData("romanc", "romanc.shx: Liberation Serif")]
    public void Results_list_what_was_replaced(string font, string expected)
    {
        PngOptions options = Png([], []);
        Drawing(font, "A").Save(Stream.Null, options);
        Assert.Equal([expected], Result(options).FontSubstitutions);
        Assert.True(Result(options).IsRenderComplete);
    }

    [Fact]
    public void Symbols_are_found_in_the_fonts_of_the_options()
    {
        Write("marks.shx", ShapeBytes.Shapes((130, "GATE", [0x24, 0x20, 0])));
        CadImage drawing = TestPage.Drawing(new CadShape { ShapeName = "gate", Size = 3 });
        DrawingList list = Build(drawing, Faces([_folder + "/marks.shx"], []));
        Assert.Equal("0,0 0,6 6,6", Text(list.CoordsOf(Assert.Single(list.Items.ToArray()))[..6]));
        Assert.Equal(1, Build(drawing).Skipped["SHAPE whose file is not there"]);
    }

    [Fact]
    public void Text_of_mixed_scripts_falls_back_as_a_whole_and_keeps_its_place()
    {
        CadImage drawing = Drawing("simplex", "A\u4e2dB");
        DrawingList list = Build(drawing);
        DisplayItem item = Assert.Single(list.Items.ToArray());
        Assert.False(list.TextOf(item).IsHidden);
        using var engine = new TextEngine();
        int font = engine.Font(FontTable.FromFile("simplex"));
        double em = 10 / engine.CapRatio(font);
        Assert.Equal(engine.Advance(font, "A\u4e2dB") * em, list.TextOf(item).Advance * list.TextOf(item).Matrix.Xx, 6);
    }

    [Fact]
    public void Hidden_text_is_as_long_as_its_strokes_and_tiny_text_is_a_bar()
    {
        CadImage drawing = Drawing("simplex", "WWWWWWWW");
        DrawingList list = Build(drawing);
        DisplayItem[] items = list.Items.ToArray();
        TextRun run = list.TextOf(items[0]);
        Assert.Equal(8 * 24.0 / 21 * 10, run.Advance * run.Matrix.Xx, 6);
        drawing.AddEntity(new CadLine { SecondPoint = new Cad3DPoint(4000, 4000, 0), ColorId = 1 });
        using TestPage picture = TestPage.Of(drawing);
        Assert.InRange(picture[2, 0].R, 200, 254); // a quarter of a pixel high: grey, not the strokes in black
    }

    [Fact]
    public void Damaged_fonts_are_replaced_and_missing_ones_refused()
    {
        Write("simplex.shx", [1, 2, 3]);
        PngOptions options = Png([_folder + "/simplex.shx"], []);
        Drawing("simplex", "A").Save(Stream.Null, options);
        string replaced = Assert.Single(Result(options).FontSubstitutions);
        Assert.Contains("is damaged or no font", replaced, StringComparison.Ordinal);
        ImageSaveException missing = Assert.Throws<ImageSaveException>(
            () => Drawing("simplex", "A").Save(Stream.Null, Png([_folder + "/missing.shx"], [])));
        Assert.Contains("missing.shx', which does not exist", missing.Message, StringComparison.Ordinal);
    }

    [Fact]
    public void Strokes_have_the_colour_and_the_line_weight_of_their_text()
    {
        CadImage drawing = Drawing("simplex", "I");
        drawing.Header.Set("$LWDISPLAY", 290, "1");
        (drawing.Entities[0].ColorId, drawing.Entities[0].LineWeight) = (1, 100);
        DrawingList list = Build(drawing);
        DisplayItem[] items = list.Items.ToArray();
        Assert.Equal([DisplayKind.Text, DisplayKind.Stroke], items.Select(static item => item.Kind));
        Assert.True(list.TextOf(items[0]).IsHidden);
        Assert.Equal((new Rgba(255, 0, 0), 1f, 10f), (items[1].Color, items[1].LineWeight, items[1].TextHeight));
    }

    [Fact]
    public void Documents_stay_searchable()
    {
        CadImage drawing = Drawing("simplex", "Grundriß");
        using MemoryStream svg = new();
        drawing.Save(svg, new SvgOptions { TextAsShapes = false });
        string text = System.Text.Encoding.UTF8.GetString(svg.ToArray());
        Assert.Contains("fill=\"none\" stroke=\"none\"", text, StringComparison.Ordinal);
        Assert.Contains(">Grundriß</text>", text, StringComparison.Ordinal);
        using MemoryStream shapes = new();
        drawing.Save(shapes, new SvgOptions { TextAsShapes = true });
        text = System.Text.Encoding.UTF8.GetString(shapes.ToArray());
        Assert.DoesNotContain("Grundriß", text, StringComparison.Ordinal);
    }

    private static string Text(ReadOnlySpan<double> coords)
    {
        List<string> points = [];
        for (int i = 0; i + 1 < coords.Length; i += 2)
        {
            points.Add(FormattableString.Invariant($"{Math.Round(coords[i], 6)},{Math.Round(coords[i + 1], 6)}"));
        }

        return string.Join(' ', points);
    }

    private static DrawingList Build(CadImage drawing, StrokeFaces? faces = null)
    {
        using var engine = new TextEngine(strokes: faces);
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
    }

    private static CadImage Drawing(
        string font, string text, string bigFont = "", CadFontStyleTableFlag flags = CadFontStyleTableFlag.None)
    {
        CadImage drawing = new();
        drawing.Styles.Add(new CadStyleTableObject
        {
            Name = "S",
            PrimaryFontName = font,
            BigFontName = bigFont,
            Flags = (short)flags,
        });
        drawing.AddEntity(new CadText { DefaultValue = text, StyleType = "S", TextHeight = 10 });
        return drawing;
    }

    private static StrokeFaces Faces(string[] paths, CodePages[] codePages)
    {
        StrokeFaces faces = new();
        faces.AddFiles(paths, codePages);
        return faces;
    }

    private static PngOptions Png(string[] fonts, CodePages[] codePages) => new()
    {
        VectorRasterizationOptions = new CadRasterizationOptions { ShxFonts = fonts, ShxCodePages = codePages },
    };

    private static CadRenderResult Result(PngOptions options) => Assert.IsType<CadRenderResult>(options.RenderResult);

    private void Write(string name, byte[] bytes) => File.WriteAllBytes(Path.Combine(_folder, name), bytes);
}
