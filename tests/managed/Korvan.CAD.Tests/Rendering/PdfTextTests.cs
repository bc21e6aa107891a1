using System;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Text in PDF documents stays text, in fonts of which only what is used is embedded.</summary>
public sealed class PdfTextTests : IDisposable
{
    private readonly TextEngine _engine = new();

    public static readonly TheoryData<string, double[], double> Texts = new()
    {
        { "Straight on, 12 × 3.5 m² ± ½", [8, 0, 0, 8], 0 },
        { "office affine ffl", [14, 0, 0, 14], 0 }, // ligatures of several characters
        { "ÄÖ e\u0301 ΩЖ", [14, 0, 0, 14], 0 }, // a combining accent
        { "x = \U0001d538 + 1", [14, 0, 0, 14], 0 }, // outside of the first plane, in the fonts that every machine has
        { "upwards", [0, 14, -14, 0], 0 },
        { "downwards", [0, -14, 14, 0], 0 },
        { "oblique", [14, 0, 5, 14], 0 },
        { "upsidedown", [-14, 0, 0, -14], 0 },
        { "wide apart", [14, 0, 0, 14], 0.2 },
        { "a(b)c\\d <e>", [3, 0, 0, 14], 0 },
        { "שלום", [14, 0, 0, 14], 0 }, // from right to left
        { "سلم", [14, 0, 0, 14], 0 }, // glyphs that join
    };

    public void Dispose() => _engine.Dispose();

    [Theory]
    [MemberData(nameof(Texts))]
    public void Texts_can_be_searched_and_copied(string text, double[] matrix, double spacing)
    {
        var list = new DrawingList();
        var place = new Affine2(matrix[0], matrix[1], matrix[2], matrix[3], 150, 100);
        PdfSample.AddText(list, _engine, text, place, spacing: spacing);
        string file = PdfSample.ToFile(PdfSample.Write(_engine, [PdfSample.PageOf(list)]));
        string found = Tools.Run("pdftotext", "-raw", file, "-");
        string Plain(string raw) => string.Concat(raw.Where(static one => !char.IsWhiteSpace(one)
            && one is < '\u200E' or > '\u202E')).Normalize(System.Text.NormalizationForm.FormC);
        Assert.Equal(Plain(text), Plain(found));
        Assert.DoesNotMatch(@"\bno\s+\w+\s+\w+\s+\d+\s+\d+\s*$", Tools.Run("pdffonts", file)); // not embedded
    }

    [Fact]
    public void Faces_are_embedded_once_for_all_pages_with_the_glyphs_that_are_used()
    {
        FontSpec sans = FontSpec.Default with { Family = "DejaVu Sans" };
        FontSpec compact = FontSpec.Default with { Family = "Nimbus Roman" };
        DrawingList With(string text)
        {
            var list = new DrawingList();
            PdfSample.AddText(list, _engine, text, new Affine2(9, 0, 0, 9, 10, 10), font: sans);
            PdfSample.AddText(list, _engine, text, new Affine2(9, 0, 0, 9, 10, 50), font: compact);
            PdfSample.AddText(list, _engine, text, new Affine2(9, 0, 0, 9, 10, 90), font: sans with { Bold = true });
            return list;
        }

        string file = PdfSample.ToFile(PdfSample.Write(
            _engine, [PdfSample.PageOf(With("Door")), PdfSample.PageOf(With("Window"))]));
        string[] fonts = Tools.Run("pdffonts", file).TrimEnd().Split('\n')[2..];
        Assert.Equal(3, fonts.Length);
        Assert.Single(fonts, line => line.Contains("CID Type 0C", StringComparison.Ordinal));
        Assert.All(fonts, line => Assert.Matches(@"^[A-Z]{6}\+\S+\s.*Identity-H\s+yes yes yes", line));
        Assert.True(new FileInfo(file).Length < 60_000, "whole fonts take hundreds of kilobytes");
    }

    [Theory]
    [InlineData("DejaVu Sans", true, true)]
    [InlineData("Z003", true, false)] // made bolder
    [InlineData("D050000L", true, true)] // made bolder and oblique
    [InlineData("Nimbus Mono PS", false, true)]
    public void Glyphs_look_as_they_do_in_pixels(string family, bool bold, bool italic)
    {
        var font = new FontSpec(family, bold, italic);
        var list = new DrawingList();
        PdfSample.AddText(list, _engine, "Hamburg 149", new Affine2(40, 0, 0, 40, 10, 130), font: font);
        PdfSample.AddText(list, _engine, "Oste\u0301", new Affine2(60, 20, -20, 60, 60, 20), font: font);
        DisplayListPage(list, out string file, out PixelMap expected);
        PixelMap.AssertAlike(expected, PixelMap.OfPdf(file), 0.99);
    }

    [Fact]
    public void Characters_that_no_font_has_are_boxes_between_the_others()
    {
        var list = new DrawingList();
        PdfSample.AddText(list, _engine, "A\U000F1234B", new Affine2(60, 0, 0, 60, 20, 60));
        DisplayListPage(list, out string file, out _);
        Assert.Equal("A B", Tools.Run("pdftotext", "-raw", file, "-").Trim());
        PixelMap shown = PixelMap.OfPdf(file);
        int box = 20 + (int)(60 * (_engine.Advance(0, "A") + (_engine.Advance(0, "\U000F1234") / 2)));
        Assert.Contains(Enumerable.Range(100, 60), y => shown[box, y].R < 128); // its edge below
        Assert.True(_engine.UnknownGlyphs > 0);
    }

    [Theory]
    [InlineData(0x0002, false, "restricted")]
    [InlineData(0x0100, false, "not to be subset")]
    [InlineData(0x0200, false, "bitmaps only")]
    [InlineData(0x0004, true, "preview and print")]
    [InlineData(0x0000, true, "installable")]
    public void Fonts_that_forbid_it_are_not_embedded(int license, bool embedded, string why)
    {
        string folder = Directory.CreateTempSubdirectory().FullName;
        byte[] font = File.ReadAllBytes(Fontconfig.FileOf(0, "DejaVu Sans", false, false)!);
        SetLicense(font, license);
        File.WriteAllBytes(Path.Combine(folder, "own.ttf"), font);
        CadImage made = TestPage.Drawing(new CadText { DefaultValue = "LICENSE", TextHeight = 10 });
        string drawing = TestPage.SaveTo(made, new DxfOptions(), ".dxf");
        var fonts = new LoadOptions
        {
            CustomFontFolders = [folder],
            CustomFontFolderOptions = CustomFontFolderOptions.IgnoreSystemFonts,
        };
        using Image image = Image.Load(drawing, fonts);
        string file = Tools.TempFile(".pdf");
        var options = new PdfOptions();
        image.Save(file, options);
        Directory.Delete(folder, recursive: true);
        Assert.True(embedded == Tools.Run("pdftotext", file, "-").Contains("LICENSE", StringComparison.Ordinal), why);
        Assert.Equal(!embedded, options.RenderResult!.Failures.Any(one => one.Message.Contains("cannot be embedded")));
        int count = PdfSample.Count(PdfSample.Plain(file), @" c\n");
        Assert.True(embedded ? count == 0 : count > 5, $"{why}: {count} curves");
    }

    [Fact]
    public void Damaged_fonts_end_in_a_document_or_an_error()
    {
        byte[] sound = File.ReadAllBytes(Fontconfig.FileOf(0, "DejaVu Sans", false, false)!);
        CadImage made = TestPage.Drawing(new CadText { DefaultValue = "Damaged ÄΩ fi", TextHeight = 10 });
        string drawing = TestPage.SaveTo(made, new DxfOptions(), ".dxf");
        int tables = System.Buffers.Binary.BinaryPrimitives.ReadUInt16BigEndian(sound.AsSpan(4));
        for (int seed = 0; seed < 40; seed++)
        {
            var random = new Random(seed);
            byte[] font = [.. sound];
            int directory = 12 + (16 * tables);
            for (int i = 0; i < 1 + (seed % 8); i++)
            {
                int place = seed % 2 == 0 ? random.Next(12, directory) : random.Next(directory, font.Length);
                random.NextBytes(font.AsSpan(place, Math.Min(1 << (seed % 10), font.Length - place)));
            }

            string folder = Directory.CreateTempSubdirectory().FullName;
            int length = seed % 5 == 0 ? font.Length / 2 : font.Length;
            File.WriteAllBytes(Path.Combine(folder, "own.ttf"), font[..length]);
            try
            {
                using Image image = Image.Load(drawing, new LoadOptions
                {
                    CustomFontFolders = [folder],
                    CustomFontFolderOptions = CustomFontFolderOptions.IgnoreSystemFonts,
                });
                image.Save(Stream.Null, new PdfOptions());
            }
            catch (ImageSaveException error)
            {
                Assert.Matches("font", error.Message);
            }
            finally
            {
                Directory.Delete(folder, recursive: true);
            }
        }
    }

    private void DisplayListPage(DrawingList list, out string file, out PixelMap expected)
    {
        Page page = PdfSample.PageOf(list);
        file = PdfSample.ToFile(PdfSample.Write(_engine, [page]));
        using var raster = RasterPage.Render(_engine, page);
        expected = PixelMap.Of(raster);
    }

    /// <summary>States what a license allows, in the table OS/2 of a font.</summary>
    private static void SetLicense(byte[] font, int license)
    {
        int entry = font.AsSpan().IndexOf("OS/2"u8);
        int table = System.Buffers.Binary.BinaryPrimitives.ReadInt32BigEndian(font.AsSpan(entry + 8));
        System.Buffers.Binary.BinaryPrimitives.WriteUInt16BigEndian(font.AsSpan(table + 8), (ushort)license);
    }
}
