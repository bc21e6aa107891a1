using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What page setups plot, and where on the paper.</summary>
public class PlotAreaTests
{
    private static readonly Bounds2 Content = Bounds2.Of(1000, 500, 1100, 550);

    // Paper of 220 × 120 mm with margins of 10: 200 × 100 can be printed on.
    [Theory]
    [InlineData(CadPlotType.DrawingExtents, 1, false, 985, 488, 1205, 608)]
    [InlineData(CadPlotType.DrawingExtents, 0, true, 995, 495, 1105, 555)]
    [InlineData(CadPlotType.DrawingExtents, 4, false, 940, 452, 1820, 932)]
    [InlineData(CadPlotType.WindowSpecified, 1, true, -57.5, -20.8, 162.5, 99.2)]
    [InlineData(CadPlotType.WindowSpecified, 0, false, 6.5, 14.4, 94.5, 62.4)]
    [InlineData(CadPlotType.DrawingLimits, 1, false, -15, -12, 205, 108)]
    [InlineData(CadPlotType.ViewSpecified, 1, false, 35, 8, 255, 128)]
    [InlineData(CadPlotType.LastScreenDisplay, 1, false, 285, 188, 505, 308)]
    [InlineData(CadPlotType.LayoutInformation, 1, false, -15, -12, 205, 108)]
    public void The_plotted_part_lies_on_the_paper_by_scale_and_offset(
        object type, double unitsPerMillimetre, bool centered,
        double minX, double minY, double maxX, double maxY)
    {
        CadImage drawing = TestPage.Drawing();
        CadLayout layout = Layout(drawing, (CadPlotType)type, unitsPerMillimetre);
        layout.PlotFlags |= centered ? CadPlotLayoutFlag.PlotCentered : 0;
        layout.StandardScale = 16;
        if (unitsPerMillimetre == 0)
        {
            layout.PlotFlags |= CadPlotLayoutFlag.UseStandardScale;
            layout.StandardScale = 0;
        }

        bool showsPart = (CadPlotType)type == CadPlotType.DrawingExtents;
        PaperSheet sheet = SheetOf(drawing, showsPart ? Content : Bounds2.Of(0, 0, 500, 400));
        Bounds2 paper = sheet.Region;
        Assert.Equal(
            [minX, minY, maxX, maxY],
            new[] { paper.MinX, paper.MinY, paper.MaxX, paper.MaxY }, static (a, b) => System.Math.Abs(a - b) < 1e-9);
    }

    [Fact]
    public void Only_the_window_is_plotted()
    {
        CadImage drawing = TestPage.Drawing();
        drawing.PaperSpaceEntities.Add(TestPage.Square(0, 0, 40, 1));
        drawing.PaperSpaceEntities.Add(TestPage.Square(50, 0, 40, 5));
        CadLayout layout = Layout(drawing, CadPlotType.WindowSpecified, 1);
        (layout.PlotOriginX, layout.PlotOriginY) = (0, 0);
        (layout.PlotWindowLeft, layout.PlotWindowBottom, layout.PlotWindowRight, layout.PlotWindowTop) = (0, 0, 40, 40);
        using RasterPage page = Rasterizer.Draw(drawing, new ImageOptions.PngOptions
        {
            VectorRasterizationOptions = new ImageOptions.CadRasterizationOptions
            {
                Layouts = [layout.LayoutName],
                PageWidth = 220,
                PageHeight = 120,
            },
        });
        Assert.Equal([0, 0, 255, 255], page.Row(120 - 20)[(30 * 4)..(31 * 4)].ToArray());
        Assert.Equal([255, 255, 255, 255], page.Row(120 - 20)[(80 * 4)..(81 * 4)].ToArray());
    }

    [Theory]
    [InlineData(CadPlotType.LayoutInformation, 1.0)]
    [InlineData(CadPlotType.WindowSpecified, 1 / 25.4)]
    public void Content_that_misses_the_paper_is_fitted_to_it(object type, double unitsPerMillimetre)
    {
        CadImage drawing = TestPage.Drawing();
        Layout(drawing, (CadPlotType)type, unitsPerMillimetre);
        PaperSheet sheet = SheetOf(drawing, Content);
        Assert.True(sheet.Region.Contains(Content.MinX, Content.MinY));
        Assert.True(sheet.Region.Contains(Content.MaxX, Content.MaxY));
        Assert.Equal(110, sheet.Region.Width, 9);
    }

    [Theory]
    [InlineData(ImageOptions.UnitType.Millimeter, 254, 127, 1000, 500)]
    [InlineData(ImageOptions.UnitType.Inch, 3, 2, 300, 200)]
    [InlineData(ImageOptions.UnitType.Unitless, 30, 20, 30, 20)]
    public void Pages_of_pixels_have_a_length_with_a_resolution(
        object unit, float width, float height, int pixelsAcross, int pixelsDown)
    {
        using RasterPage page = Rasterizer.Draw(TestPage.Drawing(TestPage.Square(0, 0, 10)), new ImageOptions.PngOptions
        {
            ResolutionSettings = new ResolutionSetting(100, 100),
            VectorRasterizationOptions = new ImageOptions.CadRasterizationOptions
            {
                UnitType = (ImageOptions.UnitType)unit,
                PageWidth = width,
                PageHeight = height,
            },
        });
        Assert.Equal((pixelsAcross, pixelsDown), (page.Width, page.Height));
    }

    private static CadLayout Layout(CadImage drawing, CadPlotType type, double unitsPerMillimetre)
    {
        CadLayout layout = TestPage.Sheet(drawing);
        (layout.PaperWidth, layout.PaperHeight, layout.PlotType) = (220, 120, type);
        (layout.LeftMargin, layout.BottomMargin, layout.RightMargin, layout.TopMargin) = (10, 10, 10, 10);
        (layout.PlotOriginX, layout.PlotOriginY) = (5, 2);
        (layout.ScaleNumerator, layout.ScaleDenominator) = (1, unitsPerMillimetre == 0 ? 1 : unitsPerMillimetre);
        (layout.PlotWindowLeft, layout.PlotWindowBottom, layout.PlotWindowRight, layout.PlotWindowTop) =
            (12.5, 19.2, 92.5, 59.2);
        (layout.MinLimits, layout.MaxLimits) = (new Cad2DPoint(0, 0), new Cad2DPoint(200, 100));
        layout.PlotViewName = "Detail";
        drawing.Views.Add(new CadViewTableObject
        {
            Name = "DETAIL",
            ViewCenter = new Cad2DPoint(60, 25),
            ViewWidth = 20,
            ViewHeight = 10,
        });
        drawing.PaperSpaceEntities.Add(new CadViewport
        {
            ViewportId = 1,
            Width = 4,
            Height = 2,
            ViewCenter = new Cad2DPoint(320, 210),
            ViewHeight = 20,
        });
        return layout;
    }

    private static PaperSheet SheetOf(CadImage drawing, Bounds2 content) =>
        SceneReader.Read(drawing.Drawing).Layouts.First(static layout => !layout.IsModel).SheetFor(content)!.Value;
}
