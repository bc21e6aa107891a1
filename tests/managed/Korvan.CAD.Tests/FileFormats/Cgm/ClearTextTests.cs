using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Keywords and numbers in all the forms of ISO/IEC 8632-4.</summary>
public class ClearTextTests
{
    [Theory]
    [InlineData("LINE (1,2) (-3,4)")]
    [InlineData("line 1 2 -3 4")]
    [InlineData("Line 1,2 , -3,4")]
    [InlineData("LI_NE$ 1_0_E-1 2 -$3 +4")] // low lines and dollar signs mean nothing
    [InlineData("LINE\r\n\t(1 2)%a comment; with all / of it%(-3 4)")]
    [InlineData("LINE 1. .2E1 -30E-1 4.0")]
    [InlineData("LINE 2#1 8#2 -3#10 16#4")]
    [InlineData("INCRLINE (1,2) (-4,2)")] // distances from the point before
    public void All_ways_to_write_a_line_are_the_same_line(string text)
    {
        foreach (string end in new[] { ";", "/", " ;\n;" })
        {
            Polyline line = Elements(text + end).OfType<Polyline>().Single();
            Assert.Equal([new CgmPoint(1, 2), new CgmPoint(-3, 4)], line.Points);
        }
    }

    [Fact]
    public void Incremental_sets_of_polygons_count_distances_and_keep_their_flags()
    {
        var set = Assert.IsType<PolygonSet>(Elements("INCRPOLYGONSET (1,1) VIS (1,0) vis (0,1) closevis").Single());
        Assert.Equal([new CgmPoint(1, 1), new CgmPoint(2, 1), new CgmPoint(2, 2)], set.Points);
        Assert.Equal(PolygonSet.EdgeFlag.CloseVisible, set.Flags[^1]);
    }

    [Fact]
    public void Words_that_writers_shorten_are_understood_where_they_are_one_alone()
    {
        var flags = Assert.IsType<AspectSourceFlags>(Elements("ASF LINETYPE INDIV TEXTFONT BNDLD;").Single());
        Assert.Equal(AspectSourceFlags.ASFType.TextFontIndex, flags.Infos[1].Type);
        Assert.Equal(
            InteriorStyle.Style.Pattern, Assert.IsType<InteriorStyle>(Elements("INTSTYLE PATTERN;").Single()).Value);
        Assert.Throws<ImageLoadException>(() => Elements("TEXTALIGN NORMHORIZ NORM 0 0; VDCTYPE RE;"));
    }

    [Theory]
    [InlineData("'it''s'", "it's")]
    [InlineData("\"it's\"", "it's")]
    [InlineData("'say \"\"; / % _$'", "say \"\"; / % _$")] // nothing has a meaning inside of quotes but they themselves
    [InlineData("\"\"\"\"", "\"")]
    [InlineData("''", "")]
    [InlineData("'a\u001b%G\u00ce\u00b1\u001b%@'", "aα")]
    public void Strings_keep_what_is_between_their_quotes(string quoted, string expected)
    {
        Assert.Equal([expected], LoadText($"BEGMF 't';BEGPIC {quoted};BEGPICBODY;ENDPIC;ENDMF;").PictureNames);
    }

    [Fact]
    public void Replaced_defaults_are_one_command_and_hold_for_pictures()
    {
        List<Command> read = Elements(
            "BEGMFDEFAULTS; COLRMODE direct; LINEWIDTHMODE abs; ENDMFDEFAULTS; BEGPIC 'p'; BEGPICBODY; "
            + "LINECOLR 255 0 16#ff; ENDPIC");
        Assert.Equal(2, Assert.IsType<MetafileDefaultsReplacement>(read[0]).Commands.Count);
        Assert.Equal(new CgmColor(Color.FromArgb(255, 0, 255)), read.OfType<LineColour>().Single().Color);
    }

    [Theory]
    [InlineData("INTEGERPREC -128 127", 8)]
    [InlineData("INTEGERPREC -32768, 32767", 16)]
    [InlineData("INTEGERPREC 0 65535", 24)]
    [InlineData("INTEGERPREC -2147483648 2147483647", 32)]
    public void Precisions_are_told_by_what_they_hold(string text, int bits) =>
        Assert.Equal(bits, Assert.IsType<IntegerPrecision>(Elements(text).Single()).Precision);

    [Theory]
    [InlineData("LINE (1,2) (3);", "line 2, LINE (4, 1)", "the parameters end where")]
    [InlineData("\n\nLINE 1 2 x 4;", "line 4, LINE (4, 1)", "'x' is no number")]
    [InlineData("LINE 1 2 'a' 4;", "line 2, LINE (4, 1)", "there is a string where")]
    [InlineData("LINECOLR 1.5;", "line 2, LINECOLR (5, 4)", "'1.5' is no integer")]
    [InlineData("LINECOLR 99999999999;", "line 2, LINECOLR (5, 4)", "99999999999")]
    [InlineData("VDCTYPE WHOLE;", "line 2, VDCTYPE (1, 3)", "none of INTEGER, REAL")]
    [InlineData("INTEGERPREC -9e12 1;", "line 2, INTEGERPREC (1, 4)", "more than 32 bits")]
    [InlineData("LINECOLR 9#9;", "line 2, LINECOLR (5, 4)", "no integer")]
    [InlineData("LINE 1e999 0;", "line 2, LINE (4, 1)", "no number")]
    [InlineData("BEGPIC 'a;", "line 2, BEGPIC (0, 3)", "no closing quote")]
    [InlineData(
        "BEGMFDEFAULTS; BEGMFDEFAULTS; ENDMFDEFAULTS; ENDMFDEFAULTS;", "line 2, BEGMFDEFAULTS (1, 12)", "nested")]
    [InlineData("BEGMFDEFAULTS; CLIP OFF;", "line 2, BEGMFDEFAULTS (1, 12)", "without ENDMFDEFAULTS")]
    [InlineData("CELLARRAY 0 0 1 1 1 0 9999 9999 0 1;", "line 2, CELLARRAY (4, 9)", "more than the file has")]
    public void Damage_is_told_with_line_and_cause_or_left_out(string element, string place, string cause)
    {
        string text = $"BEGMF 't';\n{element}";
        var failure = Assert.Throws<ImageLoadException>(() => LoadText(text));
        Assert.Contains($"'stream', {place}: ", failure.Message);
        Assert.Contains(cause, failure.Message);

        Message message = LoadText(text, true).Messages.First(one => one.Severity == Severity.Error);
        Assert.Contains(place, message.Text);
        Assert.Contains(cause, message.Text);
    }

    [Fact]
    public void What_is_unknown_or_left_over_is_noted_and_kept()
    {
        CgmFile file = LoadText(
            "BEGMF 't';\nXYZZY 1 ';' (2);\nVDCTYPE REAL 3 4;\nLINE 1 2 x 4;LINE 1 2;\nENDMF;", true);
        Assert.Equal(
            [Severity.Unsupported, Severity.Warning, Severity.Error], file.Messages.Select(one => one.Severity));
        Assert.Equal([2L, 3L, 4L], file.Messages.Select(one => one.Position));
        Assert.Equal("XYZZY 1 ';' (2)", Assert.IsType<UnknownCommand>(file.Commands[1]).Source);
        Assert.Single(file.Commands.OfType<Polyline>());
        Assert.Equal("BEGMF 't';\nXYZZY 1 ';' (2);\nENDMF;\n", SaveText(file.Commands[1]));
    }

    [Fact]
    public void Elements_have_the_words_that_the_rules_give_them()
    {
        string text = SaveText(
            new MetafileDefaultsReplacement { Commands = [new ClipIndicator(false)] },
            new IntegerPrecision { Precision = 16 },
            new ColourPrecision { Precision = 8 },
            new NoOp(),
            new BeginPicture("it's"),
            new LineWidth(0.25),
            new Polyline { Points = [new(1, 2), new(-3, 4)] });
        Assert.Equal(
            "BEGMF 't';\nBEGMFDEFAULTS;\nCLIP OFF;\nENDMFDEFAULTS;\nINTEGERPREC -32768 32767;\nCOLRPREC 255;\n"
            + "BEGPIC 'it''s';\n"
            + "LINEWIDTH 0.25;\nLINE (1,2) (-3,4);\nENDMF;\n",
            text);
    }

    [Fact]
    public void Lines_end_before_80_letters_and_numbers_come_back_to_the_last_bit()
    {
        var random = new Random(3);
        Polyline line = new()
        {
            Points = [.. Enumerable.Range(0, 500).Select(_ => new CgmPoint(Number(random), Number(random)))],
        };
        string text = SaveText(new VdcType { Value = VdcType.Type.Real }, line);
        Assert.All(text.Split('\n'), one => Assert.True(one.Length <= 80, one));
        Assert.Equal(line.Points, LoadText(text).Commands.OfType<Polyline>().Single().Points);
    }

    [Fact]
    public void Records_stand_in_quotes_and_are_read_without_them_too()
    {
        List<Command> read = Elements(
            "BEGAPS 'a' 'b' STLIST; APSATTR 'region' \"11 1 3 14 2 'it''s' \"\"x\"\" 12 1 .5\"; "
            + "APSATTR 'region' 11 1 3 14 1 'y'");
        StructuredDataRecord[] records = [.. read.OfType<ApplicationStructureAttribute>().Select(one => one.Value)];
        Assert.Equal([3], records[0].Members[0].Values);
        Assert.Equal(["it's", "x"], records[0].Members[1].Values);
        Assert.Equal([0.5], records[0].Members[2].Values);
        Assert.Equal(["y"], records[1].Members[1].Values);
    }

    [Theory]
    [InlineData("0.5", "not whole")]
    [InlineData("binary", "has no clear text form")]
    public void What_cannot_be_held_is_refused_by_name(string what, string cause)
    {
        Command command = what == "binary"
            ? new UnknownCommand(new CommandConstructorArguments((ClassCode)12, 3)) { Parameters = [1, 2] }
            : new Polyline { Points = [new(double.Parse(what, CultureInfo.InvariantCulture), 0)] };
        Assert.Contains(cause, Assert.Throws<ImageSaveException>(() => SaveText(command)).Message);
    }

    private static double Number(Random random) =>
        BitConverter.Int64BitsToDouble(random.NextInt64()) is var value && double.IsFinite(value) ? value : 0;
}
