using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.DimAssoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.CadParameters;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Objects of real drawings have classes and values, and small files show what these do not have.</summary>
public class ObjectModelTests
{
    /// <summary>Objects of programs and of renderers that the model has no classes for.</summary>
    private static readonly string[] WithoutClass =
    [
        "ACDBASSOCALIGNEDDIMACTIONBODY", "ACDBASSOCOSNAPPOINTREFACTIONPARAM",
        "ACDBASSOCVERTEXACTIONPARAM", "ACDBDETAILVIEWSTYLE", "ACDBPLACEHOLDER",
        "MENTALRAYRENDERSETTINGS", "RAPIDRTRENDERSETTINGS", "SCALE", "SORTENTSTABLE",
    ];

    [DrawingFact]
    public void Every_object_of_real_drawings_has_its_class_and_every_field()
    {
        HashSet<string> unknown = [];
        List<string> kept = [];
        foreach (string file in SharedDrawings.AllDxf())
        {
            CadImage image = (CadImage)Image.Load(file);
            unknown.UnionWith(image.Objects.Where(item => item is RawObject).Select(item => item.TypeNameText));
            Assert.Equal(0, image.UnknownEntityCount);
            kept.AddRange(image.Objects.Where(item => item is not RawObject && item.UnknownCodes.Length > 0)
                .Select(item => item.TypeNameText));
        }

        Assert.Equal(WithoutClass, unknown.Order(StringComparer.Ordinal));

        // One program states fields of materials twice; some fields of proxies stay as tags.
        Assert.Equal(["ACAD_PROXY_OBJECT", "MATERIAL"], kept.Distinct().Order(StringComparer.Ordinal));
    }

    [DrawingFact]
    public void Objects_of_real_drawings_have_their_values()
    {
        CadImage image = Load("lwg__example_2018.dxf");
        CadTableContent table = image.Objects.OfType<CadTableContent>().Single();
        Assert.Equal((9, 20, 63.5), (table.Columns.Count, table.Rows.Count, table.Columns[0].Width));
        TableDataCellContent content = table.Rows[0].Cells[0].Contents.Single();
        Assert.Equal(("test", 4), (content.Value.Text, content.Value.ValueType));
        FormattedTableCellRange merged = table.MergedCells.Single();
        Assert.Equal((0, 0, 0, 8), (merged.TopRow, merged.LeftColumn, merged.BottomRow, merged.RightColumn));
        CadTableGeometry geometry = image.Objects.OfType<CadTableGeometry>().Single();
        Assert.Equal((25.1, 9.0), (geometry.GetCellSize(0, 0).Width, geometry.GetCellSize(0, 0).Height));
        Assert.Equal(22.1, geometry.GetContents(0, 0).Single().ContentSize.Width);
        CadTableStyle style = image.Objects.OfType<CadTableStyle>().First();
        Assert.Equal((3, 4.5, 1.5), (style.Cells.Count, style.Cells[0].TextHeight, style.HorizontalMargin));
        Assert.Equal((short)-2, style.Cells[0].Borders[5].LineWeight);
        CadAcDbAssocNetwork network = image.Objects.OfType<CadAcDbAssocNetwork>().First();
        Assert.Equal("38E", network.Actions.Single().ObjectHandle);
        Assert.Equal(["38E"], network.GetObjectHandles());
        CadBreakData part = image.Objects.OfType<CadXRecord>().SelectMany(record => record.GetTableBreaks()).Single();
        Assert.Equal((0, 19), (part.StartRow, part.EndRow));
    }

    [DrawingFact]
    public void Fields_associations_and_solids_of_real_drawings_have_their_values()
    {
        CadImage image = Load("ezdxf__uncommon.dxf");
        CadField date = image.Objects.OfType<CadField>().First(field => field.Code.Contains("Date"));
        Assert.Equal(("AcVar", 8, "dd/MM/yyyy", "21/04/2020"),
            (date.Evaluator, date.Value.ValueType, date.Value.Format, date.Value.FormattedText));
        Assert.Equal("Variable", date.Data.Single().Key);
        Assert.Equal(4, image.Objects.OfType<CadFieldList>().Single().FieldHandles.Count);
        CadOsnapPointRef point = image.Objects.OfType<CadDimAssoc>().First().PointReferences.Single();
        Assert.Equal(((short)3, (short)2), (point.OsnapType, point.SubentityType));
        CadAcshBoxClass box = image.Objects.OfType<CadAcshBoxClass>().First();
        Assert.Equal((5.212766356463204, 18.28817584913748 * Math.PI / 180), (box.Length, box.GetTransform()[11]));
        Assert.Equal("62F", image.Objects.OfType<CadAcadEvaluationGraph>().First().GetObjectHandles().Single());
        CadSectionViewStyle section = image.Objects.OfType<CadSectionViewStyle>().Single();
        Assert.Equal(("ANSI31", 6), (section.HatchPattern, section.HatchAngles.Count));
        CadVisualStyle visual = image.Objects.OfType<CadVisualStyle>().First();
        Assert.Equal(("2dWireframe", 3, 0.6, 0xFFFFFF),
            (visual.Description, visual.Form, visual.FaceOpacity, visual.FaceColorValue));
        CadVisualStyle old = Load("lwg__example_2007.dxf").Objects.OfType<CadVisualStyle>().First();
        Assert.Equal((0, -0.6, 0xFFFFFF, 5), (old.Form, old.FaceOpacity, old.FaceColorValue, old.SilhouetteWidth));
    }

    [DrawingFact]
    public void Data_sections_have_the_geometry_of_solids_and_survive_saving()
    {
        CadImage image = Load("lwg__example_2018.dxf");
        byte[] solid = image.AcdsData.GetData("37D");
        Assert.StartsWith("ASM BinaryFile", System.Text.Encoding.ASCII.GetString(solid), StringComparison.Ordinal);
        CadAcdsSchema schema = (CadAcdsSchema)image.AcdsData.Items[0];
        Assert.Equal(["AcDbDs::ID", "Thumbnail_Data"], schema.GetColumnNames());
        Assert.Equal(CadAcdsTypeName.Schema, schema.TypeName);
        Assert.NotEmpty(schema.EmbeddedObjectContainer.EmbeddedObjects);
        image.AcdsData.Items.Items.OfType<CadAcdsRecord>().First(item => item.OwnerHandle == "37D").Data =
            [1, 2, 3];
        CadImage again = DxfText.Reload(image);
        Assert.Equal([1, 2, 3], again.AcdsData.GetData("37d"));
        Assert.Equal(image.AcdsData.Items.Count, again.AcdsData.Items.Count);
        Assert.Equal(Section(File.ReadAllText(SharedDrawings.Dxf("ezdxf__hatches_1.dxf"))),
            Section(DxfText.Save(Load("ezdxf__hatches_1.dxf"))));
    }

    [DrawingFact]
    public void Preview_images_are_bitmaps_with_a_size()
    {
        CadThumbnailImage image = Load("ezdxf__dimension_in_nested_blocks.dxf").Thumbnail!;
        Assert.Equal((64, 32, 24), (image.Width, image.Height, image.BitsPerPixel));
        Assert.Equal([(byte)'B', (byte)'M'], image.GetBitmap()[..2]);
        Assert.Null(new CadImage().Thumbnail);
    }

    [Fact]
    public void A_drawing_states_what_it_is_about()
    {
        CadImage image = new();
        image.Header.SummaryInfo.Title = "Plan";
        image.Header.SummaryInfo.Author = "Ada";
        ISummaryInfo again = DxfText.Reload(image).Header.SummaryInfo;
        Assert.Equal(("Plan", "Ada", ""), (again.Title, again.Author, again.Subject));
        again.Title = "";
        Assert.Equal("", again.Title);
        Assert.Equal("AC1032", image.Header.GetVariable(CadHeaderAttribute.Acadver).Single().Value);
    }

    [Fact]
    public void Attributes_keep_the_record_of_their_further_lines()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "ATTDEF", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbText", 10, 0, 20, 0, 40, 1, 1, "v", 100,
            "AcDbAttributeDefinition", 3, "?", 2, "TAG", 70, 0, 100, "AcDbXrecord", 280, 1, 70, 4, 70, 0, 70, 1, 340,
            "2F", 10, 1, 20, 2, 30, 3, 40, 0.5, 2, "TAG", 101, "Embedded Object", 70, 1, 10, 5));
        CadAttDef definition = (CadAttDef)image.Entities.Single();
        Assert.Equal("2F", Assert.Single(definition.XrecordObject!.SecondaryAttributes));
        Assert.Equal((0.5, "TAG"), (definition.XrecordObject.Scale, definition.XrecordObject.Tag));
        CadEmbeddedObject embedded = definition.EmbeddedObjectContainer.EmbeddedObjects.Single();
        Assert.Equal(("Embedded Object", 2), (embedded.Name, embedded.Codes.Count));
        definition.XrecordObject.Scale = 2;
        CadAttDef again = (CadAttDef)DxfText.Reload(image).Entities.Single();
        Assert.Equal((2.0, 1), (again.XrecordObject!.Scale, again.EmbeddedObjectContainer.EmbeddedObjects.Length));
        Assert.Empty(again.UnknownCodes);
    }

    [Fact]
    public void Wipeouts_keep_the_marker_that_their_program_writes()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "WIPEOUT", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbRasterImage", 90, 0, 10, 3, 20, 4, 30, 0, 71, 1,
            0, "WIPEOUT", 5, "A2", 100, "AcDbEntity", 8, "0", 100, "AcDbWipeout", 90, 0, 10, 5, 20, 6, 30, 0, 71, 1));
        Assert.Equal([3, 5], image.Entities.Cast<CadWipeoutBase>().Select(wipeout => wipeout.InsertionPoint.X));
        Assert.Equal([typeof(CadWipeoutRasterImage), typeof(CadWipeout)],
            DxfText.Reload(image).Entities.Select(entity => entity.GetType()));
    }

    [Fact]
    public void Proxies_keep_data_graphics_and_references_in_their_order()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "ACAD_PROXY_ENTITY", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbProxyEntity", 90, 498, 91, 500, 92, 2,
            310, "0102", 93, 12, 310, "0A0B", 340, "11", 330, "12", 340, "13", 94, 0, 70, 1));
        CadAcadProxyEntity proxy = (CadAcadProxyEntity)image.Entities.Single();
        Assert.Equal(("0102", "0A0B", (short)1), (Convert.ToHexString(proxy.GraphicsData),
            Convert.ToHexString(proxy.EntityData), proxy.OriginalFormat));
        Assert.Equal(["340: 11", "330: 12", "340: 13"],
            proxy.GetObjectReferences().Select(reference => reference.ToString()));
        Assert.Equal(TagList.Of(proxy), TagList.Of((CadEntityBase)DxfText.Reload(image).Entities.Single()));
    }

    [Fact]
    public void Fields_can_be_listed_with_their_group_codes()
    {
        CadParameter[] fields = new CadCircle { LayerName = "Walls", Radius = 3 }.GetParameters();
        CadStringParameter layer = Assert.IsType<CadStringParameter>(fields.First(field =>
            field.Attribute == (int)CadEntityAttribute.LayerName));
        Assert.Equal(("Walls", "AcDbEntity"), (layer.Value, layer.Subclass));
        CadDoubleParameter radius = (CadDoubleParameter)fields.Single(field => field.Attribute == 40);
        Assert.Equal((3, CadParameterType.Double, CadIntegralParameterType.None),
            (radius.Value, radius.Type, radius.IntegralType));
    }

    [Theory]
    [InlineData(8, CadGroupCodeTypes.Text)]
    [InlineData(5, CadGroupCodeTypes.Handle)]
    [InlineData(20, CadGroupCodeTypes.Point)]
    [InlineData(48, CadGroupCodeTypes.Number)]
    [InlineData(280, CadGroupCodeTypes.Short)]
    [InlineData(290, CadGroupCodeTypes.Boolean)]
    [InlineData(160, CadGroupCodeTypes.Long)]
    [InlineData(310, CadGroupCodeTypes.Binary)]
    [InlineData(1071, CadGroupCodeTypes.Integer)]
    public void Group_codes_state_the_types_of_values(int code, CadGroupCodeTypes type) =>
        Assert.Equal(type, new CadCodeValue(code, "").CodeType);

    [Fact]
    public void Bytes_are_tags_in_hexadecimal()
    {
        CadBinaryCodeValue tag = new(310, [10, 255]);
        Assert.Equal("0AFF", tag.Value);
        tag.Value = "01";
        Assert.Equal([1], tag.Data);
    }

    private static CadImage Load(string name) => (CadImage)Image.Load(SharedDrawings.Dxf(name));

    private static string[] Section(string text)
    {
        string[] lines = [.. text.Split('\n').Select(line => line.Trim())];
        int start = Array.IndexOf(lines, "ACDSDATA");
        return lines[start..Array.IndexOf(lines, "ENDSEC", start)];
    }
}
