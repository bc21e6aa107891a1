using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Cells and colours in their packings, precisions and models.</summary>
public class CellTests
{
    private const string Corners = "0000 0000 0000 0001 0001 0000";

    [Theory]
    [InlineData(3, 2, "0001 0001 A000 4000", new[] { 1, 0, 1, 0, 1, 0 })] // 1 bit, packed; rows start at words
    [InlineData(3, 2, "0002 0001 6C00 2400", new[] { 1, 2, 3, 0, 2, 1 })]
    [InlineData(5, 1, "0004 0001 1234 5000", new[] { 1, 2, 3, 4, 5 })]
    [InlineData(3, 2, "0000 0001 0102 0300 0405 06", new[] { 1, 2, 3, 4, 5, 6 })] // 8 bits are what is usual
    [InlineData(1, 2, "0018 0001 000001 00 010203", new[] { 1, 0x10203 })]
    [InlineData(4, 2, "0008 0000 0003 07 0001 09 0004 05", new[] { 7, 7, 7, 9, 5, 5, 5, 5 })] // runs
    [InlineData(3, 2, "0004 0000 0003 7 000 0003 5", new[] { 7, 7, 7, 5, 5, 5 })] // a run of 20 bits, a line of 32
    public void Indexes_are_unpacked(int width, int height, string coded, int[] expected)
    {
        string parameters = $"{Corners} {width:X4} {height:X4} {coded}";
        parameters = parameters.Replace(" ", "", StringComparison.Ordinal);
        parameters += parameters.Length % 2 == 0 ? "" : "0";
        int length = parameters.Length / 2;
        CgmFile file = Load(Metafile($"413F {length:X4}", parameters, length % 2 == 0 ? "" : "00"));
        Assert.Equal(expected, Assert.IsType<CellArray>(file.Commands[1]).Cells);
        Assert.Empty(file.Messages);
    }

    public static TheoryData<int, bool> Precisions
    {
        get
        {
            var data = new TheoryData<int, bool>();
            foreach (int bits in new[] { 0, 1, 2, 4, 8, 16, 24, 32 })
            {
                data.Add(bits, true);
                data.Add(bits, false);
            }

            return data;
        }
    }

    [Theory]
    [MemberData(nameof(Precisions))]
    public void Cells_come_back_at_every_precision_in_both_encodings(int bits, bool isIndexed)
    {
        var random = new Random(bits + (isIndexed ? 100 : 0));
        foreach ((int width, int height) in new[] { (1, 1), (7, 3), (8, 2), (33, 5), (500, 3) })
        {
            foreach (int longest in new[] { 1, 2000 })
            {
                int[] cells = Cells(random, width * height, bits == 0 ? 8 : bits, isIndexed, longest);
                Command[] commands =
                [
                    new ColourSelectionMode
                    {
                        Value = isIndexed ? ColourSelectionMode.Type.Indexed : ColourSelectionMode.Type.Direct,
                    },
                    new CellArray { CellsPerLine = width, LineCount = height, LocalPrecision = bits, Cells = cells },
                    new PatternTable { CellsPerLine = width, LineCount = height, LocalPrecision = bits, Cells = cells },
                ];
                foreach (CgmFileFormat format in new[] { CgmFileFormat.Binary, CgmFileFormat.ClearText })
                {
                    byte[] data = Save(commands, format);
                    List<Command> read = Load(data).Commands;
                    Assert.Equal(cells, read.OfType<CellArray>().Single().Cells);
                    Assert.Equal(cells, read.OfType<PatternTable>().Single().Cells);
                }
            }
        }
    }

    [Fact]
    public void Long_runs_are_written_as_runs_and_others_packed()
    {
        byte[] one = Save(
            [new CellArray { CellsPerLine = 4, LineCount = 2, Cells = [7, 7, 7, 7, 7, 7, 7, 7] }],
            CgmFileFormat.Binary);
        Assert.EndsWith("0001" + "07070707" + "07070707" + End, Convert.ToHexString(one));
        byte[] many = Save(
            [
                new CellArray
                {
                    CellsPerLine = 100, LineCount = 2,
                    Cells = [.. Enumerable.Repeat(7, 150), .. Enumerable.Repeat(9, 50)],
                },
            ],
            CgmFileFormat.Binary);
        Assert.EndsWith("0000" + "006407" + "00" + "003207" + "003209" + End, Convert.ToHexString(many));
    }

    [Fact]
    public void Lines_of_cells_that_begin_at_an_odd_byte_are_aligned_to_the_element()
    {
        // With whole numbers of 8 bits, 17 bytes stand before the cells.
        CgmFile file = Load(Metafile("1082 0008", $"4137 {Corners} 02 02 08 0001 0102 00 0304", "00"));
        Assert.Equal([1, 2, 3, 4], Assert.IsType<CellArray>(file.Commands[2]).Cells);
    }

    [Theory]
    [InlineData(ColourModel.Model.CieLab, 53.24, 80.09, 67.20, 0xFF0000)]
    [InlineData(ColourModel.Model.CieLab, 32.30, 79.19, -107.86, 0x0000FF)]
    [InlineData(ColourModel.Model.CieLab, 100, 0, 0, 0xFFFFFF)]
    [InlineData(ColourModel.Model.CieLab, 53.59, 0, 0, 0x808080)]
    [InlineData(ColourModel.Model.CieLuv, 53.24, 175.01, 37.76, 0xFF0000)]
    [InlineData(ColourModel.Model.CieLuv, 87.73, -83.08, 107.40, 0x00FF00)]
    public void Cie_colours_lead_to_the_ones_that_tables_of_them_name(
        ColourModel.Model model, double first, double second, double third, int expected)
    {
        const double scale = 0.01;
        var state = new CodingState
        {
            ColorModel = model,
            ColorScale = [scale, scale, scale],
            ColorOffset = [0, -128, -128],
        };
        var coding = new ColorCoding(state);
        long[] components = [(long)(first / scale), (long)((second + 128) / scale), (long)((third + 128) / scale)];
        AssertNear(expected, coding.ToArgb(components), 1);

        coding.FromArgb(expected, components);
        AssertNear(expected, coding.ToArgb(components), 0);
    }

    [Fact]
    public void Inks_and_extents_lead_to_colours_and_back()
    {
        var inks = new ColorCoding(new CodingState { ColorModel = ColourModel.Model.Cmyk });
        AssertNear(0xFF0000, inks.ToArgb([0, 255, 255, 0]), 0);
        AssertNear(0x404040, inks.ToArgb([0, 0, 0, 191]), 0);
        var extent = new ColorCoding(new CodingState { ColorLow = [100, 0, 0, 0], ColorHigh = [200, 65535, 1, 0] });
        AssertNear(0x80FF00, extent.ToArgb([150, 65535, 0]), 0);
        AssertNear(0x000000, extent.ToArgb([20, 0, 0]), 0); // below the minimum intensity
        long[] components = new long[3];
        extent.FromArgb(0xFF00FF, components);
        Assert.Equal([200, 0, 1], components);
    }

    private static int[] Cells(Random random, int count, int bits, bool isIndexed, int longest)
    {
        var cells = new List<int>();
        while (cells.Count < count)
        {
            long top = Math.Min(int.MaxValue, 1L << bits);
            int grey = bits == 1 ? 255 : bits == 2 ? 85 : 17; // levels that few bits hold
            int Part() => bits >= 8 ? random.Next(256) : random.Next(1 << bits) * grey;
            int cell = isIndexed ? (int)random.NextInt64(top) : (0xFF << 24) | (Part() << 16) | (Part() << 8) | Part();
            cells.AddRange(Enumerable.Repeat(cell, random.Next(1, longest + 1)));
        }

        return [.. cells.Take(count)];
    }

    private static void AssertNear(int expected, int actual, int tolerance)
    {
        foreach (int shift in new[] { 16, 8, 0 })
        {
            Assert.InRange(
                (actual >> shift) & 0xFF, ((expected >> shift) & 0xFF) - tolerance,
                ((expected >> shift) & 0xFF) + tolerance);
        }
    }
}
