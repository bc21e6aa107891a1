using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>What is written as binary, against bytes put together by the rules of ISO/IEC 8632-3.</summary>
public class BinaryWriterTests
{
    private static readonly VdcType Real = new() { Value = VdcType.Type.Real };
    private static readonly ColourSelectionMode Direct = new() { Value = ColourSelectionMode.Type.Direct };

    [Fact]
    public void Elements_have_the_bytes_that_the_rules_give_them()
    {
        Verify("4028 0001 0002 FFFF 8000", Line(1, 2, -1, -32768));
        Verify("403F 0020" + string.Concat(Enumerable.Repeat("0001", 16)), Line([.. Enumerable.Repeat(1.0, 16)]));
        Verify("1062 0001 4028 00018000 FFFF8000", Real, Line(1.5, -0.5));
        Verify(
            "1062 0001 3046 0000 0009 0017 4028 3FC00000 BF000000", Real,
            new VdcRealPrecision { Value = Precision.Floating32 }, Line(1.5, -0.5));
        Verify("0063 02 61 E9 00", new BeginPicture("aé"));
        Verify("0069 08 1B2547 CEB1 1B2540 00", new BeginPicture("α"));
        Verify(
            "1184 3022 0018 0061 0000 4026 7FFFFF 800000",
            new MetafileDefaultsReplacement { Commands = [new VdcIntegerPrecision { Precision = 24 }] },
            new BeginPicture(""), Line(8388607, -8388608));
        Verify("2042 0001 5083 0A141E 00", Direct, new LineColour(new CgmColor(Color.FromArgb(10, 20, 30))));
    }

    [Fact]
    public void Long_elements_and_texts_are_parted_and_come_back()
    {
        Polyline line = Line([.. Enumerable.Range(0, 40_000).Select(i => (double)(i % 1000))]);
        var name = new BeginPicture(new string('x', 70_000));
        byte[] data = Save([line, name], CgmFileFormat.Binary);
        Assert.Equal("403FFFFE", Convert.ToHexString(data, 4, 4)); // a part of 32,766 bytes, and more to come
        CgmFile file = Load(data);
        Assert.Equal(line.Points, Assert.IsType<Polyline>(file.Commands[1]).Points);
        Assert.Equal([name.Identifier], file.PictureNames);
    }

    public static TheoryData<string, Command[]> Refused => new()
    {
        { "40000", [Line(40_000, 0)] },
        { "0.5", [Line(0.5, 0)] }, // whole coordinates were announced
        { "-32769", [new VdcIntegerPrecision { Precision = 16 }, Line(0, -32_769)] },
        { "40000", [Real, Line(40_000, 0)] }, // fixed reals have 16 bits before the point
        { "infinite", [Real, new VdcRealPrecision { Value = Precision.Floating64 }, Line(double.PositiveInfinity, 0)] },
        // no single can hold it
        { "infinite", [Real, new VdcRealPrecision { Value = Precision.Floating32 }, Line(1e300, 0)] },
        { "300", [new LineColour(new CgmColor(300))] }, // numbers of colours have 8 bits
        { "is direct", [new LineColour(new CgmColor(Color.FromArgb(1, 2, 3)))] },
        { "colour 3", [Direct, new LineColour(new CgmColor(3))] },
        { "translucent", [Direct, new LineColour(new CgmColor(Color.FromArgb(9, 1, 2, 3)))] },
        { "surrogate", [new BeginPicture("\ud800")] },
        { "4 colours", [new CellArray { CellsPerLine = 2, LineCount = 3, Cells = [1, 2, 3, 4] }] },
        { "a point", [new Polyline { Points = [null!] }] },
        { "XYZZY", [new UnknownCommand(new CommandConstructorArguments((ClassCode)15, 127)) { Source = "XYZZY 1 2" }] },
    };

    [Theory]
    [MemberData(nameof(Refused))]
    public void What_cannot_be_held_is_refused_by_name(string cause, Command[] commands)
    {
        var failure = Assert.Throws<ImageSaveException>(() => Save(commands, CgmFileFormat.Binary));
        Assert.Contains($"command {commands.Length}, ", failure.Message);
        Assert.Contains(cause, failure.Message);
    }

    [Fact]
    public void Random_values_of_every_precision_come_back()
    {
        var random = new Random(7);
        foreach (int bits in new[] { 8, 16, 24, 32 })
        {
            int limit = (int)Math.Min(int.MaxValue, (1L << (bits - 1)) - 1);
            Command[] commands =
            [
                new IntegerPrecision { Precision = bits }, new ColourIndexPrecision { Precision = bits },
                new IndexPrecision { Precision = bits },
                .. Enumerable.Range(0, 50).Select(_ => (Command)new LineColour(new CgmColor(random.Next(limit)))),
                .. Enumerable.Range(0, 50).Select(_ => (Command)new LineBundleIndex { Index = random.Next(1, limit) }),
            ];
            List<Command> read = Load(Save(commands, CgmFileFormat.Binary)).Commands;
            Assert.Equal(
                commands.OfType<LineColour>().Select(one => one.Color),
                read.OfType<LineColour>().Select(one => one.Color));
            Assert.Equal(
                commands.OfType<LineBundleIndex>().Select(one => one.Index),
                read.OfType<LineBundleIndex>().Select(one => one.Index));
        }
    }

    [Theory]
    [InlineData("B", CharacterSetList.Type.Graphic96, "Łódź é", 6)] // one byte each in ISO/IEC 8859-2
    [InlineData("4/6", CharacterSetList.Type.Graphic96, "αβγ", 3)]
    [InlineData("B", CharacterSetList.Type.Graphic96, "αβγ", 12)] // which it has not: UTF-8 between two sequences
    [InlineData("/I", CharacterSetList.Type.CompleteCode, "αβγ", 6)]
    [InlineData("/L", CharacterSetList.Type.CompleteCode, "αβγ", 6)]
    public void Texts_are_written_in_their_character_set(
        string designation, CharacterSetList.Type type, string text, int bytes)
    {
        Command[] commands =
        [
            new CharacterSetList { Types = [type], Designations = [designation] }, new BeginPicture(text),
        ];
        byte[] written = Save(commands, CgmFileFormat.Binary);
        int padding = (1 + bytes) % 2, end = Hex(End).Length;
        Assert.Equal(bytes, written[written.Length - end - padding - bytes - 1]);
        Assert.Equal([text], Load(written).PictureNames);
        Assert.Equal([text], Load(Save(commands, CgmFileFormat.ClearText)).PictureNames);
    }

    [Fact]
    public void Latin_texts_that_would_pass_for_utf8_are_written_so_that_they_do_not()
    {
        foreach (string text in new[] { "é", "Ã¤", "日本" })
        {
            Assert.Equal([text], Load(Save([new BeginPicture(text)], CgmFileFormat.Binary)).PictureNames);
            Assert.Equal([text], Load(Save([new BeginPicture(text)], CgmFileFormat.ClearText)).PictureNames);
        }
    }

    private static Polyline Line(params double[] numbers) =>
        new() { Points = [.. numbers.Chunk(2).Select(pair => new CgmPoint(pair[0], pair[1]))] };

    private static void Verify(string expected, params Command[] commands)
    {
        string written = Convert.ToHexString(Save(commands, CgmFileFormat.Binary));
        string begin = Begin.Replace(" ", "", StringComparison.Ordinal);
        Assert.Equal(Convert.ToHexString(Hex(expected)), written[begin.Length..^End.Length]);
    }
}
