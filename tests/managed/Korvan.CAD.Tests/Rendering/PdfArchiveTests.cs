using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using System.Text.RegularExpressions;
using System.Xml.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Archives follow ISO 19005-1. A rule names its clause; what it needs is in the file, or must not be.
/// </summary>
public sealed class PdfArchiveTests : IDisposable
{
    private const RegexOptions Whole = RegexOptions.Singleline | RegexOptions.Multiline;

    /// <summary>Clause, pattern, and whether it occurs in the bytes as they are.</summary>
    public static readonly TheoryData<string, string, bool> FileRules = new()
    {
        { "6.1.2 header, followed by a comment of bytes above 127", @"\A%PDF-1\.4\n%[\x80-\xff]{4}\n", true },
        { "6.1.3 identifier in the trailer", @"trailer\n<<.*/ID\[<[0-9A-F]{32}><[0-9A-F]{32}>\]", true },
        { "6.1.3 no encryption", "/Encrypt", false },
        { "6.1.3 no bytes after the end", @"%%EOF\n\z", true },
        { "6.1.4 one table of objects, no streams of them",
            @"^xref\n0 \d+\n0000000000 65535 f \n(\d{10} 00000 n \n)+trailer\n", true },
        { "6.1.4 no streams of objects", "/XRef|/ObjStm", false },
        { "6.1.7 streams begin after a line feed", @"stream\r?[^\n]*(?<!end)stream(?!\n|\r\n|<|>)", false },
        { "6.1.8 objects are on lines of their own", @"^\d+ 0 obj\n", true },
        { "6.1.10 no compression with a patent", "LZWDecode", false },
        { "6.1.11 no embedded files", "/EmbeddedFiles|/EF", false },
        { "6.1.13 no optional content", "/OCProperties|/OCG", false },
        { "6.7.2 metadata without a filter", @"/Type/Metadata/Subtype/XML/Length \d+>>\nstream\n<\?xpacket", true },
    };

    /// <summary>Clause, pattern, and whether it occurs once streams are not compressed.</summary>
    public static readonly TheoryData<string, string, bool> ContentRules = new()
    {
        { "6.2.2 output intent with a profile", "/S /GTS_PDFA1.*?/Type /OutputIntent", true },
        { "6.2.2 the profile has three channels", @"/N 3\b", true },
        { "6.2.4 images are not interpolated", "/Interpolate true", false },
        { "6.2.10 no references to states of transparency", "/BM|/TR", false },
        { "6.3.4 programs of fonts are embedded", "/FontFile2", true },
        { "6.3.5 subsets list their glyphs", "/CIDSet", true },
        { "6.3.8 fonts map to characters", "/ToUnicode", true },
        { "6.4 no soft masks", "/SMask", false },
        { "6.4 no groups with transparency", "/Transparency", false },
        { "6.4 no opacity", @"/(ca|CA) [0-9.]+\b", false },
        { "6.6.1 no actions", "/OpenAction|/JavaScript|/AA", false },
        { "6.7.11 part and conformance",
            @"<pdfaid:part>1</pdfaid:part>\n<pdfaid:conformance>[AB]</pdfaid:conformance>", true },
    };

    private readonly TextEngine _engine = new();

    public void Dispose() => _engine.Dispose();

    [Theory]
    [MemberData(nameof(FileRules))]
    public void Files_follow_the_rules(string rule, string pattern, bool occurs) =>
        Assert.All(Archives(), bytes => Assert.True(
            occurs == Regex.IsMatch(Encoding.Latin1.GetString(bytes), pattern, Whole), rule));

    [Theory]
    [MemberData(nameof(ContentRules))]
    public void Content_follows_the_rules(string rule, string pattern, bool occurs) =>
        Assert.All(Archives(), bytes => Assert.True(
            occurs == Regex.IsMatch(PdfSample.Plain(PdfSample.ToFile(bytes)), pattern, Whole), rule));

    [Fact]
    public void Accessible_archives_have_a_structure_that_holds_all_content()
    {
        string plain = PdfSample.Plain(PdfSample.ToFile(Archive(PdfCompliance.PdfA1a)));
        Assert.Matches("/MarkInfo <<\\s+/Marked true", plain); // 6.8.2.2
        Assert.Matches("/Lang \\(und\\)", plain); // 6.8.4
        Assert.Contains("/Alt (Plan \\(A\\))", plain);
        Assert.Matches(new Regex(@"stream\n/Figure<</MCID 0>>BDC\n.*\nEMC\s+endstream", Whole), plain);
        Assert.Contains("/StructParents 0", plain);
        Assert.DoesNotContain("/StructTreeRoot", PdfSample.Plain(PdfSample.ToFile(Archive(PdfCompliance.PdfA1b))));
    }

    /// <summary>6.7.3: the information dictionary and the metadata say the same.</summary>
    [Fact]
    public void Metadata_say_what_the_information_dictionary_says()
    {
        var info = new DocumentInfo("A <plan> & \u6F22", "Ä", "(S)", "a, b")
        {
            Created = new DateTime(2024, 2, 29, 12, 30, 5),
            Modified = new DateTime(2025, 1, 2, 3, 4, 5),
        };
        string file = PdfSample.ToFile(Archive(PdfCompliance.PdfA1b, info));
        string listed = Tools.Run("pdfinfo", "-isodates", file);
        string packet = Tools.Run("pdfinfo", "-meta", file);
        XDocument metadata = XDocument.Parse(packet.Trim());
        foreach ((string key, string name, string value) in ((string, string, string)[])[
            ("Title", "title", "A <plan> & \u6F22"), ("Author", "creator", "Ä"), ("Subject", "description", "(S)"),
            ("Keywords", "Keywords", "a, b"), ("Creator", "CreatorTool", "korvan.cad"),
            ("Producer", "Producer", "korvan.cad"), ("CreationDate", "CreateDate", "2024-02-29T12:30:05Z"),
            ("ModDate", "ModifyDate", "2025-01-02T03:04:05Z")])
        {
            Assert.Matches($@"{key}:\s+{Regex.Escape(value)}\n", listed);
            Assert.Equal(value, Assert.Single(metadata.Descendants(), e => e.Name.LocalName == name).Value);
        }
    }

    [Fact]
    public void The_profile_is_that_of_the_web()
    {
        byte[] profile = SrgbProfile.Bytes();
        string file = Tools.TempFile(".icc");
        File.WriteAllBytes(file, profile);
        Tools.Run("convert", "-size", "1x1", "xc:#336699", "-profile", file, "null:");
        Assert.Equal(profile.Length, System.Buffers.Binary.BinaryPrimitives.ReadInt32BigEndian(profile));
        Assert.Equal("acsp", Encoding.ASCII.GetString(profile, 36, 4));
    }

    /// <summary>What transparency would show is mixed with the page, and noted.</summary>
    [Fact]
    public void Transparency_is_blended_with_the_page()
    {
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        string file = PdfSample.ToFile(
            PdfSample.Write(_engine, [page], new PdfSettings { Compliance = PdfCompliance.PdfA1b }));
        PixelMap shown = PixelMap.OfPdf(file);
        Assert.Equal(new DisplayList.Rgba(255, 127, 127), shown[140, PdfSample.Height - 1 - 70]);
        RenderErrorCode code = Assert.Single(page.Notes.Results(), one => one.Message.Contains("colours")).RenderCode;
        Assert.Equal(RenderErrorCode.TransparencyBlended, code);
        Assert.Contains(page.Notes.Results(), one => one.Message.Contains("images", StringComparison.Ordinal));
    }

    [Fact]
    public void Options_ask_for_archives_and_drawings_date_them()
    {
        CadImage drawing = TestPage.Drawing(new CadText { DefaultValue = "Plan", TextHeight = 5 });
        drawing.Drawing.Header.Set("$TDUCREATE", 40, "2460000.25");
        string file = TestPage.SaveTo(drawing, new PdfOptions
        {
            CorePdfOptions = new PdfDocumentOptions { Compliance = PdfCompliance.PdfA1b },
            PdfDocumentInfo = new PdfDocumentInfo { Title = "Plan" },
        }, ".pdf");
        string info = Tools.Run("pdfinfo", "-isodates", file);
        Assert.Matches(@"PDF version:\s+1\.4", info);
        Assert.Matches(@"CreationDate:\s+2023-02-24T18:00:00Z", info);
        Assert.DoesNotContain("ModDate", info);
    }

    private IEnumerable<byte[]> Archives() => [Archive(PdfCompliance.PdfA1a), Archive(PdfCompliance.PdfA1b)];

    private byte[] Archive(PdfCompliance compliance, DocumentInfo info = default) => PdfSample.Write(
        _engine, [PdfSample.PageOf(PdfSample.List(_engine))], new PdfSettings { Compliance = compliance, Info = info });
}
