using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>What files may look like between their group codes and values.</summary>
public class TagSyntaxTests
{
    private static readonly string Plain = DxfText.Drawing(0, "LINE", 8, "Walls", 62, 3, 10, 1.5, 20, 2, 11, 3, 21, 4);

    /// <summary>Why a reader may stumble over it, and what is done to the plain drawing.</summary>
    public static readonly TheoryData<string, Func<string, string>> Spellings = new()
    {
        { "codes right-aligned in three columns", text => Codes(text, code => code.PadLeft(3)) },
        { "codes with blanks behind", text => Codes(text, code => code + "  ") },
        { "codes behind tabs", text => Codes(text, code => "\t" + code) },
        { "a comment before each tag", text => Codes(text, code => "999\nSECTION\n" + code) },
        { "numbers with blanks around", text => text.Replace("\n1.5\n", "\n   1.5\t\n") },
        { "numbers with an exponent", text => text.Replace("\n1.5\n", "\n15.E-1\n") },
        { "numbers with a lower-case exponent", text => text.Replace("\n1.5\n", "\n0.15e+01\n") },
        { "numbers with a sign", text => text.Replace("\n1.5\n", "\n+1.5\n") },
        { "numbers of many digits", text => text.Replace("\n1.5\n", "\n1.50000000000000000000000000\n") },
        { "a whole number with a fraction", text => text.Replace("\n62\n3\n", "\n62\n3.0\n") },
        { "names of sections with blanks behind", text => text.Replace("\nENTITIES\n", "\nENTITIES  \n") },
        { "object names with blanks behind", text => text.Replace("\nLINE\n", "\nLINE  \n") },
        { "a file that ends behind the last letter", text => text.TrimEnd('\n') },
        { "a file that ends with the sign of old systems", text => text + "\u001a" },
        { "a file with empty lines behind", text => text + "\n\n\n" },
        { "no end of file", text => text.Replace("0\nEOF\n", string.Empty) },
    };

    [Theory]
    [MemberData(nameof(Spellings))]
    public void Spelling_does_not_change_the_drawing(string why, Func<string, string> change)
    {
        string text = change(Plain);
        Assert.NotEqual(Plain, text);
        foreach (string end in new[] { "\n", "\r\n" })
        {
            CadLine line = (CadLine)Assert.Single(DxfText.Load(text.Replace("\n", end)).Entities);
            Assert.True(line.FirstPoint.Is(1.5, 2, 0) && line.SecondPoint.Is(3, 4, 0), why);
            Assert.Equal(("Walls", 3), (line.LayerName, line.ColorId));
        }
    }

    [Theory]
    [InlineData("ANSI_1250", new byte[] { 0xA3, 0xF3, 0x64, 0x9F }, "Łódź")]
    [InlineData("ansi_1250", new byte[] { 0xA3 }, "Ł")]
    [InlineData("ANSI_1253", new byte[] { 0xD9 }, "Ω")]
    [InlineData("ANSI_932", new byte[] { 0x95, 0x5C, 0x8D, 0x73 }, "表行")] // the second byte of the first is a backslash
    [InlineData("ANSI_936", new byte[] { 0xB2, 0xE3 }, "层")]
    [InlineData("GB2312", new byte[] { 0xB2, 0xE3 }, "层")]
    [InlineData("ANSI_949", new byte[] { 0xB5, 0xB5, 0xB8, 0xE9 }, "도면")]
    [InlineData("ANSI_950", new byte[] { 0xB9, 0xCF }, "圖")]
    [InlineData("BIG5", new byte[] { 0xA5, 0x5C }, "功")] // again a backslash
    [InlineData("ANSI_874", new byte[] { 0xA1 }, "ก")]
    [InlineData("ISO8859-2", new byte[] { 0xA3 }, "Ł")]
    [InlineData("DOS437", new byte[] { 0x81 }, "ü")]
    public void Layer_names_are_read_and_written_in_the_code_page(string page, byte[] name, string expected)
    {
        byte[] header = Encoding.ASCII.GetBytes(DxfText.Header("AC1015", page)
            + "0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\n");
        byte[] bytes = [.. header, .. name, .. "\n10\n1\n20\n1\n0\nENDSEC\n0\nEOF\n"u8];
        DxfImage image = DxfText.Load(bytes);
        Assert.Equal(expected, image.Entities[0].LayerName);
        using MemoryStream saved = new();
        image.Save(saved);
        Assert.True(saved.ToArray().AsSpan().IndexOf(name) > 0, "the name is not written in its code page");
    }

    [Fact]
    public void The_code_page_holds_for_variables_that_stand_before_it()
    {
        // The same bytes stand before and behind the code page: what was read first must not linger.
        byte[] header = Encoding.Latin1.GetBytes(DxfText.Tags(
            0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015", 9, "$CLAYER", 8, "\u00C4\u00D6", 9, "$DWGCODEPAGE",
                3, "ANSI_1251", 0, "ENDSEC"));
        byte[] bytes = [.. header,
            .. Encoding.Latin1.GetBytes(DxfText.Entities(0, "POINT", 8, "\u00C4\u00D6") + DxfText.Tags(0, "EOF"))];
        DxfImage image = DxfText.Load(bytes);
        Assert.Equal("ДЦ", image.Entities[0].LayerName);
        Assert.Equal("ДЦ", image.Header.CurrentLayer);
    }

    [Theory]
    [InlineData("\\U+00e4\\U+00C4", "äÄ")] // digits in either case
    [InlineData("\\U+D83D\\U+DE00", "😀")] // a pair of surrogates
    [InlineData("\\M+1955C", "表")] // 932
    [InlineData("\\M+2B9CF", "圖")] // 950
    [InlineData("\\M+3B5B5", "도")] // 949
    [InlineData("\\M+5B2E3", "层")] // 936
    [InlineData("\\M+6B2E3", "\\M+6B2E3")] // no such page
    [InlineData("\\M+1955", "\\M+1955")] // cut
    [InlineData("a\\U+", "a\\U+")]
    [InlineData("\\PNext\\U+00B2", "\\PNext²")] // formatting stays
    public void Escapes_become_letters(string text, string expected)
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(0, "TEXT", 8, "0", 1, text));
        Assert.Equal(expected, ((CadText)image.Entities[0]).DefaultValue);
        Assert.Equal(expected, ((CadText)DxfText.Reload(image).Entities[0]).DefaultValue);
    }

    [Fact]
    public void Letters_that_a_code_page_lacks_come_back()
    {
        const string text = "Ł Ж 漢 😀 é \u0085 \u00A0";
        DxfImage image = DxfText.Load(DxfText.Drawing(0, "TEXT", 8, text, 1, text, 0, "MTEXT", 8, "0", 1, "x"));
        CadText line = (CadText)image.Entities[0];
        (line.DefaultValue, line.LayerName) = (text, text);
        ((CadMText)image.Entities[1]).Text = string.Concat(Enumerable.Repeat(text, 60));
        DxfImage again = DxfText.Reload(image);
        Assert.Equal(text, ((CadText)again.Entities[0]).DefaultValue);
        Assert.Equal(text, again.Entities[0].LayerName);
        Assert.Equal(((CadMText)image.Entities[1]).Text, ((CadMText)again.Entities[1]).Text);
    }

    [Fact]
    public void Names_are_the_same_in_upper_and_lower_case()
    {
        DxfImage image = DxfText.Load(
            DxfText.Header("AC1015") + DxfText.Tags(
                0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LAYER", 70, 1, 0, "LAYER", 2,
                    "WÄnde".Replace("Ä", "\\U+00C4"), 70, 0, 62, 1, 6, "CONTINUOUS", 0, "ENDTAB", 0, "ENDSEC")
            + DxfText.Entities(0, "POINT", 8, "wände".Replace("ä", "\\U+00E4")) + DxfText.Tags(0, "EOF"));
        Assert.True(image.Layers.Contains("WÄNDE"));
        DxfText.Save(image);
        Assert.Single(image.Layers.Names, name => name.Equals("wände", StringComparison.OrdinalIgnoreCase));
    }

    [Fact]
    public void Groups_and_extended_data_are_told_apart_by_their_program()
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(
            0, "LINE", 5, "2A", 102, "{ACAD_REACTORS", 330, "1F", 330, "2F", 102, "}", 102, "{ACME", 360, "3F", 1,
                "a note", 102, "}", 8, "0",
            10, 1, 20, 1, 11, 2, 21, 2, 1001, "ACME", 1000, "one", 1002, "{", 1070, 7, 1002, "}", 1010, 1, 1020, 2,
                1030, 3, 1001, "OTHER", 1071, -70000, 1005, "2A"));
        CadLine line = (CadLine)image.Entities[0];
        CadLine again = (CadLine)DxfText.Reload(image).Entities[0];
        foreach (CadLine one in new[] { line, again })
        {
            Assert.Equal(["ACAD_REACTORS: 330=1F 330=2F", "ACME: 360=3F 1=a note"],
                one.ApplicationCodesContainer.ApplicationCodes.Select(group =>
                $"{group.ApplicationName}: {Joined(group.Codes)}"));
            Assert.Equal("1000=one 1002={ 1070=7 1002=} 1010=1 1020=2 1030=3",
                Joined(one.XdataContainer.Find("ACME")!.Data));
            Assert.Equal("1071=-70000 1005=2A", Joined(one.XdataContainer.Find("OTHER")!.Data));
            Assert.True(one.SecondPoint.Is(2, 2, 0));
        }
    }

    [Theory]
    [InlineData("AC1009")]
    [InlineData("AC1015")]
    [InlineData("AC1032")]
    public void Unknown_entities_sections_and_variables_come_back_tag_by_tag(string release)
    {
        object[] widget = [0, "WIDGET", 5, "2A", 8, "0", 10, 1.5, 20, 2.5, 70, 7, 310, "CAFE", 1, "text"];
        string text = DxfText.Tags(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, release, 9, "$ACMEVAR", 40, 0.125, 0,
            "ENDSEC")
            + DxfText.Entities(widget)
            + DxfText.Tags(0, "SECTION", 2, "ACMEDATA", 0, "THING", 1, " kept ", 0, "ENDSEC", 0, "EOF");
        DxfImage image = DxfText.Load(text);
        Assert.Equal(1, image.UnknownEntityCount);
        List<string> lines = [.. DxfText.Save(image).Split("\r\n").Select(line => line.TrimStart())];
        string saved = string.Join('\n', lines);
        Assert.Contains("$ACMEVAR\n40\n0.125\n", saved);
        Assert.Contains("10\n1.5\n20\n2.5\n70\n7\n310\nCAFE\n1\ntext\n", saved);
        Assert.Contains("ACMEDATA\n0\nTHING\n1\nkept \n0\nENDSEC", saved);
    }

    private static string Joined(IEnumerable<CadCodeValue> values) =>
        string.Join(' ', values.Select(value => $"{value.Attribute}={value.Value}"));

    private static string Codes(string text, Func<string, string> change)
    {
        string[] lines = text.Split('\n');
        return string.Join('\n',
            lines.Select((line, place) => place % 2 == 0 && line.Length > 0 ? change(line) : line));
    }
}
