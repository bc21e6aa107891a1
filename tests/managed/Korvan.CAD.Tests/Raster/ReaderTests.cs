using System;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Bitmap;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Files that another program wrote give the pixels that it reads from them.</summary>
public class ReaderTests
{
    // A drawing of its own with edges, gradients and transparency, in the forms that programs write.
    private static readonly string[] Source =
        ["-size", "53x37", "gradient:red-blue", "-depth", "8", "-fill", "yellow", "-draw", "circle 25,18 25,8", "-fill",
            "black", "-draw", "line 0,0 52,36"];

    [Theory]
    [InlineData("bmp", 0)]
    [InlineData("bmp -type bilevel", 0)]
    [InlineData("bmp -colors 13 -type palette -define bmp:subtype=RGB", 0)]
    [InlineData("bmp -colors 200 -type palette -compress RLE", 0)]
    [InlineData("bmp -define bmp:subtype=RGB565", 8)]
    [InlineData("bmp -alpha set -transparent yellow", 0)]
    [InlineData("bmp2", 0)]
    [InlineData("bmp3 -type truecolor", 0)]
    [InlineData("png -interlace PNG", 0)]
    [InlineData("png -depth 16 -strip", 1)]
    [InlineData("png -interlace PNG -define png:bit-depth=16 -define png:color-type=0 -colorspace Gray", 1)]
    [InlineData(
        "png -interlace PNG -define png:bit-depth=16 -define png:color-type=2 -define png:compression-filter=5", 1)]
    [InlineData(
        "png -interlace PNG -define png:bit-depth=16 -define png:color-type=4 -alpha set -transparent yellow", 1)]
    [InlineData(
        "png -interlace PNG -define png:bit-depth=16 -define png:color-type=6 -alpha set -transparent yellow", 1)]
    [InlineData("png -colors 5 -type palette -transparent yellow", 0)]
    [InlineData("png -type GrayscaleAlpha -alpha set", 1)]
    [InlineData("gif -colors 30", 0)]
    [InlineData("gif -interlace GIF -transparent yellow", 0)]
    [InlineData("webp -define webp:lossless=true -alpha set -transparent yellow", 0)]
    [InlineData("webp -quality 70", 2)]
    [InlineData("jpg -quality 92", 2)]
    [InlineData("jpg -interlace JPEG -sampling-factor 4:2:2", 2)]
    [InlineData("jpg -sampling-factor 4x2", 2)]
    [InlineData("jpg -sampling-factor 1x4 -interlace JPEG", 2)]
    [InlineData("jpg -sampling-factor 3x1", 2)]
    [InlineData("jpg -sampling-factor 2x2,2x1,1x1 -quality 85", 2)]
    [InlineData("jpg -colorspace CMYK -sampling-factor 2x2 -quality 80", 2)]
    [InlineData("jpg -colorspace Gray", 1)]
    [InlineData("jpg -colorspace CMYK -quality 98", 6)]
    [InlineData("jp2 -quality 100", 1)]
    [InlineData("tiff -compress LZW", 0)]
    [InlineData("tiff -compress Zip -define tiff:tile-geometry=16x16", 0)]
    [InlineData("tiff -compress JPEG -quality 90", 20)]
    [InlineData("tiff -compress Group4 -type bilevel", 0)]
    [InlineData("tiff -compress None -depth 16", 1)]
    [InlineData("tiff -interlace plane -alpha set -transparent yellow", 0)]
    [InlineData("tiff -colors 20 -type palette -define tiff:endian=msb", 1)]
    [InlineData("tiff64", 0)]
    [InlineData("tiff -colorspace Gray -define tiff:tile-geometry=16x16 -depth 16 -compress LZW", 1)]
    [InlineData("tiff -colorspace Gray -depth 32 -compress Zip", 1)]
    [InlineData("tiff -depth 32 -interlace plane -compress Zip", 1)]
    [InlineData("tiff -colorspace CMYK -depth 16 -compress Zip", 1)]
    [InlineData("tiff -colors 16 -type palette -define tiff:tile-geometry=16x16 -compress None", 1)]
    [InlineData("psd -alpha off -depth 16 -colorspace CMYK", 1)]
    [InlineData("psd -alpha off", 0)]
    [InlineData("psd -alpha off -compress None -colorspace Gray", 0)]
    public void Pixels_are_those_that_the_writer_meant(string form, int most)
    {
        string[] arguments = form.Split(' ');
        string file = Tools.TempFile("." + arguments[0].TrimEnd('2', '3', '4', '6'));
        Tools.Run(
            "convert", [.. Source, .. arguments[1..], (arguments[0] == "jp2" ? "jp2" : arguments[0]) + ":" + file]);
        using RasterCachedImage image = Samples.Load(file);
        Assert.Equal((53, 37), (image.Width, image.Height));
        Assert.InRange(Samples.LargestDifference(image, file, "[0]"), 0, most);
        File.Delete(file);
    }

    [Theory]
    [InlineData("-colorspace Gray")]
    [InlineData("-colorspace Gray -depth 2")]
    [InlineData("-colorspace Gray -depth 16")]
    [InlineData("-colorspace Gray -depth 32")]
    [InlineData("-colorspace CMYK")]
    [InlineData("-colorspace CMYK -depth 16")]
    [InlineData("-depth 8")]
    [InlineData("-depth 16")]
    [InlineData("-type PaletteAlpha -colors 20")]
    public void Alpha_of_tiff_pages_is_distinguished_from_colours(string form)
    {
        string[] layouts =
            ["", "-define tiff:tile-geometry=16x32", "-interlace plane",
            "-define tiff:endian=msb -define tiff:rows-per-strip=5"];
        foreach (string meaning in new[] { "associated", "unassociated", "unspecified" })
        {
            if (meaning == "associated" && form.Contains("Palette", StringComparison.Ordinal))
            {
                continue; // palette indices cannot be premultiplied
            }

            foreach (string layout in layouts)
            {
                string file = Tools.TempFile(".tif");
                string[] fade = ["-alpha", "set", "-channel", "A", "-fx", "(i+j)/90", "+channel"];
                string arguments = $"{form} {layout} -compress LZW -define tiff:alpha={meaning}";
                Tools.Run(
                    "convert",
                    [.. Source, .. fade, .. arguments.Split(' ', StringSplitOptions.RemoveEmptyEntries), file]);
                using RasterCachedImage image = Samples.Load(file);
                Assert.True(Samples.LargestDifference(image, file, "[0]") <= 1, arguments);
                File.Delete(file);
            }
        }
    }

    [Theory]
    [InlineData("")]
    [InlineData("-alpha set -channel A -evaluate set 50% +channel")]
    [InlineData("-type bilevel -compress Group4")]
    public void Tiff_pages_come_upright_whichever_corner_they_begin_in(string form)
    {
        string[] corners =
            ["TopLeft", "TopRight", "BottomRight", "BottomLeft", "LeftTop", "RightTop", "RightBottom", "LeftBottom"];
        foreach (string corner in corners)
        {
            string file = Tools.TempFile(".tif");
            string upright = Tools.TempFile(".png");
            string[] arguments = form.Split(' ', StringSplitOptions.RemoveEmptyEntries);
            Tools.Run(
                "convert",
                [.. Source, .. arguments, "-units", "PixelsPerInch", "-density", "72x144", "-orient", corner, file]);
            Tools.Run("convert", file, "-auto-orient", upright);
            using RasterCachedImage image = Samples.Load(file);
            bool swapped = corner[0] is 'L' or 'R';
            Assert.Equal(swapped
                ? (37, 53, 144.0, 72.0)
                : (53, 37, 72, 144), (image.Width, image.Height, image.HorizontalResolution, image.VerticalResolution));
            Assert.True(Samples.LargestDifference(image, upright) <= 1, corner);
        }
    }

    [Theory]
    [InlineData("MONOCHROME2", 8, 8, 7, 0, "100/120")]
    [InlineData("MONOCHROME2", 8, 8, 7, 1, "")]
    [InlineData("MONOCHROME1", 8, 7, 6, 0, "")]
    [InlineData("MONOCHROME2", 16, 12, 15, 0, "1000/500")]
    [InlineData("MONOCHROME2", 16, 12, 11, 1, "40.5/401/-1024/2")]
    [InlineData("MONOCHROME1", 16, 16, 15, 0, "30000/20000")]
    [InlineData("YBR_FULL_422", 8, 8, 7, 0, "")]
    public void Samples_of_dicom_files_are_seen_as_a_viewer_shows_them(
        string kind, int bits, int stored, int high, int signed, string window)
    {
        string data = Tools.TempFile(".raw");
        string text = Tools.TempFile(".dump");
        string file = Tools.TempFile(".dcm");
        string shown = Tools.TempFile(".pnm");
        int samples = kind[0] == 'Y' ? 3 : 1;
        var bytes = new byte[14 * 9 * (samples == 3 ? 2 : bits / 8)];
        new Random(bits + high).NextBytes(bytes);
        File.WriteAllBytes(data, bytes);
        string[] tags = ["1050", "1051", "1052", "1053"];
        string[] numbers = window.Split('/', StringSplitOptions.RemoveEmptyEntries);
        File.WriteAllLines(text,
        [
            "(0008,0016) UI =SecondaryCaptureImageStorage", "(0008,0018) UI [1.2.3.4]", $"(0028,0002) US {samples}",
                $"(0028,0004) CS [{kind}]",
            "(0028,0006) US 0", "(0028,0010) US 9", "(0028,0011) US 14", $"(0028,0100) US {bits}",
                $"(0028,0101) US {stored}", $"(0028,0102) US {high}",
            $"(0028,0103) US {signed}", .. numbers.Select((number, i) => $"(0028,{tags[i]}) DS [{number}]"),
            $"(7fe0,0010) {(bits == 16 ? "OW" : "OB")} ={data}",
        ]);
        Tools.Run("dump2dcm", "+te", text, file);
        Tools.Run("dcmj2pnm", ["--write-raw-pnm", .. window == "" ? Array.Empty<string>() : ["+Wi", "1"], file, shown]);
        using RasterCachedImage image = Samples.Load(file);
        Assert.InRange(Samples.LargestDifference(image, shown), 0, 2);
    }

    [Theory]
    [InlineData("2x2", 864 * 2, "2,2")]
    [InlineData("2x2", 864 * 2, "3,5")]
    [InlineData("2x1", 1152 * 2, "1,0")]
    public void Subsampled_components_of_jpeg_2000_lie_on_the_reference_grid(string thinned, int bytes, string origin)
    {
        string raw = Tools.TempFile(".raw");
        string file = Tools.TempFile(".jp2");
        string shown = Tools.TempFile(".png");
        File.WriteAllBytes(raw, [.. Enumerable.Range(0, bytes).Select(i => (byte)((i * 5) + (i / 48 * 3)))]);
        Tools.Run(
            "opj_compress", "-i", raw, "-o", file, "-n", "3", "-d", origin, "-F",
            $"48,24,3,8,u@1x1:{thinned}:{thinned}");
        Tools.Run("opj_decompress", "-i", file, "-o", shown);
        using RasterCachedImage image = Samples.Load(file);

        // Before an odd origin the other program has no colour for the first row and column.
        image.Crop(new Rectangle(1, 1, 47, 23));
        Assert.InRange(Samples.LargestDifference(image, shown, "[47x23+1+1]"), 0, 1);
    }

    [Fact]
    public void Frames_of_an_animation_are_seen_as_a_player_shows_them()
    {
        string file = Tools.TempFile(".gif");
        string[] arguments =
            ["-page 40x30+0+0 -size 40x30 -dispose none xc:white", "-page +5+5 -size 10x10 -dispose previous xc:red",
            "-page +20+15 -size 12x8 -dispose background xc:blue", "-page +0+21 -size 9x9 -dispose none xc:lime"];
        Tools.Run("convert", [.. string.Join(' ', arguments).Split(' '), file]);
        using RasterCachedImage image = Samples.Load(file);
        Assert.Equal(4, image.PageCount);
        string whole = Tools.TempFile(".gif");
        Tools.Run("convert", file, "-coalesce", whole);
        for (int i = 0; i < 4; i++)
        {
            Assert.Equal(0, Samples.LargestDifference(image.GetPage(i), whole, $"[{i}]"));
        }
    }

    [Fact]
    public void Bitmaps_have_a_class_of_their_own_and_names_do_not_matter()
    {
        using var made = Samples.Colors();
        string file = Samples.Save(
            made, new BmpOptions { BitsPerPixel = 4, ResolutionSettings = new ResolutionSetting(254, 127) }, ".jpg");
        using var image = Assert.IsType<BitmapImage>(Image.Load(file));
        Assert.Equal(
            (4, 16, 254.0, 127.0),
            (image.BitsPerPixel, image.Palette!.EntriesCount, image.HorizontalResolution, image.VerticalResolution));
        Assert.Equal(FileFormat.Bmp, Image.GetFileFormat(file));
        using FileStream stream = File.OpenRead(file);
        using Image streamed = Image.Load(stream);
        Assert.Equal(image.Width, streamed.Width);
        image.Save();
        Assert.Equal("61x43", Tools.Run("identify", "-format", "%wx%h", file));
    }

    [Theory]
    [InlineData(".jpg")]
    [InlineData(".tif")]
    [InlineData(".bmp")]
    public void Images_that_a_drawing_refers_to_are_drawn(string extension)
    {
        string folder = Directory.CreateTempSubdirectory("korvan").FullName;
        using var photo = Samples.Of(32, 32, (x, y) => Samples.Rgb(250, 0, 0));
        ImageOptionsBase options =
            extension switch { ".jpg" => new JpegOptions(), ".tif" => new TiffOptions(), _ => new BmpOptions() };
        photo.Save(Path.Combine(folder, "photo" + extension), options);
        CadImage drawing = TestPage.Drawing(new CadRasterImage
        {
            ImageDefReference = "77",
            ImageSize = new Cad2DPoint(32, 32),
            VectorU = new Cad3DPoint(1, 0, 0),
            VectorV = new Cad3DPoint(0, 1, 0),
            InsertionPoint = new Cad3DPoint(20, 20, 0),
            DisplayFlags = 1,
        });
        drawing.Objects.Add(new CadRasterImageDef { FileName = "photo" + extension, ObjectHandle = "77" });
        drawing.FilePath = Path.Combine(folder, "plan.dxf");
        using TestPage page = TestPage.Of(drawing);
        Assert.InRange(page[36, 36].R, 240, 255);
        Assert.InRange(page[36, 36].G, 0, 10);
        Directory.Delete(folder, true);
    }
}
