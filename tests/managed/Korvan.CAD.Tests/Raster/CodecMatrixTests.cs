using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Bmp;
using Korvan.CAD.FileFormats.Dicom;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.FileFormats.Jpeg2000;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Every way to write, at sizes that no block, byte or strip divides, read back pixel by pixel.</summary>
public class CodecMatrixTests
{
    private static readonly (int Width, int Height)[] Sizes =
        [(1, 1), (2, 3), (7, 1), (8, 2), (9, 3), (31, 5), (130, 2), (1, 40)];

    private static readonly Func<int, int>
        Same = pixel => pixel,
        OnWhite = pixel => Samples.Rgb(Over(pixel, 16), Over(pixel, 8), Over(pixel, 0)),
        Gray = pixel => Level(Luma(OnWhite(pixel)), 255),
        Gray4 = pixel => Level(Luma(OnWhite(pixel)), 15),
        OffPaper = pixel =>
            (pixel & Samples.Rgb(0, 0, 0)) | (Lifted(pixel, 16) << 16) | (Lifted(pixel, 8) << 8) | Lifted(pixel, 0),
        Bit = pixel => Luma(OnWhite(pixel)) >= 128 ? -1 : Samples.Rgb(0, 0, 0);

    private static readonly (
        string Name, Func<ImageOptionsBase> Options, Func<int, int> Meaning, int Most, string Contents)[] Ways =
        [.. All()];

    public static IEnumerable<object[]> Names => Ways.Select(way => new object[] { way.Name });

    [Theory]
    [MemberData(nameof(Names))]
    public void Pixels_round_trip(string name)
    {
        (_, Func<ImageOptionsBase> options, Func<int, int> meaning, int most, string contents) =
            Ways.Single(way => way.Name == name);
        foreach ((int width, int height) in Sizes)
        {
            int[] pixels = Contents(contents, width, height);
            using var image = Samples.Of(width, height, (x, y) => pixels[(y * width) + x]);
            using var stream = new MemoryStream();
            image.Save(stream, options());
            Assert.Equal(pixels, image.LoadArgb32Pixels(image.Bounds)); // saving changes nothing
            stream.Position = 0;
            using var back = (RasterCachedImage)Image.Load(stream);
            Assert.Equal((width, height, options().TargetFormat), (back.Width, back.Height, back.FileFormat));
            int[] read = back.LoadArgb32Pixels(back.Bounds);
            for (int i = 0; i < pixels.Length; i++)
            {
                int expected = meaning(pixels[i]);
                Assert.True(
                    Apart(expected, read[i]) <= most,
                    $"{name}, {width}x{height} at {i % width}, {i / width}: {expected:X8} became {read[i]:X8}");
            }
        }
    }

    // ImageMagick reads no palette of a PSD, and gives those of bitmaps an opacity that it never set.
    public static IEnumerable<object[]> Judged => Names.Where(static name =>
        !((string)name[0]).StartsWith("psd palette", StringComparison.Ordinal)
            && name[0] is not ("bmp 1" or "bmp 4" or "bmp 8" or "bmp 8 runs" or "bmp 8 no runs"));

    [Theory]
    [MemberData(nameof(Judged))]
    public void Another_program_reads_the_same_pixels(string name)
    {
        (_, Func<ImageOptionsBase> options, _, _, string contents) = Ways.Single(way => way.Name == name);
        int[] pixels = Contents(contents, 31, 5);
        using var image = Samples.Of(31, 5, (x, y) => pixels[(y * 31) + x]);
        string file =
            Samples.Save(image, options(), name.StartsWith("j2k", StringComparison.Ordinal)
            ? ".j2k" : Extensions[options().TargetFormat]);
        using RasterCachedImage back = Samples.Load(file);
        if (back.FileFormat == FileFormat.Psd)
        {
            // It takes a fourth channel as a mask of an image that is on white already.
            for (int i = 0; i < pixels.Length; i++)
            {
                back.SetArgb32Pixel(i % 31, i / 31, OnWhite(back.GetArgb32Pixel(i % 31, i / 31)));
            }
        }

        string shown = file;
        if (back.FileFormat == FileFormat.Dicom)
        {
            shown = Tools.TempFile(".pnm");
            Tools.Run("dcmj2pnm", "--write-raw-pnm", file, shown);
        }

        Assert.InRange(Samples.LargestDifference(back, shown, "[0]"), 0, 1);
        File.Delete(shown);
    }

    private static readonly Dictionary<FileFormat, string> Extensions = new()
    {
        [FileFormat.Bmp] = ".bmp",
        [FileFormat.Dicom] = ".dcm",
        [FileFormat.Gif] = ".gif",
        [FileFormat.Jpeg] = ".jpg",
        [FileFormat.Jpeg2000] = ".jp2",
        [FileFormat.Png] = ".png",
        [FileFormat.Psd] = ".psd",
        [FileFormat.Tiff] = ".tif",
        [FileFormat.Webp] = ".webp",
    };

    private static IEnumerable<(
        string Name, Func<ImageOptionsBase> Options, Func<int, int> Meaning, int Most, string Contents)> All()
    {
        foreach (PngFilterType filter in Enum.GetValues<PngFilterType>())
        {
            yield return ($"png {filter} rgba", () => new PngOptions { FilterType = filter }, Same, 0, "alpha");
            yield return (
                $"png {filter} rgb",
                () => new PngOptions { FilterType = filter, ColorType = PngColorType.Truecolor, CompressionLevel = 1 },
                OnWhite, 0, "alpha");
            yield return (
                $"png {filter} grey",
                () => new PngOptions { FilterType = filter, ColorType = PngColorType.Grayscale }, Gray, 1, "noise");
        }

        yield return (
            "png grey with opacity", () => new PngOptions { ColorType = PngColorType.GrayscaleWithAlpha },
            p => (p & Samples.Rgb(0, 0, 0)) | (Luma(p) * 0x010101), 1, "alpha");
        yield return ("png stored", () => new PngOptions { CompressionLevel = 0 }, Same, 0, "noise");
        yield return (
            "png grey 4", () => new PngOptions { ColorType = PngColorType.Grayscale, BitDepth = 4 }, Gray4, 0, "noise");
        yield return (
            "png grey 1", () => new PngOptions { ColorType = PngColorType.Grayscale, BitDepth = 1 }, Bit, 0, "noise");
        foreach (int bits in new[] { 1, 2, 4, 8 })
        {
            yield return (
                $"png palette {bits}",
                () => new PngOptions { ColorType = PngColorType.IndexedColor, BitDepth = bits }, Same, 0,
                    $"few {bits}");
        }

        foreach (int bits in new[] { 1, 4, 8 })
        {
            yield return ($"bmp {bits}", () => new BmpOptions { BitsPerPixel = bits }, Same, 0, $"few {bits}");
        }

        yield return (
            "bmp 8 runs",
            () => new BmpOptions { BitsPerPixel = 8, Compression = BitmapCompression.Rle8 }, Same, 0, "runs");
        yield return (
            "bmp 8 no runs",
            () => new BmpOptions { BitsPerPixel = 8, Compression = BitmapCompression.Rle8 }, Same, 0, "few 8");
        yield return ("bmp 24", () => new BmpOptions(), OnWhite, 0, "alpha");
        yield return ("bmp 32", () => new BmpOptions { BitsPerPixel = 32 }, Same, 0, "alpha");
        foreach (bool interlaced in new[] { false, true })
        {
            yield return ($"gif {interlaced}", () => new GifOptions { Interlaced = interlaced }, Same, 0, "few 8");
            yield return (
                $"gif two colours {interlaced}",
                () => new GifOptions { Interlaced = interlaced, MaxColors = 2 }, Same, 0, "few 1");
            yield return ($"gif runs {interlaced}", () => new GifOptions { Interlaced = interlaced }, Same, 0, "runs");
        }

        foreach (CompressionMethod method in new[] { CompressionMethod.Raw, CompressionMethod.Rle })
        {
            yield return (
                $"psd rgb {method}", () => new PsdOptions { CompressionMethod = method }, OffPaper, 1, "alpha");
            yield return (
                $"psd grey {method}",
                () => new PsdOptions { CompressionMethod = method, ColorMode = ColorModes.Grayscale }, Gray, 1,
                    "noise");
            yield return (
                $"psd inks {method}",
                () => new PsdOptions { CompressionMethod = method, ColorMode = ColorModes.Cmyk }, OnWhite, 1, "alpha");
            yield return (
                $"psd palette {method}",
                () => new PsdOptions { CompressionMethod = method, ColorMode = ColorModes.Indexed }, Same, 0, "few 8");
            yield return ($"psd runs {method}", () => new PsdOptions { CompressionMethod = method }, Same, 0, "runs");
        }

        yield return ("webp", () => new WebPOptions(), p => p, 0, "noise");
        yield return ("webp opacity", () => new WebPOptions(), p => (p >>> 24) == 0 ? 0 : p, 0, "alpha");
        yield return ("jp2", () => new Jpeg2000Options(), Same, 0, "alpha");
        yield return ("j2k", () => new Jpeg2000Options { Codec = Jpeg2000Codec.J2K }, Same, 0, "noise");
        yield return (
            "jpeg grey",
            () => new JpegOptions { Quality = 100, ColorType = JpegCompressionColorMode.Grayscale }, Gray, 4, "noise");
        foreach (JpegCompressionMode mode in Enum.GetValues<JpegCompressionMode>())
        {
            yield return (
                $"jpeg {mode}", () => new JpegOptions { Quality = 100, CompressionType = mode }, OnWhite, 6, "flat");
            yield return (
                $"jpeg inks of luma {mode}",
                () => new JpegOptions
                {
                    Quality = 100,
                    CompressionType = mode,
                    ColorType = JpegCompressionColorMode.Ycck,
                },
                OnWhite, 8, "flat");
        }

        foreach (CompressionType compression in new[] { CompressionType.None, CompressionType.Rle })
        {
            yield return (
                $"dicom {compression}",
                () => new DicomOptions { Compression = new Compression(compression) }, OnWhite, 0, "alpha");
            yield return (
                $"dicom grey {compression}",
                () => new DicomOptions
                {
                    ColorType = ColorType.Grayscale8Bit,
                    Compression = new Compression(compression),
                },
                Gray, 1, "noise");
            yield return (
                $"dicom runs {compression}",
                () => new DicomOptions { Compression = new Compression(compression) }, Same, 0, "runs");
        }

        foreach (TiffExpectedFormat format in Enum.GetValues<TiffExpectedFormat>())
        {
            string name = format.ToString();
            bool lossy = name.Contains("Jpeg", StringComparison.Ordinal);
            (Func<int, int> meaning, string contents) = name switch
            {
                _ when lossy => (name.EndsWith("Gray", StringComparison.Ordinal) ? Gray : OnWhite, "flat"),
                _ when name.EndsWith("Rgba", StringComparison.Ordinal) => (Same, "alpha"),
                _ when name.EndsWith("Gray", StringComparison.Ordinal) => (Gray, "noise"),
                _ when name.EndsWith("Bw", StringComparison.Ordinal)
                    || name.Contains("Ccitt", StringComparison.Ordinal) => (Bit, "noise"),
                _ when name.EndsWith("Palette", StringComparison.Ordinal) => (Same, "few 8"),
                _ => (OnWhite, "alpha"),
            };
            int most = lossy ? 6 : meaning == Gray ? 1 : 0;
            foreach (TiffByteOrder order in Enum.GetValues<TiffByteOrder>())
            {
                TiffOptions Make(int rows) => new(format) { ByteOrder = order, RowsPerStrip = rows };
                yield return ($"tiff {name} {order}", () => Make(0), meaning, most, contents);
                if (!lossy)
                {
                    yield return ($"tiff {name} {order}, strips", () => Make(2), meaning, most, contents);
                    yield return ($"tiff {name} {order}, runs", () => Make(0), meaning == Bit
                        ? Bit : meaning == Gray ? Gray : Same, most, "runs");
                }
            }
        }

        yield return (
            "tiff grey 4",
            () => Unpredicted(TiffPhotometrics.MinIsBlack, 4), Gray4, 1, "noise");
        yield return (
            "tiff grey of white",
            () => new TiffOptions { Photometric = TiffPhotometrics.MinIsWhite, BitsPerSample = [8] }, Gray, 1, "noise");
        yield return (
            "tiff palette 4",
            () => Unpredicted(TiffPhotometrics.Palette, 4), Same, 0, "few 4");
        yield return (
            "tiff palette 1",
            () => Unpredicted(TiffPhotometrics.Palette, 1), Same, 0, "few 1");
        yield return (
            "tiff fax low bit first",
            () => new TiffOptions(TiffExpectedFormat.TiffCcittFax4) { FillOrder = TiffFillOrders.Lsb2Msb },
            Bit, 0, "noise");
        yield return (
            "tiff fax 2d",
            () => new TiffOptions(TiffExpectedFormat.TiffCcittFax3)
            {
                FaxT4Options = Group3Options.TwoDimensional | Group3Options.FillBits,
            },
            Bit, 0, "noise");
        yield return (
            "tiff multiplied",
            () => new TiffOptions(TiffExpectedFormat.TiffLzwRgba) { AlphaStorage = TiffAlphaStorage.Associated },
            Same, 2, "opaque enough");
        yield return (
            "tiff inks",
            () => new TiffOptions { Photometric = TiffPhotometrics.Separated, BitsPerSample = [8, 8, 8, 8] },
            OnWhite, 2,
            "noise");
    }

    private static TiffOptions Unpredicted(TiffPhotometrics photometric, int bits) => new()
    {
        Photometric = photometric,
        BitsPerSample = [bits],
        Predictor = TiffPredictor.None,
    };

    [Fact]
    public void Palettes_have_the_requested_size_and_find_the_nearest_colour()
    {
        using var image = Samples.Colors(90, 70);
        foreach (ColorQuantizationMethod method in Enum.GetValues<ColorQuantizationMethod>())
        {
            foreach (int count in new[] { 2, 3, 4, 5, 7, 8, 9, 16, 27, 100, 255, 256 })
            {
                int[] entries = ColorPaletteHelper.GetCloseImagePalette(image, count, method).Argb32Entries;
                Assert.True(
                    entries.Length <= count && entries.Length > count / 3, $"{method}: {entries.Length} of {count}");
                Assert.All(entries, entry => Assert.Equal(255, entry >>> 24));
            }
        }

        var random = new Random(3);
        foreach (ColorCompareMethod measure in Enum.GetValues<ColorCompareMethod>())
        {
            int[] entries = [.. Enumerable.Range(0, 40).Select(_ => random.Next(1 << 24) | Samples.Rgb(0, 0, 0))];
            var palette = new ColorPalette(entries) { CompareMethod = measure };
            for (int i = 0; i < 3000; i++)
            {
                int color = random.Next(1 << 24) | Samples.Rgb(0, 0, 0);
                double least = entries.Min(entry => Distance(measure, color, entry));
                double found = Distance(measure, color, entries[palette.GetNearestColorIndex(color)]);
                Assert.True(found <= least + 2.01, $"{measure}: {color:X8} at {found}, not {least}");
            }

            if (measure != ColorCompareMethod.Luminance) // where many colours are as light
            {
                Assert.All(
                    entries, entry => Assert.Equal(entry, palette.GetArgb32Color(palette.GetNearestColorIndex(entry))));
            }
        }
    }

    [Fact]
    public void Predefined_palettes_have_the_named_colours()
    {
        Assert.Equal(
            Enumerable.Range(0, 256).Select(i => Level(i, 255)),
            ColorPaletteHelper.Create8BitGrayscale().Argb32Entries);
        Assert.Equal(
            Enumerable.Range(0, 16).Select(i => Level(i * 17, 255)),
            ColorPaletteHelper.Create4BitGrayscale().Argb32Entries);
        for (int count = 2; count <= 256; count++)
        {
            IColorPalette palette = ColorPaletteHelper.GetUniformColorPalette(count);
            Assert.InRange(palette.EntriesCount, (count / 2) + 1, count);
            Assert.True(palette.IsCompactPalette);
        }

        int[] given = [1, 2, 3];
        var own = new ColorPalette(given);
        given[0] = own.Argb32Entries[1] = 99;
        Assert.Equal([1, 2, 3], own.Argb32Entries);
        Assert.Throws<ArgumentOutOfRangeException>(() => own.GetColor(3));
        Assert.Throws<ArgumentOutOfRangeException>(() => own.GetArgb32Color(-1));
        Assert.True(ColorPaletteHelper.HasTransparentColors(own));
        Assert.False(new ColorPalette([5, 5]).IsCompactPalette);
        Assert.Throws<ArgumentException>(() => new ColorPalette(new int[65537]));
    }

    [Fact]
    public void A_palette_is_made_for_an_image_with_transparent_pixels()
    {
        // One entry stays for what is invisible, whatever the method.
        using var image = Samples.Of(64, 64, (x, y) => x < 4 ? Samples.Rgb(y, 0, 0, 0) : Samples.Rgb(x * 4, y * 4, 0));
        foreach (ColorQuantizationMethod method in Enum.GetValues<ColorQuantizationMethod>())
        {
            int[] entries = ColorPaletteHelper.GetCloseImagePalette(image, 12, method).Argb32Entries;
            Assert.InRange(entries.Length, 5, 12);
            Assert.Single(entries, entry => (entry >>> 24) == 0);
        }

        image.Resize(32, 32, new ImageResizeSettings { Mode = ResizeType.NearestNeighbour, EntriesCount = 5 });
        Assert.InRange(image.LoadArgb32Pixels(image.Bounds).Distinct().Count(), 2, 5);
        Assert.Equal((0, 255), (image.GetPixel(0, 9).A, image.GetPixel(9, 9).A));
        Assert.Throws<ArgumentOutOfRangeException>(() => new ImageResizeSettings { EntriesCount = 1 });
        Assert.Throws<ImageSaveException>(
            () => image.Dither(DitheringMethod.Threshold, 1, ColorPaletteHelper.Create4Bit()));
    }

    private static int[] Contents(string kind, int width, int height)
    {
        var random = new Random((width * 31) + height);
        int count = width * height;
        int Opaque() => random.Next(1 << 24) | Samples.Rgb(0, 0, 0);
        string[] parts = kind.Split(' ');
        if (parts[0] == "few")
        {
            int[] colors = [.. Enumerable.Range(0, 1 << int.Parse(parts[1])).Select(_ => Opaque())];
            return [.. Enumerable.Range(0, count).Select(_ => colors[random.Next(colors.Length)])];
        }

        return kind switch
        {
            "noise" => [.. Enumerable.Range(0, count).Select(_ => Opaque())],
            "alpha" => [.. Enumerable.Range(0, count).Select(_ => random.Next(int.MinValue, int.MaxValue))],
            "opaque enough" =>
                [.. Enumerable.Range(0, count).Select(_ => Opaque() & 0x00FFFFFF | (random.Next(160, 256) << 24))],
            "runs" =>
                [.. Enumerable.Range(0, count)
                .Select(i => i % 3 == 0
                ? Samples.Rgb(9, 9, 9) : i / 3 % 5 < 4 ? Samples.Rgb(9, 9, 9) : Samples.Rgb(240, 200, 190))],
            _ => [.. Enumerable.Repeat(Samples.Rgb(180, 90, 30), count)],
        };
    }

    private static double Distance(ColorCompareMethod measure, int one, int other)
    {
        int Part(int color, int shift) => (color >> shift) & 255;
        double r = Part(one, 16) - Part(other, 16), g = Part(one, 8) - Part(other, 8),
            b = Part(one, 0) - Part(other, 0);
        double red = (Part(one, 16) + Part(other, 16)) / 2.0;
        return measure switch
        {
            ColorCompareMethod.Luminance => Math.Abs((0.299 * r) + (0.587 * g) + (0.114 * b)),
            ColorCompareMethod.Weighted =>
                ((2 + (red / 256)) * r * r) + (4 * g * g) + ((2 + ((767 - 512 - red + 0) / 256)) * b * b),
            _ => (r * r) + (g * g) + (b * b),
        };
    }

    private static int Over(int pixel, int shift) =>
        (int)Math.Floor(((((pixel >> shift) & 255) * (pixel >>> 24)) + (255.0 * (255 - (pixel >>> 24))) + 127) / 255);

    // What can be told of a colour that was laid on white.
    private static int Lifted(int pixel, int shift) =>
        (pixel >>> 24) == 0
            ? 255 : (int)Math.Clamp(255 - Math.Round((255 - Over(pixel, shift)) * 255.0 / (pixel >>> 24)), 0, 255);

    private static int Luma(int pixel) =>
        (int)Math.Round((0.299 * ((pixel >> 16) & 255)) + (0.587 * ((pixel >> 8) & 255)) + (0.114 * (pixel & 255)));

    private static int Level(int luma, int steps)
    {
        int level = (int)Math.Round(luma * steps / 255.0) * 255 / steps;
        return Samples.Rgb(level, level, level);
    }

    private static int Apart(int one, int other) =>
        new[] { 0, 8, 16, 24 }.Max(shift => Math.Abs(((one >> shift) & 255) - ((other >> shift) & 255)));
}
