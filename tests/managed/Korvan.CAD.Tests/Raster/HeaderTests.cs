using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Files put together byte by byte: rare variants that no available writer makes, and wrong headers.</summary>
public class HeaderTests
{
    private const int Red = unchecked((int)0xFFFF0000);
    private const int Green = unchecked((int)0xFF00FF00);
    private const int Blue = unchecked((int)0xFF0000FF);
    private const int Black = unchecked((int)0xFF000000);

    public static IEnumerable<object[]> Bitmaps =>
    [
        ["top down", Bmp(2, -2, 24, 0, [0, 0, 255, 0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0]),
            new[] { Red, Green, Blue, Black }],
        ["bottom up", Bmp(2, 2, 24, 0, [0, 0, 255, 0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0]),
            new[] { Blue, Black, Red, Green }],
        ["no padding at the end", Bmp(1, 2, 24, 0, [0, 0, 255, 0, 0, 255, 0]), new[] { Green, Red }],
        ["five bits each", Bmp(2, 1, 16, 0, [0x00, 0x7C, 0xE0, 0x03]), new[] { Red, Green }],
        ["masks of 565", Bmp(2, 1, 16, 3, [.. Masks(0xF800, 0x07E0, 0x1F), 0x00, 0xF8, 0xE0, 0x07]),
            new[] { Red, Green }],
        ["levels of 32", Bmp(2, 1, 16, 0, [22, 0, 28, 0]), new[] { Samples.Rgb(0, 0, 181), Samples.Rgb(0, 0, 230) }],
        ["masks of 444", Bmp(2, 1, 16, 3, [.. Masks(0xF00, 0xF0, 0xF), 0x80, 0x08, 0x0F, 0x00]),
            new[] { Samples.Rgb(136, 136, 0), Blue }],
        ["masks the other way round", Bmp(1, 1, 32, 3, [.. Masks(0xFF, 0xFF00, 0xFF0000), 255, 0, 0, 0]),
            new[] { Red }],
        ["masks of ten bits", Bmp(1, 1, 32, 3, [.. Masks(0x3FF00000, 0xFFC00, 0x3FF), 0, 0, 0xF0, 0x3F]),
            new[] { Red }],
        ["opacity by mask",
            Bmp(2, 1, 32, 6, [.. Masks(0xFF0000, 0xFF00, 0xFF, 0xFF000000), 0, 0, 255, 128, 0, 255, 0, 0]),
            new[] { Samples.Rgb(255, 0, 0, 128), Samples.Rgb(0, 255, 0, 0) }],
        ["a fourth byte that is unused", Bmp(2, 1, 32, 0, [0, 0, 255, 0, 0, 255, 0, 0]), new[] { Red, Green }],
        ["two bits", Bmp(5, 1, 2, 0, [.. Palette(Red, Green, Blue, Black), 0b00011011, 0b01000000, 0, 0]),
            new[] { Red, Green, Blue, Black, Green }],
        ["one bit", Bmp(9, 1, 1, 0, [.. Palette(Red, Blue), 0b01010101, 0b10000000, 0, 0]),
            new[] { Red, Blue, Red, Blue, Red, Blue, Red, Blue, Blue }],
        ["a number past the palette", Bmp(2, 1, 8, 0, [.. Palette(Red, Green), 1, 200, 0, 0], 2),
            new[] { Green, Black }],
        ["runs, a row cut short, a jump",
            Bmp(4, 3, 8, 1, [.. Palette(Red, Green, Blue), 2, 1, 0, 0, 0, 2, 1, 1, 2, 2, 0, 1], 3),
            new[] { Red, Blue, Blue, Red, Red, Red, Red, Red, Green, Green, Red, Red }, "jump"],
        ["plain bytes among runs", Bmp(5, 1, 8, 1, [.. Palette(Red, Green, Blue), 0, 3, 0, 1, 2, 0, 2, 1, 0, 1], 3),
            new[] { Red, Green, Blue, Green, Green }],
        ["runs of half bytes", Bmp(6, 1, 4, 2, [.. Palette(Red, Green, Blue), 3, 0x12, 0, 3, 0x01, 0x20, 0, 1], 3),
            new[] { Green, Blue, Green, Red, Green, Blue }],
        ["the oldest header",
            (byte[])[
            .. "BM"u8, 38, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0, 0, 12, 0, 0, 0, 2, 0, 1, 0, 1, 0, 1, 0, 0, 0, 255, 255, 0, 0,
            0b01000000, 0, 0, 0],
            new[] { Red, Blue }],
    ];

    [Theory]
    [MemberData(nameof(Bitmaps))]
    public void Bitmaps_of_every_form_are_read(string what, byte[] data, int[] expected, string note = "")
    {
        using var image = (RasterCachedImage)Image.Load(new MemoryStream(data));
        int[] pixels = image.LoadArgb32Pixels(image.Bounds);
        if (note == "jump")
        {
            // The jump is one right and one up from where the second row begins.
            Assert.Equal(expected, pixels);
        }

        Assert.True(
            expected.SequenceEqual(pixels), $"{what}: {string.Join(' ', pixels.Select(p => p.ToString("X8")))}");
    }

    [Theory]
    [InlineData(0, 1)]
    [InlineData(0, 2)]
    [InlineData(0, 4)]
    [InlineData(0, 8)]
    [InlineData(0, 16)]
    [InlineData(2, 8)]
    [InlineData(2, 16)]
    [InlineData(3, 1)]
    [InlineData(3, 2)]
    [InlineData(3, 4)]
    [InlineData(3, 8)]
    [InlineData(4, 8)]
    [InlineData(4, 16)]
    [InlineData(6, 8)]
    [InlineData(6, 16)]
    public void Every_kind_of_png_is_read_in_one_pass_and_in_seven(int type, int depth)
    {
        int channels = type switch { 2 => 3, 4 => 2, 6 => 4, _ => 1 };
        foreach ((int width, int height) in new[] { (1, 1), (2, 2), (3, 9), (5, 5), (8, 8), (9, 1), (17, 11) })
        {
            var random = new Random((type * 100) + depth + width);
            int[] samples = [.. Enumerable.Range(0, width * height * channels).Select(_ => random.Next(1 << depth))];
            byte[] plain = Png(width, height, type, depth, samples, channels, false);
            byte[] passes = Png(width, height, type, depth, samples, channels, true);
            using var image = (RasterCachedImage)Image.Load(new MemoryStream(plain));
            using var other = (RasterCachedImage)Image.Load(new MemoryStream(passes));
            Assert.Equal(image.LoadArgb32Pixels(image.Bounds), other.LoadArgb32Pixels(other.Bounds));
            for (int i = 0; i < width * height; i++)
            {
                int Part(int channel) =>
                    (int)Math.Round(samples[(i * channels) + channel] * 255.0 / ((1 << depth) - 1));
                int index = samples[i * channels];
                (int r, int g, int b, int a) = type switch
                {
                    0 => (Part(0), Part(0), Part(0), 255),
                    2 => (Part(0), Part(1), Part(2), 255),
                    3 => (index, 255 - index, index * 7 % 256, index == 1 ? 100 : 255),
                    4 => (Part(0), Part(0), Part(0), Part(1)),
                    _ => (Part(0), Part(1), Part(2), Part(3)),
                };
                Color color = image.GetPixel(i % width, i / width);
                int most = depth == 16 ? 1 : 0;
                Assert.Equal(
                    0, new[] { color.A - a, color.R - r, color.G - g, color.B - b }.Count(d => Math.Abs(d) > most));
            }
        }
    }

    private static readonly (string Name, Type Error, string Cause, Func<byte[]> Data)[] Wrong =
    [
        ("header.bmp", typeof(BmpImageException), "39 bytes", () => With(Bmp(1, 1, 24, 0, [0, 0, 0, 0]), 14, 39)),
        ("zero.bmp", typeof(BmpImageException), "0 × 1", () => Bmp(0, 1, 24, 0, [0, 0, 0, 0])),
        ("negative.bmp", typeof(BmpImageException), "-5 × 1", () => Bmp(-5, 1, 24, 0, [0, 0, 0, 0])),
        ("least.bmp", typeof(BmpImageException), "1 × -2147483648", () => Bmp(1, int.MinValue, 24, 0, [0, 0, 0, 0])),
        ("bits.bmp", typeof(BmpImageException), "3 bits", () => Bmp(1, 1, 3, 0, [0, 0, 0, 0])),
        ("jpeg inside.bmp", typeof(BmpImageException), "Jpeg", () => Bmp(1, 1, 24, 4, [0, 0, 0, 0])),
        ("unknown.bmp", typeof(BmpImageException), "0x63", () => Bmp(1, 1, 24, 99, [0, 0, 0, 0])),
        ("short.bmp", typeof(BmpImageException), "need 16 bytes, but 15", () => Bmp(4, 1, 32, 0, new byte[15])),
        ("runs down.bmp", typeof(BmpImageException), "not read",
            () => With(Bmp(4, -1, 8, 1, Palette(Red), 1), 0, (byte)'B')),
        ("masks.bmp", typeof(BmpImageException), "inside its header", () => Bmp(4, 1, 32, 3, [1, 2])),
        ("header.png", typeof(PngImageException), "", () => With(Saved(new PngOptions()), 25, 5)),
        ("crc.png", typeof(PngImageException), "", () => With(Saved(new PngOptions()), 30, 0x55)),
        ("bits.png", typeof(PngImageException), "", () => Png(1, 1, 2, 4, [0, 0, 0], 3, false)),
        ("sum of passes.png", typeof(PngImageException), "CRC",
            () => Changed(Png(9, 9, 2, 16, new int[243], 3, true), 45)),
        ("filter of passes.png", typeof(PngImageException), "filter 7",
            () => Png(9, 9, 0, 16, new int[81], 1, true, 7)),
        ("rows of passes.png", typeof(PngImageException), "IDAT", () => Png(1, 1, 2, 16, [1, 2, 3], 3, true, rows: 9)),
        ("size of passes.png", typeof(PngImageException), "cannot hold",
            () => Png(1, 1, 6, 16, [1, 2, 3, 4], 4, true, rows: 60_000)),
        ("second header.png", typeof(PngImageException), "IHDR",
            () => SecondHeader(Png(9, 9, 2, 16, new int[243], 3, true))),
        ("cut.png", typeof(PngImageException), "", () => Saved(new PngOptions())[..40]),
        ("header.gif", typeof(GifImageException), "", () => "GIF89a"u8.ToArray()),
        ("empty.gif", typeof(GifImageException), "no image", () => [.. "GIF89a"u8, 1, 0, 1, 0, 0, 0, 0, 0x3B]),
        ("zero.gif", typeof(GifImageException), "0 × 1", () => [.. "GIF89a"u8, 0, 0, 1, 0, 0, 0, 0, 0x3B]),
        ("no palette.gif", typeof(GifImageException), "palette",
            () => [.. "GIF89a"u8, 1, 0, 1, 0, 0, 0, 0, 0x2C, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, 0x44, 1, 0, 0x3B]),
        ("version.psd", typeof(PsdImageException), "version 1", () => With(Saved(new PsdOptions()), 5, 2)),
        ("channels.psd", typeof(PsdImageException), "channels", () => With(Saved(new PsdOptions()), 13, 99)),
        ("depth.psd", typeof(PsdImageException), "", () => With(Saved(new PsdOptions()), 23, 7)),
        ("mode.psd", typeof(PsdImageException), "", () => With(Saved(new PsdOptions()), 25, 77)),
        ("palette.psd", typeof(PsdImageException), "palette",
            () => With(Saved(new PsdOptions { ColorMode = ColorModes.Indexed }), 28, 1)),
        ("header.tif", typeof(TiffImageException), "", () => [.. "II*\0"u8, 0xFF, 0xFF, 0, 0]),
        ("no fields.tif", typeof(TiffImageException), "", () => [.. "MM\0*"u8, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0]),
        ("header.jpg", typeof(JpegException), "", () => [0xFF, 0xD8, 0xFF, 0xE0, 0, 2]),
        ("end.jpg", typeof(JpegException), "", () => [0xFF, 0xD8, 0xFF, 0xD9]),
        ("header.j2k", typeof(Jpeg2000Exception), "", () => [0xFF, 0x4F, 0xFF, 0x51, 0, 41]),
        ("header.jp2", typeof(Jpeg2000Exception), "", () => Saved(new Jpeg2000Options())[..60]),
        ("header.webp", typeof(ImageLoadException), "", () => [.. "RIFF"u8, 12, 0, 0, 0, .. "WEBPVP8L"u8, 0, 0, 0, 0]),
        ("animation.webp", typeof(ImageLoadException), "animated",
            () => [.. "RIFF"u8, 40, 0, 0, 0, .. "WEBPVP8X"u8, 10, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, .. "ANIM"u8, 6,
                0, 0, 0, 0, 0, 0, 0, 0, 0]),
        ("cut.dcm", typeof(ImageLoadException), "", () => Saved(new DicomOptions())[..200]),
        ("pixels.dcm", typeof(ImageLoadException), "", () => Saved(new DicomOptions())[..^9]),
    ];

    private static byte[] SecondHeader(byte[] png) =>
        [.. png[..33], 0, 0, 0, 0, .. "IHDR"u8, 0, 0, 0, 0, .. png[33..]];

    public static IEnumerable<object[]> WrongNames => Wrong.Select(wrong => new object[] { wrong.Name });

    [Theory]
    [MemberData(nameof(WrongNames))]
    public void Wrong_headers_are_reported_with_file_and_cause(string name)
    {
        (_, Type error, string cause, Func<byte[]> data) = Wrong.Single(wrong => wrong.Name == name);
        Exception? e = Record.Exception(() => Image.Load(new MemoryStream(data()), name, new LoadOptions()));
        Assert.True(e != null && error.IsInstanceOfType(e), e?.ToString() ?? "it was loaded");
        Assert.Contains(name, e!.Message);
        Assert.Contains(cause, e.Message);
        Assert.True(e.Message.Length > name.Length + 15, e.Message);
    }

    [Fact]
    public void Pages_of_one_file_have_their_own_size_and_lifetime()
    {
        string[] parts = [Tools.TempFile(".png"), Tools.TempFile(".png"), Tools.TempFile(".png")];
        for (int i = 0; i < parts.Length; i++)
        {
            using var part = Samples.Of(10 + i, 20 - i, (x, y) => Samples.Rgb(x * 10, y * 10, i * 100));
            part.Save(parts[i], new PngOptions());
        }

        string file = Tools.TempFile(".tif");
        Tools.Run("convert", [.. parts, "-compress", "LZW", file]);
        RasterCachedImage image = Samples.Load(file);
        Assert.Equal(3, image.PageCount);
        for (int i = 0; i < 3; i++)
        {
            RasterImage page = image.GetPage(i);
            Assert.Equal((10 + i, 20 - i, 1), (page.Width, page.Height, i == 0 ? 1 : page.PageCount));
            Assert.Equal(Samples.Rgb((9 + i) * 10, (19 - i) * 10, i * 100), page.GetArgb32Pixel(9 + i, 19 - i));
        }

        Assert.Same(image, image.GetPage(0));
        Assert.Same(image.GetPage(1), image.GetPage(1));
        Assert.Throws<ArgumentOutOfRangeException>(() => image.GetPage(3));
        Assert.Throws<ArgumentOutOfRangeException>(() => image.GetPage(-1));

        // A change of one page is a change of that page only, and is written.
        image.GetPage(1).Crop(new Rectangle(0, 0, 4, 4));
        using (RasterCachedImage again = Samples.Load(Samples.Save(image, new TiffOptions(), ".tif")))
        {
            Assert.Equal(
                [(10, 20), (4, 4), (12, 18)],
                Enumerable.Range(0, 3).Select(i => (again.GetPage(i).Width, again.GetPage(i).Height)));
        }

        foreach ((MultiPageOptions choice, int[] widths) in new[]
            { (new MultiPageOptions(1, 2), new[] { 4, 12 }), (new MultiPageOptions { FirstPage = 1 }, [4, 12]),
                (new MultiPageOptions { Pages = [2, 0, 2] }, [12, 10, 12]), (new MultiPageOptions(), [10, 4, 12]) })
        {
            using RasterCachedImage chosen =
                Samples.Load(Samples.Save(image, new TiffOptions { MultiPageOptions = choice }, ".tif"));
            Assert.Equal(widths, Enumerable.Range(0, chosen.PageCount).Select(i => chosen.GetPage(i).Width));
        }

        (MultiPageOptions Choice, string Why)[] refused =
        [
            (new MultiPageOptions(2, 2), "2 of them from 2"), (new MultiPageOptions(-1, 1), "from -1"),
                (new MultiPageOptions { Pages = [] }, "no page at all"),
            (new MultiPageOptions(int.MaxValue, int.MaxValue), "do not exist"),
                (new MultiPageOptions { Pages = [0, 3] }, "no page 3"),
            (new MultiPageOptions { ExportArea = new Rectangle(0, 0, 5, 5) }, "page 1"),
                (new MultiPageOptions { PageTitles = ["x"] }, "\"x\""),
        ];
        foreach ((MultiPageOptions choice, string why) in refused)
        {
            var e = Assert.Throws<ImageSaveException>(
                () => image.Save(new MemoryStream(), new TiffOptions { MultiPageOptions = choice }));
            Assert.Contains(why, e.Message);
        }

        // Formats of one image take the given page; pages are disposed with their file.
        using (RasterCachedImage single = Samples.Load(Samples.Save(image.GetPage(2), new PngOptions(), ".png")))
        {
            Assert.Equal((12, 18), (single.Width, single.Height));
        }

        RasterImage last = image.GetPage(2);
        image.Dispose();
        Assert.Throws<ObjectDisposedException>(() => last.GetArgb32Pixel(0, 0));
        Assert.Throws<ObjectDisposedException>(() => image.Grayscale());
    }

    [Fact]
    public void Blocks_at_all_borders_round_trip_in_every_pixel_format()
    {
        PixelDataFormat[] forms =
        [
            PixelDataFormat.Rgb1BppIndexed, PixelDataFormat.Rgb4BppIndexed, PixelDataFormat.Rgb8BppIndexed,
                PixelDataFormat.Grayscale1Bpp,
            PixelDataFormat.Grayscale4Bpp, PixelDataFormat.Grayscale8Bpp, PixelDataFormat.Grayscale16Bpp,
                PixelDataFormat.Rgb16Bpp555, PixelDataFormat.Rgb16Bpp565,
            PixelDataFormat.Rgb24Bpp, PixelDataFormat.Bgr24Bpp, PixelDataFormat.Rgb32Bpp, PixelDataFormat.Rgba32Bpp,
                PixelDataFormat.Cmyk32Bpp,
        ];
        Rectangle[] blocks =
            [new(0, 0, 1, 1), new(12, 6, 1, 1), new(0, 0, 13, 7), new(5, 0, 8, 2), new(0, 6, 13, 1), new(12, 0, 1, 7),
            new(3, 2, 7, 3)];
        foreach (PixelDataFormat form in forms)
        {
            foreach (Rectangle block in blocks)
            {
                // Black and white is what all forms hold exactly; the ground shows whether a neighbour is touched.
                using var image = Samples.Of(13, 7, (x, y) => (x * y) % 3 == 0 ? -1 : Black);
                using var copy = Samples.Of(13, 7, (_, _) => Red);
                bool indexed = form.PixelFormat == PixelFormat.Indexed;
                var settings = new RawDataSettings(form, block.Width)
                {
                    ColorPalette = indexed ? ColorPaletteHelper.CreateMonochrome() : null,
                };
                int tight = settings.LineSize;
                settings.LineSize += 3;
                byte[] data = image.LoadRawData(block, settings);
                Assert.Equal((settings.LineSize * (block.Height - 1)) + tight, data.Length);
                copy.SaveRawData(data, block, settings);
                for (int i = 0; i < 13 * 7; i++)
                {
                    (int x, int y) = (i % 13, i / 13);
                    bool inside = x >= block.X && x < block.X + block.Width && y >= block.Y
                        && y < block.Y + block.Height;
                    Assert.Equal(inside ? image.GetArgb32Pixel(x, y) : Red, copy.GetArgb32Pixel(x, y));
                }

                Assert.Throws<ArgumentException>(() => copy.SaveRawData(data[..^1], block, settings));
                settings.LineSize = tight - 1;
                Assert.Throws<FrameworkException>(() => image.LoadRawData(block, settings));
            }

            Assert.Equal(form, forms.Single(other => other == form));
            Assert.Equal(form.BitsPerPixel, form.ChannelBits.Sum());
        }

        using var bytes = Samples.Of(3, 1, (x, _) => x == 0 ? Samples.Rgb(1, 2, 3, 4) : x == 1 ? Red : Blue);
        (PixelDataFormat Form, byte[] Layout)[] layouts =
        [
            (PixelDataFormat.Rgb24Bpp, [1, 2, 3, 255, 0, 0, 0, 0, 255]),
                (PixelDataFormat.Bgr24Bpp, [3, 2, 1, 0, 0, 255, 255, 0, 0]),
            (PixelDataFormat.Rgb32Bpp, [3, 2, 1, 4, 0, 0, 255, 255, 255, 0, 0, 255]),
                (PixelDataFormat.Rgba32Bpp, [1, 2, 3, 4, 255, 0, 0, 255, 0, 0, 255, 255]),
            (PixelDataFormat.Rgb16Bpp565, [0, 0, 0x00, 0xF8, 0x1F, 0x00]),
                (PixelDataFormat.Rgb16Bpp555, [0, 0, 0x00, 0x7C, 0x1F, 0x00]),
            (PixelDataFormat.Cmyk32Bpp, [170, 85, 0, 252, 0, 255, 255, 0, 255, 255, 0, 0]),
                (PixelDataFormat.Grayscale8Bpp, [2, 76, 29]),
            (PixelDataFormat.Grayscale16Bpp, [2, 2, 76, 76, 29, 29]), (PixelDataFormat.Grayscale4Bpp, [0x04, 0x20]),
                (PixelDataFormat.Grayscale1Bpp, [0]),
        ];
        foreach ((PixelDataFormat form, byte[] layout) in layouts)
        {
            Assert.Equal(layout, bytes.LoadRawData(bytes.Bounds, new RawDataSettings(form, 3)));
        }

        Assert.Throws<FrameworkException>(
            () => bytes.LoadRawData(bytes.Bounds, new RawDataSettings(PixelDataFormat.Rgb4BppIndexed, 3)));
        var large =
            new RawDataSettings(PixelDataFormat.Rgb1BppIndexed, 3) { ColorPalette = ColorPaletteHelper.Create4Bit() };
        Assert.Throws<FrameworkException>(() => bytes.LoadRawData(bytes.Bounds, large));
    }

    private static byte[] Saved(ImageOptionsBase options)
    {
        using var image = Samples.Colors();
        using var stream = new MemoryStream();
        image.Save(stream, options);
        return stream.ToArray();
    }

    private static byte[] With(byte[] data, int at, byte value)
    {
        data[at] = value;
        return data;
    }

    private static byte[] Changed(byte[] data, int at) => With(data, at, (byte)~data[at]);

    private static byte[] Bmp(int width, int height, int bits, int compression, byte[] rest, int colors = 0)
    {
        var header = new byte[54];
        "BM"u8.CopyTo(header);
        int tables = compression is 3 or 6
            ? (compression == 6 ? 16 : 12) : bits <= 8 ? (colors == 0 ? 1 << bits : colors) * 4 : 0;
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(10), 54 + tables);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(14), 40);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(18), width);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(22), height);
        header[26] = 1;
        BinaryPrimitives.WriteInt16LittleEndian(header.AsSpan(28), (short)bits);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(30), compression);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(46), colors);
        return [.. header, .. rest];
    }

    private static byte[] Masks(params uint[] masks) => [.. masks.SelectMany(BitConverter.GetBytes)];

    private static byte[] Palette(params int[] colors) =>
        [.. colors.SelectMany(color => BitConverter.GetBytes(color & 0xFFFFFF))];

    // The passes of the format: where they begin, and how far apart their pixels are.
    private static readonly (int X, int Y, int StepX, int StepY)[] Passes =
        [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)];

    private static byte[] Png(
        int width, int height, int type, int depth, int[] samples, int channels, bool interlaced, byte filter = 0,
        int rows = 0)
    {
        int stated = rows == 0 ? height : rows;
        using var stream = new MemoryStream();
        stream.Write([0x89, .. "PNG\r\n"u8, 0x1A, 0x0A]);
        Chunk(stream, "IHDR",
            [0, 0, 0, (byte)width, 0, 0, (byte)(stated >> 8), (byte)stated, (byte)depth, (byte)type, 0, 0,
            (byte)(interlaced ? 1 : 0)]);
        if (type == 3)
        {
            Chunk(stream, "PLTE",
                [.. Enumerable.Range(0, 1 << depth)
                .SelectMany(i => new[] { (byte)i, (byte)(255 - i), (byte)(i * 7) })]);
            Chunk(stream, "tRNS", [255, 100]);
        }

        using var packed = new MemoryStream();
        using (var zlib = new ZLibStream(packed, CompressionLevel.Fastest, true))
        {
            foreach ((int left, int top, int across, int down) in interlaced ? Passes : [(0, 0, 1, 1)])
            {
                for (int y = top; y < height && left < width; y += down)
                {
                    var bits = new StringBuilder();
                    for (int x = left; x < width; x += across)
                    {
                        for (int channel = 0; channel < channels; channel++)
                        {
                            bits.Append(
                                Convert.ToString(samples[(((y * width) + x) * channels) + channel], 2)
                                .PadLeft(depth, '0'));
                        }
                    }

                    zlib.WriteByte(filter);
                    string row = bits.ToString().PadRight((bits.Length + 7) / 8 * 8, '0');
                    zlib.Write([.. row.Chunk(8).Select(eight => Convert.ToByte(new string(eight), 2))]);
                }
            }
        }

        Chunk(stream, "IDAT", packed.ToArray());
        Chunk(stream, "IEND", []);
        return stream.ToArray();
    }

    private static void Chunk(Stream stream, string type, byte[] data)
    {
        byte[] body = [.. Encoding.ASCII.GetBytes(type), .. data];
        uint crc = uint.MaxValue;
        foreach (byte value in body)
        {
            crc ^= value;
            for (int i = 0; i < 8; i++)
            {
                crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
            }
        }

        var number = new byte[4];
        BinaryPrimitives.WriteInt32BigEndian(number, data.Length);
        stream.Write(number);
        stream.Write(body);
        BinaryPrimitives.WriteUInt32BigEndian(number, ~crc);
        stream.Write(number);
    }
}
