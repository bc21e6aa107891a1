using System;
using System.Globalization;
using System.Linq;
using System.Reflection;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Values that their types do not allow are defects with a number and a place; odd spellings are
/// not.</summary>
public class ValueDefectTests
{
    private static readonly byte[] Sentinel = "AutoCAD Binary DXF\r\n\u001a\0"u8.ToArray();

    /// <summary>Why the value is bad, the group code, the value, and the number of the defect.</summary>
    public static readonly TheoryData<string, int, string, int> BadValues = new()
    {
        { "a fraction that letters follow", 62, "12.5abc", (int)LoadDefectCode.BadInteger },
        { "letters alone", 62, "red", (int)LoadDefectCode.BadInteger },
        { "an integer with a fraction would be cut", 62, "12.5", (int)LoadDefectCode.BadInteger },
        { "two integers in one value", 62, "1 2", (int)LoadDefectCode.BadInteger },
        { "an empty integer", 62, "", (int)LoadDefectCode.BadInteger },
        { "hexadecimal digits are for handles only", 62, "0x10", (int)LoadDefectCode.BadInteger },
        { "not a number, as an integer", 62, "NaN", (int)LoadDefectCode.BadInteger },
        { "one more than 16 bits hold without a sign", 62, "65536", (int)LoadDefectCode.OutOfRange },
        { "one less than 16 bits hold", 62, "-32769", (int)LoadDefectCode.OutOfRange },
        { "one more than 32 bits hold without a sign", 420, "4294967296", (int)LoadDefectCode.OutOfRange },
        { "one less than 32 bits hold", 420, "-2147483649", (int)LoadDefectCode.OutOfRange },
        { "more than 64 bits hold", 420, "99999999999999999999", (int)LoadDefectCode.BadInteger },
        { "a word as coordinate", 10, "west", (int)LoadDefectCode.BadNumber },
        { "a decimal comma", 10, "1,5", (int)LoadDefectCode.BadNumber },
        { "a number that letters and digits follow", 10, "1.5mm2", (int)LoadDefectCode.BadNumber },
        { "letters without a number", 10, "-mm", (int)LoadDefectCode.BadNumber },
        { "an exponent without digits", 10, "1e", (int)LoadDefectCode.BadNumber },
        { "a sign alone", 10, "-", (int)LoadDefectCode.BadNumber },
        { "a point alone", 10, ".", (int)LoadDefectCode.BadNumber },
        { "an empty coordinate", 10, "", (int)LoadDefectCode.BadNumber },
        { "not a number", 10, "NaN", (int)LoadDefectCode.NotFinite },
        { "an infinite coordinate", 10, "-Infinity", (int)LoadDefectCode.NotFinite },
        { "an exponent beyond all numbers", 10, "1e999", (int)LoadDefectCode.NotFinite },
        { "an angle in words", 50, "right", (int)LoadDefectCode.BadNumber },
        { "a handle with a letter that is no digit", 5, "2G", (int)LoadDefectCode.BadHandle },
        { "a handle with a sign", 5, "-2A", (int)LoadDefectCode.BadHandle },
        { "a handle of 17 digits", 5, "10000000000000000", (int)LoadDefectCode.BadHandle },
        { "an owner that is no handle", 330, "layer 0", (int)LoadDefectCode.BadHandle },
    };

    [Theory]
    [MemberData(nameof(BadValues))]
    public void A_bad_value_is_a_numbered_defect(string why, int code, string value, int defect)
    {
        LoadDefect found = DefectOf(DxfText.Drawing(0, "TEXT", 8, "0", code, value));
        Assert.True(found.Code == (LoadDefectCode)defect, $"{why}: {found}");
        Assert.Equal(23, found.Place.Line);
        Assert.Contains($"group code {code}", found.Cause, StringComparison.Ordinal);
    }

    /// <summary>Why the value is odd, the group code, the value, and the property that shows it.</summary>
    public static readonly TheoryData<string, int, string, string, object> OddValues = new()
    {
        { "an integer with a fraction of zero", 62, "12.0", "ColorId", (short)12 },
        { "an integer with a sign", 62, "+12", "ColorId", (short)12 },
        { "the largest integer of 16 bits without a sign", 60, "65535", "Visible", (short)-1 },
        { "a colour without a sign", 420, "4294967295", "ColorValue", -1 },
        { "the smallest integer of 32 bits", 420, "-2147483648", "ColorValue", int.MinValue },
        { "a number without digits after the point", 40, "2.", "TextHeight", 2.0 },
        { "a number without digits before the point", 40, ".5", "TextHeight", 0.5 },
        { "an empty handle", 5, "", "ObjectHandle", "" },
        { "a handle in lower case", 5, "2af", "ObjectHandle", "2AF" },
        { "a handle of 16 digits", 5, "FFFFFFFFFFFFFFFF", "ObjectHandle", "FFFFFFFFFFFFFFFF" },
    };

    [Theory]
    [MemberData(nameof(OddValues))]
    public void An_odd_spelling_is_read(string why, int code, string value, string property, object expected)
    {
        CadText text = (CadText)Assert.Single(DxfText.Load(DxfText.Drawing(0, "TEXT", 8, "0", code, value)).Entities);
        object? actual = typeof(CadText).GetProperty(property)!.GetValue(text);
        Assert.True(expected.Equals(actual), $"{why}: {actual}");
    }

    /// <summary>Numbers with letters behind them lose nothing by a repair.</summary>
    [Theory]
    [InlineData(62, "256QSW", "ColorId", 256.0, (int)LoadDefectCode.BadInteger)]
    [InlineData(62, "-7x", "StoredColor", -7.0, (int)LoadDefectCode.BadInteger)]
    [InlineData(40, " 2.5mm ", "TextHeight", 2.5, (int)LoadDefectCode.BadNumber)]
    public void Letters_after_a_number_are_passed_over_and_reported(
        int code, string value, string property, double expected, int defect)
    {
        LoadOptions options = new();
        string drawing = DxfText.Drawing(0, "TEXT", 5, "2A", 8, "0", code, value, 0, "POINT", 10, 1);
        CadImage image = DxfText.Load(drawing, options);
        Assert.Equal(2, image.Entities.Count);
        const BindingFlags any = BindingFlags.Instance | BindingFlags.Public | BindingFlags.NonPublic;
        object? actual = typeof(CadText).GetProperty(property, any)!.GetValue(image.Entities[0]);
        Assert.Equal(expected, Convert.ToDouble(actual, CultureInfo.InvariantCulture));
        LoadDefect found = Assert.Single(options.Defects);
        Assert.Equal((defect, 25, "handle 2A"), ((int)found.Code, found.Place.Line, found.Place.Record));
        Assert.Contains(value.Trim(), Assert.Single(options.Errors), StringComparison.Ordinal);
    }

    [Fact]
    public void A_repaired_value_that_is_looked_at_in_advance_is_reported_once()
    {
        LoadOptions options = new();
        CadImage image = DxfText.Load(DxfText.Drawing(0, "DIMENSION", 8, "0", 70, "33A", 10, 1), options);
        Assert.IsType<CadAlignedDimension>(Assert.Single(image.Entities));
        Assert.Single(options.Errors);
    }

    /// <summary>What is counted, and the tags up to its count.</summary>
    public static readonly TheoryData<string, object[], int> Counts = new()
    {
        { "vertices of a polyline", [0, "LWPOLYLINE", 8, "0"], 90 },
        { "knots of a spline", [0, "SPLINE", 8, "0"], 72 },
        { "control points of a spline", [0, "SPLINE", 8, "0"], 73 },
        { "fit points of a spline", [0, "SPLINE", 8, "0"], 74 },
        { "vertices of a leader", [0, "LEADER", 8, "0"], 76 },
        { "clipping points of an image", [0, "IMAGE", 8, "0"], 91 },
        { "vertices of a multiline", [0, "MLINE", 8, "0"], 72 },
        { "outlines of a hatch", [0, "HATCH", 8, "0"], 91 },
        { "lines of a pattern", [0, "HATCH", 8, "0"], 78 },
        { "seeds of a hatch", [0, "HATCH", 8, "0"], 98 },
        { "vertices of an outline", [0, "HATCH", 8, "0", 91, 1, 92, 2], 93 },
        { "dashes of a pattern", [0, "HATCH", 8, "0", 78, 1, 53, 0], 79 },
        { "vertices of a mesh", [0, "MESH", 8, "0"], 92 },
        { "faces of a mesh", [0, "MESH", 8, "0"], 93 },
    };

    [Theory]
    [MemberData(nameof(Counts))]
    public void A_count_that_the_file_cannot_hold_is_a_defect(string what, object[] before, int code)
    {
        // A tag takes at least four bytes: what follows the count holds no more than five of them.
        string rest = DxfText.Tags(0, "ENDSEC", 0, "EOF");
        string start = DxfText.Header("AC1015") + DxfText.Tags(0, "SECTION", 2, "ENTITIES") + DxfText.Tags(before);
        foreach (string count in new[] { "-1", "8", "2000000000", "99999999999" })
        {
            LoadDefect defect = DefectOf(start + DxfText.Tags(code, count) + rest);
            Assert.True(defect.Code == LoadDefectCode.CountTooLarge, $"{what}, {count}: {defect}");
        }

        Assert.Single(DxfText.Load(start + DxfText.Tags(code, 2) + rest).Entities);
    }

    /// <summary>Why the structure is bad, the file, and the number of the defect.</summary>
    public static readonly TheoryData<string, string, int> BadStructures = new()
    {
        { "a word as group code", DxfText.Drawing(0, "LINE", "ten", 1), (int)LoadDefectCode.BadGroupCode },
        { "a group code of seven digits", DxfText.Drawing(0, "LINE", "1000000", 1), (int)LoadDefectCode.BadGroupCode },
        { "a group code with a fraction", DxfText.Drawing(0, "LINE", "10.0", 1), (int)LoadDefectCode.BadGroupCode },
        { "no value after the last code", DxfText.Header("AC1015") + "0\n", (int)LoadDefectCode.EndsWithinTag },
        { "no section with entities", DxfText.Header("AC1015"), (int)LoadDefectCode.EndsEarly },
        { "a section without a name", DxfText.Tags(0, "SECTION", 0, "ENDSEC", 0, "EOF"),
            (int)LoadDefectCode.SectionWithoutName },
        { "a section without an end", DxfText.Tags(0, "SECTION", 2, "ENTITIES", 0, "LINE", 8, "0"),
            (int)LoadDefectCode.SectionWithoutEnd },
        { "a tag between sections", DxfText.Tags(0, "SECTION", 2, "ENTITIES", 0, "ENDSEC", 1, "odd"),
            (int)LoadDefectCode.Misplaced },
        { "a tag between objects", DxfText.Tags(0, "SECTION", 2, "ENTITIES", 8, "0", 0, "ENDSEC"),
            (int)LoadDefectCode.Misplaced },
        { "a record outside of its table", DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "LAYER", 2, "A", 0, "ENDSEC"),
            (int)LoadDefectCode.Misplaced },
        { "an entity within a table", DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LAYER", 0, "LINE", 0,
            "ENDTAB", 0, "ENDSEC"), (int)LoadDefectCode.Misplaced },
        { "an edge of a type that there is not", DxfText.Drawing(0, "HATCH", 91, 1, 92, 0, 93, 1, 72, 5, 10, 1, 20, 2),
            (int)LoadDefectCode.BadValue },
        { "a preview of an odd number of digits", DxfText.Entities() + DxfText.Tags(0, "SECTION", 2, "THUMBNAILIMAGE",
            90, 2, 310, "00F", 0, "ENDSEC"), (int)LoadDefectCode.BadBinary },
        { "a preview with a letter that is no digit", DxfText.Entities() + DxfText.Tags(0, "SECTION", 2,
            "THUMBNAILIMAGE", 90, 2, 310, "0G", 0, "ENDSEC"), (int)LoadDefectCode.BadBinary },
    };

    [Theory]
    [MemberData(nameof(BadStructures))]
    public void A_bad_structure_is_a_numbered_defect(string why, string content, int defect)
    {
        LoadDefect found = DefectOf(content);
        Assert.True(found.Code == (LoadDefectCode)defect, $"{why}: {found}");
    }

    /// <summary>Why the bytes are bad, the bytes of an entity in binary form, and the number of the defect.</summary>
    public static readonly TheoryData<string, byte[], int> BadBytes = new()
    {
        { "a coordinate that is not a number", [10, 0, .. BitConverter.GetBytes(double.NaN)],
            (int)LoadDefectCode.NotFinite },
        { "an infinite coordinate", [10, 0, .. BitConverter.GetBytes(double.PositiveInfinity)],
            (int)LoadDefectCode.NotFinite },
        { "a coordinate of seven bytes", [10, 0, 1, 2, 3, 4, 5, 6, 7], (int)LoadDefectCode.EndsWithinTag },
        { "half a group code", [10], (int)LoadDefectCode.EndsWithinTag },
        { "a string without its end", [8, 0, 65, 66], (int)LoadDefectCode.EndsWithinTag },
        { "a chunk that is shorter than its length", [.. BitConverter.GetBytes((short)310), 9, 1, 2],
            (int)LoadDefectCode.EndsWithinTag },
        { "a chunk without its length", [.. BitConverter.GetBytes((short)310)], (int)LoadDefectCode.EndsWithinTag },
        { "a handle that is none", [5, 0, 90, 90, 0], (int)LoadDefectCode.BadHandle },
        { "a number for a color of 64 bits", [.. BitConverter.GetBytes((short)420), 1, 0],
            (int)LoadDefectCode.EndsWithinTag },
    };

    [Theory]
    [MemberData(nameof(BadBytes))]
    public void Bad_bytes_of_the_binary_form_are_a_numbered_defect(string why, byte[] tag, int defect)
    {
        byte[] file = [.. Sentinel, .. Name("SECTION"), 2, 0, .. "ENTITIES\0"u8, .. Name("TEXT"), .. tag];
        LoadDefect found = DefectOf(file);
        Assert.True(found.Code == (LoadDefectCode)defect, $"{why}: {found}");
        Assert.Contains(", byte ", found.ToString(), StringComparison.Ordinal);
        Assert.InRange(found.Place.Offset, Sentinel.Length, file.Length);

        static byte[] Name(string name) => [0, 0, .. Encoding.ASCII.GetBytes(name), 0];
    }

    [Fact]
    public void A_defect_names_the_handle_of_its_object_alone()
    {
        string[] objects = ["0\nLINE\n5\n2A\n8\n0\n", "0\nLINE\n5\n2B\n10\nwest\n", "0\nLINE\n10\neast\n5\n2C\n",
            "0\nPOINT\n5\n2D\n10\n1\n20\n2\n"];
        LoadOptions options = new() { IgnoreErrors = true };
        CadImage image = DxfText.Load(DxfText.Header("AC1015") + "0\nSECTION\n2\nENTITIES\n" + string.Concat(objects)
            + "0\nENDSEC\n0\nEOF\n", options);
        Assert.Equal(["2A", "2D"], image.Entities.Select(entity => entity.ObjectHandle));
        Assert.Equal(["handle 2B", ""], options.Defects.Select(defect => defect.Place.Record));
        Assert.Equal(options.Errors, options.Defects.Select(defect => defect.ToString()));
        Assert.Contains(", line 29, handle 2B: group code 10 has the value 'west'", options.Errors[0],
            StringComparison.Ordinal);
    }

    private static LoadDefect DefectOf(string content) => DefectOf(Encoding.Latin1.GetBytes(content));

    private static LoadDefect DefectOf(byte[] content)
    {
        LoadDefect? defect = Assert.Throws<ImageLoadException>(() => DxfText.Load(content)).Defect;
        Assert.NotNull(defect);
        return defect;
    }
}
