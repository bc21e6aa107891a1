using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.RevHistory;
using Korvan.CAD.FileFormats.Cad.Dwg.Sections;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.VbaProject;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Sections;

/// <summary>The sections about the drawing: written, read again, and cut at any byte.</summary>
public class PropertyCodecTests
{
    private static readonly SectionText Bytes = new(2004, DwgCodePage.Get("ANSI_1252"));

    [Theory]
    [InlineData(2004)]
    [InlineData(2007)]
    [InlineData(2018)]
    public void A_summary_keeps_all_characters_and_times(int release)
    {
        SectionText text = new(release, DwgCodePage.Get("ANSI_1252"));
        SummaryInfoData summary = Summary();
        byte[] section = SummaryInfoSection.Write(summary, text);
        Assert.Equal(Describe(summary), Describe(SummaryInfoSection.Read(section, text)!));
        for (int length = 0; length < section.Length - 8; length++)
        {
            Assert.Null(SummaryInfoSection.Read(section.AsSpan(0, length), text));
        }
    }

    [Theory]
    [InlineData(2004, 65_534)]
    [InlineData(2007, 65_534)]
    public void A_string_of_the_summary_that_is_too_long_is_refused(int release, int length)
    {
        SectionText text = new(release, DwgCodePage.Get("ANSI_1252"));
        SummaryInfoData summary = new() { Comments = new string('x', length) };
        byte[] section = SummaryInfoSection.Write(summary, text);
        Assert.Equal(length, SummaryInfoSection.Read(section, text)!.Comments.Length);
        summary.Comments += "y";
        var failure = Assert.Throws<ImageSaveException>(() => SummaryInfoSection.Write(summary, text));
        Assert.Contains("65535 characters", failure.Message);
    }

    [Fact]
    public void The_program_is_read_in_both_forms()
    {
        AppInfoData21 data = new()
        {
            Form = 3,
            Name = "AppInfoDataList",
            Version = "24.0",
            Comment = "é",
            Product = "<>",
        };
        byte[] section = AppInfoSection.Write(data);
        var again = Assert.IsType<AppInfoData21>(AppInfoSection.Read(section, Bytes));
        Assert.Equal((3, "AppInfoDataList", "24.0", "é", "<>"), (
            again.Form, again.Name, again.Version, again.Comment, again.Product));

        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        Bytes.Write(writer, "AppInfoDataList");
        writer.Write(4);
        Bytes.Write(writer, "4001");
        Bytes.Write(writer, "<ProductInformation/>");
        Bytes.Write(writer, "2004");
        var early = Assert.IsType<AppInfoData18>(AppInfoSection.Read(stream.ToArray(), Bytes));
        Assert.Equal(("AppInfoDataList", "<ProductInformation/>", "2004"), (early.Name, early.Product, early.Version));
        foreach (byte[] whole in new[] { section, stream.ToArray() })
        {
            for (int length = 0; length < whole.Length; length++)
            {
                Assert.Null(AppInfoSection.Read(whole.AsSpan(0, length), Bytes));
            }
        }
    }

    // An entry of which the version is left out does not make the comment the version.
    [Fact]
    public void Entries_of_the_program_are_told_by_their_identifiers()
    {
        byte[] comment = Convert.FromHexString("B8D0F025A1D79349B2FA9BF9286FA1FD");
        AppInfoData21 data = new() { Name = "AppInfoDataList", Comment = "about", CommentData = comment };
        var again = Assert.IsType<AppInfoData21>(AppInfoSection.Read(AppInfoSection.Write(data), Bytes));
        Assert.Equal(("", "about", ""), (again.Version, again.Comment, again.Product));
    }

    [Theory]
    [InlineData(2004, 3)]
    [InlineData(2007, 4)]
    public void The_revision_history_has_its_number_of_values(int release, int count)
    {
        RevHistoryData data = new([.. Enumerable.Range(7, count)], [1, 2, 3]);
        byte[] section = MinorSections.WriteRevHistory(data, release);
        RevHistoryData again = MinorSections.ReadRevHistory(section, release)!;
        Assert.Equal(data.Values, again.Values);
        Assert.Equal(data.Rest, again.Rest);
        Assert.Null(MinorSections.ReadRevHistory(section.AsSpan(0, (count * 4) - 1), release));
        Assert.Equal(count * 4, MinorSections.WriteRevHistory(null, release).Length);
    }

    [Fact]
    public void Macros_are_kept()
    {
        VbaProjectData data = new([9, 8, 7]);
        byte[] section = MinorSections.WriteVbaProject(data);
        Assert.Equal(data.Data, MinorSections.ReadVbaProject(section)!.Data);
        Assert.Null(MinorSections.ReadVbaProject(section.AsSpan(0, 20)));
        Assert.Null(MinorSections.ReadVbaProject(default));
    }

    [Theory]
    [InlineData(2004)]
    [InlineData(2018)]
    public void Files_that_a_drawing_needs_are_read_up_to_the_damaged_one(int release)
    {
        SectionText text = new(release, DwgCodePage.Get("ANSI_1252"));
        List<FileDependency> files =
        [
            new("Acad:XRef", "a.dwg", "C:\\plans", "{1}", "{2}", 100, 2000, true, 3),
            new("Acad:Image", "b é.png", "", "", "", -1, int.MaxValue, false, 1),
            new("Acad:XRef", "c.dwg", "", "", "", 0, 0, true, 1),
        ];
        byte[] section = FileDependencySection.Write(files, text);
        Assert.Equal(files, FileDependencySection.Read(section, text));
        for (int length = 0; length < section.Length; length++)
        {
            List<FileDependency> read = FileDependencySection.Read(section.AsSpan(0, length), text);
            Assert.Equal(files.Take(read.Count), read);
            Assert.True(read.Count < 3);
        }

        BitConverter.GetBytes(-1).CopyTo(section, 0); // features without an end
        Assert.True(FileDependencySection.Read(section, text).Count < 3);
    }

    [Theory]
    [InlineData(2000)]
    [InlineData(2018)]
    public void The_system_of_measures_is_read_after_a_description(int release)
    {
        byte[] description = release < 2007 ? [2, 0, 65, 66] : [2, 0, 65, 0, 66, 0];
        Assert.Equal(1, MinorSections.ReadMeasurement([.. description, 1, 0], release));
        Assert.Equal(0, MinorSections.ReadMeasurement(MinorSections.WriteTemplate(0), release));
        Assert.Equal(1, MinorSections.ReadMeasurement(MinorSections.WriteTemplate(1), release));
        Assert.Null(MinorSections.ReadMeasurement(description, release));
        Assert.Null(MinorSections.ReadMeasurement(default, release));
    }

    [Theory]
    [InlineData("42 4D 00 01")]
    [InlineData("89 50 4E 47 0D")]
    [InlineData("")]
    public void Previews_are_found_wherever_they_are_in_the_file(string bytes)
    {
        byte[] image = Convert.FromHexString(bytes.Replace(" ", ""));
        foreach (long address in new[] { 0, 0x40, 0x12345 })
        {
            byte[] section = PreviewSection.Write(image, address);
            Assert.Equal(image, PreviewSection.ImageOf(section).ToArray());
            byte[] file = [.. new byte[0x40], .. section];
            DwgSource source = new(file, "a", new LoadOptions());
            Assert.Equal(section, PreviewSection.Cut(source, 0x40));
            Assert.Empty(PreviewSection.Cut(source, 0x41));
            Assert.Empty(PreviewSection.Cut(source, uint.MaxValue));
            DwgSource cut = new(file[..^1], "a", new LoadOptions());
            Assert.Empty(PreviewSection.Cut(cut, 0x40));
        }
    }

    // Entries without data may have any address.
    [Fact]
    public void An_empty_entry_does_not_move_the_image()
    {
        byte[] section = PreviewSection.Write([1, 2, 3, 4], 0x500);
        int directory = Sentinels.Length + 4;
        byte[] changed = [.. section[..directory], 3, 3, .. new byte[8], .. section[(directory + 1)..]];
        Assert.Equal([1, 2, 3, 4], PreviewSection.ImageOf(changed).ToArray());
    }

    [Theory]
    [InlineData(20, 0xFF)] // entries without an end
    [InlineData(31, 0xFF)] // an address far away
    [InlineData(34, 0x7F)] // a length that is too large
    [InlineData(0, 0)] // no preview at all
    public void A_preview_that_lies_has_no_image(int at, byte value)
    {
        byte[] section = PreviewSection.Write([1, 2, 3, 4], 0x500);
        section[at] = value;
        if (at > 30)
        {
            section[at + 3] = value;
        }

        Assert.True(PreviewSection.ImageOf(section).IsEmpty);
        Assert.True(PreviewSection.ImageOf(section.AsSpan(0, 25)).IsEmpty);
    }

    private static SummaryInfoData Summary() => new()
    {
        Title = "Plan \\ A",
        Subject = "漢字",
        Author = "José",
        Keywords = "a, b",
        Comments = "two\r\nlines",
        LastSavedBy = "me",
        RevisionNumber = "7",
        HyperlinkBase = "http://localhost",
        TotalEditingTime = 1.5,
        CreateTime = 2451545.25,
        UpdateTime = 2451546,
        CustomNames = { "a", "漢" },
        CustomValues = { "1", "" },
    };

    private static string Describe(SummaryInfoData data) => string.Join('|', data.Title, data.Subject, data.Author,
        data.Keywords, data.Comments, data.LastSavedBy, data.RevisionNumber, data.HyperlinkBase, data.TotalEditingTime,
        data.CreateTime, data.UpdateTime, string.Join(',', data.CustomNames), string.Join(',', data.CustomValues));
}
