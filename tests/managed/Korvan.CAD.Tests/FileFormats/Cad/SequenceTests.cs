using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.DataTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Objects whose fields come in declared order: what a file has otherwise is written again as it was, and
/// changes are written in spite of it.</summary>
public class SequenceTests
{
    private static readonly object[] Sun = [90, 1, 290, 1, 63, 5, 40, 2.5, 291, 0, 91, 2458383, 92, 100, 292, 1, 70, 2,
        71, 256, 280, 1];

    public static readonly TheoryData<string, object[]> Forms = new()
    {
        { "as the class writes it", Sun },
        { "a field is missing", [.. Sun.Take(6), .. Sun.Skip(8)] },
        { "all but the first are missing", [90, 1] },
        { "an optional field has its default", [.. Sun.Take(6), 421, -1, .. Sun.Skip(6)] },
        { "a field that the class does not have comes first", [1, "extra", .. Sun] },
        { "such a field comes in the middle", [.. Sun.Take(8), 1, "extra", .. Sun.Skip(8)] },
        { "such a field comes last", [.. Sun, 1, "extra"] },
        { "a field comes twice", [.. Sun.Take(2), .. Sun] },
        { "two fields are swapped", [.. Sun.Skip(2).Take(2), .. Sun.Take(2), .. Sun.Skip(4)] },
        { "a marker follows that the class does not have", [.. Sun, 100, "AcDbOther", 90, 7, 100, "AcDbSun", 1, "x"] },
    };

    [Theory]
    [MemberData(nameof(Forms))]
    public void Objects_are_written_as_they_were(string form, object[] fields)
    {
        CadImage image = Load("SUN", "AcDbSun", fields);
        string[] before = Tags("SUN", "AcDbSun", fields);
        Assert.True(before.SequenceEqual(Written(image, "SUN")), form);
    }

    [Fact]
    public void Fields_before_an_unknown_one_are_read_and_can_be_changed()
    {
        CadImage image = Load("SUN", "AcDbSun", [.. Sun.Take(8), 1, "extra", .. Sun.Skip(8)]);
        CadSunObject sun = image.Objects.OfType<CadSunObject>().Single();
        Assert.Equal((true, (short)5, 2.5), (sun.IsOn, sun.ColorId, sun.Intensity));
        Assert.Equal("extra", sun.UnknownCodes[0].Value);
        sun.Intensity = 4;
        Assert.Equal(4, DxfText.Reload(image).Objects.OfType<CadSunObject>().Single().Intensity);
    }

    [Fact]
    public void A_missing_field_is_written_once_it_was_changed()
    {
        CadImage image = Load("SUN", "AcDbSun", [90, 1, 290, 1]);
        CadSunObject sun = image.Objects.OfType<CadSunObject>().Single();
        Assert.Equal(256, sun.ShadowMapSize);
        sun.Intensity = 7;
        Assert.Equal(["90: 1", "290: 1", "40: 7"], Written(image, "SUN")[^3..]);
    }

    [Fact]
    public void Optional_fields_come_and_go_without_moving_others()
    {
        // The colour is missing, and so is the day: each of the others keeps its place.
        CadImage image = Load("SUN", "AcDbSun", [.. Sun.Take(10), .. Sun.Skip(12)]);
        CadSunObject sun = image.Objects.OfType<CadSunObject>().Single();
        sun.ColorValue = 0x102030;
        string[] tags = Written(image, "SUN");
        Assert.Contains("421: 1056816", tags);
        Assert.DoesNotContain(tags, static tag => tag.StartsWith("91:", System.StringComparison.Ordinal));
        Assert.Equal(["92: 100", "292: 1", "70: 2", "71: 256", "280: 1"], tags[^5..]);

        // The other way round: it is there, and goes.
        image = Load("SUN", "AcDbSun", [.. Sun.Take(6), 421, 255, .. Sun.Skip(6).Take(4), .. Sun.Skip(12)]);
        image.Objects.OfType<CadSunObject>().Single().ColorValue = -1;
        Assert.Equal(
            ["63: 5", "40: 2.5", "291: 0", "92: 100", "292: 1", "70: 2", "71: 256", "280: 1"],
            Written(image, "SUN")[^8..]);
    }

    [Fact]
    public void Cells_of_styles_have_formats_of_their_own_where_others_have_none()
    {
        object[] borders = [.. Enumerable.Range(0, 6).SelectMany(static i =>
            new object[] { 274 + i, -2, 284 + i, 1, 64 + i, 0 })];
        object[] plain = [7, "A", 140, 6, 170, 5, 62, 0, 63, 7, 283, 0, .. borders];
        object[] formatted = [7, "B", 140, 6, 170, 5, 62, 0, 63, 7, 283, 0, 90, 4, 91, 0, 1, "%f", .. borders];
        object[] fields = [3, "S", 70, 0, 71, 0, 40, 1, 41, 1, 280, 0, 281, 0, .. plain, .. formatted];
        CadImage image = Load("TABLESTYLE", "AcDbTableStyle", fields);
        CadTableStyle style = image.Objects.OfType<CadTableStyle>().Single();
        Assert.Equal(["", "%f"], style.Cells.Select(static cell => cell.Content.Format));
        style.Cells[1].Content.Format = "%d";
        style.Cells[0].TextHeight = 9;
        CadTableStyle again = DxfText.Reload(image).Objects.OfType<CadTableStyle>().Single();
        Assert.Equal(["", "%d"], again.Cells.Select(static cell => cell.Content.Format));
        Assert.Equal([9, 6], again.Cells.Select(static cell => (int)cell.TextHeight));
        Assert.Empty(again.UnknownCodes);
    }

    [Theory]
    [InlineData("<abc", "def>", 2)] // in chunks that another program chose
    [InlineData("", "all", 1)]
    public void Long_strings_keep_their_chunks_until_they_change(string piece, string last, int chunks)
    {
        const string type = "GEODATA";
        object[] fields = [90, 3, 330, "1F", 70, 0, .. piece.Length > 0 ? new object[] { 303, piece } : [], 301, last];
        CadImage image = Load(type, "AcDbGeoData", fields);
        CadGeoData data = image.Objects.OfType<CadGeoData>().Single();
        Assert.Equal(piece + last, data.CoordinateSystemDefinition);
        static int Chunks(string[] tags) => tags.Count(static tag => tag[..3] is "303" or "301");
        Assert.Equal(chunks, Chunks(Written(image, type)));
        data.CoordinateSystemDefinition = new string('y', 600);
        string[] tags = Written(image, type);
        Assert.Equal(3, Chunks(tags));
        CadGeoData again = DxfText.Reload(image).Objects.OfType<CadGeoData>().Single();
        Assert.Equal(600, again.CoordinateSystemDefinition.Length);
    }

    [Fact]
    public void A_name_that_is_not_the_first_of_the_class_is_written_back()
    {
        object[] fields = [70, 2, 90, 2, 91, 2, 1, "T", 92, 3, 2, "A", 3, "x", 3, "y", 92, 6, 2, "B", 360, "1F", 360,
            "2F"];
        CadImage image = Load("ACDBDATATABLE", "ACDBDATATABLE", fields);
        CadDataTable table = image.Objects.OfType<CadDataTable>().Single();
        Assert.Equal(("T", 2), (table.TableName, table.RowCount));
        Assert.Equal(["x", "y"], table.Columns[0].Strings);
        Assert.Equal(["1F", "2F"], table.Columns[1].Strings);
        Assert.Equal(Tags("ACDBDATATABLE", "ACDBDATATABLE", fields), Written(image, "ACDBDATATABLE"));
    }

    [Theory]
    [InlineData(1, "91: 42")]
    [InlineData(2, "140: 2.5")]
    [InlineData(4, "1: abc")]
    [InlineData(8, "92: 4", "310: 01020304")]
    [InlineData(16, "11: 1", "21: 2")]
    [InlineData(32, "11: 1", "21: 2", "31: 3")]
    [InlineData(64, "330: 2F")]
    public void Values_of_fields_have_a_form_for_each_type(int type, params string[] expected)
    {
        CadField field = new() { ObjectHandle = "ABC", Evaluator = "AcVar" };
        CadFieldData value = field.Value;
        (value.ValueType, value.Integer, value.Number, value.Text) = (type, 42, 2.5, "abc");
        (value.Date, value.Point, value.ObjectHandle) = ([1, 2, 3, 4], new Cad3DPoint(1, 2, 3), "2F");
        CadImage image = new();
        image.Objects.Add(field);
        string[] tags = Written(image, "FIELD");
        int start = System.Array.IndexOf(tags, $"90: {type}");
        Assert.Equal(expected, tags.Skip(start + 1).Take(expected.Length));
        Assert.Equal("94: 0", tags[start + 1 + expected.Length]);
        Assert.Empty(DxfText.Reload(image).Objects.OfType<CadField>().Single().UnknownCodes);
    }

    [Theory]
    [InlineData((short)40, "40: 1.5")]
    [InlineData((short)90, "90: 3")]
    [InlineData((short)1, "1: abc")]
    [InlineData((short)11, "11: 1", "21: 2", "31: 3")]
    public void Values_of_variables_have_the_group_code_that_they_state(short code, params string[] expected)
    {
        CadAcDbAssocVariable variable = new() { ObjectHandle = "ABC", Name = "d1" };
        (variable.Value.Code, variable.Value.Number, variable.Value.Integer) = (code, 1.5, 3);
        (variable.Value.Text, variable.Value.Point) = ("abc", new Cad3DPoint(1, 2, 3));
        CadImage image = new();
        image.Objects.Add(variable);
        string[] tags = Written(image, "ACDBASSOCVARIABLE");
        int start = System.Array.IndexOf(tags, $"70: {code}");
        Assert.Equal(expected, tags.Skip(start + 1).Take(expected.Length));
        AssocEvaluatedVariant again =
            DxfText.Reload(image).Objects.OfType<CadAcDbAssocVariable>().Single().Value;
        Assert.Equal(code, again.Code);
    }

    [Fact]
    public void Counts_that_a_file_cannot_hold_are_damage()
    {
        string text = File("FIELDLIST", "AcDbIdSet", 90, 1000000, 330, "2F");
        Assert.Throws<CAD.CadExceptions.ImageLoadException>(() => DxfText.Load(text));
    }

    private static string File(string type, string marker, params object[] fields) =>
        DxfText.Header("AC1032") + DxfText.Entities() + DxfText.Tags(
            [0, "SECTION", 2, "OBJECTS", 0, type, 5, "ABC", 330, "C", 100, marker, .. fields, 0, "ENDSEC", 0, "EOF"]);

    private static CadImage Load(string type, string marker, object[] fields) =>
        DxfText.Load(File(type, marker, fields));

    private static string[] Tags(string type, string marker, object[] fields) =>
        TagList.Objects(System.Text.Encoding.Latin1.GetBytes(File(type, marker, fields)), type)["ABC"];

    private static string[] Written(CadImage image, string type) =>
        TagList.Objects(System.Text.Encoding.UTF8.GetBytes(DxfText.Save(image)), type)["ABC"];
}
