using System;
using System.Collections.Generic;
using System.Linq;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Operations on pixels against values that are worked out here, by other means.</summary>
public class ArithmeticTests
{
    private const int White = -1;
    private const int Black = unchecked((int)0xFF000000);

    private static readonly ResizeType[] Scaling =
    [
        ResizeType.Box, ResizeType.Bilinear, ResizeType.Bell, ResizeType.Hermite, ResizeType.CubicBSpline,
            ResizeType.CatmullRom,
        ResizeType.Mitchell, ResizeType.Lanczos, ResizeType.Adaptive,
    ];

    // The kernels as they stand in textbooks: what an impulse spreads to at a distance from the pixel.
    private static readonly Dictionary<ResizeType, (double Support, Func<double, double> Shape)> Kernels = new()
    {
        [ResizeType.Bilinear] = (1, d => 1 - d),
        [ResizeType.Hermite] = (1, d => (2 * d * d * d) - (3 * d * d) + 1),
        [ResizeType.Bell] = (1.5, d => d < 0.5 ? 0.75 - (d * d) : Math.Pow(1.5 - d, 2) / 2),
        [ResizeType.CubicBSpline] = (2, d => d < 1 ? (4 - (6 * d * d) + (3 * d * d * d)) / 6 : Math.Pow(2 - d, 3) / 6),
        [ResizeType.CatmullRom] =
            (2, d => d < 1 ? (1.5 * d * d * d) - (2.5 * d * d) + 1 : (-0.5 * d * d * d) + (2.5 * d * d) - (4 * d) + 2),
        [ResizeType.Lanczos] =
            (3, d => d == 0
            ? 1 : Math.Sin(Math.PI * d) / (Math.PI * d) * Math.Sin(Math.PI * d / 3) / (Math.PI * d / 3)),
    };

    public static IEnumerable<object[]> KernelNames => Kernels.Keys.Select(type => new object[] { type });

    [Theory]
    [MemberData(nameof(KernelNames))]
    public void An_impulse_spreads_by_the_kernel(ResizeType type)
    {
        // A grey ground, so that negative lobes show, and a width whose kernels meet no edge near the impulse.
        const int ground = 100, peak = 200, at = 20, times = 4;
        using var image = Samples.Of(41, 1, (x, _) => Gray(x == at ? peak : ground));
        image.Resize(41 * times, 1, type);
        (double support, Func<double, double> shape) = Kernels[type];
        for (int x = 40; x < 124; x++)
        {
            double place = ((x + 0.5) / times) - 0.5;
            double Weight(int pixel) => Math.Abs(pixel - place) < support ? shape(Math.Abs(pixel - place)) : 0;
            double all = Enumerable.Range(0, 41).Sum(Weight);
            double expected = ground + ((peak - ground) * Weight(at) / all);
            Assert.InRange(image.GetPixel(x, 0).R, expected - 0.6, expected + 0.6);
        }
    }

    [Fact]
    public void Scaling_keeps_constants_and_the_mean()
    {
        foreach (ResizeType type in Scaling)
        {
            // One colour stays that colour at every size, its opacity too.
            foreach ((int width, int height) in new[] { (1, 1), (3, 50), (16, 12), (17, 13), (200, 1) })
            {
                using var flat = Samples.Of(16, 12, (_, _) => Samples.Rgb(201, 3, 77, 130));
                flat.Resize(width, height, type);
                Assert.Equal((width, height), (flat.Width, flat.Height));
                foreach (Color color in flat.LoadPixels(flat.Bounds))
                {
                    Assert.True(Near(color, Color.FromArgb(130, 201, 3, 77), 1), $"{type} {width}x{height}: {color}");
                }
            }

            // A linear gradient stays one away from the edges.
            using var ramp = Samples.Of(64, 2, (x, _) => Gray(2 * x));
            ramp.Resize(160, 2, type);
            if (type is not (ResizeType.Box or ResizeType.Hermite))
            {
                for (int x = 20; x < 140; x++)
                {
                    Assert.InRange(
                        ramp.GetPixel(x, 1).G, (2 * (((x + 0.5) * 0.4) - 0.5)) - 1.1,
                        (2 * (((x + 0.5) * 0.4) - 0.5)) + 1.1);
                }
            }

            // What is invisible has no colour that could bleed.
            using var ghost = Samples.Of(12, 12, (x, _) => x < 6 ? Samples.Rgb(255, 0, 0) : Samples.Rgb(0, 255, 0, 0));
            ghost.Resize(31, 7, type);
            Assert.All(
                ghost.LoadPixels(ghost.Bounds).Where(c => c.A > 0),
                c => Assert.True(Near(c, Color.FromArgb(c.A, 255, 0, 0), 1), $"{type}: {c}"));
        }
    }

    [Fact]
    public void Interpolating_kernels_change_nothing_at_the_same_size()
    {
        ResizeType[] exact =
            [ResizeType.NearestNeighbour, ResizeType.Box, ResizeType.Bilinear, ResizeType.Hermite,
                ResizeType.CatmullRom, ResizeType.Lanczos, ResizeType.Adaptive];
        foreach (ResizeType type in exact)
        {
            using var image = Noise(13, 9, opaque: false);
            int[] before = image.LoadArgb32Pixels(image.Bounds);
            image.Resize(13, 9, type);
            Assert.Equal(before.Select(Visible), image.LoadArgb32Pixels(image.Bounds).Select(Visible));
        }
    }

    [Theory]
    [InlineData(8, 4, 2)]
    [InlineData(9, 3, 3)]
    [InlineData(30, 6, 5)]
    public void A_box_is_the_mean_of_its_pixels(int from, int to, int block)
    {
        using var image = Noise(from, from);
        int[] before = image.LoadArgb32Pixels(image.Bounds);
        image.Resize(to, to, ResizeType.Box);
        for (int i = 0; i < to * to; i++)
        {
            double mean = Enumerable.Range(0, block * block).Average(k =>
                before[((((i / to) * block) + (k / block)) * from) + ((i % to) * block) + (k % block)] & 255);
            Assert.InRange(image.GetPixel(i % to, i / to).B, mean - 0.51, mean + 0.51);
        }
    }

    public static IEnumerable<object[]> RotationNames =>
        Enum.GetNames<RotateFlipType>().Select(name => new object[] { name });

    [Theory]
    [MemberData(nameof(RotationNames))]
    public void Rotations_and_flips_move_each_pixel_as_named(string name)
    {
        using var image = Noise(7, 5);
        int[] before = image.LoadArgb32Pixels(image.Bounds);
        image.SetResolution(300, 150);
        image.RotateFlip(Enum.Parse<RotateFlipType>(name));

        // The name states the rotation and then the flips; each maps positions.
        int quarters = name.StartsWith("RotateNone", StringComparison.Ordinal)
            ? 0 : int.Parse(name[6..name.IndexOf('F')]) / 90;
        string mirror = name[(name.IndexOf("Flip", StringComparison.Ordinal) + 4)..];
        for (int i = 0; i < before.Length; i++)
        {
            (int x, int y, int width, int height) = (i % 7, i / 7, 7, 5);
            for (int k = 0; k < quarters; k++)
            {
                (x, y, width, height) = (height - 1 - y, x, height, width);
            }

            x = mirror.Contains('X') ? width - 1 - x : x;
            y = mirror.Contains('Y') ? height - 1 - y : y;
            Assert.Equal(before[i], image.GetArgb32Pixel(x, y));
        }

        Assert.Equal(quarters % 2 == 0
            ? (300.0, 150.0) : (150.0, 300.0), (image.HorizontalResolution, image.VerticalResolution));
    }

    [Theory]
    [InlineData(0, RotateFlipType.RotateNoneFlipNone)]
    [InlineData(90, RotateFlipType.Rotate90FlipNone)]
    [InlineData(-90, RotateFlipType.Rotate270FlipNone)]
    [InlineData(180, RotateFlipType.Rotate180FlipNone)]
    [InlineData(270, RotateFlipType.Rotate270FlipNone)]
    [InlineData(360, RotateFlipType.RotateNoneFlipNone)]
    [InlineData(-720, RotateFlipType.RotateNoneFlipNone)]
    public void Rotation_by_multiples_of_90_degrees_is_exact(float angle, RotateFlipType same)
    {
        foreach ((int width, int height) in new[] { (7, 5), (8, 8), (1, 6), (40, 33) })
        {
            using var image = Noise(width, height);
            using var other = Noise(width, height);
            image.Rotate(angle);
            other.RotateFlip(same);
            Assert.Equal((other.Width, other.Height), (image.Width, image.Height));
            Assert.Equal(other.LoadArgb32Pixels(other.Bounds), image.LoadArgb32Pixels(image.Bounds));
        }
    }

    [Fact]
    public void Rotation_and_blur_ignore_the_colour_of_transparent_pixels()
    {
        using var rotated = Samples.Of(40, 30, (_, _) => Samples.Rgb(250, 20, 10));
        rotated.Rotate(30);
        Assert.Equal((50, 46), (rotated.Width, rotated.Height));
        Color[] seen = [.. rotated.LoadPixels(rotated.Bounds).Where(c => c.A > 0)];
        Assert.All(seen, c => Assert.True(c.A < 8 || Near(c, Color.FromArgb(c.A, 250, 20, 10), 2), c.ToString()));
        Assert.InRange(seen.Sum(c => c.A / 255.0), 1200 - 20, 1200 + 20); // the area stays
        foreach (ImageFilterType filter in new[] { ImageFilterType.Box, ImageFilterType.Gaussian })
        {
            using var blurred =
                Samples.Of(20, 5, (x, _) => x < 10 ? Samples.Rgb(250, 20, 10) : Samples.Rgb(0, 255, 0, 0));
            blurred.Filter(filter, 5);
            Assert.InRange(blurred.GetPixel(10, 2).A, 60, 127);
            Assert.All(
                blurred.LoadPixels(blurred.Bounds).Where(c => c.A > 20),
                c => Assert.True(Near(c, Color.FromArgb(c.A, 250, 20, 10), 3), c.ToString()));
        }
    }

    [Fact]
    public void Undefined_enum_values_are_rejected()
    {
        using var image = Noise(4, 4);
        Action[] calls =
        [
            () => image.RotateFlip((RotateFlipType)8), () => image.RotateFlip((RotateFlipType)(-1)),
            () => image.Resize(2, 2, (ResizeType)77),
            () => image.Dither((DitheringMethod)77, 1), () => image.Filter((ImageFilterType)77, 3),
            () => image.Rotate(float.NaN),
            () => image.AdjustBrightness(256), () => image.AdjustContrast(float.NaN),
            () => image.AdjustGamma(1, float.PositiveInfinity, 1),
            () => image.Dither(DitheringMethod.Ordered, 0), () => image.Dither(DitheringMethod.Ordered, 9),
            () => image.Filter(ImageFilterType.Box, 103),
            () => image.BinarizeBradley(2, 0.1), () => image.BinarizeBradley(5, 1.1),
            () => image.SetResolution(0, 1), () => image.SetResolution(1, double.NaN),
            () => image.Crop(1, 3, 0, 0), () => image.Crop(-1, 0, 0, 0), () => image.Crop(int.MinValue, 0, 0, 0),
            () => image.Resize(-1, 4),
            () => ColorPaletteHelper.GetCloseImagePalette(image, 1),
            () => ColorPaletteHelper.GetUniformColorPalette(257),
            () => image.ApplyColorMatrix(new float[25], (ColorMatrixFlag)77),
            () => ColorPaletteHelper.GetCloseImagePalette(image, 4, (ColorQuantizationMethod)77),
        ];
        int[] before = image.LoadArgb32Pixels(image.Bounds);
        for (int i = 0; i < calls.Length; i++)
        {
            Exception? e = Record.Exception(calls[i]);
            Assert.True(e is ArgumentException, $"call {i}: {e?.GetType().Name ?? "nothing was refused"}");
        }

        Assert.Equal(before, image.LoadArgb32Pixels(image.Bounds));
    }

    [Theory]
    [InlineData(DitheringMethod.Ordered)]
    [InlineData(DitheringMethod.FloydSteinberg)]
    [InlineData(DitheringMethod.JarvisJudiceNinke)]
    public void Dithering_conserves_the_mean_of_every_gray(DitheringMethod method)
    {
        for (int level = 0; level <= 255; level += 15)
        {
            using var image = Samples.Of(64, 64, (_, _) => Gray(level));
            image.Dither(method, 1);
            double mean = image.LoadPixels(image.Bounds).Average(c => c.R);
            Assert.InRange(mean, level - 4, level + 4);
        }

        // With the colours of the palette itself there is nothing to spread.
        var palette = (ColorPalette)ColorPaletteHelper.Create4Bit();
        using var exact = Samples.Of(20, 20, (x, y) => palette.GetArgb32Color((x + (3 * y)) % 16));
        int[] before = exact.LoadArgb32Pixels(exact.Bounds);
        exact.Dither(method, 4, palette);
        Assert.Equal(before, exact.LoadArgb32Pixels(exact.Bounds));
    }

    [Fact]
    public void The_otsu_threshold_of_a_bimodal_histogram_is_optimal()
    {
        var random = new Random(7);
        (int, int, int)[] histograms = [(40, 200, 50), (10, 60, 80), (120, 140, 50), (0, 255, 5), (90, 220, 20)];
        foreach ((int low, int high, int share) in histograms)
        {
            var levels = new int[60 * 60];
            for (int i = 0; i < levels.Length; i++)
            {
                int middle = random.Next(100) < share ? low : high;
                levels[i] = Math.Clamp(middle + random.Next(-8, 9), 0, 255);
            }

            using var image = Samples.Of(60, 60, (x, y) => Gray(levels[(y * 60) + x]));
            image.BinarizeOtsu();
            int Between(int threshold)
            {
                int[] dark = [.. levels.Where(l => l < threshold)], light = [.. levels.Where(l => l >= threshold)];
                return dark.Length == 0 || light.Length == 0
                    ? 0 : (int)(dark.Length / 3600.0 * light.Length * Math.Pow(dark.Average() - light.Average(), 2));
            }

            int found = Enumerable.Range(0, levels.Length).Where(i => image.GetArgb32Pixel(i % 60, i / 60) == White)
                .Min(i => levels[i]);
            Assert.InRange(Between(found), Enumerable.Range(1, 255).Max(Between) - 1, int.MaxValue);
            Assert.All(
                Enumerable.Range(0, levels.Length),
                i => Assert.Equal(levels[i] >= found ? White : Black, image.GetArgb32Pixel(i % 60, i / 60)));
        }
    }

    [Theory]
    [InlineData(3, 0.0)]
    [InlineData(7, 0.15)]
    [InlineData(99, 0.3)]
    public void Adaptive_thresholds_compare_with_the_mean_of_the_window(int window, double share)
    {
        using var image = Noise(23, 17);
        image.Grayscale();
        int[] levels = [.. image.LoadPixels(image.Bounds).Select(c => (int)c.R)];
        image.BinarizeBradley(window, share);
        int half = window / 2;
        for (int i = 0; i < levels.Length; i++)
        {
            (int x, int y) = (i % 23, i / 23);
            double mean = Enumerable.Range(0, levels.Length)
                .Where(k => Math.Abs((k % 23) - x) <= half && Math.Abs((k / 23) - y) <= half).Average(k => levels[k]);
            if (Math.Abs(levels[i] - (mean * (1 - share))) > 1e-6)
            {
                Assert.Equal(levels[i] > mean * (1 - share) ? White : Black, image.GetArgb32Pixel(x, y));
            }
        }
    }

    [Fact]
    public void Thresholds_and_grays_follow_the_luma_weights()
    {
        using var image = Noise(40, 40);
        Color[] before = image.LoadPixels(image.Bounds);
        image.Grayscale();
        for (int i = 0; i < before.Length; i++)
        {
            double luma = (0.299 * before[i].R) + (0.587 * before[i].G) + (0.114 * before[i].B);
            Color gray = image.GetPixel(i % 40, i / 40);
            Assert.InRange(gray.R, luma - 0.51, luma + 0.51);
            Assert.Equal((gray.R, gray.R, before[i].A), (gray.G, gray.B, gray.A));
        }

        using var steps = Samples.Of(256, 1, (x, _) => Gray(x));
        foreach (byte threshold in new byte[] { 0, 1, 128, 255 })
        {
            using var cut = Samples.Of(256, 1, (x, _) => Gray(x));
            cut.BinarizeFixed(threshold);
            Assert.Equal(256 - threshold, cut.LoadArgb32Pixels(cut.Bounds).Count(p => p == White));
        }
    }

    [Fact]
    public void Medians_are_the_middle_of_the_sorted_window()
    {
        using var image = Noise(11, 8);
        Color[] before = image.LoadPixels(image.Bounds);
        image.Filter(ImageFilterType.Median, 5);
        for (int i = 0; i < before.Length; i++)
        {
            int[] around = [.. Enumerable.Range(0, 25).Select(k =>
                (int)before[
                    (Math.Clamp((i / 11) + (k / 5) - 2, 0, 7) * 11) + Math.Clamp((i % 11) + (k % 5) - 2, 0, 10)].G)
                    .Order()];
            Assert.Equal(around[12], image.GetPixel(i % 11, i / 11).G);
        }
    }

    [Fact]
    public void Cmyk_colours_round_trip()
    {
        for (int i = 0; i < 4096; i++)
        {
            Color color = Color.FromArgb((i & 15) * 17, ((i >> 4) & 15) * 17, (i >> 8) * 17);
            CmykColor inks = CmykColor.FromColor(color);
            Assert.Equal(255 - Math.Max(color.R, Math.Max(color.G, color.B)), inks.K);
            Assert.Equal(0, inks.K == 255 ? inks.C : Math.Min(inks.C, Math.Min(inks.M, inks.Y)));
            Assert.True(Near(color, inks.ToColor(), 1), $"{color} is {inks} is {inks.ToColor()}");
            Assert.Equal(color, ColorTranslator.FromHtml(ColorTranslator.ToHtml(color)));
            Assert.Equal(color, ColorTranslator.FromWin32(ColorTranslator.ToWin32(color)));
        }

        Assert.Equal(CmykColor.FromColor(Color.Teal), new CmykColor(255, 0, 0, 127));
        Assert.Throws<ArgumentOutOfRangeException>(() => new CmykColor(0, 256, 0, 0));
    }

    private static int Gray(int level) => Samples.Rgb(level, level, level);

    private static int Visible(int argb) => (argb >>> 24) == 0 ? 0 : argb;

    private static bool Near(Color one, Color other, int most) =>
        new[] { one.A - other.A, one.R - other.R, one.G - other.G, one.B - other.B }.All(d => Math.Abs(d) <= most);

    private static Korvan.CAD.RasterImage Noise(int width, int height, bool opaque = true)
    {
        var random = new Random((width * 100) + height);
        return Samples.Of(width, height, (_, _) => opaque
            ? random.Next(1 << 24) | Black : random.Next(int.MinValue, int.MaxValue));
    }
}
