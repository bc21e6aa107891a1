using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Drawings written as drawing databases, read again.</summary>
public class DrawingSavingTests
{
    private static readonly CadAcadVersion[] Written =
    [
        CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1027,
        CadAcadVersion.AC1032,
    ];

    public static TheoryData<CadAcadVersion> Releases => [.. Written];

    [Theory]
    [MemberData(nameof(Releases))]
    public void A_drawing_made_by_a_program_is_the_same_in_each_release(CadAcadVersion version)
    {
        using DwgImage image = new();
        image.Entities.Add(new CadLine { FirstPoint = new(1, 2, 3), SecondPoint = new(4, 5, 6) });
        image.Entities.Add(new CadCircle { CenterPoint = new(7, 8, 0), Radius = 2.5 });
        image.Entities.Add(new CadText { DefaultValue = "Maß ☃", TextHeight = 3 });
        image.Header.LtScale = 2.5;
        image.SummaryInfo = new SummaryInfoData
        {
            Title = "Plan",
            CustomNames = { "Stage" },
            CustomValues = { "2" }
        };
        using DwgImage again = SaveAndLoad(image, version);
        Assert.Equal(version, again.Version);
        Assert.Equal(["LINE", "CIRCLE", "TEXT"], again.Entities.Select(static entity => entity.DxfName));
        Assert.Equal(6, ((CadLine)again.Entities[0]).SecondPoint.Z);
        Assert.Equal(2.5, ((CadCircle)again.Entities[1]).Radius);
        Assert.Equal("Maß ☃", ((CadText)again.Entities[2]).DefaultValue);
        Assert.Equal(2.5, again.Header.LtScale);
        Assert.Equal("0", again.Header.CurrentLayer);
        Assert.Equal(image.Layouts.Count, again.Layouts.Count);
        bool hasSummary = version > CadAcadVersion.AC1015;
        Assert.Equal(hasSummary ? "Plan" : "", again.SummaryInfo.Title);
        Assert.Equal(hasSummary ? ["2"] : [], again.SummaryInfo.CustomValues);
    }

    [DrawingTheory]
    [InlineData("dwg/lwg__r14_Constraints.dwg")]
    [InlineData("dwg/lwg__2000_entities-2d.dwg")]
    [InlineData("dwg/tika__testDWGmech2011.dwg")]
    [InlineData("dwg/acs__BLOCKLINEARPARAMETER.dwg")]
    [InlineData("dwg/lwg__r11_entities-3d.dwg")]
    [InlineData("dxf/lwg__sample_2010.dxf")]
    public void Real_drawings_keep_their_entities_in_each_release(string name)
    {
        using CadImage image = (CadImage)Image.Load(Path.Combine(SharedDrawings.Root!, name));
        foreach (CadAcadVersion version in Written)
        {
            using DwgImage again = SaveAndLoad(image, version);
            Assert.Equal(Describe(image.Entities), Describe(again.Entities));
            Assert.Equal(image.Layers.Count, again.Layers.Count);
            Assert.Equal(image.BlockEntities.Count, again.BlockEntities.Count);
        }
    }

    [DrawingTheory]
    [InlineData("lwg__2004_Line.dwg", CadAcadVersion.AC1018)]
    [InlineData("lwg__2007_Line.dwg", CadAcadVersion.AC1024)]
    public void A_drawing_without_options_is_saved_in_its_release_or_the_next_one_that_is_written(
        string name, CadAcadVersion version)
    {
        using Image image = Image.Load(DwgSamples.PathOf(name));
        string path = Path.Combine(Path.GetTempPath(), Path.GetRandomFileName() + ".dwg");
        image.Save(path);
        try
        {
            using DwgImage again = (DwgImage)Image.Load(path);
            Assert.Equal(version, again.Version);
            Assert.Equal("LINE", Assert.Single(again.Entities).DxfName);
        }
        finally
        {
            File.Delete(path);
        }
    }

    [Fact]
    public void Releases_that_are_not_written_are_refused_by_name()
    {
        using DwgImage image = new();
        ImageSaveException failure = Assert.Throws<ImageSaveException>(
            () => image.Save(Stream.Null, new DwgOptions { Version = CadAcadVersion.AC1021 }));
        Assert.Contains("AC1021", failure.Message, StringComparison.Ordinal);
        Assert.Contains("AC1024", failure.Message, StringComparison.Ordinal);
    }

    // What was cut silently would be lost; what was written whole would be read as other values.
    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Values_that_do_not_fit_their_fields_are_refused_by_name(CadAcadVersion version)
    {
        string text = new('x', 70_000);
        (Action<DwgImage> Change, string Cause)[] cases =
        [
            (image => image.Entities.Add(new CadText { DefaultValue = text }), "TEXT "),
            (image => image.Header.Set("$MENU", 1, text), "$MENU: a string has 7000"),
            (image => image.Entities.Add(WithXdata(text)), "POINT "),
            (image => image.Entities.Add(new CadMultiLine { ElementCount = 256 }), "MLINE "),
        ];
        foreach ((Action<DwgImage> change, string cause) in cases)
        {
            using DwgImage image = new();
            change(image);
            ImageSaveException failure = Assert.Throws<ImageSaveException>(
                () => image.Save(Stream.Null, new DwgOptions { Version = version }));
            Assert.Contains(cause, failure.Message, StringComparison.Ordinal);
        }
    }

    private static CadPoint WithXdata(string text)
    {
        CadXdata xdata = new("ACAD");
        for (int i = 0; i < 400; i++)
        {
            xdata.Data.Add(new CadCodeValue(1000, text[..250]));
        }

        CadPoint point = new();
        point.XdataContainer.XdataEntities.Add(xdata);
        return point;
    }

    private static DwgImage SaveAndLoad(CadImage image, CadAcadVersion version)
    {
        using MemoryStream stream = new();
        image.Save(stream, new DwgOptions { Version = version });
        stream.Position = 0;
        return (DwgImage)Image.Load(stream);
    }

    private static IEnumerable<string> Describe(IEnumerable<CadEntityBase> entities) =>
        entities.Select(static entity => $"{entity.DxfName} {entity.LayerName}");
}
