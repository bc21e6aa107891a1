using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Drawings of any release, written in every release.</summary>
public class ReleaseTests
{
    private static readonly DxfOutputVersion[] Targets =
        [.. Enum.GetValues<DxfOutputVersion>().Where(static version => version != DxfOutputVersion.Original)];

    [DrawingFact]
    public void Real_drawings_of_all_releases_are_valid_in_all_releases()
    {
        foreach (string file in SharedDrawings.AllDxf())
        {
            DxfImage image = (DxfImage)Image.Load(file);
            image.Drawing.IsBinary = false;
            string before = DxfText.Save(image);
            foreach (DxfOutputVersion target in Targets)
            {
                VerifyTarget(image, target, $"{Path.GetFileName(file)} as {target}");
            }

            Assert.True(before == DxfText.Save(image), $"{file} is changed by its export");
        }
    }

    [Theory]
    [InlineData("AC1004")]
    [InlineData("AC1006")]
    [InlineData("AC1009")]
    [InlineData("AC1012")]
    [InlineData("AC1014")]
    [InlineData("AC1018")]
    public void Files_with_entities_alone_are_completed(string release)
    {
        string text = DxfText.Header(release) + DxfText.Entities(
            0, "LINE", 8, "WALLS", 6, "DASHED", 10, 1, 20, 2, 11, 3, 21, 4,
            0, "TEXT", 8, "0", 10, 0, 20, 0, 40, 1, 1, "x", 7, "NOTES",
            0, "POLYLINE", 8, "0", 66, 1, 0, "VERTEX", 8, "0", 10, 1, 20, 1, 0, "SEQEND", 8, "0")
            + DxfText.Tags(0, "EOF");
        foreach (DxfOutputVersion target in Targets)
        {
            VerifyTarget(DxfText.Load(text), target, $"{release} as {target}");
        }
    }

    [Fact]
    public void Spaces_of_old_files_get_the_names_of_new_ones()
    {
        string text = DxfText.Header("AC1009")
            + DxfText.Tags(0, "SECTION", 2, "BLOCKS", 0, "BLOCK", 8, "0", 2, "$MODEL_SPACE", 70, 0, 10, 0, 20, 0)
            + DxfText.Tags(0, "ENDBLK", 8, "0", 0, "ENDSEC") + DxfText.Entities(0, "POINT", 8, "0")
            + DxfText.Tags(0, "EOF");
        (DxfImage image, _) = Converted(DxfText.Load(text), DxfOutputVersion.R2018);
        Assert.Equal(["*Model_Space", "*Paper_Space"], image.BlockRecords.Names.Order());
        Assert.Equal("*Model_Space", image.Drawing.ModelSpace.Name);
        Assert.Single(image.Entities);
    }

    [Fact]
    public void Views_of_viewports_survive_release_12()
    {
        DxfImage image = new();
        image.PaperSpaceEntities.Add(new CadViewport
        {
            ViewCenter = new Cad2DPoint(3, 4),
            ViewHeight = 5,
            ViewTarget = new Cad3DPoint(1, 2, 3),
            ViewTwistAngle = 30,
        });
        (DxfImage old, _) = Converted(image, DxfOutputVersion.R12);
        (DxfImage again, _) = Converted(old, DxfOutputVersion.R2010);
        CadViewport view = Assert.IsType<CadViewport>(Assert.Single(again.PaperSpaceEntities));
        Assert.Equal((3.0, 4.0), (view.ViewCenter.X, view.ViewCenter.Y));
        Assert.Equal((5.0, 30.0), (view.ViewHeight, view.ViewTwistAngle));
        Assert.True(view.ViewTarget.Is(1, 2, 3));
        Assert.Empty(view.XdataContainer.XdataEntities);
    }

    [Fact]
    public void Arrow_blocks_of_dimension_styles_are_names_in_release_12_and_handles_later()
    {
        DxfImage image = new();
        image.BlockEntities.Add(new CadBlockEntity { Name = "my tick", NameAgain = "my tick" });
        DxfImage saved = DxfText.Reload(image);
        saved.DimensionStyles[0].Dimblk1 = saved.BlockRecords["my tick"].ObjectHandle;
        (DxfImage old, _) = Converted(saved, DxfOutputVersion.R12);
        Assert.Equal("MY_TICK", old.DimensionStyles[0].Dimblk1Name);
        (DxfImage again, _) = Converted(old, DxfOutputVersion.R2000);
        Assert.Equal(again.BlockRecords["MY_TICK"].ObjectHandle, again.DimensionStyles[0].Dimblk1);
    }

    [Fact]
    public void Names_for_release_12_are_unique_and_what_refers_to_them_follows()
    {
        DxfImage image = new();
        string many = new('n', 40);
        foreach (string name in new[] { "new walls", "NEW_WALLS", "new.walls", many + "1", many + "2" })
        {
            image.Layers.Add(new CadLayerTable { Name = name });
            image.AddEntity(new CadPoint { LayerName = name });
        }

        image.Header.CurrentLayer = "new walls";
        (DxfImage again, IReadOnlyList<string> changes) = Converted(image, DxfOutputVersion.R12);
        string full = new('N', 31);
        string[] expected = ["NEW_WALLS_1", "NEW_WALLS", "NEW_WALLS_2", full, full[..29] + "_1"];
        Assert.Equal(expected, again.Entities.Select(static one => one.LayerName));
        Assert.Equal(expected, again.Layers.Names.Skip(1));
        Assert.Equal("NEW_WALLS_1", again.Header.CurrentLayer);
        Assert.Contains("name 'new walls': written as NEW_WALLS_1", changes);
    }

    [Fact]
    public void Layouts_that_release_12_lacks_are_listed()
    {
        DxfImage image = new();
        image.Layouts.Add(new CadLayout { LayoutName = "Details", TabOrder = 2 });
        image = DxfText.Reload(image);
        image.PaperSpaceEntities.Add(new CadPoint());
        image.GetLayoutEntities("Details").Add(new CadPoint());
        (DxfImage again, IReadOnlyList<string> changes) = Converted(image, DxfOutputVersion.R12);
        Assert.Single(again.PaperSpaceEntities);
        Assert.Contains("layout 'Details' with 1 entities: left out", changes);
        Assert.Equal(2, again.BlockEntities.Count);
    }

    [Fact]
    public void A_release_that_was_set_in_the_header_is_converted_to()
    {
        DxfImage image = new();
        image.AddEntity(new CadMText { Text = "a" });
        image.Header.AcadVersion = CadAcadVersion.AC1009;
        Assert.IsType<CadText>(Assert.Single(DxfText.Reload(image).Entities));
        Assert.IsType<CadMText>(image.Entities[0]);
    }

    [Theory]
    [InlineData(0xff0000, 1)]
    [InlineData(0xfefefe, 7)]
    [InlineData(0x7f7f7f, 8)]
    [InlineData(0x000000, 250)] // the darkest grey, not a dark hue
    [InlineData(0xa50001, 12)]
    public void True_colours_become_the_nearest_index(int rgb, int index)
    {
        Assert.Equal(index, IndexedColors.Nearest(rgb));
        DxfImage image = new();
        image.AddEntity(new CadPoint { ColorValue = rgb });
        image.Layers.Add(new CadLayerTable { Name = "Off", ColorValue = rgb, IsOn = false });
        (DxfImage again, IReadOnlyList<string> changes) = Converted(image, DxfOutputVersion.R2000);
        Assert.Equal((index, -1), (again.Entities[0].ColorId, again.Entities[0].ColorValue));
        Assert.Equal(-index, again.Layers["Off"].ColorId);
        Assert.Contains("true colour: written as the nearest index", changes);
    }

    internal static (DxfImage Image, IReadOnlyList<string> Changes) Converted(DxfImage image, DxfOutputVersion target)
    {
        using MemoryStream stream = new();
        IReadOnlyList<string> changes = DxfSaver.Save(image.Drawing, new DxfOptions { Version = target }, stream);
        return (DxfText.Load(stream.ToArray()), changes);
    }

    private static void VerifyTarget(DxfImage image, DxfOutputVersion target, string name)
    {
        using MemoryStream stream = new();
        IReadOnlyList<string> changes = DxfSaver.Save(image.Drawing, new DxfOptions { Version = target }, stream);
        DxfStructure structure = new(stream.ToArray(), name);
        structure.VerifyTables();
        if (target == DxfOutputVersion.R12)
        {
            structure.VerifyHandles();
            structure.VerifyRelease12(image.Version >= CadAcadVersion.AC1012);
        }
        else
        {
            structure.VerifyOwners();
        }

        DxfImage again = DxfText.Load(stream.ToArray());
        Assert.Equal(DxfRelease.From(target), again.Version);
        VerifyCounts(image, again, changes, name);
        string saved = DxfText.Save(again);
        Assert.True(saved == DxfText.Save(DxfText.Reload(again)), $"{name} changes when it is saved again");
    }

    // What is missing has been listed as converted or left out.
    private static void VerifyCounts(DxfImage image, DxfImage again, IReadOnlyList<string> changes, string name)
    {
        Dictionary<string, int> counts = Counts(again);
        bool hasSheets = changes.Any(static change => change.StartsWith("layout '", StringComparison.Ordinal));
        foreach ((string type, int count) in Counts(image))
        {
            int listed = changes.Count(change => change.StartsWith(type + ":", StringComparison.Ordinal)
                || change.StartsWith(type + " that", StringComparison.Ordinal));
            Assert.True(
                hasSheets || counts.GetValueOrDefault(type) >= count - listed,
                $"{name}: {counts.GetValueOrDefault(type)} of {count} {type}, {listed} listed");
        }
    }

    private static Dictionary<string, int> Counts(DxfImage image) => DrawingWalk.Entities(image.Drawing)
        .GroupBy(static one => one.TypeNameText).ToDictionary(static one => one.Key, static one => one.Count());
}
