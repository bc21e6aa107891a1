using System;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

public class DamagedDrawingTests
{
    private static readonly string Intact = DxfText.Drawing(0, "LINE", 8, "0", 10, 1, 20, 2, 11, 3, 21, 4);

    /// <summary>Why it is bad, the content, and what the message has to tell.</summary>
    public static readonly TheoryData<string, string, string> Damage = new()
    {
        { "a text", "Dear Sir or Madam\nwe regret\n", "no known format" },
        { "a drawing database", "AC1032\0\0\0\0", "ends within its header" },
        { "cut within a section", Intact[..Intact.LastIndexOf("0\nENDSEC", StringComparison.Ordinal)], "never ends" },
        { "cut behind a code", DxfText.Header("AC1015")
            + "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n", "value was expected" },
        { "cut between sections", DxfText.Header("AC1015"), "cut off" },
        { "a word as group code", Intact.Replace("\n10\n1\n", "\nten\n1\n"), "line 23: 'ten' is no group code" },
        { "a word as coordinate", Intact.Replace("\n10\n1\n", "\n10\nwest\n"), "'west'; a number was expected" },
        { "an infinite coordinate", Intact.Replace("\n10\n1\n", "\n10\n1e999\n"), "finite" },
        { "no number at all", Intact.Replace("\n10\n1\n", "\n10\nNaN\n"), "finite" },
        { "a handle with a blank", Intact.Replace("LINE\n", "LINE\n5\nA 1\n"), "handle" },
        { "a section without name", "0\nSECTION\n0\nEOF\n", "no name" },
        { "an entity outside of a block",
            DxfText.Tags(0, "SECTION", 2, "BLOCKS", 0, "LINE", 8, "0", 0, "ENDSEC", 0, "EOF"), "BLOCK was expected" },
        { "2 billion vertices", DxfText.Drawing(0, "LWPOLYLINE", 8, "0", 90, 2000000000), "announces 2000000000" },
        { "2 billion knots", DxfText.Drawing(0, "SPLINE", 8, "0", 72, 2000000000), "announces 2000000000" },
        { "2 billion outlines", DxfText.Drawing(0, "HATCH", 8, "0", 91, 2000000000), "announces 2000000000" },
        { "fewer than no edges", DxfText.Drawing(0, "HATCH", 8, "0", 91, 1, 92, 0, 93, -1), "announces -1" },
        { "an edge of no kind", DxfText.Drawing(0, "HATCH", 8, "0", 91, 1, 92, 0, 93, 1, 72, 9), "1 to 4" },
    };

    [Theory]
    [MemberData(nameof(Damage))]
    public void Damage_is_named_with_its_place(string why, string content, string message)
    {
        ImageLoadException failure = Assert.Throws<ImageLoadException>(() =>
            Image.Load(new MemoryStream(Encoding.Latin1.GetBytes(content)), "plan.dxf", new LoadOptions()));
        Assert.Contains("plan.dxf", failure.Message);
        Assert.True(failure.Message.Contains(message, StringComparison.Ordinal), $"{why}: {failure.Message}");
    }

    [Fact]
    public void Every_cut_is_an_error_or_harmless()
    {
        byte[] whole = Encoding.Latin1.GetBytes(Intact);
        for (int length = 0; length < whole.Length; length++)
        {
            Exception? failure = Record.Exception(() => DxfText.Load(whole[..length]));
            Assert.True(failure is null or ImageLoadException, $"{length}: {failure}");
        }
    }

    [Fact]
    public void A_binary_drawing_that_is_cut_is_an_error()
    {
        byte[] header = [.. "AutoCAD Binary DXF\r\n\u001a\0"u8, 0, 0, .. "SECTION\0"u8, 2, 0, .. "ENTITIES\0"u8, 10,
            0, 1, 2];
        Assert.Contains("ends within a tag", Assert.Throws<ImageLoadException>(() => DxfText.Load(header)).Message);
    }

    [Fact]
    public void Places_that_are_no_file_are_named()
    {
        string folder = Path.GetTempPath();
        Assert.Contains("folder", Assert.Throws<ImageLoadException>(() => Image.Load(folder)).Message);
        Assert.Contains("does not exist",
            Assert.Throws<ImageLoadException>(() => Image.Load(folder + "missing.dxf")).Message);
        Assert.Contains("empty", Assert.Throws<ImageLoadException>(() => Image.Load(new MemoryStream())).Message);
        Assert.False(Image.CanLoad(folder + "missing.dxf"));
    }

    [Fact]
    public void Damaged_objects_are_left_out_where_that_is_asked_for()
    {
        LoadOptions options = new() { IgnoreErrors = true };
        DxfImage image = DxfText.Load(
            DxfText.Drawing(0, "LINE", 8, "0", 10, "west", 0, "POINT", 8, "0", 10, 1, 20, 2) + "cut", options);
        Assert.IsType<CadPoint>(Assert.Single(image.Entities));
        Assert.Contains("west", Assert.Single(options.Errors));
    }

    [Fact]
    public void A_block_that_inserts_itself_loads_and_has_a_size()
    {
        string blocks = DxfText.Tags(
            0, "SECTION", 2, "BLOCKS", 0, "BLOCK", 2, "A", 70, 0, 10, 0, 20, 0, 0, "LINE", 8, "0", 10, 0, 20, 0, 11, 3,
                21, 4,
            0, "INSERT", 8, "0", 2, "a", 10, 9, 20, 9, 0, "ENDBLK", 0, "ENDSEC");
        DxfImage image = DxfText.Load(DxfText.Header("AC1009") + blocks
            + DxfText.Entities(0, "INSERT", 8, "0", 2, "A", 10, 1, 20, 1) + DxfText.Tags(0, "EOF"));
        Assert.Equal(3, image.Width);
        Assert.Single(DxfText.Reload(image).Entities);
    }
}
