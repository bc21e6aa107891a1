using System;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Rendering.Devices;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Colours of pixels from different sources, to be compared.</summary>
internal sealed class PixelMap(int width, int height, byte[] rgb)
{
    private const int Reach = 2;
    private const int Clear = 48;
    private const int Faint = 8;

    internal Rgba this[int x, int y]
    {
        get
        {
            int at = 3 * ((y * width) + x);
            return new Rgba(rgb[at], rgb[at + 1], rgb[at + 2]);
        }
    }

    /// <summary>The first page of a document as another program draws it, one pixel to a point.</summary>
    internal static PixelMap OfPdf(string file)
    {
        string root = Tools.TempFile("");
        Tools.Run("pdftoppm", "-r", "72", "-singlefile", file, root);
        byte[] data = File.ReadAllBytes(root + ".ppm");
        File.Delete(root + ".ppm");
        string[] header = Encoding.ASCII.GetString(data, 0, 32).Split('\n')[..3];
        string[] size = header[1].Split(' ');
        int start = header[0].Length + header[1].Length + header[2].Length + 3;
        return new PixelMap(int.Parse(size[0]), int.Parse(size[1]), data[start..]);
    }

    /// <summary>A document as another program draws it.</summary>
    internal static PixelMap OfSvg(string file)
    {
        string png = Tools.TempFile(".png");
        Tools.Run("rsvg-convert", "-b", "white", "-o", png, file);
        using var image = (RasterImage)Image.Load(png);
        var rgb = new byte[image.Width * image.Height * 3];
        for (int i = 0; i < image.Width * image.Height; i++)
        {
            Color color = image.GetPixel(i % image.Width, i / image.Width);
            (rgb[3 * i], rgb[(3 * i) + 1], rgb[(3 * i) + 2]) = (color.R, color.G, color.B);
        }

        File.Delete(png);
        return new PixelMap(image.Width, image.Height, rgb);
    }

    internal static PixelMap Of(RasterPage page)
    {
        var rgb = new byte[page.Width * page.Height * 3];
        for (int y = 0; y < page.Height; y++)
        {
            ReadOnlySpan<byte> row = page.Row(y);
            for (int x = 0; x < page.Width; x++)
            {
                int at = 3 * ((y * page.Width) + x);
                (rgb[at], rgb[at + 1], rgb[at + 2]) = (row[(4 * x) + 2], row[(4 * x) + 1], row[4 * x]);
            }
        }

        return new PixelMap(page.Width, page.Height, rgb);
    }

    /// <summary>Asserts that of the pixels where one clearly shows something, a share has something near in the
    /// other.</summary>
    internal static void AssertAlike(PixelMap a, PixelMap b, double share)
    {
        Assert.InRange(a.ShareOf(b), share, 1);
        Assert.InRange(b.ShareOf(a), share, 1);
    }

    /// <summary>Asserts that two pages are the same but for what rounding moves by a fraction of a pixel.</summary>
    internal static void AssertSame(PixelMap expected, PixelMap actual)
    {
        Assert.Equal((expected.Width, expected.Height), (actual.Width, actual.Height));
        (int shown, int other) = (0, 0);
        for (int i = 0; i < expected.Width * expected.Height; i++)
        {
            (int x, int y) = (i % expected.Width, i / expected.Width);
            (Rgba a, Rgba b) = (expected[x, y], actual[x, y]);
            int off = Math.Max(Math.Max(Math.Abs(a.R - b.R), Math.Abs(a.G - b.G)), Math.Abs(a.B - b.B));
            shown += expected.Strength(x, y) > Clear ? 1 : 0;
            other += off > Clear ? 1 : 0;
        }

        Assert.True(shown > 100, "the page shows nothing");
        Assert.True(other <= shown / 500, $"{other} of {shown} pixels differ");
    }

    private double ShareOf(PixelMap other)
    {
        (int all, int found) = (0, 0);
        for (int y = 0; y < Height; y++)
        {
            for (int x = 0; x < Width; x++)
            {
                if (Strength(x, y) > Clear)
                {
                    all++;
                    found += other.ShowsNear(x, y) ? 1 : 0;
                }
            }
        }

        return all == 0 ? 1 : (double)found / all;
    }

    private int Width => width;

    private int Height => height;

    private bool ShowsNear(int x, int y)
    {
        for (int v = Math.Max(0, y - Reach); v <= Math.Min(height - 1, y + Reach); v++)
        {
            for (int u = Math.Max(0, x - Reach); u <= Math.Min(width - 1, x + Reach); u++)
            {
                if (Strength(u, v) > Faint)
                {
                    return true;
                }
            }
        }

        return false;
    }

    private int Strength(int x, int y)
    {
        Rgba color = this[x, y];
        return 255 - Math.Min(color.R, Math.Min(color.G, color.B));
    }
}
