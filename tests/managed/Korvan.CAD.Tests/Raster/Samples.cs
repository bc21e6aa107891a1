using System;
using System.Globalization;
using System.IO;
using System.Runtime.InteropServices;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Tests.Rendering;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Pictures to work on, and comparisons of them by another program.</summary>
internal static class Samples
{
    /// <summary>An image whose pixels are determined by their position.</summary>
    internal static RasterFileImage Of(int width, int height, Func<int, int, int> pixel)
    {
        var grid = new PixelGrid(width, height);
        for (int y = 0; y < height; y++)
        {
            for (int x = 0; x < width; x++)
            {
                grid.WritableRow(y)[x] = pixel(x, y);
            }
        }

        return new RasterFileImage(
            new DecodedFile { Format = FileFormat.Png, Frames = [new DecodedFrame { Pixels = grid }] });
    }

    /// <summary>Smooth colours, a sharp shape, and a size that no block size divides.</summary>
    internal static RasterFileImage Colors(int width = 61, int height = 43) => Of(width, height, (x, y) =>
        x is > 20 and < 30 && y is > 10 and < 30 ? Rgb(200, 30, 30) : Rgb(x * 255 / width, y * 255 / height, 128));

    internal static int Rgb(int red, int green, int blue, int alpha = 255) =>
        (alpha << 24) | (red << 16) | (green << 8) | blue;

    internal static string Save(Image image, ImageOptionsBase options, string extension)
    {
        string file = Tools.TempFile(extension);
        image.Save(file, options);
        return file;
    }

    internal static RasterCachedImage Load(string file) => (RasterCachedImage)Image.Load(file);

    /// <summary>The mean difference of two files, 0 to 1, as ImageMagick sees them.</summary>
    internal static double Difference(string file, string other)
    {
        string[] first = [file, "-colorspace", "sRGB", "-alpha", "off"];
        string[] second = [other, "-alpha", "off", "-metric", "RMSE", "-compare", "-format", "%[distortion]", "info:"];
        string text = Tools.Run("convert", [.. first, .. second]);
        return double.Parse(text, CultureInfo.InvariantCulture);
    }

    /// <summary>The largest difference of any channel between an image and its file as ImageMagick reads it.</summary>
    internal static int LargestDifference(RasterImage image, string file, string page = "")
    {
        string raw = Tools.TempFile(".bgra");
        Tools.Run("convert", file + page, "-colorspace", "sRGB", "-depth", "8", "bgra:" + raw);
        ReadOnlySpan<int> expected = MemoryMarshal.Cast<byte, int>(File.ReadAllBytes(raw));
        File.Delete(raw);
        int[] actual = image.LoadArgb32Pixels(image.Bounds);
        Xunit.Assert.Equal(expected.Length, actual.Length);
        int most = 0;
        for (int i = 0; i < actual.Length; i++)
        {
            for (int shift = 0; shift < 32 && (actual[i] | expected[i]) >>> 24 != 0; shift += 8)
            {
                most = Math.Max(most, Math.Abs(((actual[i] >> shift) & 255) - ((expected[i] >> shift) & 255)));
            }
        }

        return most;
    }
}
