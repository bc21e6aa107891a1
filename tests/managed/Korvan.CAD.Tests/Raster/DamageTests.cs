using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Bmp;
using Korvan.CAD.FileFormats.Dicom;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Codecs;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Fuzz tests: loading any file ends with an image or with an error of the library's own.</summary>
public class DamageTests
{
    private static readonly (string Name, ImageOptionsBase Options)[] Kinds =
    [
        ("bmp", new BmpOptions()),
        ("bmp rle", new BmpOptions { BitsPerPixel = 8, Compression = BitmapCompression.Rle8 }),
        ("gif", new GifOptions { Interlaced = true }),
        ("jpeg", new JpegOptions()),
        ("jpeg progressive", new JpegOptions
        {
            CompressionType = JpegCompressionMode.Progressive,
            ColorType = JpegCompressionColorMode.Ycck,
        }),
        ("jpeg 2000", new Jpeg2000Options()),
        ("png", new PngOptions()),
        ("psd", new PsdOptions()),
        ("psd palette", new PsdOptions { ColorMode = ColorModes.Indexed, CompressionMethod = CompressionMethod.Raw }),
        ("tiff lzw", new TiffOptions()),
        ("tiff fax", new TiffOptions(TiffExpectedFormat.TiffCcittFax4)),
        ("tiff jpeg", new TiffOptions(TiffExpectedFormat.TiffJpegRgb)),
        ("tiff deflate", new TiffOptions(TiffExpectedFormat.TiffDeflateRgba)),
        ("webp", new WebPOptions()),
        ("webp lossy", new WebPOptions { Lossless = false }),
        ("dicom", new DicomOptions()),
        ("dicom rle", new DicomOptions { Compression = new Compression(CompressionType.Rle) }),
        ("dicom jpeg", new DicomOptions { Compression = new Compression(CompressionType.Jpeg) }),
    ];

    public static IEnumerable<object[]> Names => Kinds.Select(kind => new object[] { kind.Name });

    [Theory]
    [InlineData(12)] // ends where the data begins
    [InlineData(4)] // within its own header
    [InlineData(0)] // up to the end of the file
    public void Tiles_of_JPEG_2000_may_state_any_length(byte length)
    {
        byte[] stream = [0xFF, 0x4F, 0xFF, 0x90, 0, 10, 0, 0, 0, 0, 0, length, 0, 1, 0xFF, 0x93, 0xFF, 0xD9];
        Assert.Equal(0, Jpeg2000Structure.DecoderBytes(stream, bare: true));
    }

    [Theory]
    [MemberData(nameof(Names))]
    public void Random_changes_end_in_an_image_or_an_error_of_the_library(string name)
    {
        byte[] whole = Bytes(name);
        int rounds = int.Parse(Environment.GetEnvironmentVariable("KORVAN_MUTATIONS") ?? "120");
        var random = new Random(name.Length * 7919);
        for (int round = 0; round < rounds; round++)
        {
            byte[] data = (byte[])whole.Clone();
            int changes = 1 + random.Next(4);
            for (int i = 0; i < changes; i++)
            {
                // Half of the changes hit the header, which decides most.
                int at = random.Next(2) == 0 ? random.Next(Math.Min(200, data.Length)) : random.Next(data.Length);
                data[at] = random.Next(3) switch
                {
                    0 => 0xFF,
                    1 => (byte)random.Next(256),
                    _ => (byte)(data[at] ^ (1 << random.Next(8))),
                };
            }

            data = random.Next(5) == 0 ? data[..random.Next(data.Length)] : data;
            foreach (bool lenient in new[] { false, true })
            {
                TryLoad(data, lenient, $"{name}, round {round}");
            }
        }
    }

    [Theory]
    [MemberData(nameof(Names))]
    public void Truncated_files_are_rejected_or_shown_as_far_as_they_go(string name)
    {
        byte[] whole = Bytes(name);
        foreach (int length in new[] { 4, 20, whole.Length / 4, whole.Length / 2, whole.Length * 3 / 4 })
        {
            var e = Record.Exception(() => Image.Load(new MemoryStream(whole[..length])));
            Assert.True(
                e is FrameworkException, $"{name} cut to {length} of {whole.Length}: {e?.GetType().Name ?? "loaded"}");
        }

        if (name is "jpeg" or "psd" or "bmp" or "gif")
        {
            using Image half =
                Image.Load(new MemoryStream(whole[..(whole.Length * 3 / 4)]), new LoadOptions { IgnoreErrors = true });
            Assert.Equal(61, half.Width);
        }
    }

    [Fact]
    public void False_sizes_in_headers_cost_no_memory()
    {
        long before = GC.GetAllocatedBytesForCurrentThread();
        Refused<BmpImageException>("bmp", 18, [0xFF, 0xFF, 0, 0, 0x00, 0x10]);
        Refused<LimitMemoryException>("bmp", 18, [0xFF, 0xFF, 0xFF, 0x7F]);
        Refused<JpegException>("jpeg", Find("jpeg", 0xC0) + 5, [0xFF, 0x00, 0xFF, 0x00]);
        Refused<PngImageException>("png", 16, [0, 0, 0xFF, 0xFF, 0, 0, 0x10, 0]);
        Refused<PsdImageException>("psd", 14, [0, 0, 0x40, 0, 0, 0, 0x40, 0]);
        Refused<LimitMemoryException>("psd", 14, [0, 0, 0xFF, 0, 0, 0, 0xFF, 0]);
        Assert.InRange(GC.GetAllocatedBytesForCurrentThread() - before, 0, 50_000_000);
    }

    [Fact]
    public void Errors_name_the_file_and_the_cause()
    {
        byte[] rle = Bytes("bmp rle");
        var bmp = Assert.Throws<BmpImageException>(
            () => Image.Load(new MemoryStream(rle[..^4]), "plan.bmp", new LoadOptions()));
        Assert.IsType<RleCompressorException>(bmp.InnerException);
        Assert.Contains("plan.bmp", bmp.Message);
        byte[] lzw = Bytes("tiff lzw");
        Array.Fill(lzw, (byte)0xFF, 10, 300);
        var tiff =
            Assert.Throws<TiffImageException>(() => Image.Load(new MemoryStream(lzw), "plan.tif", new LoadOptions()));
        Assert.IsType<LzwCompressorException>(tiff.InnerException);
        byte[] gif = Bytes("gif");
        var cut = Assert.Throws<GifImageException>(() => Image.Load(new MemoryStream(gif[..^20])));
        Assert.IsType<LzwCompressorException>(cut.InnerException);
        Assert.Throws<ImageLoadException>(() => Image.Load(new MemoryStream(Bytes("webp")[..^20])));
    }

    private static byte[] Bytes(string name)
    {
        using var image = Samples.Colors();
        using var stream = new MemoryStream();
        image.Save(stream, Kinds.Single(kind => kind.Name == name).Options);
        return stream.ToArray();
    }

    private static int Find(string name, byte marker)
    {
        byte[] data = Bytes(name);
        return Enumerable.Range(0, data.Length - 1).First(i => data[i] == 0xFF && data[i + 1] == marker);
    }

    private static void Refused<T>(string name, int at, byte[] bytes)
        where T : Exception
    {
        byte[] data = Bytes(name);
        bytes.CopyTo(data, at);
        Exception? e = Record.Exception(() => Image.Load(new MemoryStream(data)));
        Assert.True(e is T, $"{name}: {e}");
    }

    private static void TryLoad(byte[] data, bool lenient, string what)
    {
        try
        {
            using Image image = Image.Load(new MemoryStream(data), new LoadOptions { IgnoreErrors = lenient });
            Assert.True(image.Width > 0, what);
        }
        catch (FrameworkException)
        {
            // An error of the library's own is what damage is to end with.
        }
        catch (Exception e)
        {
            Assert.Fail($"{what}: {e}");
        }
    }
}
