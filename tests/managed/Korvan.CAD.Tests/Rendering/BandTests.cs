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
        byte[] pixels = whole.CopyPixels(0, whole.Height);

        // The parts come with a font that the threads have not seen when they begin.
        using var late = new TextEngine();
        Page parts = page with
        {
            List = PdfSample.List(engine, maxStored: 3),
            Replay = drain => drain(PdfSample.List(late, maxStored: 2, drain)),
        };
        using RasterPage inParts = RasterPage.Render(late, parts, bands: 3);
        Assert.Equal(pixels, inParts.CopyPixels(0, inParts.Height));
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

    // Clips that are no boxes are left to the general scan converter, so that both draw the same path.
    [Theory]
    [InlineData(true, false, 4000)]
    [InlineData(true, false, 900)]
    [InlineData(false, false, 1500)]
    [InlineData(false, true, 1500)]
    public void Fills_with_many_edges_in_each_row_look_as_those_of_the_general_scan_converter(
        bool evenOdd, bool curved, int edges)
    {
        byte[] Paint(bool isGeneral)
        {
            var list = new DrawingList();
            var path = new PathBuffer();
            if (isGeneral)
            {
                path.MoveTo(new Vec2(-500, -500));
                path.LineTo(new Vec2(1000, -500));
                path.LineTo(new Vec2(-500, 1400));
                path.Close();
                list.PushClip(path, evenOdd: false);
                path.Clear();
            }

            path.MoveTo(new Vec2(20, 20));
            for (int i = 1; i <= edges; i++)
            {
                Vec2 to = new(20 + ((i * 79.19) % 150), 20 + ((i * 53.7) % 120));
                if (curved)
                {
                    path.CurveTo(new Vec2(40, to.Y), new Vec2(to.X, 90), to);
                }
                else
                {
                    path.LineTo(to);
                }
            }

            list.Fill(path, new Rgba(200, 40, 0, 180), 0, evenOdd);
            using var engine = new TextEngine();
            using RasterPage page = RasterPage.Render(engine, PdfSample.PageOf(list));
            return page.CopyPixels(0, page.Height);
        }

        byte[] dense = Paint(isGeneral: false);
        byte[] general = Paint(isGeneral: true);
        Assert.Contains(dense, static value => value is > 0 and < 255);
        double sum = 0;
        int worst = 0;
        for (int i = 0; i < dense.Length; i++)
        {
            sum += Math.Abs(dense[i] - general[i]);
            worst = Math.Max(worst, Math.Abs(dense[i] - general[i]));
        }

        Assert.True(worst < 40 && sum / dense.Length < 1, $"at most {worst}, {sum / dense.Length:F3} on the average");
    }
}
