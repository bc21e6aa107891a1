using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using System.Xml.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Where a drawing lies on its page, and what pages of each format hold.</summary>
public class PageTests
{
    private static readonly Rgba Red = new(255, 0, 0, 255);

    /// <summary>What is asked for, and the box of a square of 10 that is all there is to draw: x, y from above, width
    /// and height.</summary>
    public static readonly TheoryData<string, Action<CadRasterizationOptions>, double[]> Places = new()
    {
        { "the square fills the page", o => { }, [0, 0, 200, 200] },
        { "borders on all sides", o => (o.BorderX, o.BorderY) = (20, 20), [20, 20, 160, 160] },
        { "a margin on the left alone", o => o.Margins = new Margins { Left = 100 }, [100, 50, 100, 100] },
        { "a margin at the top alone", o => o.Margins = new Margins { Top = 100 }, [50, 100, 100, 100] },
        { "a wide page", o => o.PageWidth = 400, [100, 0, 200, 200] },
        { "half as large", o => o.Zoom = 0.5f, [50, 50, 100, 100] },
        { "half as large by the other factor", o => o.RelativeScale = 0.5, [50, 50, 100, 100] },
        { "both factors", o => (o.Zoom, o.RelativeScale) = (0.5f, 0.5), [75, 75, 50, 50] },
        { "moved by a quarter to the right and down", o =>
            (o.Zoom, o.RelativePosition) = (0.5f, new PointF(0.25f, 0.25f)), [100, 100, 100, 100] },
        { "not scaled", o => o.NoScaling = true, [95, 95, 10, 10] },
        { "shrunk only where it is too large", o => o.ScaleMethod = ScaleType.ShrinkToFit, [95, 95, 10, 10] },
    };

    [Theory]
    [MemberData(nameof(Places))]
    public void Pages_place_their_content(string why, Action<CadRasterizationOptions> change, double[] box)
    {
        CadRasterizationOptions raster = new() { PageWidth = 200, PageHeight = 200 };
        change(raster);
        using RasterPage page = Render(TestPage.Drawing(TestPage.Square(5, 5, 10, 1)), raster);
        List<(int X,
            int Y)> drawn = [.. Enumerable.Range(0, page.Width * page.Height).Select(i =>
                (X: i % page.Width, Y: i / page.Width)).Where(place => At(page, place.X, place.Y) == Red)];
        Assert.NotEmpty(drawn);
        double[] found = [drawn.Min(place => place.X), drawn.Min(place => place.Y), drawn.Max(place => place.X)
            + 1 - drawn.Min(place => place.X), drawn.Max(place => place.Y) + 1 - drawn.Min(place => place.Y)];
        Assert.True(box.Zip(found).All(pair => Math.Abs(pair.First - pair.Second) <= 1),
            $"{why}: {string.Join(", ", found)} instead of {string.Join(", ", box)}");
    }

    [Fact]
    public void The_side_that_is_not_given_follows_the_drawing()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 10, 1), TestPage.Square(30, 0, 10, 1));
        using RasterPage wide = Render(drawing, new CadRasterizationOptions { PageWidth = 400 });
        Assert.Equal((400, 100), (wide.Width, wide.Height));
        using RasterPage high = Render(drawing, new CadRasterizationOptions { PageHeight = 50 });
        Assert.Equal((200, 50), (high.Width, high.Height));
    }

    [Fact]
    public void Backgrounds_are_painted_or_left_open()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 10, 1), TestPage.Square(90, 90, 10, 1));
        CadRasterizationOptions raster = new()
        {
            PageWidth = 100,
            PageHeight = 100,
            BackgroundColor = Color.FromArgb(10, 20, 30)
        };
        using RasterPage painted = Render(drawing, raster);
        Assert.Equal(new Rgba(10, 20, 30, 255), At(painted, 50, 50));
        raster.BackgroundColor = Color.Transparent;
        using RasterPage open = Render(drawing, raster);
        Assert.Equal(0, At(open, 50, 50).A);
        Assert.Equal(Red, At(open, 5, 95));
    }

    [Fact]
    public void Gaps_between_the_lines_of_a_pattern_take_their_share()
    {
        CadPolylineBoundaryPath box = new();
        box.Vertices.AddRange([new(10, 10), new(90, 10), new(90, 90), new(10, 90)]);
        CadHatch hatch = new() { SolidFillFlag = 0, PatternName = "LINES", ColorId = 1, LineWeight = 53 }; // two pixels
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(box));
        hatch.PatternDefinitions
            .Add(new CadHatchPatternData { LineAngle = 45, LineOffset = new(-7.0710678, 7.0710678) });
        using TestPage picture = TestPage.Of(TestPage.Drawing(hatch), o => o.VisibilityMode = VisibilityMode.AsPrint);
        double coverage = Enumerable.Range(0, 100 * 100).Sum(i => 1 - (picture[i % 100, i / 100].G / 255.0));
        Assert.InRange(coverage / (80 * 80), 0.17, 0.24); // lines of two, ten apart
    }

    [Theory]
    [InlineData(CadAttachmentPoint.TopLeft, 0, -1)]
    [InlineData(CadAttachmentPoint.MiddleCenter, -0.5, -0.5)]
    [InlineData(CadAttachmentPoint.BottomRight, -1, 0)]
    [InlineData(CadAttachmentPoint.BottomLeft, 0, 0)]
    public void Text_of_several_lines_hangs_from_its_point(CadAttachmentPoint attachment, double left, double bottom)
    {
        CadMText text = new()
        {
            Text = "HHH\\PHHH",
            InitialTextHeight = 9,
            InsertionPoint = new(50, 50, 0),
            AttachmentPoint = attachment,
            ColorId = 1
        };
        using TestPage picture = TestPage.Of(TestPage.Drawing(text));
        List<(int X,
            int Y)> drawn = [.. Enumerable.Range(0, 100 * 100).Select(i => (X: i % 100, Y: i / 100)).Where(place =>
                picture[place.X, place.Y].G < 128)];
        double width = drawn.Max(place => place.X) + 1 - drawn.Min(place => place.X);
        Assert.Equal(9 + 15, drawn.Max(place => place.Y) + 1 - drawn.Min(place => place.Y), 1.5); // lines are 5/3 apart
        Assert.Equal(50 + (left * width), drawn.Min(place => place.X), 3.0);
        Assert.Equal(50 + (bottom * 24), drawn.Min(place => place.Y), 3.0);
    }

    [Fact]
    public void Words_stand_in_a_pdf_where_they_stand_in_the_drawing()
    {
        CadImage drawing = TestPage.Drawing(
            TestPage.Square(0, 0, 1, 5), TestPage.Square(199, 99, 1, 5), Word("FIRST", 20, 20), Word("SECOND", 120, 60),
                Word("\u00C4\u03A9\u0416", 20, 60));
        CadRasterizationOptions raster = new() { PageWidth = 400, PageHeight = 200 };
        PdfOptions options = new()
        {
            VectorRasterizationOptions = raster,
            PdfDocumentInfo = new PdfDocumentInfo
            {
                Title = "(Plan) \\ \u6F22",
                Subject = "S",
                Keywords = "a, b",
                Author = "\u00C4"
            },
        };
        string file = TestPage.SaveTo(drawing, options, ".pdf");
        string boxes = Tools.Run("pdftotext", "-bbox", file, "-");
        foreach ((string word, double x, double y) in new[] { ("FIRST", 40.0, 160.0), ("SECOND", 240, 80),
            ("\u00C4\u03A9\u0416", 40, 80) })
        {
            Match box = Regex.Match(boxes,
                $"xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\">{word}<");
            Assert.True(box.Success, boxes);
            Assert.Equal(x, Number(box.Groups[1].Value), 3.0);
            Assert.InRange(y, Number(box.Groups[2].Value), Number(box.Groups[3].Value));
        }

        string info = Tools.Run("pdfinfo", file);
        Assert.Matches(@"Title:\s+\(Plan\) \\ 漢", info);
        Assert.Matches(@"Author:\s+Ä", info);
        Assert.Matches(@"Keywords:\s+a, b", info);
        Assert.Matches(@"PDF version:\s+1\.5", info);
    }

    [Fact]
    public void Svg_has_the_size_of_its_page_and_nothing_that_runs()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 20, 1), Word("<script>&\"'", 0, 5));
        foreach (bool shapes in new[] { true, false })
        {
            CadRasterizationOptions raster = new() { PageWidth = 300, PageHeight = 150 };
            XElement root = XDocument
                .Load(TestPage.SaveTo(drawing,
                new SvgOptions { TextAsShapes = shapes, VectorRasterizationOptions = raster }, ".svg")).Root!;
            Assert.Equal("svg", root.Name.LocalName);
            Assert.Equal([300, 150],
                new[] { "width", "height" }.Select(name =>
                    Number(Regex.Match(root.Attribute(name)!.Value, "^[0-9.]+").Value)));
            Assert.Equal("0 0 300 150", root.Attribute("viewBox")!.Value);
            double[] map = [.. Regex.Matches(root.Attribute("data-from-drawing")!.Value, "-?[0-9.]+")
                .Select(match => Number(match.Value))];
            Assert.Equal((0, 0, -map[0], 0), (map[1], map[2], map[3], Math.Round(map[4], 3)));
            Assert.DoesNotContain(root.Descendants(), element => element.Name.LocalName == "script");
            Assert.Equal(!shapes, root.Value.Contains("<script>&\"'", StringComparison.Ordinal));
        }
    }

    [Fact]
    public void Pixels_state_their_size_on_paper()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 20, 1));
        PngOptions options = new()
        {
            VectorRasterizationOptions = new CadRasterizationOptions
            {
                PageWidth = 60,
                PageHeight = 40
            },
            ResolutionSettings = new ResolutionSetting(300, 300)
        };
        using MemoryStream output = new();
        drawing.Save(output, options);
        byte[] png = output.ToArray();
        int place = png.AsSpan().IndexOf("pHYs"u8);
        Assert.True(place > 0, "the resolution is not stated");
        int perMetre = System.Buffers.Binary.BinaryPrimitives.ReadInt32BigEndian(png.AsSpan(place + 4));
        Assert.Equal(300 / 0.0254, perMetre, 1.0);
        Assert.Equal((60, 40),
            (System.Buffers.Binary.BinaryPrimitives.ReadInt32BigEndian(png.AsSpan(16)),
                System.Buffers.Binary.BinaryPrimitives.ReadInt32BigEndian(png.AsSpan(20))));
        foreach (int level in new[] { 0, 9 })
        {
            options.CompressionLevel = level;
            using MemoryStream other = new();
            drawing.Save(other, options);
            Assert.NotEqual(png.Length, other.Length);
        }
    }

    private static RasterPage Render(CadImage drawing, CadRasterizationOptions raster) =>
        Rasterizer.Draw(drawing, new PngOptions { VectorRasterizationOptions = raster });

    private static Rgba At(RasterPage page, int x, int y)
    {
        ReadOnlySpan<byte> pixel = page.Row(y).Slice(x * 4, 4);
        return new Rgba(pixel[2], pixel[1], pixel[0], pixel[3]);
    }

    private static CadText Word(string text, double x, double y) =>
        new() { DefaultValue = text, TextHeight = 10, FirstAlignment = new(x, y, 0) };

    private static double Number(string text) => double.Parse(text, CultureInfo.InvariantCulture);
}
