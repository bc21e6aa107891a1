using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Sources;
using Korvan.CAD.Tests.FileFormats.Cad;
using Korvan.CAD.Tests.Raster;
using Xunit;

namespace Korvan.CAD.Tests.Options;

/// <summary>Every load option, and every resize setting, has an effect.</summary>
public class LoadOptionTests
{
    private const string Contour = "VectorizationOptions.ContourOptions.";
    private const string Paper = "VectorizationOptions.PaperToCadOptions.";

    private static readonly byte[] Text = Drawing("\u00C4");
    private static readonly byte[] Broken = Encoding.Latin1.GetBytes(
        DxfText.Drawing(0, "LINE", 8, "0", 10, "west", 0, "POINT", 8, "0", 10, 1, 20, 2));
    private static readonly Lazy<byte[]> Scan = new(Strokes);
    private static readonly Lazy<string> Fonts = new(static () => Folder("inner"));

    /// <summary>What a member is tested with: a file, a value, and other settings.</summary>
    private static readonly Dictionary<string, Trial> Trials = new()
    {
        ["SpecifiedEncoding"] = new(() => Text, CodePages.Cyrillic, Nothing),
        ["SpecifiedMifEncoding"] = new(() => Drawing("\\M+1A440"), MifCodePages.TradChinese, Nothing),
        ["RecoverMalformedCifMif"] = new(() => Drawing("\\u+0416"), true, Nothing),
        ["CustomFontFolders"] = new(() => Text, new[] { Folder("empty") }, Nothing),
        ["CustomFontFolderOptions"] = new(
            () => Text,
            CustomFontFolderOptions.IncludeSubfolders,
            static o => o.CustomFontFolders = [Path.GetDirectoryName(Fonts.Value)!]),
        ["UnloadOnDispose"] = new(() => Text, true, Nothing),
        ["DataBackgroundColor"] = new(
            () => Cut(new BmpOptions(), 0.7),
            Color.Black,
            static o => (o.IgnoreErrors, o.VectorizationOptions) = (true, new VectorizationOptions())),
        ["IgnoreErrors"] = new(() => Broken, true, Nothing),
        ["VectorizationOptions.Method"] = new(() => Scan.Value, VectorizationMethod.PaperToCad, Nothing),
        ["VectorizationOptions.Threshold"] = new(() => Scan.Value, 250, Nothing),
        ["VectorizationOptions.DotsPerInch"] = new(() => Scan.Value, 200.0, Nothing),
        ["VectorizationOptions.LayerName"] = new(() => Scan.Value, "Scan", Nothing),
        [Contour + "Tolerance"] = new(() => Scan.Value, 0.0, Nothing),
        [Contour + "MinimumArea"] = new(() => Scan.Value, 40, Nothing),
        [Contour + "Fill"] = new(() => Scan.Value, true, Nothing),
        [Paper + "Tolerance"] = new(() => Scan.Value, 0.1, CentreLines),
        [Paper + "MinimumLength"] = new(() => Scan.Value, 30.0, CentreLines),
        [Paper + "KeepLineWeights"] = new(() => Scan.Value, false, CentreLines),
    };

    public static IEnumerable<object[]> Members =>
        OptionMember.Of(typeof(LoadOptions)).Select(static member => new object[] { member.Path });

    [Theory]
    [MemberData(nameof(Members))]
    public void Load_options_are_followed(string path)
    {
        Assert.True(Trials.TryGetValue(path, out Trial? trial), $"Say what LoadOptions.{path} is tried on.");
        OptionMember member = OptionMember.Of(typeof(LoadOptions)).Single(one => one.Path == path);
        byte[] file = trial.File();
        string plain = Load(file, member, trial.Before);
        Assert.Equal(plain, Load(file, member, trial.Before));
        Assert.NotEqual(plain, Load(file, member, trial.Before + (options => member.Set(options, trial.Value))));
    }

    [Fact]
    public void Settings_of_a_change_of_size_are_followed()
    {
        foreach (OptionMember member in OptionMember.Of(typeof(ImageResizeSettings)))
        {
            object?[] others = member.Property.Name == nameof(ImageResizeSettings.EntriesCount)
                ? [3]
                : OptionValues.Others(member.Property, member.Property.GetValue(new ImageResizeSettings()));
            foreach (object? value in others.Where(value => !IsSame(member, value)))
            {
                Assert.True(Resized(member, null) != Resized(member, value), $"{member} = {value} is passed over.");
            }
        }
    }

    [Fact]
    public void Raw_data_settings_are_followed()
    {
        using var image = Samples.Colors();
        var part = new Rectangle(0, 0, 5, 4);
        var settings = new RawDataSettings(PixelDataFormat.Rgb24Bpp, part.Width) { LineSize = 32 };
        byte[] padded = image.LoadRawData(part, settings);
        byte[] plain = image.LoadRawData(part, new RawDataSettings(PixelDataFormat.Rgb24Bpp, part.Width));
        Assert.Equal(plain[15..30], padded[32..47]);
        var indexed = new RawDataSettings(PixelDataFormat.Rgb8BppIndexed, part.Width)
        {
            ColorPalette = ColorPaletteHelper.Create8BitGrayscale(),
        };
        byte[] gray = image.LoadRawData(part, indexed);
        indexed.ColorPalette = ColorPaletteHelper.Create8Bit();
        Assert.NotEqual(gray, image.LoadRawData(part, indexed));
    }

    [Fact]
    public void Sources_open_what_they_say()
    {
        string file = Path.Combine(Folder("sources"), "a.bin");
        using (StreamContainer made = new FileCreateSource(file).GetStreamContainer())
        {
            made.Stream.Write([1, 2, 3]);
        }

        using (StreamContainer opened = new FileOpenSource(file).GetStreamContainer())
        {
            Assert.Equal((3, false), (opened.Stream.Length, opened.Stream.CanWrite));
        }

        foreach (bool close in new[] { false, true })
        {
            var stream = new MemoryStream();
            new StreamSource(stream, close).GetStreamContainer().Dispose();
            Assert.Equal(!close, stream.CanRead);
        }
    }

    [Fact]
    public void Pixels_that_a_cut_file_does_not_hold_have_the_colour_that_is_asked_for()
    {
        var background = Color.FromArgb(255, 10, 200, 30);
        var options = new LoadOptions { IgnoreErrors = true, DataBackgroundColor = background };
        foreach ((ImageOptionsBase format, double part) in new (ImageOptionsBase, double)[]
        {
            (new BmpOptions(), 0.7), (new PsdOptions(), 0.97),
        })
        {
            using var image = (RasterImage)Image.Load(new MemoryStream(Cut(format, part)), options);
            int missing = Enumerable.Range(0, image.Height)
                .Count(y => image.GetArgb32Pixel(3, y) == background.ToArgb());
            Assert.InRange(missing, 1, image.Height / 2);
        }
    }

    [Fact]
    public void Output_goes_to_the_source_of_the_options_too_or_nowhere()
    {
        using var image = Samples.Colors(5, 4);
        string file = Path.Combine(Folder("second"), "copy.png");
        using var first = new MemoryStream();
        using var second = new MemoryStream();
        image.Save(first, new PngOptions { Source = new FileCreateSource(file) });
        Assert.Equal(first.ToArray(), File.ReadAllBytes(file));
        image.Save(new MemoryStream(), new PngOptions { Source = new StreamSource(second) });
        Assert.Equal(first.ToArray(), second.ToArray());
        using var third = new MemoryStream();
        foreach (Source refused in new Source[]
        {
            new FileOpenSource(file), new FileCreateSource(Path.Combine(file, "below")),
        })
        {
            var options = new PngOptions { Source = refused };
            ImageSaveException refusal = Assert.Throws<ImageSaveException>(() => image.Save(third, options));
            Assert.Contains("of the options", refusal.Message);
        }

        Assert.Equal(0, third.Length);
    }

    /// <summary>The visible results of loading a file: its content, the errors, or the reason why it could not be read
    /// or rendered.</summary>
    private static string Load(byte[] file, OptionMember member, Action<LoadOptions> change)
    {
        var options = new LoadOptions();
        member.Holder(options);
        change(options);
        var stream = new MemoryStream();
        stream.Write(file);
        stream.Position = 0;
        var seen = new StringBuilder();
        try
        {
            using Image image = Image.Load(stream, options);
            seen.AppendJoin('\n', image.GetStrings());
            using var drawing = new MemoryStream();
            image.Save(drawing, new DxfOptions());
            using var page = new MemoryStream();
            var size = new CadRasterizationOptions { PageWidth = 80, PageHeight = 60 };
            image.Save(page, new PngOptions { VectorRasterizationOptions = size });
            seen.Append(Encoding.UTF8.GetString(drawing.ToArray())).Append(Convert.ToBase64String(page.ToArray()));
        }
        catch (FrameworkException e)
        {
            seen.Append(e.Message);
        }

        return seen.AppendJoin('\n', options.Errors).Append(stream.CanRead).ToString();
    }

    private static string Resized(OptionMember member, object? value)
    {
        using var image = Samples.Colors(40, 30);
        var settings = new ImageResizeSettings();
        if (member.Property.Name == nameof(ImageResizeSettings.ColorQuantizationMethod))
        {
            settings.EntriesCount = 5;
        }

        if (member.Property.Name == nameof(ImageResizeSettings.BackgroundColor))
        {
            settings.Mode = ResizeType.Centered;
        }

        if (value != null)
        {
            member.Set(settings, value);
        }

        image.Resize(57, 47, settings);
        return string.Join(' ', image.LoadArgb32Pixels(image.Bounds));
    }

    /// <summary>Adaptive, the default, enlarges in the same way.</summary>
    private static bool IsSame(OptionMember member, object? value) =>
        member.Property.Name == nameof(ImageResizeSettings.Mode) && ResizeType.CatmullRom.Equals(value);

    /// <summary>The first part of an image file.</summary>
    private static byte[] Cut(ImageOptionsBase format, double part)
    {
        using var image = Samples.Colors(30, 40);
        using var whole = new MemoryStream();
        image.Save(whole, format);
        return whole.ToArray()[..(int)(whole.Length * part)];
    }

    private static byte[] Drawing(string text) =>
        Encoding.Latin1.GetBytes(DxfText.Drawing(0, "TEXT", 8, "0", 10, 1, 20, 2, 40, 3, 1, text));

    /// <summary>A folder without fonts, or with a font in its subfolder.</summary>
    private static string Folder(string name)
    {
        string folder = Directory.CreateDirectory(
            Path.Combine(Directory.CreateTempSubdirectory("korvan-").FullName, name)).FullName;
        if (name == "inner")
        {
            string font = Directory.EnumerateFiles("/usr/share/fonts", "*.ttf", SearchOption.AllDirectories).First();
            File.Copy(font, Path.Combine(folder, "some.ttf"));
        }

        return folder;
    }

    /// <summary>Bent strokes of two widths, a spur and specks, light and dark.</summary>
    private static byte[] Strokes()
    {
        using var image = Samples.Of(120, 90, static (x, y) =>
        {
            bool thick = Math.Abs(y - 20 - (10 * Math.Sin(x / 15.0))) < 4 && x is > 5 and < 110;
            bool thin = Math.Abs(x - 60) < 2 && y is > 40 and < 85;
            bool spur = Math.Abs(y - 60) < 2 && x is >= 60 and < 75;
            bool speck = x is > 90 and < 96 && y is > 60 and < 66;
            bool light = x is > 10 and < 40 && y is > 50 and < 80;
            return thick || thin || spur || speck ? Samples.Rgb(0, 0, 0) : light ? Samples.Rgb(240, 240, 240) : -1;
        });
        using var file = new MemoryStream();
        image.Save(file, new PngOptions());
        return file.ToArray();
    }

    private static void Nothing(LoadOptions options)
    {
    }

    private static void CentreLines(LoadOptions options) =>
        options.VectorizationOptions!.Method = VectorizationMethod.PaperToCad;

    private sealed record Trial(Func<byte[]> File, object Value, Action<LoadOptions> Before);
}
