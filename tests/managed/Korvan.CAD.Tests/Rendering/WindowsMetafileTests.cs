using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Previews of embedded documents that are metafiles. An enhanced one has a device of 100 × 100 units, which
/// fill the page.</summary>
public class WindowsMetafileTests
{
    private const int Brush = 39, Select = 37, NoPen = unchecked((int)0x80000008);
    private const int Red = 0x0000FF, Blue = 0xFF0000, Green = 0x00FF00;

    private static readonly Rgba RedPixel = new(255, 0, 0), BluePixel = new(0, 0, 255), GreenPixel = new(0, 255, 0);

    // Red brush without a line, then what the test adds.
    private static readonly (int, int[])[] RedFill = [(Brush, [1, 0, Red, 0]), (Select, [1]), (Select, [NoPen])];

    [Theory]
    [InlineData(false)]
    [InlineData(true)]
    public void What_the_library_writes_is_drawn_as_it_was(bool isPlain)
    {
        CadImage original = TestPage.Drawing(
            TestPage.Square(10, 10, 20, 1), TestPage.Square(60, 15, 25, 5),
            new CadCircle { CenterPoint = new Cad3DPoint(50, 60, 0), Radius = 25, ColorId = 3, LineWeight = 200 },
            new CadText { DefaultValue = "Text", TextHeight = 12, FirstAlignment = new Cad3DPoint(12, 80, 0) });
        var page = new CadRasterizationOptions { PageWidth = 100, PageHeight = 100, UnitType = UnitType.Millimeter };
        page.BackgroundColor = Color.White;
        ImageOptionsBase options = isPlain ? new WmfOptions() : new EmfOptions();
        options.VectorRasterizationOptions = page;
        using TestPage expected = TestPage.Of(original);
        using var file = new MemoryStream();
        original.Save(file, options);
        byte[] data = file.ToArray();
        using TestPage drawn = TestPage.Of(Framed(isPlain ? data[22..] : data));
        int different = 0;
        for (int y = 0; y < 100; y++)
        {
            for (int x = 0; x < 100; x++)
            {
                different += Math.Abs(expected[x, y].Luma - drawn[x, y].Luma) > 100 ? 1 : 0;
            }
        }

        Assert.InRange(different, 0, 60);
        Assert.Equal((RedPixel, BluePixel), (drawn[20, 20], drawn[70, 25]));
    }

    [Fact]
    public void Shapes_are_filled_by_the_brush_and_lie_as_the_window_says()
    {
        using TestPage page = Draw([
            .. RedFill,
            (43, [10, 10, 30, 30]), // a rectangle at the upper left
            (47, [40, 40, 80, 80, 80, 60, 60, 40]), // a pie from the right to the top
            (33, []), (17, [8]), (9, [10, 10]), (11, [50, 50]), (12, [0, 50]),
            (43, [2, 2, 4, 4]), // ten to twenty of the lower left quarter
            (34, [-1]), (43, [90, 90, 95, 95]),
        ]);
        Assert.Equal(RedPixel, page[20, 80]);
        Assert.Equal(Rgba.White, page[35, 80]);
        Assert.Equal((RedPixel, Rgba.White), (page[67, 47], page[53, 47]));
        Assert.Equal((RedPixel, Rgba.White), (page[15, 35], page[25, 35]));
        Assert.Equal(RedPixel, page[92, 8]);
    }

    [Fact]
    public void Paths_and_clips_hold_until_the_state_is_restored()
    {
        using TestPage page = Draw([
            .. RedFill, (33, []),
            (59, []), (27, [20, 20]), (54, [80, 20]), (54, [80, 80]), (61, []), (60, []), (67, [5]), // a triangle
            (30, [0, 0, 100, 60]), (43, [0, 0, 100, 100]), (34, [-1]),
            (43, [0, 90, 10, 100]),
        ]);
        Assert.Equal((RedPixel, Rgba.White), (page[70, 70], page[30, 60]));
        Assert.Equal(Rgba.White, page[75, 35]);
        Assert.Equal(RedPixel, page[5, 5]);
    }

    [Theory]
    [InlineData(0xCC0020, true)]
    [InlineData(0xEE0086, false)] // black pixels leave what is there
    public void Bitmaps_are_drawn_by_their_operation(int operation, bool isOpaque)
    {
        // Two by two pixels of 24 bits: red, green; above them blue, black.
        int[] header = [40, 2, 2, 1 | (24 << 16), 0, 0, 0, 0, 0, 0];
        int[] bits = [unchecked((int)0x00FF0000), 0x000000FF, 0x000000FF, 0];
        int[] record =
        [
            0, 0, 0, 0, 20, 20, 0, 0, 2, 2, 80, 40, 120, 16, 0, operation, 60, 60, .. header, .. bits,
        ];
        using TestPage page = Draw([(Brush, [1, 0, Green, 0]), (Select, [1]), (43, [10, 10, 90, 90]), (81, record)]);
        Assert.Equal((RedPixel, GreenPixel, BluePixel), (page[26, 26], page[74, 26], page[26, 74]));
        Assert.Equal(isOpaque ? Rgba.Black : GreenPixel, page[74, 74]);
        Assert.Equal(GreenPixel, page[15, 50]);
    }

    [Fact]
    public void Records_of_plain_metafiles_have_their_numbers_in_the_order_of_calls()
    {
        using TestPage page = TestPage.Of(Framed(Plain(
            (0x020B, [0, 0]), (0x020C, [100, 100]),
            (0x02FC, [0, Blue & 0xFFFF, Blue >> 16, 0]), (0x02FA, [5, 0, 0, 0, 0]), (0x012D, [0]), (0x012D, [1]),
            (0x041B, [30, 40, 10, 20]), // bottom, right, top, left
            (0x0324, [3, 60, 60, 90, 60, 90, 90]))));
        Assert.Equal((BluePixel, Rgba.White), (page[30, 80], page[10, 80]));
        Assert.Equal((BluePixel, Rgba.White), (page[85, 30], page[65, 15]));
    }

    [Fact]
    public void A_metafile_that_draws_nothing_leaves_the_frame()
    {
        var options = new PngOptions();
        Framed(Enhanced([(70, [12, 0x2B464D45, 0, 0])])).Save(new MemoryStream(), options);
        Assert.Contains(options.RenderResult!.Failures, failure => failure.Message.StartsWith(
            "content of OLE2FRAME", StringComparison.Ordinal));
    }

    [Fact]
    public void Damaged_records_are_drawn_as_far_as_they_go()
    {
        var random = new Random(7);
        int[] types = [.. Enumerable.Range(2, 118)];
        for (int i = 0; i < 300; i++)
        {
            var records = new List<(int, int[])>(RedFill);
            for (int j = 0; j < 40; j++)
            {
                int[] values = [.. Enumerable.Range(0, random.Next(30)).Select(_ => random.Next(4) switch
                {
                    0 => random.Next(100),
                    1 => random.Next(-3, 4),
                    2 => random.Next(),
                    _ => -random.Next(),
                })];
                records.Add((types[random.Next(types.Length)], values));
            }

            byte[] data = i % 2 == 0 ? Enhanced(records) : Plain([.. records.Select(static record => (
                record.Item1 * 13, Array.ConvertAll(record.Item2, static value => (int)(short)value)))]);
            try
            {
                using TestPage page = TestPage.Of(Framed(data));
            }
            catch (FrameworkException e)
            {
                Assert.DoesNotContain("Exception", e.Message, StringComparison.Ordinal);
            }
        }
    }

    private static TestPage Draw(IEnumerable<(int, int[])> records) => TestPage.Of(Framed(Enhanced(records)));

    private static CadImage Framed(byte[] data) => TestPage.Drawing(new CadOle2Frame
    {
        UpperLeftPoint = new Cad3DPoint(0, 100, 0),
        LowerRightPoint = new Cad3DPoint(100, 0, 0),
        Data = [.. Encoding.ASCII.GetBytes("a document "), .. data, 0, 0, 0, 0],
    });

    private static byte[] Enhanced(IEnumerable<(int Type, int[] Values)> records)
    {
        using var file = new MemoryStream();
        using var writer = new BinaryWriter(file);

        // Bounds, a frame of 100 mm, and a device with one unit to a millimetre.
        int[] header =
        [
            1, 88, 0, 0, 100, 100, 0, 0, 10_000, 10_000, 0x464D4520, 0x10000, 0, 0, 1, 0, 0, 0, 100, 100, 100, 100,
        ];
        Array.ForEach(header, writer.Write);
        foreach ((int type, int[] values) in records.Append((14, [0, 0, 20])))
        {
            writer.Write(type);
            writer.Write(8 + (4 * values.Length));
            Array.ForEach(values, writer.Write);
        }

        file.Position = 48;
        writer.Write((int)file.Length);
        return file.ToArray();
    }

    private static byte[] Plain(params (int Function, int[] Values)[] records)
    {
        using var file = new MemoryStream();
        using var writer = new BinaryWriter(file);
        Array.ForEach<short>([1, 9, 0x300, 0, 0, 10, 100, 0, 0], writer.Write);
        foreach ((int function, int[] values) in records.Append((0, [])))
        {
            writer.Write(3 + values.Length);
            writer.Write((short)function);
            Array.ForEach(values, value => writer.Write((short)value));
        }

        file.Position = 6;
        writer.Write((int)file.Length / 2);
        return file.ToArray();
    }
}
