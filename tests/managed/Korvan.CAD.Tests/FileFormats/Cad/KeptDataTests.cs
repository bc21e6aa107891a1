using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Data that no class interprets is written by the format that it came from, and by no other.</summary>
public class KeptDataTests
{
    [Fact]
    public void Data_of_another_format_is_left_out_and_told()
    {
        CadImage image = new();
        image.AddEntity(new CadLine { SecondPoint = new Cad3DPoint(3, 4, 0), Kept = new KeptBits() });
        image.AddEntity(new RawEntity("WIDGET") { Kept = new KeptBits() });
        image.Objects.Add(new RawObject("GADGET") { Kept = new KeptBits() });
        image.Drawing.RawSections.Add(new RawSection("FOREIGN") { Content = new KeptBits() });
        DxfOptions options = new();
        using MemoryStream stream = new();
        image.Save(stream, options);

        CadImage again = DxfText.Load(stream.ToArray());
        Assert.Equal(3, Assert.IsType<CadLine>(Assert.Single(again.Entities)).SecondPoint.X);
        Assert.DoesNotContain(again.Objects, item => item is RawObject { DxfName: "GADGET" });
        Assert.Empty(again.Drawing.RawSections);
        CadRenderResult result = Assert.IsType<CadRenderResult>(options.RenderResult);
        Assert.Equal(RenderErrorCode.EntityNotDrawn, result.RenderCode);
        Assert.Equal(["GADGET", "LINE", "WIDGET", "section"],
            result.Failures.Select(failure => failure.Message.Split(' ')[0]).Order(System.StringComparer.Ordinal));
        Assert.All(result.Failures, failure => Assert.Contains("data kept in the form of a test", failure.Message,
            System.StringComparison.Ordinal));
    }

    [DrawingFact]
    public void Entities_of_unknown_classes_stay_with_their_graphics_as_proxies()
    {
        CadImage drawing = (CadImage)Image.Load(SharedDrawings.Dwg("lwg__2013_gh109_1.dwg"));
        using MemoryStream saved = new();
        drawing.Save(saved, new DxfOptions());
        CadImage text = DxfText.Load(saved.ToArray());
        using MemoryStream file = new();
        text.Save(file, new DwgOptions());
        file.Position = 0;
        foreach (CadImage again in new[] { text, (CadImage)Image.Load(file) })
        {
            Assert.Equal(drawing.Entities.Count, again.Entities.Count);
            int proxies = 0;
            foreach (CadEntityBase entity in drawing.Entities.Where(static entity => entity is RawEntity))
            {
                CadAcadProxyEntity proxy = Assert.IsType<CadAcadProxyEntity>(
                    again.Entities.Single(other => other.Handle == entity.Handle));
                Assert.Equal(((Korvan.CAD.FileFormats.Cad.Model.KeptBits)entity.Kept!).Graphics, proxy.GraphicsData);
                Assert.Equal(entity.DxfName,
                    again.Drawing.ClassEntities.Items[proxy.ApplicationClassId - 500].DxfRecordName);
                Assert.Equal((entity.LayerName, entity.Owner), (proxy.LayerName, proxy.Owner));
                proxies++;
            }

            Assert.Equal(25, proxies);
        }
    }

    [Fact]
    public void Data_of_the_format_is_written_without_a_word()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(0, "WIDGET", 5, "2A", 8, "0", 70, 7));
        DxfOptions options = new();
        using MemoryStream stream = new();
        image.Save(stream, options);
        Assert.Equal(RenderErrorCode.Success, options.RenderResult!.RenderCode);
        Assert.Equal(70, Assert.Single(DxfText.Load(stream.ToArray()).Entities[0].UnknownCodes).Attribute);
    }

    [Fact]
    public void Clones_have_kept_data_of_their_own()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "WIDGET", 5, "2A", 8, "0", 70, 7, 101, "Embedded Object", 10, 1, 1001, "ACME", 1000, "note"));
        CadEntityBase original = image.Entities[0];
        CadEntityBase clone = original.Clone();
        clone.KeptTags!.Tags.Clear();
        clone.Embedded!.Clear();
        clone.XdataContainer.XdataEntities[0].Data[0].Value = "changed";
        Assert.Equal((1, 2, "note"), (original.UnknownCodes.Length, original.Embedded!.Count,
            original.XdataContainer.XdataEntities[0].Data[0].Value));
        image.AddEntity(new RawEntity("WIDGET") { Kept = new KeptBits() });
        Assert.IsType<KeptBits>(image.Entities[1].Clone().Kept);
    }

    [Fact]
    public void Text_of_several_lines_may_follow_its_attribute()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "ATTDEF", 5, "2A", 8, "0", 100, "AcDbText", 1, "one", 100, "AcDbAttributeDefinition", 2, "A",
            100, "AcDbXrecord", 280, 1, 70, 4, 70, 0, 70, 0, 2, "A",
            0, "MTEXT", 8, "0", 100, "AcDbMText", 10, 1, 20, 2, 40, 5, 1, "one\\Ptwo",
            0, "INSERT", 5, "2B", 8, "0", 100, "AcDbBlockReference", 66, 1, 2, "B", 10, 0, 20, 0,
            0, "ATTRIB", 5, "2C", 8, "0", 100, "AcDbText", 1, "three", 100, "AcDbAttribute", 2, "A",
            100, "AcDbXrecord", 280, 1, 70, 2, 70, 0, 70, 0, 2, "A",
            0, "MTEXT", 8, "0", 100, "AcDbMText", 10, 1, 20, 2, 40, 5, 1, "three\\Pfour",
            0, "ATTRIB", 5, "2D", 8, "0", 100, "AcDbText", 1, "five", 100, "AcDbAttribute", 2, "C",
            0, "SEQEND", 5, "2E", 8, "0", 0, "MTEXT", 5, "2F", 8, "0", 100, "AcDbMText", 10, 0, 20, 0, 1, "six"));
        for (int round = 0; round < 2; round++)
        {
            Assert.Equal(
                ["CadAttDef", "CadInsertObject", "CadMText"], image.Entities.Select(item => item.GetType().Name));
            Assert.Equal("one\\Ptwo", EmbeddedMText.FromTags(image.Entities[0].Embedded)!.Text);
            IList<CadAttrib> attributes = ((CadInsertObject)image.Entities[1]).Attributes;
            Assert.Equal(
                ["three\\Pfour", null], attributes.Select(item => EmbeddedMText.FromTags(item.Embedded)?.Text));
            image = DxfText.Load(DxfText.Save(image));
        }
    }

    private sealed class KeptBits : KeptData
    {
        internal override string FormatName => "a test";

        internal override KeptData Copy() => new KeptBits();
    }
}
