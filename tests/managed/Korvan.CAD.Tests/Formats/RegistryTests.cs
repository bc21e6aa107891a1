using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.Formats;

/// <summary>Loading, detection, saving and the lists of formats agree, as they use the same records.</summary>
public sealed class RegistryTests
{
    private const string TableStart = "<!-- formats: written by the tests from the registry of formats -->\n";
    private const string TableEnd = "<!-- end of formats -->";

    [Fact]
    public void Each_record_is_consistent_with_the_formats_and_options_it_names()
    {
        FileFormat[] all = [.. FormatRegistry.All.SelectMany(static record => record.Formats)];
        Assert.Equal(all.Length, all.Distinct().Count());
        Assert.All(all, static format => Assert.True(Metadata.Find(format) is not null, $"{format} has no metadata"));
        foreach (FormatRecord record in FormatRegistry.All)
        {
            Assert.All(record.Written ?? [], format => Assert.Contains(format, record.Formats));
            foreach (FormatWriter writer in record.Writers)
            {
                var options = (ImageOptionsBase)Activator.CreateInstance(writer.OptionsType)!;
                Assert.Contains(options.TargetFormat, record.Written ?? record.Formats);
            }
        }
    }

    [Theory]
    [InlineData(FileFormat.IFC2X3)]
    [InlineData(FileFormat.IFC4)]
    [InlineData(FileFormat.DxfCadR012)]
    [InlineData(FileFormat.Png)]
    [InlineData(FileFormat.Pdf)]
    public void Lists_of_written_formats_know_what_images_can_be_saved_as(FileFormat format)
    {
        Assert.True(SupportedFileFormats.Output.Contains(format));
        Assert.True(FileFormatInfo.Get(format).CanSave);
    }

    /// <summary>The first bytes of files of formats that are read, known, or neither.</summary>
    public static TheoryData<string, FileFormat, byte[]> Beginnings => new()
    {
        { "a comment of 100,000 characters before the schema", FileFormat.IFC4,
            Step("IFC4", new string('x', 100_000)) },
        { "a schema that is no building model", FileFormat.Stp, Step("AUTOMOTIVE_DESIGN", "") },
        { "comments of 100,000 characters before the release", FileFormat.DxfCadR2000, Dxf(new string('x', 100_000)) },
        { "a release in the first bytes", FileFormat.DxfCadR2000, Dxf("") },
        { "a scalable graphic behind declarations", FileFormat.Svg, Text(
            $"<?xml version='1.0'?><!--{new string('x', 9000)}<a>--><!DOCTYPE svg [<!ENTITY a 'b>'>]><svg:svg/>") },
        { "a page that shows a graphic, which is none itself", FileFormat.Undefined, Text("<html><svg/></html>") },
        { "a text that is cut in its first line", FileFormat.Undefined, Text("0") },
        { "a scene", FileFormat.Collada, Text("<COLLADA xmlns='x'>") },
        { "a drawing database", FileFormat.CadR2018, Text("AC1032\0\0") },
        { "a published drawing", FileFormat.Dwf, Text("(DWF V06.00)") },
        { "the signature of a bitmap and nothing more", FileFormat.Undefined, Text("BM") },
        { "noise", FileFormat.Undefined, [1, 2, 3, 4, 5, 6, 7, 8, 9] },
    };

    [Theory]
    [MemberData(nameof(Beginnings))]
    public void Detection_and_loading_agree(string what, FileFormat format, byte[] content)
    {
        Assert.True(format == Image.GetFileFormat(new MemoryStream(content)), what);
        bool canLoad = Image.CanLoad(new MemoryStream(content));
        Assert.Equal(FormatRegistry.CanRead(format), canLoad);
        Exception? failure = Record.Exception(() => Image.Load(new MemoryStream(content)).Dispose());
        bool isRefused = failure?.Message.Contains("These formats can be read: ", StringComparison.Ordinal) == true;
        Assert.True(canLoad != isRefused, $"{what}: {failure?.Message}");
        Assert.Equal(format, Image.GetFileFormat(new TrickleStream(content)));
    }

    [Fact]
    public void A_readable_source_is_read_once_and_others_no_further_than_needed()
    {
        byte[] drawing = Dxf(new string('x', 20_000));
        using var whole = new TrickleStream(drawing);
        Assert.Equal(drawing, SourceFile.ReadAll(new SourceWindow(whole, "a drawing")));
        Assert.Equal(drawing.Length, whole.Given);

        byte[] other = [.. Text("(DWF V06.00)"), .. new byte[1 << 20]];
        using var known = new TrickleStream(other);
        Assert.Throws<ImageLoadException>(() => Image.Load(known));
        Assert.True(known.Given <= SourceWindow.SignatureLength, $"{known.Given} bytes were read");
    }

    [Fact]
    public void The_readme_has_the_formats_of_the_registry()
    {
        string file = RepositoryFiles.Find("README.md");
        string text = File.ReadAllText(file);
        int start = text.IndexOf(TableStart, StringComparison.Ordinal) + TableStart.Length;
        int end = text.IndexOf(TableEnd, StringComparison.Ordinal);
        Assert.True(start >= TableStart.Length && end >= start, "README.md has no place for the formats.");
        if (RepositoryFiles.Update)
        {
            File.WriteAllText(file, text[..start] + FormatTable.ToMarkdown() + text[end..]);
            return;
        }

        Assert.Equal(FormatTable.ToMarkdown(), text[start..end]);
    }

    private static byte[] Text(string text) => Encoding.UTF8.GetBytes(text);

    private static byte[] Step(string schema, string comment) => Text(
        $"ISO-10303-21;\nHEADER;\n/*{comment}*/\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
        + $"FILE_SCHEMA(('{schema}'));\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n");

    private static byte[] Dxf(string comment) => Text(string.Join('\n', Lines(comment)));

    private static IEnumerable<string> Lines(string comment) =>
    [
        "999", comment, "0", "SECTION", "2", "HEADER", "999", comment, "9", "$ACADVER", "1", "AC1015", "0", "ENDSEC",
        "0",
        "EOF", "",
    ];

    /// <summary>A stream that is not seekable and returns a few bytes per call.</summary>
    private sealed class TrickleStream(byte[] content) : MemoryStream(content)
    {
        internal int Given { get; private set; }

        public override bool CanSeek => false;

        public override int Read(byte[] buffer, int offset, int count)
        {
            int read = base.Read(buffer, offset, Math.Min(count, 1000));
            Given += read;
            return read;
        }

        public override int ReadByte()
        {
            int read = base.ReadByte();
            Given += read < 0 ? 0 : 1;
            return read;
        }
    }
}
