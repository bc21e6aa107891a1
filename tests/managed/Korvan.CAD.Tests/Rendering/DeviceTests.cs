using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class DeviceTests
{
    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Blue = new(0, 0, 255);

    [Fact]
    public void Shapes_show_at_their_places_in_their_colours()
    {
        var list = new DrawingList();
        list.Fill(Box(10, 10, 40, 40), Red, 0, evenOdd: false);
        list.Stroke(Line(0, 80, 100, 80), new StrokeAttributes { Color = Blue, LineWeight = 2, Dash = -1 });
        using RasterPage page = Render(list);
        Assert.Equal(Red, At(page, 25, 25));
        Assert.Equal(Blue, At(page, 50, 80));
        Assert.Equal(Rgba.White, At(page, 50, 60));
        Assert.Equal(Rgba.White, At(page, 25, 75 - 0)); // the drawing's y runs up, not down
    }

    [Fact]
    public void Dashes_leave_gaps_and_tiny_ones_melt()
    {
        var list = new DrawingList();
        list.Stroke(
            Line(0, 20, 100, 20), new StrokeAttributes { Color = Red, LineWeight = 1, Dash = list.Dash([20, 20]) });
        list.Stroke(Line(0, 60, 100, 60),
            new StrokeAttributes { Color = Red, LineWeight = 1, Dash = list.Dash([0.01, 0.01]) });
        using RasterPage page = Render(list);
        Assert.Equal(Red, At(page, 10, 20));
        Assert.Equal(Rgba.White, At(page, 30, 20));
        Assert.Equal(Red, At(page, 30, 60));
    }

    [Fact]
    public void Lines_have_widths_of_the_drawing_and_ends_and_joins_of_their_own()
    {
        // A millimetre of the page is 4 pixels; the list is drawn at twice its size.
        var list = new DrawingList();
        int square = list.StyleIndex(new StrokeStyle(LineCaps.Square, LineJoins.Miter));
        int butt = list.StyleIndex(new StrokeStyle(LineCaps.Butt, LineJoins.Bevel));
        Assert.Equal(square, list.StyleIndex(new StrokeStyle(LineCaps.Square, LineJoins.Miter)));
        var corner = new PathBuffer();
        corner.MoveTo(new Vec2(5, 5));
        corner.LineTo(new Vec2(20, 5));
        corner.LineTo(new Vec2(20, 20));
        list.Stroke(corner,
            new StrokeAttributes { Color = Red, LineWeight = 4, WeightInUnits = true, Style = square, Dash = -1 });
        corner.Clear();
        corner.MoveTo(new Vec2(30, 5));
        corner.LineTo(new Vec2(45, 5));
        corner.LineTo(new Vec2(45, 20));
        list.Stroke(corner, new StrokeAttributes { Color = Blue, LineWeight = 2, Style = butt, Dash = -1 });
        using var engine = new TextEngine();
        Page once = PageOf(list, Rgba.White);
        using RasterPage page = RasterPage.Render(engine,
            once with { Settings = once.Settings with { ToDevice = new Affine2(2, 0, 0, -2, 0, 100) } });
        Assert.Equal(Red, At(page, 20, 13)); // 4 units are 8 pixels
        Assert.Equal(Rgba.White, At(page, 20, 15));
        Assert.Equal(Red, At(page, 7, 10)); // beyond the end by half the width
        Assert.Equal(Red, At(page, 42, 7)); // the point of the corner
        Assert.Equal(Blue, At(page, 75, 13)); // 2 mm are 8 pixels, whatever the scale
        Assert.Equal(Rgba.White, At(page, 57, 10));
        Assert.Equal(Rgba.White, At(page, 93, 6)); // the corner is cut
    }

    [Fact]
    public void Cells_of_a_sharp_picture_keep_their_borders()
    {
        byte[] pixels = [0, 0, 255, 255, 255, 0, 0, 255];
        foreach (bool sharp in new[] { true, false })
        {
            var list = new DrawingList();
            var place = new Affine2(100, 0, 0, 100, 0, 0);
            list.Image(new PlacedImage(2, 1, pixels, place, 1) { Sharp = sharp }, 0, Bounds2.Of(0, 0, 100, 100));
            using RasterPage page = Render(list);
            Assert.Equal(sharp, At(page, 45, 50) == Red);
            Assert.Equal(sharp, At(page, 55, 50) == Blue);
        }
    }

    [Fact]
    public void Clips_hold_until_they_are_popped_and_bound_the_extents()
    {
        var list = new DrawingList();
        list.PushClip(Box(0, 0, 50, 100), evenOdd: true);
        list.Fill(Box(20, 20, 80, 40), Red, 0, evenOdd: false);
        list.PopClip();
        list.Fill(Box(60, 60, 70, 70), Blue, 0, evenOdd: false);
        Assert.Equal((20.0, 70.0), (list.Bounds.MinX, list.Bounds.MaxX));
        using RasterPage page = Render(list);
        Assert.Equal(Red, At(page, 40, 30));
        Assert.Equal(Rgba.White, At(page, 60, 30));
        Assert.Equal(Blue, At(page, 65, 65));
    }

    [Theory]
    [InlineData(false)]
    [InlineData(true)]
    public void Clips_of_many_edges_leave_what_their_paths_would_fill(bool evenOdd)
    {
        // The sides of a star, in small parts; the star around its middle is twice inside.
        PathBuffer Star(double x, double y)
        {
            var path = new PathBuffer();
            for (int i = 0; i < 200; i++)
            {
                (double from, double to) = (i / 40 * 0.8 * Math.PI, ((i / 40) + 1) * 0.8 * Math.PI);
                Vec2 a = new(x + (30 * Math.Cos(from)), y + (30 * Math.Sin(from)));
                Vec2 b = new(x + (30 * Math.Cos(to)), y + (30 * Math.Sin(to)));
                Vec2 point = a + ((b - a) * (i % 40 / 40.0));
                if (i == 0)
                {
                    path.MoveTo(point);
                }
                else
                {
                    path.LineTo(point);
                }
            }

            path.Close();
            return path;
        }

        byte[] Paint(bool isClipped)
        {
            var list = new DrawingList();
            list.Fill(Box(10, 10, 60, 90), Blue, 0, evenOdd: false);
            foreach (double x in new[] { 40.3, 62.8 })
            {
                if (!isClipped)
                {
                    list.Fill(Star(x, 50), Red, 0, evenOdd);
                    continue;
                }

                list.PushClip(Star(x, 50), evenOdd);
                list.PushClip(Star(x, 50.0000001), evenOdd);
                list.Fill(Box(0, 0, 100, 45), Red, 0, evenOdd: false);
                list.Stroke(Box(-10, 45, 110, 110), new StrokeAttributes
                { Color = Red, LineWeight = 200, WeightInUnits = true, Dash = -1 });
                list.PopClip();
                list.PopClip();
            }

            using RasterPage page = Render(list);
            return page.CopyPixels(0, page.Height);
        }

        byte[] filled = Paint(isClipped: false);
        byte[] clipped = Paint(isClipped: true);
        double difference = 0;
        for (int i = 0; i < filled.Length; i++)
        {
            difference += Math.Abs(filled[i] - clipped[i]);
        }

        // At the edge, each of two clips leaves a part.
        Assert.True(difference / filled.Length < 1, $"{difference / filled.Length} on average");
    }

    [Fact]
    public void Gradients_run_from_one_colour_to_the_other()
    {
        var list = new DrawingList();
        PathBuffer box = Box(0, 0, 100, 100);
        var gradient = new Gradient(false, 0, 0, new Affine2(50, 0, 0, 50, 50, 50), [new(0, Red), new(1, Blue)]);
        list.Fill(box, Red, 0, evenOdd: true, gradient);
        using RasterPage page = Render(list);
        Assert.True(At(page, 5, 50).R > 230);
        Assert.True(At(page, 95, 50).B > 230);
        Assert.InRange(At(page, 50, 50).R, 110, 145);
    }

    [Fact]
    public void Paths_that_are_not_finite_are_left_out()
    {
        var list = new DrawingList();
        list.Stroke(Line(0, 0, double.NaN, 5), default);
        list.Stroke(Line(0, 0, double.PositiveInfinity, 5), default);
        Assert.True(list.Items.IsEmpty);
        Assert.True(list.Bounds.IsEmpty);
    }

    [Fact]
    public void Text_stands_on_its_baseline_with_capitals_of_the_asked_height()
    {
        using var engine = new TextEngine();
        var list = new DrawingList();
        var canvas = new Canvas(list, engine);
        var line = new SingleLine
        {
            Text = "HHHH",
            Font = FontSpec.Default,
            First = new Vec3(10, 20, 0),
            Height = 40,
            WidthFactor = 1
        };
        TextPainter.Draw(canvas, line, Affine3.Identity, new Pen { Color = Rgba.Black });
        using RasterPage page = Render(list, engine);
        (int low, int high) = InkRows(page);
        Assert.InRange(low, 20, 21);
        Assert.InRange(high, 58, 60);
    }

    [Theory]
    [InlineData(HorizontalAlign.Left, 0, 10, 20)]
    [InlineData(HorizontalAlign.Right, 0, -30, 20)]
    [InlineData(HorizontalAlign.Fit, 0, 10, 90)] // fills the way between its points
    [InlineData(HorizontalAlign.Center, 3, -10, 70)]
    public void Justified_text_is_placed_by_its_points(object align, int vertical, double left, double right)
    {
        using var engine = new TextEngine();
        var list = new DrawingList();
        int font = engine.Font(FontSpec.Default);
        double width = engine.Advance(font, "HIH") * 10 / engine.CapRatio(font);
        var line = new SingleLine
        {
            Text = "HIH",
            Font = FontSpec.Default,
            First = new Vec3(10, 50, 0),
            Second = new Vec3((HorizontalAlign)align == HorizontalAlign.Fit ? 90 : 10, 50, 0),
            Height = 10,
            Horizontal = (HorizontalAlign)align,
            Vertical = (VerticalAlign)vertical,
        };
        TextPainter.Draw(new Canvas(list, engine), line, Affine3.Identity, new Pen { Color = Rgba.Black });
        double expected = (HorizontalAlign)align switch
        {
            HorizontalAlign.Right => 10 - width,
            HorizontalAlign.Center => 10 - (width / 2),
            _ => left,
        };
        Assert.Equal(expected, list.Bounds.MinX, 6);
        Assert.Equal((HorizontalAlign)align == HorizontalAlign.Fit ? right : expected + width, list.Bounds.MaxX, 6);
        Assert.Equal(vertical == 3 ? 40 : 50, list.Bounds.MinY, 6);
    }

    [Fact]
    public void Metafiles_state_the_size_of_a_device_unit_alike_in_all_their_measures()
    {
        using var file = new MemoryStream();
        var raster = new CadRasterizationOptions { PageWidth = 200, PageHeight = 100 };
        CadImage drawing = TestPage.Drawing(new CadLine { SecondPoint = new Cad3DPoint(200, 100, 0) });
        drawing.Save(file, new EmfOptions { VectorRasterizationOptions = raster });
        int Field(int at) => BitConverter.ToInt32(file.GetBuffer(), at);
        (int width, int height) = (Field(72), Field(76));
        Assert.Equal(2.0, (double)width / height, 1e-2);
        Assert.Equal((width, height), (Field(32), Field(36))); // the frame, in hundredths of a millimetre
        Assert.InRange(Field(80), (width / 100) - 1, (width / 100) + 1); // the device in millimetres
        Assert.InRange(Field(84), (height / 100) - 1, (height / 100) + 1);
        Assert.Equal((width * 10, height * 10), (Field(100), Field(104))); // and in micrometres
    }

    [Fact]
    public void Png_is_read_by_others_with_size_resolution_and_transparency()
    {
        Tools.Require("identify");
        var list = new DrawingList();
        list.Fill(Box(0, 0, 50, 50), Red.WithAlpha(128), 0, evenOdd: false);
        using RasterPage page = Render(list, null, new Rgba(0, 0, 0, 0));
        string file = Tools.TempFile(".png");
        using (FileStream output = File.Create(file))
        {
            PngEncoder.Write(page, output, 9, 200);
        }

        Assert.Equal("100x100 200",
            Tools.Run("identify", "-units", "PixelsPerInch", "-format", "%wx%h %[fx:round(resolution.x)]", file));
        Assert.Equal("srgba(255,0,0,0.5", Tools.Run("convert", file, "-format", "%[pixel:p{10,90}]", "info:")[..17]);
    }

    [Fact]
    public void Streams_that_fail_bring_their_own_error_back()
    {
        using var engine = new TextEngine();
        var list = new DrawingList();
        for (int i = 0; i < 20_000; i++)
        {
            list.Stroke(Line(i % 97, i % 89, i % 83, i % 79),
                new StrokeAttributes { Color = Red, LineWeight = i % 7, Dash = -1 });
        }

        var failed = Assert.Throws<IOException>(
            () => PdfDocument.Write(new FullStream(), engine, [PageOf(list, Rgba.White)], new PdfSettings()));
        Assert.Contains("disk is full", failed.Message);
    }

    [Theory]
    [InlineData(100_000, 100)]
    [InlineData(30_000, 30_000)]
    [InlineData(0.4, 100)]
    [InlineData(double.NaN, 100)]
    public void Pictures_that_memory_cannot_hold_are_refused(double width, double height) =>
        Assert.NotNull(RasterPage.Refuse(width, height));

    internal static Page PageOf(DrawingList list, Rgba background) => new("test", 100, 100, list, new PaintSettings
    {
        ToDevice = new Affine2(1, 0, 0, -1, 0, 100),
        UnitsPerMillimetre = 4,
        LineScale = 1,
        Hairline = 1,
        Background = background,
        PaintBackground = background.A > 0,
        Caps = LineCaps.Butt,
    });

    private static PathBuffer Box(double x0, double y0, double x1, double y1)
    {
        var path = new PathBuffer();
        path.MoveTo(new Vec2(x0, y0));
        path.LineTo(new Vec2(x1, y0));
        path.LineTo(new Vec2(x1, y1));
        path.LineTo(new Vec2(x0, y1));
        path.Close();
        return path;
    }

    private static PathBuffer Line(double x0, double y0, double x1, double y1)
    {
        var path = new PathBuffer();
        path.MoveTo(new Vec2(x0, y0));
        path.LineTo(new Vec2(x1, y1));
        return path;
    }

    private static RasterPage Render(DrawingList list, TextEngine? shared = null, Rgba? background = null)
    {
        using TextEngine? own = shared == null ? new TextEngine() : null;
        return RasterPage.Render(shared ?? own!, PageOf(list, background ?? Rgba.White));
    }

    /// <summary>The colour at a place of the drawing.</summary>
    private static Rgba At(RasterPage page, int x, int y)
    {
        ReadOnlySpan<byte> pixel = page.Row(99 - y).Slice(x * 4, 4);
        return new Rgba(pixel[2], pixel[1], pixel[0], pixel[3]);
    }

    private static (int Low, int High) InkRows(RasterPage page)
    {
        var rows = new List<int>();
        for (int y = 0; y < 100; y++)
        {
            if (page.Row(99 - y).IndexOfAnyInRange((byte)0, (byte)100) >= 0)
            {
                rows.Add(y);
            }
        }

        return (rows[0], rows[^1]);
    }

    private sealed class FullStream : MemoryStream
    {
        public override void Write(byte[] buffer, int offset, int count) => throw new IOException("the disk is full");

        public override void Write(ReadOnlySpan<byte> buffer) => throw new IOException("the disk is full");
    }
}
