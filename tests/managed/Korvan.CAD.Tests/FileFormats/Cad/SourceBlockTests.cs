using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Interchange files are read in blocks, which end anywhere: within a tag, within a line terminator, within
/// what is looked at ahead.</summary>
public class SourceBlockTests
{
    private static readonly string Filler = new('x', 1000);

    // The class of a polyline and of a frame depends on tags further on.
    private static readonly string Drawing = DxfText.Drawing(
        0, "POLYLINE", 8, "Walls", 66, 1, 70, 8, 0, "VERTEX", 8, "Walls", 10, 1, 20, 2, 30, 3, 70, 32, 0, "SEQEND",
        0, "WIPEOUT", 8, "0", 100, "AcDbEntity", 100, "AcDbRasterImage", 10, 1, 20, 1, 0, "TEXT", 8, "Walls", 10, 0, 20,
        0, 40, 2.5, 1, "é and more than forty bytes, which no pool of names keeps", 0, "LINE", 8, "Doors", 10, 1.25,
        20, -2, 11, 3, 21, 4);

    [Theory]
    [InlineData("\n")]
    [InlineData("\r\n")]
    [InlineData("\r")]
    public void A_text_file_is_read_the_same_wherever_blocks_end(string terminator)
    {
        byte[] file = Encoding.Latin1.GetBytes((Drawing + "\n\n").Replace("\n", terminator));
        string expected = DxfText.Save(DxfText.Load(file));
        for (int step = 1; step <= 7; step++)
        {
            using var stream = new SteppedStream(file, step);
            Assert.Equal(expected, DxfText.Save((DxfImage)Image.Load(stream)));
            Assert.Equal(file.Length, stream.Position);
        }
    }

    [Fact]
    public void A_binary_file_is_read_the_same_wherever_blocks_end()
    {
        byte[] file = BinaryFormTests.Binary(Encoding.Latin1.GetBytes(Drawing), words: true);
        string expected = DxfText.Save(DxfText.Load(file));
        for (int step = 1; step <= 7; step++)
        {
            using var stream = new SteppedStream(file, step);
            Assert.Equal(expected, DxfText.Save((DxfImage)Image.Load(stream)));
        }
    }

    [Fact]
    public void Tags_and_looks_ahead_that_are_longer_than_a_block_are_read()
    {
        string comments = new StringBuilder().Insert(0, $"999\n{Filler}\n", SourceWindow.Block / 500).ToString();
        string value = new('v', 3 * SourceWindow.Block);
        string text = DxfText.Header("AC1015") + comments + DxfText.Entities(
            0, "POLYLINE", 8, "Walls\n" + comments.TrimEnd('\n'), 70, 8, 0, "SEQEND",
            0, "TEXT", 8, "Walls", 1, value, 10, 0, 20, 0, 40, 1) + DxfText.Tags(0, "EOF") + Filler;

        DxfImage image = DxfText.Load(text);

        Assert.IsType<CadPolyline3D>(image.Entities[0]);
        Assert.Equal(value, ((CadText)image.Entities[1]).DefaultValue);
        Assert.Equal("Walls", image.Entities[1].LayerName);
    }

    [Fact]
    public void Defects_beyond_the_first_block_are_placed_in_the_file()
    {
        string start = DxfText.Header("AC1015") + new StringBuilder().Insert(0, $"999\n{Filler}\n", 600);
        string text = start + DxfText.Entities(0, "LINE", 8, "0", 10, "x") + DxfText.Tags(0, "EOF");
        int line = text[..text.IndexOf("\n10\nx", StringComparison.Ordinal)].Split('\n').Length + 1;
        Assert.Equal(line, Failure(Encoding.Latin1.GetBytes(text)).Defect!.Place.Line);

        byte[] binary = BinaryFormTests.Binary(
            Encoding.Latin1.GetBytes(DxfText.Drawing(0, "TEXT", 8, "0", 1, new string('v', 2 * SourceWindow.Block))),
            words: true);
        const int lastTag = 6;
        Assert.Equal(binary.Length - lastTag, Failure(binary[..^3]).Defect!.Place.Offset);
    }

    [Fact]
    public void The_block_of_a_reader_serves_the_next_one_but_never_an_array_of_the_caller()
    {
        string text = DxfText.Drawing(0, "TEXT", 8, "0", 1, new string('v', 2 * SourceWindow.Block));
        string expected = DxfText.Save(DxfText.Load(text));
        byte[] own = Encoding.Latin1.GetBytes(Drawing.PadRight(SourceWindow.Block, '\n'));
        byte[] before = [.. own];
        new DxfReader(new SourceWindow(own, "own"), new LoadOptions()).Read();

        Assert.All(Enumerable.Range(0, 3), _ => Assert.Equal(expected, DxfText.Save(DxfText.Load(text))));
        Assert.Equal(before, own);
    }

    private static ImageLoadException Failure(byte[] file) =>
        Assert.Throws<ImageLoadException>(() => DxfText.Load(file));

    /// <summary>Gives a few bytes at each call, as a pipe may.</summary>
    private sealed class SteppedStream(byte[] content, int step) : MemoryStream(content)
    {
        public override int Read(byte[] buffer, int offset, int count) =>
            base.Read(buffer, offset, Math.Min(count, step));
    }
}
