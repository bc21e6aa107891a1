using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Drawings of other programs, where they stand beside the checkout.</summary>
public class RealDrawingTests
{
    private const int Width = 800;
    private const int Height = 600;

    public static TheoryData<string> Files()
    {
        var data = new TheoryData<string>();
        IEnumerable<string> files = SharedDrawings.Root is null ? [] : SharedDrawings.AllDxf();
        foreach (string file in files.Order(StringComparer.Ordinal).DefaultIfEmpty("none at hand"))
        {
            data.Add(Path.GetFileName(file));
        }

        return data;
    }

    [DrawingTheory]
    [MemberData(nameof(Files))]
    public void Every_layout_becomes_a_page_that_others_read(string name)
    {
        using var drawing = (CadImage)Image.Load(SharedDrawings.Dxf(name));
        string[] layouts = [.. drawing.Layouts.Names];
        var raster = new CadRasterizationOptions { Layouts = layouts };
        string pdf = TestPage.SaveTo(drawing, new PdfOptions { VectorRasterizationOptions = raster }, ".pdf");
        Assert.Matches($@"Pages:\s+{layouts.Length}\b", Tools.Run("pdfinfo", pdf));
        Tools.Run("pdftocairo", "-svg", pdf, Tools.TempFile(".svg"));
        Tools.Run("xmllint", "--noout", "--huge", TestPage.SaveTo(drawing, new SvgOptions(), ".svg"));
        Tools.Run("xmllint", "--noout", "--huge",
            TestPage.SaveTo(drawing, new SvgOptions { TextAsShapes = false }, ".svg"));
        using var output = new MemoryStream();
        drawing.Save(output, new PngOptions());
        Assert.True(output.Length > 100);
    }

    /// <summary>The foreground of one lies within two pixels of that of the other.</summary>
    [DrawingTheory]
    [MemberData(nameof(Files))]
    public void Svg_shows_in_another_renderer_what_pixels_show(string name)
    {
        using var drawing = (CadImage)Image.Load(SharedDrawings.Dxf(name));
        var raster = new CadRasterizationOptions { PageWidth = Width, PageHeight = Height };
        bool[] expected = Foreground(
            TestPage.SaveTo(drawing, new PngOptions { VectorRasterizationOptions = raster }, ".png"));
        foreach (bool shapes in new[] { true, false })
        {
            var options = new SvgOptions { TextAsShapes = shapes, VectorRasterizationOptions = raster };
            string svg = TestPage.SaveTo(drawing, options, ".svg");
            string png = Tools.TempFile(".png");
            Tools.Run("rsvg-convert", "--unlimited", "-b", "white", "-o", png, svg);
            bool[] actual = Foreground(png);
            Assert.InRange(Share(expected, actual), 0.99, 1);
            Assert.InRange(Share(actual, expected), 0.99, 1);
        }
    }

    private static bool[] Foreground(string png)
    {
        const int faintest = 248;
        using var image = (RasterImage)Image.Load(png);
        int[] pixels = image.LoadArgb32Pixels(new Rectangle(0, 0, Width, Height));
        return Array.ConvertAll(pixels, argb =>
            Math.Min((argb >> 16) & 255, Math.Min((argb >> 8) & 255, argb & 255)) < faintest);
    }

    /// <summary>The share of one foreground that is near the other; the whole of none.</summary>
    private static double Share(bool[] of, bool[] near)
    {
        const int reach = 2;
        (int count, int found) = (0, 0);
        for (int at = 0; at < of.Length; at++)
        {
            if (!of[at])
            {
                continue;
            }

            count++;
            bool isNear = false;
            for (int y = Math.Max(0, (at / Width) - reach); y <= Math.Min(Height - 1, (at / Width) + reach); y++)
            {
                int from = Math.Max(0, (at % Width) - reach);
                int to = Math.Min(Width - 1, (at % Width) + reach);
                isNear |= near.AsSpan((y * Width) + from, to - from + 1).Contains(true);
            }

            found += isNear ? 1 : 0;
        }

        return count == 0 ? 1 : (double)found / count;
    }
}
