using System;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;
using DataType = Korvan.CAD.FileFormats.Cgm.Classes.StructuredDataRecord.StructuredDataType;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Points, rectangles, colours and records as values, and what of them an encoding cannot hold.</summary>
public class ValueTypeTests
{
    [Fact]
    public void Points_rectangles_and_colours_are_equal_by_value()
    {
        object[][] alike =
        [
            [new CgmPoint(1, -2.5), new CgmPoint(1, -2.5), new CgmPoint(1, 2.5), new CgmPoint()],
            [new CgmRectangle(1, 2, 3, 4), new CgmRectangle(1, 2, 3, 4), new CgmRectangle(3, 2, 1, 4),
                default(CgmRectangle)],
            [new CgmColor(3), new CgmColor(3), new CgmColor(4), new CgmColor(Color.FromArgb(0, 0, 3))],
            [new CgmColor(Color.Red), new CgmColor(Color.FromArgb(255, 0, 0)), new CgmColor(Color.Blue),
                new CgmColor(0)],
        ];
        foreach (object[] row in alike)
        {
            Assert.True(row[0].Equals(row[1]) && row[0].GetHashCode() == row[1].GetHashCode());
            Assert.False(row[0].Equals(row[2]) || row[0].Equals(row[3]) || row[0].Equals(null) || row[0].Equals("x"));
            Assert.Equal(row[0].ToString(), row[1].ToString());
            Assert.NotEqual(row[0].ToString(), row[2].ToString());
        }

        CgmRectangle box = new(5, 1, 2, 8);
        Assert.Equal((3.0, 7.0), (box.Width, box.Height)); // whichever corner is first
        Assert.True(box == new CgmRectangle(5, 1, 2, 8) && box != default);
        Assert.Throws<ArgumentOutOfRangeException>(() => new CgmColor(-1));
        Assert.Equal("(1, -2.5) (0, 0) (3, 4) (5, 6)",
            new BezierCurve(new(1, -2.5), new(), new(3, 4), new(5, 6)).ToString());
        Assert.All(Enumerable.Range(0, 4), i =>
        {
            CgmPoint[] points = [new(), new(), new(), new()];
            points[i] = null!;
            Assert.Throws<ArgumentNullException>(() => new BezierCurve(points[0], points[1], points[2], points[3]));
        });
    }

    [Theory]
    [InlineData(0, 0, 0, 0)]
    [InlineData(0, 1, -5, 1)] // by x first
    [InlineData(0, 0, -5, -1)]
    [InlineData(0.5, 0.5, -5, -1)] // as far apart as the tolerance
    [InlineData(0.5, -0.5, 0.5, 0)]
    [InlineData(0.5, -0.75, 5, -1)]
    public void Points_are_ordered_by_x_then_y_within_a_tolerance(double tolerance, double x, double y, int expected)
    {
        CgmPointComparer comparer = tolerance == 0 ? new() : new(tolerance);
        (CgmPoint first, CgmPoint second) = (new(10 + x, 10 + y), new(10, 10));
        Assert.Equal(expected, comparer.Compare(first, second));
        Assert.Equal(-expected, comparer.Compare(second, first));
        Assert.Equal(expected == 0, comparer.AreEqual(first, second));
        Assert.Throws<ArgumentNullException>(() => comparer.Compare(first, null!));
        Assert.Throws<ArgumentOutOfRangeException>(() => new CgmPointComparer(-1));
    }

    /// <summary>The type of a value in a record, the value, and how both encodings give it back.</summary>
    public static readonly TheoryData<DataType, object, object> RecordValues = new()
    {
        { DataType.Integer, 7.0, 7 },
        { DataType.Integer, 7L, 7 },
        { DataType.Integer, true, 1 },
        { DataType.Integer8, -128, -128 },
        { DataType.Integer16, -32768.0, -32768 },
        { DataType.Integer32, int.MinValue, int.MinValue },
        { DataType.Unsigned8, 255, 255 },
        { DataType.Unsigned32, 4294967295.0, 4294967295.0 }, // more than an int holds
        { DataType.Unsigned16, 65535, 65535 },
        { DataType.Real, 2, 2.0 },
        { DataType.Real, 1.5F, 1.5 },
        { DataType.Text, "a'b\u00e4", "a'b\u00e4" },
        { DataType.FixedText, "", "" },
        { DataType.ColorIndex, 9, 9 },
        { DataType.Name, 12, 12 },
        { DataType.Enumeration, 3, 3 },
        { DataType.Index, -4, -4 },
    };

    [Theory]
    [MemberData(nameof(RecordValues))]
    public void Values_of_records_come_back_in_both_encodings(DataType type, object value, object expected)
    {
        foreach (CgmFileFormat format in new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText })
        {
            Command[] read = [.. Load(Save([Attribute(type, value, value)], format)).Commands];
            var attribute = Assert.Single(read.OfType<ApplicationStructureAttribute>());
            StructuredDataRecord.Member member = Assert.Single(attribute.Value.Members);
            Assert.Equal(type, member.Type);
            Assert.Equal([expected, expected], member.Values);
            Assert.Equal($"{type}: {expected}, {expected}", member.ToString());
        }
    }

    /// <summary>The type, a value that it cannot be, and what the message says.</summary>
    public static readonly TheoryData<DataType, object?, string> Misfits = new()
    {
        { DataType.Integer, 1.5, "'1.5' (Double) of a record is no integer" },
        { DataType.Integer, "7", "'7' (String)" },
        { DataType.Integer, 1e300, "no integer" },
        { DataType.Integer, 4294967296.0, "32-bit integer" },
        { DataType.Integer, null, "(None)" },
        { DataType.Integer8, 128, "128" },
        { DataType.Unsigned8, -1, "-1" },
        { DataType.Unsigned16, 65536, "65536" },
        { DataType.Text, 5, "no String" },
        { DataType.DirectColor, 5, "no CgmColor" },
        { DataType.StructuredData, "x", "no StructuredDataRecord" },
        { DataType.Real, "x", "'x'" },
        { (DataType)99, 1, "type 99" },
    };

    [Theory]
    [MemberData(nameof(Misfits))]
    public void Values_that_a_type_cannot_hold_are_refused_by_name(DataType type, object? value, string message)
    {
        Assert.All(new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText }, format =>
            Assert.Contains(message,
                Assert.Throws<ImageSaveException>(() => Save([Attribute(type, value!)], format)).Message,
                StringComparison.Ordinal));
    }

    [Theory]
    [InlineData(0, 0, 0)]
    [InlineData(255, 255, 255)]
    [InlineData(255, 0, 0)]
    [InlineData(12, 200, 99)]
    public void Colours_of_four_inks_come_back(byte red, byte green, byte blue)
    {
        Command[] commands =
        [
            new ColourModel { Value = ColourModel.Model.Cmyk },
            new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
            new ColourPrecision { Precision = 16 },
            new ColourValueExtent { Minimum = [0, 0, 0, 0], Maximum = [65535, 65535, 65535, 65535] },
            new LineColour(new CgmColor(Color.FromArgb(red, green, blue))),
        ];
        foreach (CgmFileFormat format in new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText })
        {
            LineColour read = Load(Save(commands, format)).Commands.OfType<LineColour>().Single();
            Assert.Equal((red, green, blue), (read.Color.Color.R, read.Color.Color.G, read.Color.Color.B));
        }
    }

    [Fact]
    public void Elements_cannot_be_nested_in_their_own_kind_when_written()
    {
        var inner = new MetafileDefaultsReplacement();
        inner.Commands.Add(new MetafileDefaultsReplacement());
        foreach (CgmFileFormat format in new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText })
        {
            Assert.Contains("nested", Assert.Throws<ImageSaveException>(() => Save([inner], format)).Message);
        }

        CgmFile file = Load(Save([], CgmFileFormat.Binary));
        Assert.Throws<ArgumentOutOfRangeException>(() => file.Save(new MemoryStream(), (CgmFileFormat)99));
    }

    [Fact]
    public void A_new_metafile_has_one_empty_picture_that_is_loaded_again()
    {
        using var image = new CgmImage();
        Assert.Equal((1000, 1000, 1), (image.Width, image.Height, image.PictureNames.Length));
        Assert.True(image.IsCached && image.File.Name == "drawing");
        Assert.Empty(image.GetStrings());
        foreach (CgmFileFormat format in new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText })
        {
            using var stream = new MemoryStream();
            image.File.Save(stream, format);
            CgmFile again = Load(stream.ToArray());
            Assert.Equal(image.File.Commands.Select(one => one.GetType()), again.Commands.Select(one => one.GetType()));
            Assert.Equal(new CgmPoint(1000, 1000), again.Commands.OfType<VdcExtent>().Single().SecondCorner);
        }

        image.Dispose();
        Assert.Throws<ObjectDisposedException>(() => image.File);
    }

    private static ApplicationStructureAttribute Attribute(DataType type, params object[] values)
    {
        var attribute = new ApplicationStructureAttribute { AttributeType = "x" };
        attribute.Value.Members.Add(new StructuredDataRecord.Member(type, values));
        return attribute;
    }
}
