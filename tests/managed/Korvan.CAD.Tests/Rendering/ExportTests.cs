using System;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class ExportTests
{
    [Fact]
    public void Pdf_has_a_page_for_each_layout_in_the_asked_order_with_real_text()
    {
        CadImage drawing = TestPage.Drawing(Text("MODELTEXT"));
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.PaperWidth, sheet.PaperHeight) = (297, 210);
        drawing.PaperSpaceEntities.Add(Text("SHEETTEXT"));
        var options = new PdfOptions
        {
            VectorRasterizationOptions = new CadRasterizationOptions { Layouts = [sheet.LayoutName, "Model"] },
            PdfDocumentInfo = new PdfDocumentInfo { Title = "Plan \u00c4", Author = "Someone" },
        };
        string file = TestPage.SaveTo(drawing, options, ".pdf");
        string info = Tools.Run("pdfinfo", "-f", "1", "-l", "2", file);
        Assert.Contains("Plan \u00c4", info);
        Assert.Matches(@"Pages:\s+2", info);
        Assert.Matches(@"Page\s+1 size:\s+841\.89 x 595\.276", info);
        Assert.Contains("SHEETTEXT", Tools.Run("pdftotext", "-f", "1", "-l", "1", file, "-"));
        Assert.Contains("MODELTEXT", Tools.Run("pdftotext", "-f", "2", "-l", "2", file, "-"));
        Assert.All(Tools.Run("pdffonts", file).Split('\n').Skip(2).Where(l => l.Length > 0), l =>
            Assert.Contains("yes yes", l));
    }

    [Theory]
    [InlineData(UnitType.Millimeter, 420, 297, "1190.55 x 841.89")]
    [InlineData(UnitType.Inch, 11, 8.5, "792 x 612")]
    [InlineData(UnitType.Unitless, 1600, 1000, "1600 x 1000")]
    public void Page_sizes_are_in_their_unit(UnitType unit, float width, float height, string expected)
    {
        var raster = new CadRasterizationOptions { PageWidth = width, PageHeight = height, UnitType = unit };
        string file = TestPage.SaveTo(
            TestPage.Drawing(Text("X")), new PdfOptions { VectorRasterizationOptions = raster }, ".pdf");
        Assert.Contains(expected, Tools.Run("pdfinfo", file));
    }

    [Fact]
    public void Svg_can_keep_text_as_text_at_the_same_place()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 3), Text("A<B & \u00c4"));
        string[] pictures = new string[2];
        for (int i = 0; i < 2; i++)
        {
            var raster = new CadRasterizationOptions { PageWidth = 200, PageHeight = 200 };
            string file = TestPage.SaveTo(drawing,
                new SvgOptions { TextAsShapes = i == 0, VectorRasterizationOptions = raster }, ".svg");
            Tools.Run("xmllint", "--noout", file);
            Assert.Equal(i == 1, File.ReadAllText(file).Contains(">A&lt;B &amp; \u00c4</text>"));
            pictures[i] = Tools.TempFile(".png");
            Tools.Run("rsvg-convert", "-o", pictures[i], file);
        }

        string difference = Tools.Run("convert", pictures[0], pictures[1], "-metric", "RMSE", "-compare", "-format",
            "%[distortion]", "info:");
        Assert.InRange(double.Parse(difference, System.Globalization.CultureInfo.InvariantCulture), 0, 0.05);
    }

    [Fact]
    public void Svg_is_well_formed_and_shows_the_same_in_another_renderer()
    {
        var raster = new CadRasterizationOptions { PageWidth = 100, PageHeight = 100 };
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 1), TestPage.Square(20, 20, 30, 5), Text("x"));
        string file = TestPage.SaveTo(drawing, new SvgOptions { VectorRasterizationOptions = raster }, ".svg");
        Tools.Run("xmllint", "--noout", file);
        string png = Tools.TempFile(".png");
        Tools.Run("rsvg-convert", "-o", png, file);
        Assert.Contains("100x100", Tools.Run("identify", png));
        Assert.Equal("srgb(0,0,255)", Tools.Run("convert", png, "-format", "%[pixel:p{40,60}]", "info:"));
        Assert.Equal("srgb(255,0,0)", Tools.Run("convert", png, "-format", "%[pixel:p{80,20}]", "info:"));
    }

    [Fact]
    public void Content_as_bitmap_and_watermarks_reach_the_page()
    {
        var raster = new CadRasterizationOptions { PageWidth = 200, PageHeight = 200, ContentAsBitmap = true };
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 1), Text("NOTEXT"));
        var options = new PdfOptions { VectorRasterizationOptions = raster, UserWatermarkText = "DRAFT" };
        string file = TestPage.SaveTo(drawing, options, ".pdf");
        string text = Tools.Run("pdftotext", "-raw", file, "-");
        Assert.DoesNotContain("NOTEXT", text);
        Assert.Equal("DRAFT", string.Concat(text.Where(char.IsLetter)));
        Assert.Contains("image", Tools.Run("pdfimages", "-list", file));
    }

    [Fact]
    public void Large_pages_as_bitmaps_are_strips_without_gaps()
    {
        var raster = new CadRasterizationOptions { PageWidth = 900, PageHeight = 900, ContentAsBitmap = true };
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 1), TestPage.Square(0, 0, 50, 5));
        string file = TestPage.SaveTo(drawing, new PdfOptions { VectorRasterizationOptions = raster }, ".pdf");
        string[] images = Tools.Run("pdfimages", "-list", file).Split('\n', StringSplitOptions.RemoveEmptyEntries);
        Assert.True(images.Length > 5, string.Join('\n', images));
        string png = Tools.TempFile(".png");
        Tools.Run("pdftoppm", "-r", "24", "-png", "-singlefile", file, png[..^4]);
        Assert.Contains("300x300", Tools.Run("identify", png));
        // Red and blue have no green; a gap is white.
        Assert.Equal("0", Tools.Run(
            "convert", png, "-crop", "298x298+1+1", "-channel", "G", "-separate", "-format", "%[max]", "info:"));
        Assert.StartsWith("srgb(0,0,25", Tools.Run("convert", png, "-format", "%[pixel:p{75,225}]", "info:"));
    }

    [Theory]
    [InlineData(0.5f, 0.5f)]
    [InlineData(100_000f, 0.01f)]
    public void Pages_may_be_tiny(float width, float height)
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 1), new CadLine { LineWeight = 211 }, Text("x"));
        foreach (ImageOptionsBase options in new ImageOptionsBase[]
        {
            new CgmOptions(), new EmfOptions(), new WmfOptions(), new PdfOptions(), new SvgOptions(),
            new Html5Options(),
        })
        {
            options.VectorRasterizationOptions = new CadRasterizationOptions { PageWidth = width, PageHeight = height };
            Assert.NotEqual(0, new FileInfo(TestPage.SaveTo(drawing, options, ".out")).Length);
        }
    }

    [Fact]
    public void Fit_modes_scale_as_their_names_say()
    {
        Bounds2 extents = Bounds2.Of(0, 0, 10, 10);
        PageRequest Request(FitMode fit) => new()
        {
            Width = 100,
            Height = 50,
            Fit = fit,
            UnitScale = 1,
            Zoom = 1,
            UnitsPerMillimetre = 1,
            DefaultSide = 420,
        };
        Assert.Equal(5, PageLayout.Create(Request(FitMode.Fill), extents, null).Scale);
        Assert.Equal(1, PageLayout.Create(Request(FitMode.Shrink), extents, null).Scale);
        Assert.Equal(0.5, PageLayout.Create(Request(FitMode.Shrink), Bounds2.Of(0, 0, 100, 100), null).Scale);
        Assert.Equal(1, PageLayout.Create(Request(FitMode.None), Bounds2.Of(0, 0, 100, 100), null).Scale);
        PageLayout bordered = PageLayout.Create(Request(FitMode.Fill) with { Left = 50, Zoom = 0.5 }, extents, null);
        Assert.Equal(2.5, bordered.Scale);
        Assert.Equal(new Vec2(75, 25), bordered.ToDevice.Point(5, 5)); // centred in what the border leaves
    }

    [Fact]
    public void Drawings_without_size_still_get_a_page()
    {
        foreach (CadImage drawing in new[] { TestPage.Drawing(), TestPage.Drawing(new CadPoint()),
            TestPage.Drawing(Horizontal(5)) })
        {
            string file = TestPage.SaveTo(drawing, new PdfOptions(), ".pdf");
            Assert.Matches(@"Pages:\s+1", Tools.Run("pdfinfo", file));
        }
    }

    [Fact]
    public void What_cannot_be_a_page_is_refused_with_its_reason()
    {
        CadImage wide = TestPage.Drawing(Horizontal(1e9));
        Refused(wide, new PdfOptions { VectorRasterizationOptions = new CadRasterizationOptions { NoScaling = true } },
            "too large");
        Refused(wide,
            new PngOptions
            {
                VectorRasterizationOptions = new CadRasterizationOptions
                {
                    PageWidth = 90_000,
                    PageHeight = 10
                }
            }, "too large");
        Refused(TestPage.Drawing(Horizontal(1e308), Horizontal(-1e308)), new PngOptions(), "not finite");
        var borders = new CadRasterizationOptions { PageWidth = 10, PageHeight = 10, BorderX = 8 };
        Refused(wide, new PngOptions { VectorRasterizationOptions = borders }, "no room");
        Refused(wide,
            new PngOptions { VectorRasterizationOptions = new CadRasterizationOptions { Layouts = ["Nope"] } },
                "\"Nope\"");
        Refused(wide,
            new PngOptions
            {
                VectorRasterizationOptions = new CadRasterizationOptions
                {
                    Layouts = ["Model",
                "Model"]
                }
            }, "one page");
        CadImage large = TestPage.Drawing(Horizontal(20_000));
        Refused(large,
            new PdfOptions
            {
                CorePdfOptions = new PdfDocumentOptions { Compliance = PdfCompliance.PdfA1b },
                VectorRasterizationOptions = new CadRasterizationOptions { NoScaling = true },
            }, "too large for the archive");
        Refused(wide,
            new PngOptions { VectorRasterizationOptions = new CadRasterizationOptions { ShxFonts = ["a.shx"] } },
            "shx_fonts");
    }

    [Fact]
    public void Coordinates_that_are_not_numbers_do_not_reach_the_page()
    {
        CadImage drawing = TestPage.Drawing(Horizontal(double.NaN), Horizontal(double.PositiveInfinity),
            TestPage.Square(0, 0, 50, 1));
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(255, picture[20, 20].R);
    }

    private static void Refused(CadImage drawing, ImageOptionsBase options, string reason)
    {
        var refused = Assert.Throws<ImageSaveException>(() => drawing.Save(Stream.Null, options));
        Assert.Contains(reason, refused.Message);
    }

    private static CadText Text(string text) =>
        new() { DefaultValue = text, TextHeight = 10, FirstAlignment = new Cad3DPoint(20, 20, 0) };

    private static CadLine Horizontal(double length) => new() { SecondPoint = new Cad3DPoint(length, 0, 0) };
}
