using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Sections;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>The sections about the drawing, and how they get into it.</summary>
public class PropertySectionTests
{
    [DrawingTheory]
    [InlineData("tika__testDWG2004.dwg")]
    [InlineData("tika__testDWG2010_custom_props.dwg")]
    public void The_summary_of_real_files_is_read(string name)
    {
        using DwgImage image = (DwgImage)Image.Load(DwgSamples.PathOf(name));
        SummaryInfoData summary = image.SummaryInfo;
        Assert.Equal("The quick brown fox jumps over the lazy dog", summary.Title);
        Assert.Equal("Nevin Nollop", summary.Author);
        Assert.Equal("http://www.alfresco.com", summary.HyperlinkBase);
        Assert.Equal(image.Header.SummaryInfo.Title, summary.Title);
        Assert.Equal(name.Contains("custom", StringComparison.Ordinal) ? ["customprop1", "customprop2"] : [],
            summary.CustomNames);
        Assert.Contains("ProductInformation", image.AppInfo!.Product, StringComparison.Ordinal);
        Assert.NotNull(image.RevHistory);

        summary.Title = "Plan";
        image.SummaryInfo = summary;
        Assert.Equal("Plan", image.Header.SummaryInfo.Title);
    }

    [DrawingFact]
    public void Written_sections_are_those_of_real_files()
    {
        List<string> wrong = [];
        foreach (string path in DwgSamples.Files())
        {
            DwgFile file = DwgSamples.Open(File.ReadAllBytes(path), path, new LoadOptions());
            SectionText text = new(file.Release, file.Encoding);
            if (SummaryInfoSection.Read(file.SummaryInfo, text) is { } summary
                && !SummaryInfoSection.Write(summary, text).AsSpan().SequenceEqual(file.SummaryInfo))
            {
                wrong.Add($"{path}: summary");
            }

            if (AppInfoSection.Read(file.AppInfo, text) is AppInfoData21 program
                && !AppInfoSection.Write(program).AsSpan().SequenceEqual(file.AppInfo))
            {
                wrong.Add($"{path}: program");
            }

            List<FileDependency> files = FileDependencySection.Read(file.FileDepList, text);
            if (files.Count > 0
                && FileDependencySection.Read(FileDependencySection.Write(files, text), text) is var again
                && !files.TrueForAll(again.Contains))
            {
                wrong.Add($"{path}: files");
            }
        }

        Assert.Empty(wrong);
    }

    [DrawingTheory]
    [InlineData("lwg__2004_Line.dwg")]
    [InlineData("acs__empty.dwg")]
    public void Previews_are_bitmaps_whatever_their_form_in_the_file(string name)
    {
        using DwgImage image = (DwgImage)Image.Load(DwgSamples.PathOf(name));
        Assert.InRange(image.Thumbnail!.Width, 100, 300);
        Assert.InRange(image.Thumbnail.Height, 50, 300);
        using MemoryStream bitmap = new(image.Thumbnail.GetBitmap());
        Assert.Equal(FileFormat.Bmp, Image.GetFileFormat(bitmap));
    }

    [DrawingFact]
    public void Templates_are_told_by_their_file_extension()
    {
        string path = Path.Combine(Path.GetTempPath(), Path.GetRandomFileName() + ".DWT");
        File.Copy(DwgSamples.PathOf("lwg__sample_2000.dwg"), path);
        try
        {
            Assert.Equal(FileFormat.DwtCadR2000, Image.GetFileFormat(path));
            Assert.True(Image.CanLoad(path));
            using Image image = Image.Load(path);
            Assert.IsType<DwgImage>(image);
            Assert.Equal(FileFormat.DwtCadR2000, image.SourceFormat);
        }
        finally
        {
            File.Delete(path);
        }
    }
}
