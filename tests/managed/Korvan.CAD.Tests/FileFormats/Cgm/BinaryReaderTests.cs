using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.FileFormats.Cgm.Import;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Bytes put together by the rules of ISO/IEC 8632-3, and what they say.</summary>
public class BinaryReaderTests
{
    private const string Line = "4028 0001 0002 0003 0004";

    [Theory]
    [InlineData(Line)] // the length in the first word
    [InlineData("403F 0008 0001 0002 0003 0004")] // the length in a word of its own
    [InlineData("403F 8004 0001 0002 0004 0003 0004")] // two parts
    [InlineData("403F 8003 000100 00 0005 0200030004 00")] // parts of odd lengths are filled up
    public void Every_form_of_a_length_gives_the_same_line(string line)
    {
        CgmFile file = Load(Metafile(line));
        Assert.Equal([new CgmPoint(1, 2), new CgmPoint(3, 4)], Assert.IsType<Polyline>(file.Commands[1]).Points);
        Assert.Empty(file.Messages);
    }

    [Theory]
    [InlineData("", "8000 7FFF", -32768, 32767)]
    [InlineData("3022 0018", "800000 7FFFFF", -8388608, 8388607)]
    [InlineData("3022 0020", "80000000 7FFFFFFF", int.MinValue, int.MaxValue)]
    [InlineData("1062 0001", "00018000 FFFF8000", 1.5, -0.5)] // fixed: the whole part is rounded down
    [InlineData("1062 0001 3046 0001 0020 0020", "0000000180000000 FFFFFFFF80000000", 1.5, -0.5)]
    [InlineData("1062 0001 3046 0000 0009 0017", "3FC00000 BF000000", 1.5, -0.5)]
    [InlineData("1062 0001 3046 0000 000C 0034", "3FF8000000000000 BFE0000000000000", 1.5, -0.5)]
    public void Coordinates_are_read_in_their_precision(string before, string point, double x, double y)
    {
        CgmFile file = Load(Metafile(before, $"{0x4020 + Hex(point).Length:X4}", point));
        Assert.Equal([new CgmPoint(x, y)], Assert.IsType<Polyline>(file.Commands[^2]).Points);
    }

    [Fact]
    public void Precisions_of_a_picture_end_with_it_and_replaced_defaults_hold_for_all()
    {
        const string defaults = "1184 3022 0020", begin = "0062 0000 0080", wide = "4028 00000001 00000002";
        CgmFile file = Load(
            Metafile(defaults, begin, wide, "3022 0010", "4024 0001 0002", "00A0", begin, wide, "00A0"));
        Assert.Equal(3, file.Commands.OfType<Polyline>().Count());
        Assert.All(file.Commands.OfType<Polyline>(), line => Assert.Equal([new CgmPoint(1, 2)], line.Points));
    }

    [Theory]
    [InlineData("", "", "68 E9 6C", "hél")]
    [InlineData("", "", "E4", "ä")] // Latin-1
    [InlineData("", "", "CEB1", "α")] // UTF-8 that nothing has selected
    [InlineData("", "", "61 1B2547 CEB1 1B2540 E9", "aαé")] // to UTF-8 and back inside of a text
    [InlineData("", "", "1B252F4A 03B1", "α")] // to UTF-16
    [InlineData("11C4 0004 0147", "", "CEB1", "α")] // a complete code, "G": UTF-8
    [InlineData("11C4 0004 0147", "", "CEB1 FF", "Î±ÿ")] // what is no UTF-8 after all is not lost
    [InlineData("11C8 0000 0142 0001 0142", "5282 0002", "A1", "Ą")] // the right half of ISO/IEC 8859-2
    public void Texts_are_read_in_their_character_set(string sets, string choice, string characters, string expected)
    {
        int length = Hex(characters).Length;
        string text = $"{0x4080 + 7 + length:X4} 0000 0000 0001 {length:X2} {characters}" + (length % 2 == 0 ? "00" : "");
        CgmFile file = Load(Metafile(sets, "0062 0000 0080", choice, text, "00A0"));
        Assert.Equal(expected, file.Commands.OfType<Text>().Single().Content);
    }

    [Fact]
    public void Texts_may_be_long_and_in_parts()
    {
        string characters = string.Concat(Enumerable.Repeat("61", 300));
        CgmFile file = Load(
            Metafile(
                "007F 012F FF 012C", characters, "00", "007F 0133 FF 8064", characters[..200], "00C8", characters[200..], "00"));
        Assert.Equal([new string('a', 300), new string('a', 300)], file.PictureNames);
    }

    [Theory]
    [InlineData("4026 0001 0002 0003", "byte 4, LINE (4, 1)", "the parameters end after 6 bytes")]
    [InlineData("4028 0001 0002", "byte 4, LINE (4, 1)", "the element announces 8 bytes")]
    [InlineData("403F 8002 0001", "byte 4, LINE (4, 1)", "the file ends")] // the next part is missing
    [InlineData("1062 0007", "byte 4, VDCTYPE (1, 3)", "INTEGER, REAL")]
    [InlineData("3022 0011", "byte 4, VDCINTEGERPREC (3, 1)", "17")] // no such precision
    // infinity
    [InlineData("1062 0001 3046 0000 0009 0017 4028 7F800000 00000000", "byte 16, LINE (4, 1)", "not a number")]
    // replacements inside of replacements
    [InlineData("1186 1184 4020 0000", "byte 6, BEGMFDEFAULTS (1, 12)", "nested")]
    [InlineData("0062 0661", "byte 4, BEGPIC (0, 3)", "within a value of 6 bytes")]
    public void Damage_is_told_with_place_and_cause_or_left_out(string element, string place, string cause)
    {
        byte[] data = Hex(Begin + element + (cause.Contains("file ends") || cause.Contains("announces") ? "" : End));
        var failure = Assert.Throws<ImageLoadException>(() => Load(data));
        Assert.Contains($"'stream', {place}: ", failure.Message);
        Assert.Contains(cause, failure.Message);

        Message message = Load(data, true).Messages.First(one => one.Severity == Severity.Error);
        Assert.Contains(place, message.Text);
        Assert.Contains(cause, message.Text);
    }

    [Fact]
    public void Reading_goes_on_behind_what_is_left_out()
    {
        var options = new LoadOptions { IgnoreErrors = true };
        var file = CgmFile.Load(Metafile("4026 0001 0002 0003", "1186 3022 0011 4020", Line), "plan.cgm", options);
        Assert.Equal(
            [typeof(BeginMetafile), typeof(MetafileDefaultsReplacement), typeof(Polyline), typeof(EndMetafile)],
            file.Commands.Select(one => one.GetType()));
        Assert.Equal(2, options.Errors.Count);
        Assert.StartsWith("'plan.cgm', byte 4, LINE (4, 1): ", options.Errors[0]);
    }

    [Fact]
    public void Unknown_elements_and_bytes_left_over_are_noted_and_unknown_ones_written_again()
    {
        byte[] data = Metafile("CFE3 010203 00", "1064 0001 0002", "0004 FFFF FFFF");
        CgmFile file = Load(data);
        Assert.Equal([Severity.Unsupported, Severity.Warning], file.Messages.Select(one => one.Severity));
        Assert.Equal([4L, 10L], file.Messages.Select(one => one.Position));
        Assert.Equal([1, 2, 3], Assert.IsType<UnknownCommand>(file.Commands[1]).Parameters);
        Assert.Equal(Metafile("CFE3 010203 00"), Save([file.Commands[1]], CgmFileFormat.Binary));
    }

    [Fact]
    public void A_metafile_without_its_end_is_read_with_a_warning_and_one_with_more_behind_it_to_its_end()
    {
        CgmFile cut = Load(Hex(Begin + Line));
        Assert.Equal("ENDMF", cut.Messages.Single().Text[^5..]);
        Assert.Equal(3, Load([.. Metafile(Line), .. Hex(Line)]).Commands.Count);
    }

    [Fact]
    public void Cells_that_are_announced_but_not_there_take_no_memory()
    {
        // 30,000 by 30,000 cells, packed and in runs, in a few bytes.
        foreach (string mode in new[] { "0001", "0000" })
        {
            byte[] data = Metafile("413A 0000 0000 0001 0001 0000 0001 4000 4000 0001", mode, "0000 0000 0000");
            Assert.Contains("cells", Assert.Throws<ImageLoadException>(() => Load(data)).Message);
        }
    }

    [Fact]
    public void A_factory_makes_the_commands()
    {
        var factory = new Counting();
        using var reader = new DefaultBinaryReader(new MemoryStream(Metafile(Line, Line)), factory);
        while (reader.ReadCommand() is not null)
        {
        }

        Assert.Same(factory, reader.CommandFactory);
        Assert.Equal([(0, 1), (4, 1), (4, 1), (0, 2)], factory.Asked);
        reader.Dispose();
        Assert.Throws<System.ObjectDisposedException>(reader.ReadCommand);
    }

    private sealed class Counting : ICommandFactory
    {
        internal List<(int Class, int Id)> Asked { get; } = [];

        public Command CreateCommand(CommandConstructorArguments arguments)
        {
            Asked.Add(((int)arguments.ElementClass, arguments.ElementId));
            return new UnknownCommand(arguments);
        }
    }
}
