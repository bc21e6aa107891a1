using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.PaletteHelper;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

public class PixelTests
{
    private const int White = -1;
    private const int Black = unchecked((int)0xFF000000);

    [Fact]
    public void Blocks_are_read_and_written_at_their_position()
    {
        using var image = Samples.Colors();
        var block = new Rectangle(3, 5, 4, 2);
        int[] pixels = image.LoadArgb32Pixels(block);
        Assert.Equal(image.GetArgb32Pixel(6, 6), pixels[7]);
        Array.Fill(pixels, White);
        image.SaveArgb32Pixels(block, pixels);
        Assert.Equal((White, White), (image.GetArgb32Pixel(3, 5), image.GetArgb32Pixel(6, 6)));
        Assert.NotEqual(White, image.GetArgb32Pixel(7, 6));
        Assert.Throws<ArgumentException>(() => image.SaveArgb32Pixels(block, new int[7]));
        Rectangle[] outsides = [new(-1, 0, 1, 1), new(60, 0, 2, 1), new(0, 0, 0, 1), new(1, 1, int.MaxValue, 1)];
        foreach (Rectangle outside in outsides)
        {
            Assert.Throws<ArgumentOutOfRangeException>(() => image.LoadArgb32Pixels(outside));
        }
    }

    public static IEnumerable<object[]> Forms =>
    [
        [PixelDataFormat.Rgb24Bpp, 0], [PixelDataFormat.Bgr24Bpp, 0], [PixelDataFormat.Rgb32Bpp, 0],
            [PixelDataFormat.Rgba32Bpp, 0],
        [PixelDataFormat.Cmyk32Bpp, 1], [PixelDataFormat.Rgb16Bpp555, 5], [PixelDataFormat.Rgb16Bpp565, 5],
            [PixelDataFormat.Rgb8BppIndexed, 60],
        [PixelDataFormat.Rgb4BppIndexed, 130],
    ];

    [Theory]
    [MemberData(nameof(Forms))]
    public void Raw_bytes_round_trip(PixelDataFormat form, int most)
    {
        using var image = Samples.Colors();
        using var copy = Samples.Of(61, 43, (_, _) => 0);
        var settings = new RawDataSettings(form, 61) { LineSize = 300 };
        settings.ColorPalette = form.PixelFormat != PixelFormat.Indexed ? null
            : form.BitsPerPixel == 8 ? ColorPaletteHelper.Create8Bit() : ColorPaletteHelper.Create4Bit();
        image.LoadPartialRawData(image.Bounds, settings, copy);
        for (int y = 0; y < 43; y++)
        {
            for (int x = 0; x < 61; x++)
            {
                Color one = image.GetPixel(x, y);
                Color other = copy.GetPixel(x, y);
                Assert.InRange(
                    Math.Max(Math.Abs(one.R - other.R), Math.Max(Math.Abs(one.G - other.G), Math.Abs(one.B - other.B))),
                    0, most);
            }
        }

        IColorConverter converter = settings.CreateColorConverter();
        Assert.Equal(form.PixelFormat == PixelFormat.Indexed, converter is IIndexedColorConverter);
        Assert.Equal([Black, White], converter.ToArgb32(converter.FromArgb32([Black, White]), 2));
        Assert.Throws<ArgumentException>(() => converter.ToArgb32([], 2));
    }

    [Theory]
    [InlineData(RotateFlipType.Rotate90FlipNone, "-rotate 90")]
    [InlineData(RotateFlipType.Rotate180FlipNone, "-rotate 180")]
    [InlineData(RotateFlipType.Rotate270FlipNone, "-rotate 270")]
    [InlineData(RotateFlipType.RotateNoneFlipX, "-flop")]
    [InlineData(RotateFlipType.RotateNoneFlipY, "-flip")]
    [InlineData(RotateFlipType.Rotate90FlipX, "-rotate 90 -flop")]
    [InlineData(RotateFlipType.Rotate90FlipY, "-rotate 90 -flip")]
    public void Rotations_match_those_of_another_program(RotateFlipType rotation, string arguments)
    {
        using var image = Samples.Colors();
        string original = Samples.Save(image, new PngOptions(), ".png");
        string expected = Tools.TempFile(".png");
        Tools.Run("convert", [original, .. arguments.Split(' '), "+repage", expected]);
        image.RotateFlip(rotation);
        Assert.Equal(0, Samples.LargestDifference(image, expected));
    }

    [Theory]
    [InlineData(ResizeType.Box, "box")]
    [InlineData(ResizeType.Bilinear, "triangle")]
    [InlineData(ResizeType.CatmullRom, "catrom")]
    [InlineData(ResizeType.Mitchell, "mitchell")]
    [InlineData(ResizeType.Lanczos, "lanczos")]
    [InlineData(ResizeType.CubicBSpline, "spline")]
    [InlineData(ResizeType.Hermite, "hermite")]
    public void Sizes_change_as_another_program_changes_them(ResizeType type, string filter)
    {
        foreach (string size in new[] { "23x17", "150x99" })
        {
            using var image = Samples.Colors();
            string original = Samples.Save(image, new PngOptions(), ".png");
            string expected = Tools.TempFile(".png");
            Tools.Run("convert", original, "-filter", filter, "-resize", size + "!", expected);
            image.Resize(int.Parse(size.Split('x')[0]), int.Parse(size.Split('x')[1]), type);
            Assert.InRange(Samples.Difference(Samples.Save(image, new PngOptions(), ".png"), expected), 0, 0.012);
        }
    }

    [Fact]
    public void Sizes_without_scaling_cut_or_add_a_border()
    {
        using var image = Samples.Of(4, 4, (x, y) => Samples.Rgb(x, y, 0));
        image.Resize(6, 2, new ImageResizeSettings { Mode = ResizeType.Centered, BackgroundColor = Color.White });
        Assert.Equal([White, Samples.Rgb(0, 1, 0), Samples.Rgb(3, 2, 0), White],
            new[] { image.GetArgb32Pixel(0, 0), image.GetArgb32Pixel(1, 0), image.GetArgb32Pixel(4, 1),
                image.GetArgb32Pixel(5, 1) });
        image.Resize(2, 4, ResizeType.UpperLeft);
        Assert.Equal((White, Color.Transparent.ToArgb()), (image.GetArgb32Pixel(0, 1), image.GetArgb32Pixel(1, 3)));
        using var large = Samples.Of(30, 20, (x, y) => x < 15 ? Black : White);
        large.Resize(5, 5, ResizeType.NearestNeighbour);
        Assert.Equal([Black, White], large.LoadArgb32Pixels(large.Bounds).Distinct().Order());
        large.ResizeWidthProportionally(60);
        large.ResizeHeightProportionally(40);
        Assert.Equal((40, 40), (large.Width, large.Height));
        Assert.Throws<LimitMemoryException>(() => large.Resize(60_000, 60_000));
        Assert.Throws<ArgumentOutOfRangeException>(() => large.Resize(0, 5));
    }

    [Fact]
    public void Rotation_by_any_angle_is_about_the_centre()
    {
        using var image = Samples.Of(21, 11, (x, y) => x < 10 ? Black : White);
        image.Rotate(90);
        Assert.Equal((11, 21), (image.Width, image.Height));
        Assert.Equal((Black, White), (image.GetArgb32Pixel(5, 2), image.GetArgb32Pixel(5, 18)));
        image.Rotate(45, false, Color.Red);
        Assert.Equal((11, 21, Color.Red.ToArgb()), (image.Width, image.Height, image.GetArgb32Pixel(0, 0)));
    }

    [Fact]
    public void Dithering_keeps_the_mean_and_the_palette()
    {
        foreach (DitheringMethod method in Enum.GetValues<DitheringMethod>())
        {
            using var image = Samples.Of(64, 64, (x, y) => Samples.Rgb(x * 4, x * 4, x * 4));
            image.Dither(method, 1);
            int[] pixels = image.LoadArgb32Pixels(image.Bounds);
            Assert.Equal([Black, White], pixels.Distinct().Order());
            double left = Enumerable.Range(0, 64 * 64).Where(i => i % 64 < 32).Average(i => pixels[i] & 255);
            if (method == DitheringMethod.Threshold)
            {
                Assert.Equal(0, left);
            }
            else
            {
                Assert.InRange(left, method == DitheringMethod.Atkinson ? 25 : 50, 75); // the mean of the half is 62
            }
        }
    }

    [Fact]
    public void Palettes_hold_the_colours_of_the_image()
    {
        using var image = Samples.Colors(100, 80);
        foreach (ColorQuantizationMethod method in Enum.GetValues<ColorQuantizationMethod>())
        {
            IColorPalette palette = ColorPaletteHelper.GetCloseImagePalette(image, 64, method);
            Assert.InRange(palette.EntriesCount, 20, 64);
            Assert.True(palette.IsCompactPalette);
            string file = Samples.Save(image, new GifOptions { Palette = palette }, ".gif");
            double most = method == ColorQuantizationMethod.Popularity ? 0.5 : 0.15;
            Assert.InRange(Samples.Difference(file, Samples.Save(image, new PngOptions(), ".png")), 0, most);
        }

        using var few = Samples.Of(9, 9, (x, y) => Samples.Rgb(x % 3, 0, 9));
        Assert.Equal(
            [Samples.Rgb(0, 0, 9), Samples.Rgb(1, 0, 9), Samples.Rgb(2, 0, 9)],
            ColorPaletteHelper.GetCloseImagePalette(few, 3).Argb32Entries);
        var shared = new AdjustPalette();
        shared.AddImage(few);
        image.LoadPartialArgb32Pixels(new Rectangle(0, 0, 1, 1), shared);
        Assert.Contains(image.GetArgb32Pixel(0, 0), shared.CreatePalette(16).Argb32Entries);
        Assert.Equal(2, ColorPaletteHelper.CreateMonochrome().EntriesCount);
        Assert.Equal(16, ColorPaletteHelper.Create4Bit().EntriesCount);
        Assert.Equal(252, ColorPaletteHelper.Create8Bit().EntriesCount);
    }

    [Fact]
    public void Nearest_colours_follow_the_measure()
    {
        var palette = ColorPalette.FromColors([Color.Red, Color.Lime, Color.FromArgb(76, 76, 76)]);
        Assert.Equal(0, palette.GetNearestColorIndex(Color.FromArgb(200, 40, 40)));
        palette.CompareMethod = ColorCompareMethod.Luminance;
        Assert.Equal(0, palette.GetNearestColorIndex(Color.FromArgb(0, 0, 255)));
        Assert.Equal(
            2, ColorPalette.FromColors([Color.Transparent, Color.White, Color.Black])
            .GetNearestColorIndex(Color.FromArgb(30, 20, 10)));
        Assert.Throws<ArgumentException>(() => new ColorPalette(Array.Empty<int>()));
    }

    [Theory]
    [InlineData(ColorCompareMethod.Euclidean)]
    [InlineData(ColorCompareMethod.Weighted)]
    [InlineData(ColorCompareMethod.Luminance)]
    public void Nearest_colours_are_the_first_of_the_least_distance(ColorCompareMethod method)
    {
        var random = new Random(7);
        int Next() => random.Next(6) == 0 ? random.Next(1 << 24) : random.Next() | random.Next(2) << 31;
        foreach (int size in (int[])[1, 7, 8, 61, 256])
        {
            int[] entries = [.. Enumerable.Range(0, size).Select(_ => Next())];
            var palette = new ColorPalette(entries) { CompareMethod = method };
            foreach (int color in Enumerable.Range(0, 500).Select(i => i % 9 == 0 ? entries[i % size] : Next()))
            {
                long[] distances = Array.ConvertAll(entries, entry => PaletteLookup.Distance(color, entry, method));
                Assert.Equal(Array.IndexOf(distances, distances.Min()), palette.GetNearestColorIndex(color));
            }
        }
    }

    [Fact]
    public void Colour_adjustments_match_their_formulas()
    {
        int Change(int from, Action<RasterImage> change)
        {
            using var image = Samples.Of(1, 1, (_, _) => from);
            change(image);
            return image.GetArgb32Pixel(0, 0);
        }

        int color = Samples.Rgb(10, 100, 200, 50);
        Assert.Equal(Samples.Rgb(40, 130, 230, 50), Change(color, image => image.AdjustBrightness(30)));
        Assert.Equal(Samples.Rgb(69, 114, 164, 50), Change(color, image => image.AdjustContrast(-50)));
        Assert.Equal(Samples.Rgb(0, 0, 255, 50), Change(color, image => image.AdjustContrast(100)));
        Assert.Equal(Samples.Rgb(50, 160, 226, 50), Change(color, image => image.AdjustGamma(2)));
        Assert.Equal(Samples.Rgb(84, 84, 84, 50), Change(color, image => image.Grayscale()));
        float[] swap = [0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1];
        Assert.Equal(
            Samples.Rgb(200, 100, 10, 50),
            Change(color, image => image.ApplyColorMatrix(swap, ColorMatrixFlag.Default)));
        Assert.Equal(color, Change(color, image => image.ApplyColorMatrix(swap, ColorMatrixFlag.AltGrays)));
        var key = new TransparencySupporter { TransparentColor = Color.FromArgb(color), BackgroundColor = Color.Lime };
        Assert.Equal(Color.Lime.ToArgb(), Change(color, image => image.ApplyProcessor(key)));
        Assert.Throws<ArgumentOutOfRangeException>(() => Change(color, image => image.AdjustGamma(0)));
        Assert.Throws<ArgumentException>(
            () => Change(color, image => image.ApplyColorMatrix([1], ColorMatrixFlag.Default)));
    }

    [Fact]
    public void Uneven_light_needs_the_adaptive_threshold()
    {
        // Dark text on a sheet that fades into the dark: no single threshold parts them.
        static bool IsForeground(int x, int y) => x % 10 == 5 && y % 10 < 6;
        static int Sheet(int x, int y) => 60 + x - (IsForeground(x, y) ? 45 : 0);
        int Wrong(Action<RasterImage> binarize)
        {
            using var image = Samples.Of(180, 60, (x, y) => Samples.Rgb(Sheet(x, y), Sheet(x, y), Sheet(x, y)));
            binarize(image);
            return Enumerable.Range(0, 180 * 60)
                .Count(i => (image.GetArgb32Pixel(i % 180, i / 180) == Black) != IsForeground(i % 180, i / 180));
        }

        Assert.InRange(Wrong(image => image.BinarizeBradley(15, 0.15)), 0, 100);
        Assert.InRange(Wrong(image => image.BinarizeOtsu()), 2000, int.MaxValue);
        using var two = Samples.Of(10, 10, (x, y) => x < 3 ? Samples.Rgb(40, 40, 40) : Samples.Rgb(90, 90, 90));
        two.BinarizeOtsu();
        Assert.Equal((Black, White), (two.GetArgb32Pixel(2, 0), two.GetArgb32Pixel(3, 0)));
    }

    [Fact]
    public void Filters_do_what_their_names_say()
    {
        RasterImage Apply(ImageFilterType type, int size, Func<int, int, int> pixel)
        {
            var image = Samples.Of(21, 21, pixel);
            image.Filter(type, size);
            return image;
        }

        static int Dot(int x, int y) => x == 10 && y == 10 ? Black : White;
        static int Edge(int x, int y) => x < 10 ? Samples.Rgb(50, 50, 50) : Samples.Rgb(150, 150, 150);
        Assert.Equal(White, Apply(ImageFilterType.Median, 3, Dot).GetArgb32Pixel(10, 10));
        Assert.Equal(255 * 8 / 9, Apply(ImageFilterType.Box, 3, Dot).GetPixel(9, 9).R, 1.0);
        Assert.InRange(Apply(ImageFilterType.Gaussian, 5, Dot).GetPixel(10, 10).R, 150, 250);
        Assert.InRange(Apply(ImageFilterType.Sharpen, 3, Edge).GetPixel(9, 10).R, 0, 45);
        RasterImage edges = Apply(ImageFilterType.Edges, 3, Edge);
        Assert.Equal((0, 255), (edges.GetPixel(3, 3).R, edges.GetPixel(10, 10).R));
        RasterImage relief = Apply(ImageFilterType.Emboss, 3, Edge);
        Assert.True(relief.GetPixel(9, 10).R > relief.GetPixel(3, 10).R);
        Assert.Throws<ArgumentOutOfRangeException>(() => Apply(ImageFilterType.Box, 4, Dot));
    }

    [Fact]
    public void Colours_are_converted_between_notations()
    {
        Assert.Equal(Color.FromArgb(0x44, 0x11, 0x22, 0x33), ColorTranslator.FromHtml("#11223344"));
        Assert.Equal("#ff6347", ColorTranslator.ToHtml(ColorTranslator.FromHtml("tomato")));
        Assert.Equal(ColorTranslator.FromHtml("#aabbcc"), ColorTranslator.FromHtml("#abc"));
        Assert.Equal(0x332211, ColorTranslator.ToWin32(Color.FromArgb(0x11, 0x22, 0x33)));
        Assert.Throws<FrameworkException>(() => ColorTranslator.FromHtml("#12345"));
        foreach (KnownColor known in Enum.GetValues<KnownColor>())
        {
            Assert.True(ColorTranslator.FromKnownColor(known).IsKnownColor, known.ToString());
        }

        Assert.Equal((27, 0), ((int)KnownColor.Transparent, ColorTranslator.FromKnownColor(KnownColor.Transparent).A));
        Assert.Equal(new CmykColor(0, 255, 255, 0), ColorTranslator.ToCmyk(Color.Red));
        Assert.Equal(Color.FromArgb(127, 0, 0), ColorTranslator.FromCmyk(new CmykColor(0, 255, 255, 128)));
        Assert.Equal(Color.White, new CmykColor().ToColor());
    }
}
