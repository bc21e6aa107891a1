using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.CompilerServices;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Bmp;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
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

/// <summary>What is written is read by other programs, and looks the same there.</summary>
public class WriterTests
{
    private const double Same = 0;
    private const double Lossy = 0.02;

    // Sixteen colours, black and white, and greys lose what they cannot hold.
    private static readonly (string Name, ImageOptionsBase Options, string Extension, double Most)[] Kinds =
    [
        ("bmp 24", new BmpOptions(), ".bmp", Same),
        ("bmp 32", new BmpOptions { BitsPerPixel = 32 }, ".bmp", Same),
        ("bmp 8", new BmpOptions { BitsPerPixel = 8 }, ".bmp", 0.05),
        ("bmp 8 rle", new BmpOptions { BitsPerPixel = 8, Compression = BitmapCompression.Rle8 }, ".bmp", 0.05),
        ("bmp 4", new BmpOptions { BitsPerPixel = 4 }, ".bmp", 0.1),
        ("jpeg", new JpegOptions { Quality = 95 }, ".jpg", 0.03),
        ("jpeg progressive", new JpegOptions { Quality = 95, CompressionType = JpegCompressionMode.Progressive },
            ".jpg", 0.03),
        ("jpeg 2000", new Jpeg2000Options(), ".jp2", Same),
        ("jpeg 2000 bare, lossy",
            new Jpeg2000Options { Codec = Jpeg2000Codec.J2K, Irreversible = true, CompressionRatio = 2 },
            ".j2k", Lossy),
        ("webp", new WebPOptions(), ".webp", Same),
        ("webp lossy", new WebPOptions { Lossless = false, Quality = 95 }, ".webp", 0.06),
        ("gif", new GifOptions(), ".gif", 0.05),
        ("gif interlaced", new GifOptions { Interlaced = true, Dithering = DitheringMethods.ErrorDiffusion },
            ".gif", 0.05),
        ("psd", new PsdOptions(), ".psd", Same),
        ("psd plain", new PsdOptions { CompressionMethod = CompressionMethod.Raw }, ".psd", Same),
        ("psd inks", new PsdOptions { ColorMode = ColorModes.Cmyk }, ".psd", Lossy),
        ("tiff palette", new TiffOptions(TiffExpectedFormat.TiffLzwPalette), ".tif", 0.05),
        ("tiff plain, big end first",
            new TiffOptions(TiffExpectedFormat.TiffNoCompressionRgb) { ByteOrder = TiffByteOrder.BigEndian },
            ".tif", Same),
        ("tiff lzw", new TiffOptions(), ".tif", Same),
        ("tiff one strip", new TiffOptions { RowsPerStrip = 1000, Predictor = TiffPredictor.None }, ".tif", Same),
        ("tiff deflate, opacity", new TiffOptions(TiffExpectedFormat.TiffDeflateRgba), ".tif", Same),
        ("tiff packbits", new TiffOptions(TiffExpectedFormat.TiffPackBitsRgb), ".tif", Same),
        ("tiff jpeg", new TiffOptions(TiffExpectedFormat.TiffJpegRgb), ".tif", 0.04),
        ("tiff inks", new TiffOptions { Photometric = TiffPhotometrics.Separated, BitsPerSample = [8, 8, 8, 8] },
            ".tif", Lossy),
        ("png", new PngOptions(), ".png", Same),
        ("png adaptive", new PngOptions { FilterType = PngFilterType.Adaptive, CompressionLevel = 9 }, ".png", Same),
        ("png paeth", new PngOptions { FilterType = PngFilterType.Paeth }, ".png", Same),
        ("png average", new PngOptions { FilterType = PngFilterType.Average }, ".png", Same),
        ("png palette", new PngOptions { ColorType = PngColorType.IndexedColor, Dithering = DitheringMethods.Ordered },
            ".png", 0.1),
    ];

    public static IEnumerable<object[]> Names => Kinds.Select(kind => new object[] { kind.Name });

    [Theory]
    [MemberData(nameof(Names))]
    public void Another_program_sees_the_same_image(string name)
    {
        (_, ImageOptionsBase options, string extension, double most) = Kinds.Single(kind => kind.Name == name);
        using var image = Samples.Colors();
        string original = Samples.Save(image, new PngOptions(), ".png");
        string file = Samples.Save(image, options, extension);
        Assert.InRange(Samples.Difference(file, original), 0, most);
        using RasterCachedImage back = Samples.Load(file);
        Assert.Equal(options.TargetFormat, back.FileFormat);
        Assert.InRange(Samples.Difference(Samples.Save(back, new PngOptions(), ".png"), original), 0, most);
    }

    [Theory]
    [InlineData(TiffExpectedFormat.TiffCcittRle, "CCITT RLE")]
    [InlineData(TiffExpectedFormat.TiffCcittFax3, "CCITT Group 3")]
    [InlineData(TiffExpectedFormat.TiffCcittFax4, "CCITT Group 4")]
    [InlineData(TiffExpectedFormat.TiffLzwBw, "LZW")]
    public void Black_and_white_pages_are_the_thresholded_image(TiffExpectedFormat format, string compression)
    {
        using var image = Samples.Colors();
        TiffFillOrders order =
            format == TiffExpectedFormat.TiffLzwBw ? TiffFillOrders.Msb2Lsb : TiffFillOrders.Lsb2Msb;
        string file = Samples.Save(image, new TiffOptions(format) { FillOrder = order }, ".tif");
        Assert.Contains(compression, Tools.Run("tiffinfo", file));
        image.BinarizeFixed(128);
        Assert.Equal(0, Samples.Difference(file, Samples.Save(image, new PngOptions(), ".png")));
    }

    [Fact]
    public void Jpegs_hold_what_their_options_say()
    {
        using var image = Samples.Colors(200, 100);
        string small = Samples.Save(image, new JpegOptions { Quality = 10, Comment = "by hand" }, ".jpg");
        string large = Samples.Save(
            image, new JpegOptions { Quality = 98, ResolutionSettings = new ResolutionSetting(300, 150) }, ".jpg");
        string grey = Samples.Save(image, new JpegOptions { ColorType = JpegCompressionColorMode.Grayscale }, ".jpg");
        string inks = Samples.Save(image, new JpegOptions { ColorType = JpegCompressionColorMode.Ycck }, ".jpg");
        Assert.True(new FileInfo(small).Length * 2 < new FileInfo(large).Length);
        string listing = Tools.Run("jpeginfo", "-c", small, large, grey);
        Assert.Equal(3, listing.Split(" OK ").Length - 1);
        Assert.Contains(" 8bit ", listing);
        Assert.Contains("by hand", Tools.Run("identify", "-format", "%c", small));
        Assert.Equal("300x150", Tools.Run("identify", "-format", "%xx%y", large).Replace(" PixelsPerInch", ""));
        Assert.Equal("CMYK", Tools.Run("identify", "-format", "%[colorspace]", inks));
        using RasterCachedImage back = Samples.Load(inks);
        Assert.InRange(Samples.Difference(Samples.Save(back, new PngOptions(), ".png"), large), 0, 0.03);
    }

    [Fact]
    public void Layouts_become_pages_and_frames()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 100, 1));
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.PaperWidth, sheet.PaperHeight) = (150, 100);
        drawing.PaperSpaceEntities.Add(TestPage.Square(0, 0, 100, 5));
        var raster =
            new CadRasterizationOptions { PageWidth = 60, PageHeight = 40, Layouts = ["Model", sheet.LayoutName] };
        string tiff =
            Samples.Save(drawing, new TiffOptions { VectorRasterizationOptions = raster, Artist = "Nobody" }, ".tif");
        string info = Tools.Run("tiffinfo", tiff);
        Assert.Equal(2, info.Split("=== TIFF directory").Length - 1);
        Assert.Contains($"PageName: {sheet.LayoutName}", info);
        Assert.Contains("Page Number: 1-2", info);
        Assert.Contains("Artist: Nobody", info);
        using RasterCachedImage pages = Samples.Load(tiff);
        Assert.Equal((2, "Model", sheet.LayoutName), (pages.PageCount, pages.PageTitle, pages.GetPage(1).PageTitle));
        Assert.Equal(Samples.Rgb(255, 0, 0), pages.GetArgb32Pixel(30, 20));
        Assert.Equal(Samples.Rgb(0, 0, 255), pages.GetPage(1).GetArgb32Pixel(25, 15));

        var gifOptions = new GifOptions { VectorRasterizationOptions = raster, FrameTime = 500, LoopCount = 3 };
        string gif = Samples.Save(drawing, gifOptions, ".gif");
        Assert.Equal("50 50 ", Tools.Run("identify", "-format", "%T ", gif));
        Assert.Equal(0, Samples.LargestDifference(pages.GetPage(1), gif, "[1]"));

        var only = new TiffOptions
        {
            VectorRasterizationOptions = raster,
            MultiPageOptions = new MultiPageOptions { PageTitles = [sheet.LayoutName.ToUpperInvariant()] },
        };
        only.MultiPageOptions.ExportArea = new Rectangle(10, 10, 20, 15);
        using RasterCachedImage part = Samples.Load(Samples.Save(drawing, only, ".tif"));
        Assert.Equal((1, 20, 15), (part.PageCount, part.Width, part.Height));
        Refused<ImageSaveException>(drawing, new JpegOptions { VectorRasterizationOptions = raster }, "one page");
        only.MultiPageOptions = new MultiPageOptions { Pages = [2] };
        Refused<ImageSaveException>(drawing, only, "no page 2");
        only.MultiPageOptions = new MultiPageOptions { PageTitles = ["Attic"] };
        Refused<ImageSaveException>(drawing, only, "Attic");
    }

    [Theory]
    [InlineData(ColorType.Rgb24Bit, CompressionType.None, 0)]
    [InlineData(ColorType.Rgb24Bit, CompressionType.Rle, 0)]
    [InlineData(ColorType.Rgb24Bit, CompressionType.Jpeg, 0.03)]
    [InlineData(ColorType.Grayscale8Bit, CompressionType.None, 0.01)]
    [InlineData(ColorType.Grayscale8Bit, CompressionType.Jpeg, 0.03)]
    [InlineData(ColorType.Grayscale16Bit, CompressionType.Rle, 0.01)]
    public void Medical_viewers_read_dicom(ColorType color, CompressionType compression, double most)
    {
        using var image = Samples.Colors();
        var options = new DicomOptions
        {
            ColorType = color,
            Compression = new Compression(compression) { Quality = compression == CompressionType.Jpeg ? 95 : 90 },
        };
        string file = Samples.Save(image, options, ".dcm");
        Tools.Run("dcmdump", file);
        string decoded = Tools.TempFile(".pnm");
        Tools.Run(
            "dcmj2pnm",
            ["--write-raw-pnm", .. color == ColorType.Grayscale16Bit ? new[] { "+Wi", "1" } : [], file, decoded]);
        if (color != ColorType.Rgb24Bit)
        {
            image.Grayscale();
        }

        string original = Samples.Save(image, new PngOptions(), ".png");
        Assert.InRange(Samples.Difference(decoded, original), 0, most);
        using RasterCachedImage back = Samples.Load(file);
        Assert.InRange(Samples.Difference(Samples.Save(back, new PngOptions(), ".png"), original), 0, most);
    }

    [Fact]
    public void Alpha_survives_where_the_format_supports_it_and_is_composited_over_white_elsewhere()
    {
        using var image = Samples.Of(16, 16, (x, y) => Samples.Rgb(250, 0, 0, x * 17));
        foreach (ImageOptionsBase options in new ImageOptionsBase[]
            { new PngOptions(), new WebPOptions(), new BmpOptions { BitsPerPixel = 32 }, new Jpeg2000Options(),
                new PsdOptions(), new TiffOptions(TiffExpectedFormat.TiffLzwRgba) })
        {
            using RasterCachedImage back = Samples.Load(Samples.Save(image, options, ".x"));
            Assert.Equal(170, back.GetPixel(10, 3).A);
            Assert.InRange(back.GetPixel(10, 3).R, 248, 252);
        }

        using RasterCachedImage flat = Samples.Load(Samples.Save(image, new TiffOptions(), ".tif"));
        Assert.Equal((255, 255, 85), (flat.GetPixel(0, 0).B, flat.GetPixel(10, 0).A, flat.GetPixel(10, 0).B));

        // Programs that ignore alpha in the merged image of a PSD show it on white, too.
        Assert.InRange(Samples.LargestDifference(flat, Samples.Save(image, new PsdOptions(), ".psd"), "[0]"), 0, 1);
        using RasterCachedImage cut = Samples.Load(Samples.Save(image, new GifOptions(), ".gif"));
        Assert.Equal((0, 255), (cut.GetPixel(7, 0).A, cut.GetPixel(8, 0).A));
    }

    [Fact]
    public void Unsupported_options_are_rejected_by_name()
    {
        using var image = Samples.Colors();
        Assert.Equal(
            TiffOptionsError.CompressionNeedsBilevel,
            new TiffOptions { Compression = TiffCompressions.CcittFax4 }.Validate());
        Assert.Equal(TiffOptionsError.BitsPerSampleMismatch, new TiffOptions { BitsPerSample = [8, 8] }.Validate());
        Assert.True(Enum.GetValues<TiffExpectedFormat>().All(format => new TiffOptions(format).IsValid));
        Refused<TiffImageException>(image, new TiffOptions { Compression = TiffCompressions.OldJpeg },
            "COMPRESSION_NOT_SUPPORTED");
        Refused<BmpImageException>(image, new BmpOptions { BitsPerPixel = 16 }, "not 16");
        Refused<BmpImageException>(image, new BmpOptions { Compression = BitmapCompression.Dxt1 }, "DXT1");
        Refused<PngImageException>(image, new PngOptions { BitDepth = 1 }, "8 bits");
        Refused<PsdImageException>(image, new PsdOptions { ColorMode = ColorModes.Lab }, "LAB");
        Refused<PsdImageException>(image, new PsdOptions { CompressionMethod = CompressionMethod.ZipWithPrediction },
            "ZIP_WITH_PREDICTION");
        Refused<ImageSaveException>(image, new PdfOptions(), "cannot be saved");
        Refused<ImageSaveException>(
            image,
            new PngOptions
            {
                ColorType = PngColorType.IndexedColor,
                BitDepth = 1,
                Palette = ColorPaletteHelper.Create4Bit(),
            },
            "16 colours");
        Refused<ImageSaveException>(image, new WebPOptions { XmpData = new XmpPacketWrapper() }, "xmp_data");
        using var wide = Samples.Of(17_000, 1, (x, y) => -1);
        Refused<ImageSaveException>(wide, new WebPOptions(), "16383");
    }

    [Fact]
    public void Failures_of_the_stream_are_rethrown_by_every_writer()
    {
        using var image = Samples.Colors();
        foreach (ImageOptionsBase options in Kinds.Select(kind => kind.Options).Append(new DicomOptions()))
        {
            var e = Assert.Throws<ImageSaveException>(() => image.Save(new FullDisk(), options));
            Assert.Contains("disk is full", e.ToString());
        }
    }

    [Fact]
    public void Writers_release_the_stream_after_a_failure()
    {
        using var image = Samples.Colors();
        foreach (ImageOptionsBase options in Kinds.Select(kind => kind.Options).Append(new DicomOptions()))
        {
            WeakReference stream = FailedSave(image, options);
            GC.Collect();
            Assert.False(stream.IsAlive, options.GetType().Name);
        }
    }

    // The native codec refers to the stream by a handle that only its owner releases.
    [MethodImpl(MethodImplOptions.NoInlining)]
    private static WeakReference FailedSave(Image image, ImageOptionsBase options)
    {
        var stream = new FullDisk();
        Assert.Throws<ImageSaveException>(() => image.Save(stream, options));
        return new WeakReference(stream);
    }

    private static void Refused<T>(Image image, ImageOptionsBase options, string reason)
        where T : Exception
    {
        Exception? e = Record.Exception(() => image.Save(new MemoryStream(), options));
        Assert.True(e is T or ImageSaveException, e?.ToString() ?? "nothing was refused");
        Assert.Contains(reason, e!.Message);
    }

    /// <summary>A stream with room for a few bytes.</summary>
    private sealed class FullDisk : MemoryStream
    {
        public override bool CanSeek => false;

        public override void Write(byte[] buffer, int offset, int count) => Write(buffer.AsSpan(offset, count));

        public override void WriteByte(byte value) => Write([value]);

        public override void Write(ReadOnlySpan<byte> buffer)
        {
            base.Write(buffer.ToArray(), 0, buffer.Length);
            if (Length > 20)
            {
                throw new IOException("The disk is full.");
            }
        }
    }

    [Fact]
    public void A_stream_that_fails_at_once_tells_why()
    {
        using var closed = new MemoryStream([], writable: false);
        var failure = Assert.Throws<NotSupportedException>(
            () => new CAD.Raster.Codecs.TiffFile(closed, "output", "wl"));
        Assert.DoesNotContain("TIFF", failure.Message);
    }
}
