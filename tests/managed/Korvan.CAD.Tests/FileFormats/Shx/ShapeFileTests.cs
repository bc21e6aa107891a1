using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Shx;

/// <summary>Compiled shape files of three kinds: what their code draws, and what becomes of damaged ones.</summary>
public class ShapeFileTests
{
    private const byte Up = 0x14; // a unit upwards
    private const byte Right = 0x10;

    /// <summary>What is drawn, the code, the strokes, and where the pen is after them.</summary>
    public static readonly TheoryData<string, byte[], string, string> Codes = new()
    {
        { "the sixteen directions", [0x20, 0x21, 0x22, 0x24, 0x28, 0x2C], "0,0 2,0 4,1 6,3 6,5 4,5 4,3", "4,3" },
        { "a pen that is lifted", [Right, 2, Right, 1, Up], "0,0 1,0; 2,0 2,1", "2,1" },
        { "scales that multiply", [4, 6, 3, 4, 0x20, 3, 2, 0x40], "0,0 3,0 6,0", "6,0" },
        { "a place that is kept", [5, Right, 6, Up], "0,0 1,0; 0,0 0,1", "0,1" },
        { "a displacement", [8, 10, 0xFB, 8, 0x80, 0x7F], "0,0 10,-5 -118,122", "-118,122" },
        { "several displacements", [9, 1, 2, 3, 4, 0, 0, Right], "0,0 1,2 4,6 5,6", "5,6" },
        { "what is for vertical text", [0x0E, 8, 9, 9, Right, 0x0E, 9, 1, 1, 0, 0, Up], "0,0 1,0 1,1", "1,1" },
        { "a part by its number", [7, 66, Up], "0,0 5,0 5,1", "5,1" },
        { "what ends early", [Right, 8], "0,0 1,0", "1,0" },
    };

    [Theory]
    [MemberData(nameof(Codes))]
    public void Code_draws_strokes(string what, byte[] code, string strokes, string end)
    {
        ShapeFile file = ShapeFile.TryRead(ShapeBytes.Shapes((65, "A", [.. code, 0]), (66, "B", [0x50, 0])))!;
        ShapeStrokes drawn = file.Draw(65)!;
        Assert.True(strokes == Text(drawn), $"{what}: {Text(drawn)}");
        Assert.Equal((end, true), (Text(drawn.End), drawn.IsWhole));
        Assert.Equal(Text(drawn.Strokes), Text(file.Find("a")!)); // names in any case
    }

    [Theory]
    [InlineData("0C 14 00 7F", 10, -10, 20, 0)] // half a circle below: counterclockwise from the left
    [InlineData("0C 14 00 81", 10, 10, 20, 0)]
    [InlineData("0A 0A 02", -10, 10, -10, 10)] // from the right by two octants about (-10, 0)
    [InlineData("0A 0A FE", -10, -10, -10, -10)] // clockwise
    [InlineData("0A 0A 00", 0, 0, 0, 0)] // a whole turn
    [InlineData("0B 80 80 00 0A 02", -12.9, 8.4, -12.9, 8.4)] // from half of the first octant to half of the second
    public void Arcs_end_where_their_angles_say(string hex, double lowX, double lowY, double endX, double endY)
    {
        byte[] code = Convert.FromHexString(hex.Replace(" ", ""));
        ShapeStrokes drawn = ShapeFile.TryRead(ShapeBytes.Shapes((65, "A", [.. code, 0])))!.Draw(65)!;
        Vec2[] stroke = Assert.Single(drawn.Strokes);
        bool isOctants = code[0] != 0x0C;
        Assert.True(isOctants || stroke.Any(point => (point - new Vec2(lowX, lowY)).Length < 0.5), Text(drawn));
        if (hex.StartsWith("0B", StringComparison.Ordinal))
        {
            return; // offsets are of octants; the radius is checked below
        }

        Assert.InRange((drawn.End - new Vec2(endX, endY)).Length, 0, 1e-6);
    }

    [Fact]
    public void Fractions_of_octants_keep_the_radius()
    {
        ShapeStrokes drawn = ShapeFile.TryRead(
            ShapeBytes.Shapes((65, "A", [0x0B, 128, 128, 0, 10, 0x02, 0])))!.Draw(65)!;
        double start = Math.PI / 8;
        Vec2 center = new Vec2(Math.Cos(start), Math.Sin(start)) * -10;
        Assert.All(Assert.Single(drawn.Strokes), point => Assert.Equal(10, (point - center).Length, 9));
        Vec2 last = drawn.End - center;
        Assert.Equal(3 * Math.PI / 8, Math.Atan2(last.Y, last.X), 9);
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Unicode_fonts_have_heights_and_parts_of_two_bytes(bool hasNumber)
    {
        ShapeFile file = ShapeFile.TryRead(ShapeBytes.Unicode(
            hasNumber, 6, (0x41, [Right, 0]), (0x42F, [7, 0, 0x41, Up, 0]), (0x20, [2, 0x60, 0])))!;
        Assert.Equal((ShapeFileKind.Unicode, 6, 2), (file.Kind, file.Above, file.Below));
        Assert.Equal([0x20, 0x41, 0x42F], file.Numbers.Order());
        Assert.Equal("0,0 1,0 1,1", Text(file.Draw(0x42F)!));
        Assert.Empty(file.Draw(0x20)!.Strokes);
        Assert.Null(file.Draw(0x99));
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Big_fonts_place_parts_in_boxes_of_their_own(bool isSwapped)
    {
        ShapeFile file = ShapeFile.TryRead(ShapeBytes.Big(
            isSwapped, (0, [10, 0, 2, 10, 0]), (0x8141, [0xA0, 0]),
            (0x8142, [7, 0, 0x81, 0x41, 3, 4, 20, 5, 0])))!;
        Assert.Equal((ShapeFileKind.Big, 10), (file.Kind, file.Above));
        Assert.Equal("0,0 10,0", Text(file.Draw(0x8141)!));
        Assert.Equal("3,4 23,4", Text(file.Draw(0x8142)!)); // ten units in a box that is twenty wide
    }

    [Fact]
    public void Shapes_that_call_themselves_end()
    {
        byte[] twice = [7, 65, 7, 66, 7, 65, 7, 66, Right, 0];
        ShapeFile file = ShapeFile.TryRead(ShapeBytes.Shapes((65, "A", twice), (66, "B", twice)))!;
        ShapeStrokes drawn = file.Draw(65)!;
        Assert.False(drawn.IsWhole);
        Assert.InRange(drawn.Strokes.Sum(static stroke => stroke.Length), 1, 50_000);
        byte[] larger = [4, 255, 4, 255, 4, 255, 4, 255, 0xF0, 7, 65, 0];
        Assert.True(double.IsFinite(ShapeFile.TryRead(ShapeBytes.Shapes((65, "A", larger)))!.Draw(65)!.End.Length));
    }

    /// <summary>Why it is no shape file, and the bytes.</summary>
    public static readonly TheoryData<string, byte[]> Others = new()
    {
        { "nothing", [] },
        { "text", "AutoCAD-86 shapes V1.0 without an end"u8.ToArray() },
        { "another sentinel", [.. "AutoCAD-86 fonts 9.0\r\n"u8, 0x1A, .. new byte[20]] },
        { "no shapes", ShapeBytes.Shapes() },
        { "a font without shapes", ShapeBytes.Unicode(false, 6) },
        { "a big font without shapes", ShapeBytes.Big(false) },
    };

    [Theory]
    [MemberData(nameof(Others))]
    public void Other_files_are_no_shape_files(string why, byte[] data) => Assert.True(
        ShapeFile.TryRead(data) is null, why);

    [Fact]
    public void Damaged_files_are_read_as_far_as_they_go_and_never_fail()
    {
        byte[][] files =
        [
            ShapeBytes.Shapes((0, "font", [6, 2, 0]), (65, "A", [9, 1, 2, 3, 4, 0, 0, 7, 66, 0]), (66, "B", [Up, 0])),
            ShapeBytes.Unicode(false, 6, (65, [0x0A, 5, 3, 7, 0, 66, 0]), (66, [0x0B, 1, 2, 0, 9, 0x13, 0])),
            ShapeBytes.Big(
                false, (0, [9, 0, 2, 9, 0]), (0x8141, [0x0D, 1, 2, 99, 0, 0, 7, 0, 0x81, 0x42, 1, 1, 9, 9, 0]),
                (0x8142, [0x0E, 7, 0, 1, 2, 3, 4, 5, 6, Up, 0])),
        ];
        Random random = new(3);
        foreach (byte[] file in files)
        {
            Assert.NotNull(ShapeFile.TryRead(file));
            for (int round = 0; round < 2000; round++)
            {
                byte[] damaged = file[..random.Next(file.Length + 1)];
                for (int i = random.Next(4); i > 0 && damaged.Length > 30; i--)
                {
                    damaged[random.Next(25, damaged.Length)] = (byte)random.Next(256);
                }

                ShapeFile? read = ShapeFile.TryRead(damaged);
                Assert.All(read?.Numbers ?? [], number => Assert.True(double.IsFinite(read!.Draw(number)!.End.Length)));
            }
        }
    }

    private static string Text(ShapeStrokes drawn) => Text(drawn.Strokes);

    private static string Text(List<Vec2[]> strokes) => string.Join("; ", strokes.Select(
        static stroke => string.Join(' ', stroke.Select(Text))));

    private static string Text(Vec2 p) => FormattableString.Invariant($"{R(p.X)},{R(p.Y)}");

    private static double R(double value) => Math.Round(value, 6) + 0.0;
}
