using System;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using System.Threading;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What PDF documents hold and show, judged by other programs.</summary>
public sealed class PdfDocumentTests : IDisposable
{
    private readonly TextEngine _engine = new();

    public void Dispose() => _engine.Dispose();

    [Theory]
    [InlineData(PdfCompliance.Pdf15)]
    [InlineData(PdfCompliance.PdfA1a)]
    [InlineData(PdfCompliance.PdfA1b)]
    public void Documents_have_no_error(object compliance)
    {
        var settings = new PdfSettings { Compliance = (PdfCompliance)compliance };
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        var empty = new Page("", 0.2, 100, new DrawingList(), page.Settings);
        foreach (Page[] pages in (Page[][])[[page], [page, empty, page], [.. Enumerable.Repeat(empty, 450)]])
        {
            string file = PdfSample.ToFile(PdfSample.Write(_engine, pages, settings));
            Tools.Run("qpdf", "--check", file);
            Assert.Matches($@"Pages:\s+{pages.Length}\b", Tools.Run("pdfinfo", file));
            Assert.True(File.ReadAllBytes(file).AsSpan().IndexOf("stream\n\nendstream"u8) < 0, "an empty flate stream");
            File.Delete(file);
        }
    }

    /// <summary>Where either shows something, the other does within two pixels.</summary>
    [Fact]
    public void Pages_show_what_pixels_show()
    {
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        string file = PdfSample.ToFile(PdfSample.Write(_engine, [page]));
        using RasterPage expected = RasterPage.Render(_engine, page);
        PixelMap shown = PixelMap.OfPdf(file);
        PixelMap.AssertAlike(PixelMap.Of(expected), shown, 0.995);
        Rgba Shown(int x, int y) => shown[x, PdfSample.Height - 1 - y];
        Assert.Equal(new Rgba(255, 127, 127), Near(Shown(140, 70)));
        Assert.Equal(new Rgba(128, 0, 127), Near(Shown(120, 50)));
        Assert.Equal(Rgba.White, Shown(155, 30)); // outside of the clip
        Assert.Equal(new Rgba(0, 128, 0), Shown(170, 30));
        Assert.True(Shown(118, 165).B - Shown(118, 165).R > 150, "a gradient fades from its focus on");
        Assert.True(Shown(82, 142).R > 200, "a gradient fades to nothing");

        // Antialiasing differs by a step.
        static Rgba Near(Rgba color) => new(Step(color.R), Step(color.G), Step(color.B));
        static byte Step(byte value) => value is > 125 and < 130 ? (byte)(value < 128 ? 127 : 128) : value;
    }

    /// <summary>Lines of equal style are one path as long as their width is the same.</summary>
    [Fact]
    public void Lines_that_follow_each_other_keep_their_own_widths()
    {
        var list = new DrawingList();
        foreach ((float width, double y) in ((float, double)[])[(0.2f, 40), (0.2f, 60), (5, 100), (0.2f, 150)])
        {
            var style = new StrokeAttributes { Color = Rgba.Black, LineWeight = width, Dash = -1, Layer = -1 };
            list.Stroke(PdfSample.Path(new Vec2(50, y), new Vec2(250, y)), style);
        }

        string file = PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(list)]));
        PixelMap shown = PixelMap.OfPdf(file);
        bool IsWide(int y) => shown[150, PdfSample.Height - 1 - y - 4] == Rgba.Black;
        int[] heights = [40, 60, 100, 150];
        Assert.Equal([100], heights.Where(IsWide));
    }

    [DrawingFact]
    public void Real_drawings_show_what_their_pixels_show()
    {
        foreach (string drawing in SharedDrawings.AllDxf())
        {
            using Image image = Image.Load(drawing);
            var raster = new CadRasterizationOptions { PageWidth = 900, PageHeight = 900, BorderX = 5, BorderY = 5 };
            string file = Tools.TempFile(".pdf");
            image.Save(file, new PdfOptions { VectorRasterizationOptions = raster });
            var pixels = new PngOptions
            {
                VectorRasterizationOptions = raster,
                ResolutionSettings = new ResolutionSetting(72, 72),
            };
            using RasterPage expected = Rasterizer.Draw((CadImage)image, pixels);
            PixelMap.AssertAlike(PixelMap.Of(expected), PixelMap.OfPdf(file), 0.99);
            File.Delete(file);
        }
    }

    [Fact]
    public void Layers_are_optional_content_that_shows_at_first()
    {
        string file = PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(PdfSample.List(_engine))]));
        string plain = PdfSample.Plain(file);
        Assert.Equal(2, PdfSample.Count(plain, "/Type /OCG"));
        Assert.Contains("/Name (walls)", plain);
        Assert.Contains("/BaseState /ON", plain);
        Assert.Equal(PdfSample.Count(plain, " BDC\n"), PdfSample.Count(plain, "\nEMC\n"));
        string number = Regex.Match(plain, @"/OCGs \[\s+(\d+) 0 R").Groups[1].Value;
        Assert.Contains($" {number} 0 R", Regex.Match(plain, @"/Properties <<(.*?)>>", RegexOptions.Singleline).Value);
        Assert.True(PdfSample.Count(plain, @"/OC/L\d+ BDC\n") >= 6);
    }

    [Fact]
    public void Layers_that_are_not_plotted_are_not_printed()
    {
        CadImage drawing = TestPage.Drawing(
            TestPage.Square(0, 0, 10, 1, "helplines"), TestPage.Square(20, 0, 10, 1, "walls"));
        TestPage.AddLayer(drawing, "helplines", 3).IsPlottable = false;
        TestPage.AddLayer(drawing, "walls", 3);
        string plain = PdfSample.Plain(PdfSample.ToFile(Save(drawing, new PdfOptions())));
        string screen = Regex.Match(plain, @"(\d+) 0 obj\n<<[^>]*/Name \(helplines\)").Groups[1].Value;
        Assert.Equal(1, PdfSample.Count(plain, "/PrintState /OFF"));
        Assert.Equal(2, PdfSample.Count(plain, $@"/Event /(Print|View)\s+/OCGs \[\s+{screen} 0 R\s+\]"));
    }

    [Theory]
    [InlineData("https://example.org/a b?c=ä", "https://example.org/a%20b?c=%C3%A4")]
    [InlineData(@"details\door (2).dxf", "details/door%20%282%29.dxf")]
    [InlineData("javascript:app.alert(1)", null)]
    [InlineData("", null)]
    public void Entities_lead_where_their_data_says(string target, string? address)
    {
        CadSolid door = TestPage.Square(0, 0, 10, 1);
        var link = new CadXdata("PE_URL");
        link.Data.Add(new CadCodeValue(1000, target));
        door.XdataContainer.XdataEntities.Add(link);
        CadRasterizationOptions raster = new() { PageWidth = 400, PageHeight = 100 };
        CadImage drawing = TestPage.Drawing(door, TestPage.Square(30, 0, 10, 1));
        foreach (PdfCompliance compliance in (PdfCompliance[])[PdfCompliance.Pdf15, PdfCompliance.PdfA1b])
        {
            byte[] document = Save(drawing, new PdfOptions
            {
                VectorRasterizationOptions = raster,
                CorePdfOptions = new PdfDocumentOptions { Compliance = compliance },
            });
            string plain = PdfSample.Plain(PdfSample.ToFile(document));
            Assert.Equal(address is null ? 0 : 1, PdfSample.Count(plain, "/Subtype /Link"));
            Assert.Equal(address is not null, plain.Contains($"/URI ({address})", StringComparison.Ordinal));
            Assert.Equal(address is not null, Regex.IsMatch(plain, @"/Rect \[\s+0\s+0\s+100\s+100\s+\]"));
        }
    }

    [Fact]
    public void Layouts_are_bookmarks_and_labels_of_their_pages()
    {
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        string plain = PdfSample.Plain(
            PdfSample.ToFile(PdfSample.Write(_engine, [page, page with { Name = "Grundriß" }])));
        Assert.Equal(2, PdfSample.Count(plain, @"/Dest \[\s+\d+ 0 R\s+/Fit"));
        Assert.Equal(1, PdfSample.Count(plain, @"/Title \(Plan \\\(A\\\)\)"));
        Assert.Equal(1, PdfSample.Count(plain, @"/P \(Plan \\\(A\\\)\)"));
        Assert.Contains("/PageMode /UseOutlines", plain);
    }

    [Fact]
    public void The_same_content_makes_the_same_bytes_whole_and_in_parts()
    {
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        byte[] whole = PdfSample.Write(_engine, [page]);
        Assert.Equal(whole, PdfSample.Write(_engine, [page]));
        Page inParts = page with
        {
            List = PdfSample.List(_engine, maxStored: 3),
            Replay = drain => drain(PdfSample.List(_engine, maxStored: 2, drain)),
        };
        Assert.True(inParts.List.IsPartial && inParts.List.Items.Length <= 3);
        Assert.Equal(page.List.Bounds, inParts.List.Bounds);
        Assert.Equal(whole, PdfSample.Write(_engine, [inParts]));
    }

    [Fact]
    public void Scenes_of_many_entities_are_drawn_in_parts()
    {
        CadImage drawing = TestPage.Drawing([.. Enumerable.Range(0, 70_000).Select(i =>
            TestPage.Square(i % 300, i / 300, 0.5, (short)(1 + (i % 7))))]);
        byte[] document = Save(drawing, new PdfOptions());
        string plain = PdfSample.Plain(PdfSample.ToFile(document));
        Assert.Equal(70_000, PdfSample.Count(plain, @"\nf\*?\n"));
    }

    [Fact]
    public void Images_are_written_once_with_their_opacity()
    {
        string file = PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(PdfSample.List(_engine))]));
        string plain = PdfSample.Plain(file);
        Assert.Equal(2, PdfSample.Count(plain, "/Subtype /Image")); // the image and its mask
        Assert.Equal(2, PdfSample.Count(plain, @"cm /X\d+ Do"));
        Assert.Contains("smask", Tools.Run("pdfimages", "-list", file));
    }

    [Fact]
    public void What_cannot_show_is_left_out_and_equal_strokes_share_a_path()
    {
        var list = new DrawingList();
        var style = new StrokeAttributes { Color = Rgba.Black, LineWeight = 0.2f, Dash = -1, Layer = -1 };
        list.PushClip(PdfSample.Box(0, 0, 50, 50), evenOdd: false);
        list.PopClip();
        for (int i = 0; i < 3000; i++)
        {
            list.Stroke(PdfSample.Path(new Vec2(i, 0), new Vec2(i, 90)), style);
            list.Fill(PdfSample.Box(-50, i, -10, i + 1), Rgba.Black, -1, evenOdd: false);
        }

        string plain = PdfSample.Plain(PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(list)])));
        Assert.InRange(PdfSample.Count(plain, @" l\n"), 0, 310);
        Assert.InRange(PdfSample.Count(plain, @"\nS\n"), 1, 3);
        Assert.Equal(0, PdfSample.Count(plain, @"h\nf\*?\n"));
    }

    [Theory]
    [InlineData(14_400, 1)]
    [InlineData(14_401, 2)]
    [InlineData(2_834_646, 197)] // a kilometre
    public void Pages_of_any_size_keep_within_the_units_of_viewers(double side, int unit)
    {
        var raster = new CadRasterizationOptions { PageWidth = (float)side, PageHeight = 100 };
        byte[] document = Save(
            TestPage.Drawing(TestPage.Square(0, 0, 10, 1)), new PdfOptions { VectorRasterizationOptions = raster });
        string plain = PdfSample.Plain(PdfSample.ToFile(document));
        double width = double.Parse(Regex.Match(plain, @"/MediaBox \[\s+0\s+0\s+([0-9.]+)").Groups[1].Value,
            System.Globalization.CultureInfo.InvariantCulture);
        Assert.True(width <= 14_400);
        Assert.Equal(side / unit, width, 0.1);
        Assert.Equal(unit > 1, plain.Contains($"/UserUnit {unit}\n", StringComparison.Ordinal));
    }

    [Fact]
    public void Coordinates_and_lists_without_measure_keep_a_document_small_and_valid()
    {
        var list = new DrawingList();
        for (int i = 0; i < 100_000; i++)
        {
            int layer = list.Layer($"layer {i}");
            list.Stroke(PdfSample.Path(new Vec2(i % 300, 0), new Vec2(i % 300, 100)),
                new StrokeAttributes { Color = Rgba.Black, Dash = -1, Layer = layer });
        }

        list.Stroke(PdfSample.Path(new Vec2(1e300, 5), new Vec2(-1e300, 5)), new StrokeAttributes { Dash = -1 });
        list.Fill(PdfSample.Path(new Vec2(0, 0), new Vec2(0, 0), new Vec2(0, 0)), Rgba.Black, -1, evenOdd: false);
        PdfSample.AddText(list, _engine, "far", new Affine2(1e200, 0, 0, 1e200, 1e300, 0));
        PdfSample.AddText(list, _engine, "flat", new Affine2(0, 0, 0, 10, 5, 5));
        string file = PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(list)]));
        Tools.Run("qpdf", "--check", file);
        Assert.True(new FileInfo(file).Length < 6_000_000);
    }

    [Theory]
    [InlineData(PdfCompliance.Pdf15)]
    [InlineData(PdfCompliance.PdfA1b)]
    public void Lines_from_far_away_keep_their_direction(object compliance)
    {
        var list = new DrawingList();
        var style = new StrokeAttributes { Color = Rgba.Black, LineWeight = 1, Dash = -1, Layer = -1 };
        list.Stroke(PdfSample.Path(new Vec2(-30e6, -10e6), new Vec2(90e6, 30e6)), style); // a slope of a third
        PathBuffer ring = PdfSample.Path(
            new Vec2(50, 150), new Vec2(9e6, 150), new Vec2(9e6, -9e6), new Vec2(50, -9e6));
        ring.Close();
        list.Stroke(ring, style);
        string file = PdfSample.ToFile(PdfSample.Write(
            _engine, [PdfSample.PageOf(list)], new PdfSettings { Compliance = (PdfCompliance)compliance }));
        PixelMap shown = PixelMap.OfPdf(file);
        bool IsDrawn(int x, int y) => shown[x, PdfSample.Height - 1 - y].R < 160;
        Assert.All((int[])[30, 150, 270], x => Assert.True(IsDrawn(x, x / 3), $"at {x}"));
        Assert.True(IsDrawn(50, 60) && IsDrawn(200, 150) && !IsDrawn(20, 150));
    }

    [Fact]
    public void Writing_stops_when_the_time_is_over()
    {
        DrawingList list = new();
        for (int i = 0; i < 10_000; i++)
        {
            list.Fill(PdfSample.Box(0, 0, i % 99, 9), Rgba.Black, -1, evenOdd: false);
        }

        using Budget budget = Budget.Begin(null, timeout: 1);
        Thread.Sleep(50);
        Assert.Throws<OperationInterruptedException>(
            () => PdfSample.Write(_engine, [PdfSample.PageOf(list)], new PdfSettings()));
    }

    [Fact]
    public void Numbers_are_what_they_stand_for()
    {
        var random = new Random(7);
        var buffer = new PdfBuffer();
        for (int i = 0; i < 20_000; i++)
        {
            int decimals = random.Next(0, 6);
            long scaled = random.NextInt64(-1L << random.Next(1, 45), 1L << random.Next(1, 45));
            string text = System.Text.Encoding.ASCII.GetString(buffer.Cleared().Fixed(scaled, decimals).Bytes);
            Assert.Matches(@"^-?(\d+(\.\d*[1-9])?|\.\d*[1-9])$", text);
            Assert.Equal(scaled, Parse(text) * Math.Pow(10, decimals), 0.01);
            double value = scaled * Math.Pow(10, random.Next(-8, 2));
            text = System.Text.Encoding.ASCII.GetString(buffer.Cleared().Real(value).Bytes);
            Assert.True(Math.Abs(Parse(text) - value) <= Math.Max(Math.Abs(value) * 5e-6, 5.1e-10), $"{value}: {text}");
        }

        static double Parse(string text) => double.Parse(text, System.Globalization.CultureInfo.InvariantCulture);
    }

    private static byte[] Save(CadImage drawing, ImageOptionsBase options)
    {
        using var output = new MemoryStream();
        drawing.Save(output, options);
        return output.ToArray();
    }
}
