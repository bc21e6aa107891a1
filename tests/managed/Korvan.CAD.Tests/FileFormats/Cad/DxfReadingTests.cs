using System;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

public class DxfReadingTests
{
    private static readonly object[] Text = [0, "TEXT", 8, "0", 10, 0, 20, 0, 40, 1, 1];

    public static readonly TheoryData<string, string, byte[], string> Encodings = new()
    {
        { "AC1009", "ANSI_1252", [0xC4, 0xD6], "ÄÖ" },
        { "AC1009", "ANSI_1251", [0xC4, 0xD6], "ДЦ" },
        { "AC1015", "ANSI_932", [0x8A, 0xBF], "漢" },
        { "AC1015", "DOS850", [0x8E], "Ä" },
        { "AC1015", "nonsense", [0xC4], "Ä" },
        { "AC1009", "", [0xC4], "Ä" },
        { "AC1009", "", [0xC3, 0x84, .. " "u8, 0xE6, 0xBC, 0xA2], "Ä 漢" },
        { "AC1021", "ANSI_1252", [0xE6, 0xBC, 0xA2], "漢" },
        { "AC1032", "ANSI_1251", [0xC4, 0xD6], "ДЦ" }, // claims UTF-8 but is not
        { "AC1015", "ANSI_1252", [.. "\\U+6F22!"u8], "漢!" },
        { "AC1015", "ANSI_1252", [.. "a\\M+18ABFb"u8], "a漢b" },
        { "AC1015", "ANSI_1252", [.. "\\U+XYZ \\"u8], "\\U+XYZ \\" },
    };

    [Theory]
    [MemberData(nameof(Encodings))]
    public void Texts_are_read_in_the_code_page_of_the_drawing(string release, string page, byte[] text,
        string expected)
    {
        byte[] before = Encoding.ASCII.GetBytes(DxfText.Header(release, page)
            + DxfText.Tags(0, "SECTION", 2, "ENTITIES") + DxfText.Tags(Text));
        byte[] after = Encoding.ASCII.GetBytes("\n" + DxfText.Tags(0, "ENDSEC", 0, "EOF"));
        DxfImage image = DxfText.Load([.. before, .. text, .. after]);
        Assert.Equal(expected, ((CadText)image.Entities[0]).DefaultValue);
        Assert.Equal(expected, ((CadText)DxfText.Reload(image).Entities[0]).DefaultValue);
    }

    [Fact]
    public void A_wrong_code_page_can_be_overruled()
    {
        byte[] bytes = Encoding.Latin1.GetBytes(DxfText.Header("AC1015") + DxfText.Entities([.. Text, "\u00C4"])
            + DxfText.Tags(0, "EOF"));
        DxfImage image = DxfText.Load(bytes, new LoadOptions { SpecifiedEncoding = CodePages.Cyrillic });
        Assert.Equal("Д", ((CadText)image.Entities[0]).DefaultValue);
    }

    [Theory]
    [InlineData("AcDbEntity")]
    [InlineData("AcDbCurve")]
    public void Fields_whose_marker_is_missing_or_another_one_are_read(string marker)
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(
            0, "CIRCLE", 5, "A", 100, "AcDbEntity", 8, "L", 100, marker, 10, 3, 20, 4, 40, 5, 347, "B",
            0, "CIRCLE", 5, "C", 100, "AcDbEntity", 8, "L", 100, marker, 40, 6, 100, "AcDbCircle", 40, 5,
            0, "POLYLINE", 5, "D", 100, "AcDbEntity", 8, "0", 100, "AcDb3dPolyline", 70, 64, 71, 1, 72, 1,
            0, "VERTEX", 100, "AcDbVertex", 100, "AcDb3dPolylineVertex", 10, 1, 20, 2, 30, 3, 70, 192,
            0, "VERTEX", 100, "AcDbVertex", 100, "AcDb3dPolylineVertex", 70, 128, 71, 1, 72, 2, 73, 3,
            0, "SEQEND"));
        CadCircle circle = (CadCircle)DxfText.Reload(image).Entities[0];
        Assert.True(circle.CenterPoint.Is(3, 4, 0) && circle.Radius == 5 && circle.LayerName == "L");
        Assert.Equal(5, ((CadCircle)image.Entities[1]).Radius);
        CadPolyFaceMesh mesh = (CadPolyFaceMesh)DxfText.Reload(image).Entities[2];
        Assert.True(((CadVertexPolyFaceMesh)mesh.Vertices[0]).LocationPoint.Is(1, 2, 3));
        Assert.Equal(3, ((CadFaceRecord)mesh.Vertices[1]).VertexIndex3);
    }

    [Theory]
    [InlineData("\n")]
    [InlineData("\r\n")]
    [InlineData("\r")]
    public void Lines_end_as_on_any_system(string end)
    {
        string text = DxfText.Tags(999, "a comment")
            + DxfText.Drawing(0, "LINE", "  8", "A b ", 10, " 1.5 ", 20, 2, 11, "3e2", 21, "+4.");
        CadLine line = (CadLine)DxfText.Load(text.Replace("\n", end)).Entities[0];
        Assert.Equal("A b ", line.LayerName);
        Assert.True(line.FirstPoint.Is(1.5, 2, 0) && line.SecondPoint.Is(300, 4, 0));
    }

    [Fact]
    public void A_byte_order_mark_and_a_missing_header_do_no_harm()
    {
        DxfImage image = DxfText
            .Load([.. "\uFEFF"u8,
            .. Encoding.ASCII.GetBytes(DxfText.Entities(0, "POINT", 8, "0", 10, 1, 20, 1) + DxfText.Tags(0, "EOF"))]);
        Assert.IsType<CadPoint>(Assert.Single(image.Entities));
    }

    [Theory]
    [InlineData(0, typeof(CadPolyline))]
    [InlineData(9, typeof(CadPolyline3D))]
    [InlineData(17, typeof(CadPolygonMesh))]
    [InlineData(64, typeof(CadPolyFaceMesh))]
    public void The_flag_of_a_polyline_tells_its_class(int flag, Type expected)
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(
            0, "POLYLINE", 8, "0", 66, 1, 70, flag, 0, "VERTEX", 8, "0", 10, 7, 20, 8, 70, 64, 0, "SEQEND", 8, "0", 0,
                "POINT", 8, "0"));
        CadPolylineBase polyline = (CadPolylineBase)image.Entities[0];
        Assert.IsType(expected, polyline);
        Assert.Equal(7, Assert.Single(polyline.Vertices).LocationPoint.X);
        Assert.Equal(2, image.Entities.Count);
    }

    [Fact]
    public void Codes_belong_to_the_class_whose_marker_they_stand_behind()
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(
            0, "HELIX", 5, "2A", 100, "AcDbEntity", 8, "0", 100, "AcDbSpline", 70, 8, 71, 3, 40, 0, 40, 1, 10, 5, 20, 6,
                30, 7,
            100, "AcDbHelix", 40, 99, 10, 1, 20, 2, 30, 3, 290, 0, 4000, "odd"));
        CadHelix helix = (CadHelix)image.Entities[0];
        Assert.Equal([0, 1], helix.KnotValues);
        Assert.Equal(99, helix.Radius);
        Assert.True(helix.ControlPoints.Single().Is(5, 6, 7) && helix.AxisBasePoint.Is(1, 2, 3));
        Assert.False(helix.Handedness);
        Assert.Equal(4000, Assert.Single(helix.UnknownCodes).Attribute);
    }

    [Fact]
    public void Long_texts_are_put_together_and_split_again()
    {
        string text = string.Concat(Enumerable.Repeat("0123456789 漢", 80));
        CadImage image = new();
        image.AddEntity(new CadMText { Text = text });
        Assert.Equal(text, ((CadMText)DxfText.Reload(image).Entities[0]).Text);
    }

    [Theory]
    [InlineData("0.1")]
    [InlineData("-123456789.123456789")]
    [InlineData("5e-324")]
    [InlineData("1.7976931348623157E308")]
    [InlineData("9007199254740993")]
    [InlineData("00000000000000000000000001.50")]
    [InlineData("0.000000000000000000000000000123")]
    [InlineData(".5")]
    [InlineData("+7")]
    public void Numbers_are_exact(string text)
    {
        Assert.True(FastDouble.TryParse(Encoding.ASCII.GetBytes(text), out double value));
        Assert.Equal(double.Parse(text, System.Globalization.CultureInfo.InvariantCulture), value);
    }

    [Theory]
    [InlineData("")]
    [InlineData("-")]
    [InlineData(".")]
    [InlineData("1,5")]
    [InlineData("1.2.3")]
    [InlineData("12x")]
    public void Other_texts_are_no_numbers(string text)
    {
        Assert.False(FastDouble.TryParse(Encoding.ASCII.GetBytes(text), out _));
    }
}
