using System;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Entities;
using Korvan.CAD.FileFormats.StepText;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>The syntax: tokens, strings, numbers, spaces and comments.</summary>
public class StepTextTests
{
    [Theory]
    [InlineData("", "")]
    [InlineData("it''s", "it's")]
    [InlineData("a\\\\b", "a\\b")]
    [InlineData("\\X\\C4\\X\\e4", "Ää")]
    [InlineData("\\S\\D\\S\\d", "Ää")] // 0x44 and 0x64 with the high bit of ISO 8859-1
    [InlineData("\\PE\\\\S\\0", "\u0410")] // 0x30 with the high bit of ISO 8859-5
    [InlineData("\\X2\\00C403A9\\X0\\x", "ÄΩx")]
    [InlineData("\\X2\\D83DDE00\\X0\\", "\U0001F600")]
    [InlineData("\\X4\\0001F60000000041\\X0\\", "\U0001F600A")]
    [InlineData("\u00C3\u00A4", "ä")] // bytes of UTF-8
    [InlineData("\u00E4", "ä")] // a byte of ISO 8859-1
    [InlineData("C:\\Temp\\x", "C:\\Temp\\x")] // no directives, as many programs write paths
    public void Strings_are_decoded_with_their_directives(string written, string expected)
    {
        Assert.Equal(expected, StepStrings.Decode(Encoding.Latin1.GetBytes(written), 0));
    }

    [Theory]
    [InlineData("\\X2\\00\\X0\\")]
    [InlineData("\\X2\\00C4")]
    [InlineData("\\X2\\00G4\\X0\\")]
    [InlineData("\\X4\\00110000\\X0\\")]
    public void Broken_directives_are_refused(string written)
    {
        Assert.Throws<StepException>(() => StepStrings.Decode(Encoding.Latin1.GetBytes(written), 0));
    }

    [Fact]
    public void Encoded_strings_are_ascii_and_round_trip()
    {
        Random random = new(1);
        for (int round = 0; round < 500; round++)
        {
            string text = string.Concat(Enumerable.Range(0, random.Next(12)).Select(_ => random.Next(5) switch
            {
                0 => "'",
                1 => "\\",
                2 => char.ConvertFromUtf32(random.Next(0x10000, 0x10FFFF)),
                3 => ((char)random.Next(0, 0xD7FF)).ToString(),
                _ => "X2",
            }));
            StringBuilder written = new();
            StepStrings.Encode(text, written);
            byte[] bytes = Encoding.Latin1.GetBytes(written.ToString());
            Assert.All(bytes, one => Assert.InRange(one, (byte)' ', (byte)'~'));
            Assert.Equal(text, new StepParser(bytes, 0).Value());
        }
    }

    [Theory]
    [InlineData(0, "0.")]
    [InlineData(-1.5, "-1.5")]
    [InlineData(1e21, "1.E21")]
    [InlineData(1.25e-9, "1.25E-09")]
    [InlineData(123456789012, "123456789012.")]
    public void Real_numbers_have_a_point(double value, string expected)
    {
        StringBuilder text = new();
        StepNumbers.WriteReal(value, text);
        Assert.Equal(expected, text.ToString());
        Assert.Equal(value, new StepParser(Encoding.ASCII.GetBytes(expected), 0).Value());
    }

    [Theory]
    [InlineData("\"0FF\"", 8, "FF")]
    [InlineData("\"1A\"", 3, "0A")]
    [InlineData("\"0\"", 0, "")]
    [InlineData("\"3123\"", 9, "0123")]
    public void Binary_values_keep_their_bits(string written, int bits, string bytes)
    {
        var value = (StepBinary)new StepParser(Encoding.ASCII.GetBytes(written), 0).Value()!;
        Assert.Equal((bits, bytes), (value.BitCount, Convert.ToHexString(value.Bytes)));
        StringBuilder text = new();
        StepNumbers.WriteBinary(value, text);
        Assert.Equal(written, text.ToString());
    }

    [Fact]
    public void Spaces_comments_and_lines_may_be_between_any_tokens()
    {
        IfcImage image = IfcText.Load(
            ("/* #9=( ' */ # 1 /*x*/\r= /* ( */\tIFCCARTESIANPOINT\n( /*,*/ ( 1. , \r\n 2 ,-3.E+1 ) )\n\n;/* end */#2\n"
                + "=ifcdirection((0.,1.));")
                .Replace("# 1", "#1", StringComparison.Ordinal));
        var point = (IfcCartesianPoint4)image.GetEntity(1)!;
        Assert.Equal([1.0, 2.0, -30.0], point.Coordinates!.Cast<double>());
        Assert.Equal(2, image.Entities.Count);
        point.Coordinates![0] = 5;
        Assert.Contains("IFCCARTESIANPOINT((5.,2.,-30.));", IfcText.Saved(image), StringComparison.Ordinal);
    }

    [Fact]
    public void Complex_instances_and_other_sections_are_kept()
    {
        string text = IfcText.File("#1=(IFCWALL('a',$)IFCDOOR(#2));\n#2=IFCDIRECTION((1.,0.));\n")
            .Replace("DATA;", "ANCHOR;\n<a>=#2;\nENDSEC;\nDATA;", StringComparison.Ordinal);
        IfcImage image = IfcText.LoadFile(text);
        Assert.Equal("#1=(IFCWALL('a',$)IFCDOOR(#2));", image.GetEntity(1)!.ToString());
        Assert.Same(image.GetEntity(1), Assert.Single(image.GetEntity(2)!.Referrers));
        Assert.Equal(text, IfcText.Saved(image));
    }

    [Fact]
    public void Ten_million_blank_lines_are_read()
    {
        IfcImage image = IfcText.Load(new string('\n', 10_000_000) + "#1=IFCDIRECTION((1.,0.));\n");
        Assert.Single(image.Entities);
        ImageLoadException refused = Assert.Throws<ImageLoadException>(
            () => IfcText.Load(new string('\n', 10_000_000) + "#1=IFCDIRECTION();\n"));
        Assert.Contains("line 10000008, #1:", refused.Message, StringComparison.Ordinal);
    }

    [Fact]
    public void What_is_damaged_throughout_is_refused_in_any_case()
    {
        string noise = string.Concat(Enumerable.Repeat("#5=(\n", 200_000));
        LoadOptions options = new() { IgnoreErrors = true };
        Assert.Throws<ImageLoadException>(() => IfcText.Load(noise, options));
    }

    [Fact]
    public void What_is_left_of_a_cut_file_is_saved_as_a_whole_one()
    {
        string text = IfcText.File("#1=IFCDIRECTION((1.,0.));\n/* # */#2=IFCDIRECTION((0.,1.));\n");
        for (int length = text.IndexOf("DATA;", StringComparison.Ordinal) + 5; length < text.Length - 1; length++)
        {
            IfcImage image = IfcText.LoadFile(text[..length], new LoadOptions { IgnoreErrors = true });
            image.AddEntity(new IfcDirection4 { DirectionRatios = new[] { 2.0, 0 } });
            IfcImage again = IfcText.LoadFile(IfcText.Saved(image));
            Assert.Equal(image.Entities.Select(one => one.ToString()), again.Entities.Select(one => one.ToString()));
        }
    }

    [Theory]
    [InlineData("#5=(\n", "\n")] // blank lines behind damage
    [InlineData("", "#5=/*\n")] // comments without end, one in another
    [InlineData("#5=IFCWALL(", "'")]
    [InlineData("#5=IFCWALL(", "1,")]
    public void Damage_costs_time_in_line_with_its_size(string start, string repeated)
    {
        LoadOptions options = new() { IgnoreErrors = true };
        string noise = start + string.Concat(Enumerable.Repeat(repeated, 1_500_000)) + "\n";
        IfcImage image = IfcText.Load("#1=IFCDIRECTION((1.,0.));\n" + noise + "#2=IFCDIRECTION((0.,1.));\n", options);
        Assert.Equal(1, image.Entities[0].InstanceId);
        Assert.NotEmpty(options.Errors);
    }

    [Fact]
    public void Pieces_that_begin_within_a_string_are_detected()
    {
        // Strings that look like the beginnings of records, wherever the pieces for threads begin.
        StringBuilder records = new();
        for (int i = 1; i <= 80_000; i++)
        {
            records.Append('#').Append(i).Append("=IFCORGANIZATION($,'name\n#").Append(i + 1)
                .Append("=IFCWALL(\n',$,$,$);\n");
        }

        IfcImage image = IfcText.Load(records.ToString());
        Assert.Equal(80_000, image.GetEntitiesOfType("IfcOrganization").Count);
        Assert.Equal(Enumerable.Range(1, 80_000).Select(i => (long)i), image.Entities.Select(one => one.InstanceId));
    }
}
