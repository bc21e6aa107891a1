using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Blocks that repeat are stored once, and show what they would show if each was drawn.</summary>
public sealed class SymbolTests : IDisposable
{
    private readonly TextEngine _engine = new();

    public void Dispose() => _engine.Dispose();

    /// <summary>The extents decide the scale of the page, so they have to be those of what is drawn.</summary>
    [Theory]
    [InlineData(0, 1)]
    [InlineData(33, 1)]
    [InlineData(-120, -1)]
    public void Extents_are_those_of_the_drawn_blocks(double angle, double scale)
    {
        CadImage drawing = Drawing(
            [.. Enumerable.Range(0, 6).Select(i => Place(40 * i, 7 * i, angle + (45 * i), scale))]);
        DrawingList flat = Build(drawing, hasSymbols: false);
        DrawingList shared = Build(drawing, hasSymbols: true);
        Assert.Equal(5, Count(shared, DisplayKind.Symbol));
        Assert.Equal(0, Count(flat, DisplayKind.Symbol));
        SceneList.AssertBox(
            shared, flat.Bounds.MinX, flat.Bounds.MinY, flat.Bounds.MaxX, flat.Bounds.MaxY, tolerance: 1e-9);
    }

    [Fact]
    public void Blocks_that_depend_on_their_place_are_drawn_each()
    {
        var link = new CadXdata("PE_URL");
        link.Data.Add(new CadCodeValue(1000, "https://example.org"));
        CadLine linked = Line(0, 0, 5, 5);
        linked.XdataContainer.XdataEntities.Add(link);
        foreach (CadEntityBase entity in (CadEntityBase[])[
            new CadXLine { FirstPoint = new Cad3DPoint(1, 1, 0), UnitDirection = new Cad3DPoint(1, 0, 0) },
            new CadPoint { CenterPoint = new Cad3DPoint(3, 3, 0) },
            TestPage.Insert("missing"),
            linked])
        {
            CadImage drawing = Drawing([.. Enumerable.Range(0, 4).Select(i => Place(30 * i, 0, 30 * i, 1))], entity);
            drawing.Header.PdMode = 34;
            Assert.Equal(0, Count(Build(drawing, hasSymbols: true), DisplayKind.Symbol));
            Assert.Equal(
                File.ReadAllBytes(WritePdf(drawing, hasSymbols: false)),
                File.ReadAllBytes(WritePdf(drawing, hasSymbols: true)));
        }
    }

    /// <summary>Rotated, flipped, stretched and scaled references, on layers and in colours of their own.</summary>
    [Fact]
    public void Forms_show_what_the_drawn_blocks_show()
    {
        CadImage drawing = Drawing(Everything());
        string shared = WritePdf(drawing, hasSymbols: true);
        string flat = WritePdf(drawing, hasSymbols: false);
        PixelMap.AssertSame(PixelMap.OfPdf(flat), PixelMap.OfPdf(shared));
        Assert.Equal(Tools.Run("pdftotext", flat, "-"), Tools.Run("pdftotext", shared, "-"));
        string plain = PdfSample.Plain(shared);
        int forms = PdfSample.Count(plain, "/Subtype /Form");
        Assert.Equal(5, forms);
        Assert.True(PdfSample.Count(plain, @"cm/X\d+ Do") >= 5 * (Repeats - 1));
        foreach (Match form in Regex.Matches(plain, @"/Subtype /Form.*?endstream", RegexOptions.Singleline))
        {
            // The layer of the reference, and pipes.
            Assert.Equal(2, Regex.Matches(form.Value, @"/OC/L\d+ BDC").Select(one => one.Value).Distinct().Count());
        }

        Tools.Run("qpdf", "--check", shared);
    }

    [Fact]
    public void Uses_show_what_the_drawn_blocks_show()
    {
        CadImage drawing = Drawing(Everything());
        string shared = WriteSvg(drawing, hasSymbols: true);
        string text = File.ReadAllText(shared);
        Assert.True(
            PdfSample.Count(text, "<use xlink:href=\"#symbol-") == 0, "content of two layers is in their groups");
        drawing.BlockEntities["VALVE"].Entities.RemoveAll(entity => entity.LayerName == "pipes");
        shared = WriteSvg(drawing, hasSymbols: true);
        PixelMap.AssertSame(PixelMap.OfSvg(WriteSvg(drawing, hasSymbols: false)), PixelMap.OfSvg(shared));
        text = File.ReadAllText(shared);
        Assert.Equal(5, PdfSample.Count(text, "<g id=\"symbol-"));
        Assert.True(PdfSample.Count(text, "<use xlink:href=\"#symbol-") >= 5 * (Repeats - 1));
    }

    /// <summary>Of a page that shows a part, references on its border are drawn as what is near it.</summary>
    [Theory]
    [InlineData(30)]
    [InlineData(5)]
    public void Pages_that_show_a_part_show_the_same(float zoom)
    {
        CadImage drawing = Drawing(Everything());
        var raster = new CadRasterizationOptions { PageWidth = 300, PageHeight = 300, Zoom = zoom };
        PixelMap.AssertSame(
            PixelMap.OfPdf(WritePdf(drawing, hasSymbols: false, raster)),
            PixelMap.OfPdf(WritePdf(drawing, hasSymbols: true, raster)));
    }

    [Fact]
    public void Pages_in_parts_place_the_same_forms_in_each()
    {
        const int many = 70_000;
        CadImage drawing = Drawing(
            [.. Enumerable.Range(0, many).Select(i => Place(20 * (i % 300), 20 * (i / 300), i % 360, 1))]);
        Assert.Equal(
            many - 1, PdfSample.Count(PdfSample.Plain(WritePdf(drawing, hasSymbols: true)), @"cm/X\d+ Do"));
        drawing.BlockEntities["VALVE"].Entities.RemoveAll(entity => entity.LayerName == "pipes");
        string[] uses = UsesOf(WriteSvg(drawing, hasSymbols: true));
        Assert.True(uses.Length >= many - 1);
        Assert.Equal(UsesOf(WriteSvg(drawing, hasSymbols: true, inParts: false)), uses);
    }

    /// <summary>The symbols and their uses in a file, in order.</summary>
    private static string[] UsesOf(string file) =>
        [.. File.ReadLines(file).Where(static line => line.Contains("symbol-", StringComparison.Ordinal))];

    private const int Repeats = 12;

    private static CadInsertObject[] Everything()
    {
        var references = new List<CadInsertObject>();
        for (int i = 0; i < Repeats; i++)
        {
            references.Add(Place(30 * i, 0, 25 * i, 1));
            references.Add(Place(30 * i, 40, 0, 1, color: 5));
            references.Add(Place(30 * i, 80, 30 * i, -1.5));
            references.Add(Place(30 * i, 120, 10 * i, 1, layer: "walls"));
            CadInsertObject stretched = Place(30 * i, 160, 40 * i, 2);
            stretched.ScaleX = 0.7;
            references.Add(stretched);
        }

        return [.. references];
    }

    private static CadInsertObject Place(
        double x, double y, double angle, double scale, short color = 256, string layer = "0")
    {
        CadInsertObject reference = TestPage.Insert("VALVE", x, y, color, layer);
        reference.RotationAngle = angle;
        (reference.ScaleX, reference.ScaleY, reference.ScaleZ) = (scale, Math.Abs(scale), 1);
        return reference;
    }

    /// <summary>References of a block with strokes by block and by layer, curves, dashes, a fill, a text and a hatch.
    /// </summary>
    private static CadImage Drawing(CadInsertObject[] references, CadEntityBase? more = null)
    {
        CadImage drawing = TestPage.Drawing(references);
        TestPage.AddLayer(drawing, "walls", 3);
        TestPage.AddLayer(drawing, "pipes", 1);
        CadLine wide = Line(0, 10, 20, 0);
        (wide.LineWeight, wide.ColorId) = (100, 0);
        CadLine pipe = Line(-4, -3, 22, -3);
        pipe.LayerName = "pipes";
        CadSolid fill = TestPage.Square(12, 2, 6, 4);
        fill.Transparency = 0x02000080;
        CadEntityBase[] entities =
        [
            wide, pipe, Line(0, 0, 20, 10), Line(0, 0, 0, 10), Line(20, 0, 20, 10), fill,
            new CadCircle { CenterPoint = new Cad3DPoint(10, 5, 0), Radius = 7 },
            new CadText { DefaultValue = "V7", TextHeight = 4, FirstAlignment = new Cad3DPoint(2, -8, 0) },
            HatchOf(0, 12, 9),
        ];
        TestPage.AddBlock(drawing, "VALVE", more is null ? entities : [.. entities, more]);
        return drawing;
    }

    private static CadLine Line(double x0, double y0, double x1, double y1) =>
        new() { FirstPoint = new Cad3DPoint(x0, y0, 0), SecondPoint = new Cad3DPoint(x1, y1, 0) };

    private static CadHatch HatchOf(double x, double y, double side)
    {
        CadPolylineBoundaryPath box = new();
        box.Vertices.AddRange([new(x, y), new(x + side, y), new(x + side, y + side), new(x, y + side)]);
        CadHatch hatch = new() { SolidFillFlag = 0, PatternName = "LINES" };
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(box));
        hatch.PatternDefinitions.Add(new CadHatchPatternData { LineAngle = 45, LineOffset = new(-1.5, 1.5) });
        return hatch;
    }

    private static int Count(DrawingList list, DisplayKind kind) =>
        SceneList.Kinds(list).Count(one => one == kind);

    private DrawingList Build(CadImage drawing, bool hasSymbols)
    {
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle { HasSymbols = hasSymbols }, _engine);
    }

    private string WritePdf(CadImage drawing, bool hasSymbols, CadRasterizationOptions? raster = null)
    {
        PageSource pages = Pages(
            drawing, new PdfOptions { VectorRasterizationOptions = raster ?? Page() }, DeviceKind.Points, hasSymbols);
        return PdfSample.ToFile(PdfSample.Write(_engine, pages.Pages()));
    }

    private string WriteSvg(CadImage drawing, bool hasSymbols, bool inParts = true)
    {
        var options = new SvgOptions { VectorRasterizationOptions = Page() };
        string file = Tools.TempFile(".svg");
        using FileStream output = File.Create(file);
        PageSource pages = Pages(drawing, options, DeviceKind.UserUnits, hasSymbols, inParts);
        SvgDocument.Write(output, _engine, pages.SinglePage(), options);
        return file;
    }

    private static CadRasterizationOptions Page() =>
        new() { PageWidth = 800, PageHeight = 500, VisibilityMode = VisibilityMode.AsPrint };

    private PageSource Pages(
        CadImage drawing, ImageOptionsBase options, DeviceKind device, bool hasSymbols, bool inParts = true) =>
        new(SceneReader.Read(drawing.Drawing), new ExportContext(options, new LoadOptions()), _engine, device, 72)
        {
            InParts = inParts,
            HasSymbols = hasSymbols,
        };
}
