using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Pages of pixels that several threads paint, and what a path may take.</summary>
public class BandTests
{
    [Fact]
    public void Parts_make_the_same_pixels_as_a_whole_page_in_as_many_bands()
    {
        using var engine = new TextEngine();
        Page page = PdfSample.PageOf(PdfSample.List(engine));
        using RasterPage whole = RasterPage.Render(engine, page, bands: 3);
        byte[] pixels = whole.CopyPixels();

        // The parts come with a font that the threads have not seen when they begin.
        using var late = new TextEngine();
        Page parts = page with
        {
            List = PdfSample.List(engine, maxStored: 3),
            Replay = drain => drain(PdfSample.List(late, maxStored: 2, drain)),
        };
        using RasterPage inParts = RasterPage.Render(late, parts, bands: 3);
        Assert.Equal(pixels, inParts.CopyPixels());
    }

    [Theory]
    [InlineData(20, false)]
    [InlineData(60_000, true)]
    public void Wide_paths_whose_edges_fill_all_rows_count_as_work(int turns, bool isTooMuch)
    {
        var list = new DrawingList();
        var path = new PathBuffer();
        path.MoveTo(new Vec2(0, 0));
        for (int i = 1; i <= turns; i++)
        {
            path.LineTo(new Vec2((i * 79.19) % 300, (i & 1) * 200));
        }

        list.Stroke(path, new StrokeAttributes
        { Color = new Rgba(255, 0, 0), LineWeight = 4, WeightInUnits = true, Dash = -1 });
        using var engine = new TextEngine();
        Page page = PdfSample.PageOf(list);
        using Budget budget = Budget.Begin(1000);
        void Paint() => RasterPage.Render(engine, page).Dispose();
        if (isTooMuch)
        {
            Assert.Contains("steps", Assert.Throws<LimitMemoryException>(Paint).Message, StringComparison.Ordinal);
        }
        else
        {
            Paint();
        }
    }
}
