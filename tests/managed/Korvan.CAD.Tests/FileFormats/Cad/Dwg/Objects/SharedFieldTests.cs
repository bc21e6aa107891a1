using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>What text files and drawing databases state in different ways stays on the way from one to the
/// other.</summary>
public class SharedFieldTests
{
    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Paragraphs_that_state_an_angle_keep_their_direction(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(DxfText.Entities(
            0, "MTEXT", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbMText", 10, 1, 20, 2, 40, 2.5, 50, 90, 1, "up"));

        CadMText text = Assert.IsType<CadMText>(
            ObjectRoundTripTests.WriteAndRead(drawing, version).Item1.Entities[0]);

        Assert.Equal(0, text.TextDirection.X, 12);
        Assert.Equal(1, text.TextDirection.Y, 12);
    }

    [Theory]
    [InlineData("AC1015", CadAcadVersion.AC1015, "92\n6\n310\nA1B2C3D4E5F6\n")]
    [InlineData("AC1032", CadAcadVersion.AC1032, "160\n6\n310\nA1B2C3D4E5F6\n")]
    public void Graphics_of_entities_stay(string release, CadAcadVersion version, string expected)
    {
        CadDrawing drawing = DxfText.Load(DxfText.Header(release) + DxfText.Entities(
            0, "POINT", 5, "A1", 100, "AcDbEntity", 8, "0", 92, 6, 310, "A1B2C3D4E5F6", 100, "AcDbPoint", 10, 1, 20, 2)
            + DxfText.Tags(0, "EOF")).Drawing;

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        CadImage image = new();
        image.Entities.Add((CadEntityBase)again.Entities[0].Clone());
        image.Drawing.Header.AcadVersion = version;
        string text = DxfText.Save(image).Replace("\r", "", StringComparison.Ordinal);
        Assert.Contains(expected, text.Replace(" ", "", StringComparison.Ordinal), StringComparison.Ordinal);
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Dimension_styles_that_the_table_lists_and_visual_styles_of_entities_stay(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(
            DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "DIMSTYLE", 5, "A1", 100, "AcDbSymbolTable", 70, 1,
                100, "AcDbDimStyleTable", 71, 1, 340, "A2", 0, "DIMSTYLE", 105, "A2", 100, "AcDbSymbolTableRecord",
                100, "AcDbDimStyleTableRecord", 2, "Fine", 70, 0, 0, "ENDTAB", 0, "ENDSEC")
            + DxfText.Entities(
                0, "POINT", 5, "A3", 100, "AcDbEntity", 8, "0", 348, "A4", 100, "AcDbPoint", 10, 1, 20, 2)
            + DxfText.Tags(0, "SECTION", 2, "OBJECTS", 0, "XRECORD", 5, "A4", 100, "AcDbXrecord", 70, 1, 0, "ENDSEC"));

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        Assert.Equal(["1", "A2"], again.TableHeaders["DIMSTYLE"].UnknownCodes.Select(static tag => tag.Value.Trim()));
        Assert.Equal(version == CadAcadVersion.AC1032 ? ["A4"] : [],
            again.Entities[0].UnknownCodes.Where(static tag => tag.Attribute == 348).Select(static tag => tag.Value));
    }

    [Fact]
    public void Viewports_of_every_sheet_take_their_view_from_extended_data()
    {
        object[] view =
        [
            1001, "ACAD", 1000, "MVIEW", 1002, "{", 1070, 16, 1010, 1, 1020, 2, 1030, 3, 1010, 0, 1020, 0, 1030, 1,
            1040, 30.0, 1040, 42.5, 1040, 7.0, 1040, 8.0, 1040, 50.0, 1040, 0, 1040, 0, 1070, 1, 1070, 900, 1070, 0,
            1070, 3, 1070, 0, 1070, 1, 1070, 0, 1070, 2, 1040, 15.0, 1040, 1.0, 1040, 2.0, 1040, 3.0, 1040, 4.0,
            1040, 5.0, 1040, 6.0, 1070, 1, 1002, "{", 1003, "HIDDEN", 1002, "}", 1002, "}",
        ];
        CadDrawing drawing = DxfText.Load(DxfText.Header("AC1014")
            + DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LAYER", 70, 1, 0, "LAYER", 5, "A1",
                100, "AcDbSymbolTableRecord", 100, "AcDbLayerTableRecord", 2, "Hidden", 70, 0, 0, "ENDTAB", 0, "ENDSEC",
                0, "SECTION", 2, "BLOCKS", 0, "BLOCK", 5, "A7", 100, "AcDbEntity", 8, "0",
                100, "AcDbBlockBegin", 2, "*Paper_Space0", 70, 0, 0, "VIEWPORT", 5, "A3", 67, 1, 100, "AcDbEntity",
                8, "0", 100, "AcDbViewport", 40, 4.0, 41, 3.0)
            + DxfText.Tags(view)
            + DxfText.Tags(0, "ENDBLK", 5, "A8", 100, "AcDbEntity", 8, "0", 0, "ENDSEC", 0, "EOF")).Drawing;

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, CadAcadVersion.AC1032).Item1;

        CadViewport viewport = Assert.Single(
            DrawingWalk.Entities(again).OfType<CadViewport>(), static one => one.Width == 4);
        Assert.Equal((42.5, 7.0, 30.0), (viewport.ViewHeight, viewport.ViewCenter.X, viewport.ViewTwistAngle));
        Assert.Equal((900, 15.0, 2.0, 3.0, 6.0), (viewport.CircleZoomPercent, viewport.SnapAngle, viewport.SnapBase.Y,
            viewport.SnapSpacing.X, viewport.GridSpacing.Y));
        const int perspective = 1;
        const int icon = 32 | 64;
        const int grid = 512;
        const int plane = 8192;
        const int hides = 2048;
        const int always = 32768;
        Assert.Equal(perspective | icon | grid | plane | hides | always, viewport.StatusFlags);
        Assert.Equal(["A1"], viewport.FrozenLayers);
    }

    // Readers take a value of no type that claims to be one for an error.
    [Theory]
    [InlineData(CadAcadVersion.AC1018, 0)]
    [InlineData(CadAcadVersion.AC1024, 3)]
    public void Values_of_no_type_say_that_there_is_none(CadAcadVersion version, int flags)
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.Objects.Add(new CadField());

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        CadField field = Assert.Single(again.Objects.OfType<CadField>());
        Assert.Equal((flags, 0), (field.Value.Flags, field.Value.ValueType));
    }

    [DrawingFact]
    public void Entries_that_lost_name_and_object_are_none()
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg("lwg__example_r13.dwg"), new LoadOptions());

        Assert.DoesNotContain("", drawing.Objects.OfType<CadDictionary>().SelectMany(static one => one.Names));
    }

    private static CadDrawing Draw(string parts) =>
        DxfText.Load(DxfText.Header("AC1032") + parts + DxfText.Tags(0, "EOF")).Drawing;
}
