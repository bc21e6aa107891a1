using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Compressed bytes of both kinds, written by hand: what each opcode means, and what runs over.</summary>
public class CompressionTests
{
    // Literals begin with their number less 3; 11 ends the data.
    [Theory]
    [InlineData("01 61626364 11", "61626364")]
    [InlineData("00 01 " + Sixteen + "616263 11", Sixteen + "616263")] // more than 15: a zero and the rest
    [InlineData("01 61626364 4C 00 11", "61626364 616263")] // distance 4, length 3
    [InlineData("01 61626364 6C 00 11", "61626364 6162636461")] // into what it copies
    [InlineData("01 61626364 60 00 11", "61626364 6464646464")] // distance 1 repeats a byte
    [InlineData("01 61626364 6E 00 7879 11", "61626364 6162636461 7879")] // two literals in the opcode
    [InlineData("01 61626364 6C 00 01 31323334 11", "61626364 6162636461 31323334")]
    [InlineData("01 61626364 24 0C 00 11", "61626364 616263646162")] // two bytes of distance, length 6
    [InlineData("01 61626364 20 02 04 00 11", "61626364 " + ThirtyFive)] // length 0x21 + 2, distance 2
    [InlineData("01 61626364 11 FFFF", "61626364")] // what follows the end does not count
    [InlineData("01 61626364", "61626364")] // the end may be that of the input
    public void Opcodes_of_release_2004_are_copies_and_literals(string source, string expected)
    {
        byte[] bytes = Bytes(expected);
        byte[] target = new byte[bytes.Length];
        Assert.Equal(bytes.Length, Lz77.Decompress(Bytes(source), target));
        Assert.Equal(bytes, target);
        byte[] larger = new byte[bytes.Length + 40];
        Assert.Equal(bytes.Length, Lz77.Decompress(Bytes(source), larger));
        Assert.Equal(bytes, larger[..bytes.Length]);
    }

    [Theory]
    [InlineData("0F 61626364")] // literals that the input does not have
    [InlineData("00 00 00 00")] // a length of zeros without an end
    [InlineData("01 61626364 6C 01 11")] // a distance of 8 after 4 bytes
    [InlineData("01 61626364 2F FF FF 11")]
    [InlineData("01 61626364 1F FF FF 11")] // one of the far kind
    [InlineData("01 61626364 24 0C")] // a distance that is cut
    [InlineData("01 61626364 6C")]
    [InlineData("01 61626364 05 11")] // an opcode that none is
    [InlineData("01 61626364 20 00 00 00 00 00 00 00 00 00 00 00 01 0000 11")] // longer than the page
    public void Input_of_release_2004_that_runs_over_is_refused(string source) =>
        Assert.Equal(-1, Lz77.Decompress(Bytes(source), new byte[1000]));

    // Whatever the target's length is, nothing is written beyond it.
    [Fact]
    public void Input_that_is_longer_than_the_page_is_refused()
    {
        byte[] data = [.. Enumerable.Range(0, 3000).Select(static i => (byte)(i * i / 7))];
        byte[] compressed = new Lz77Encoder().Compress(data);
        foreach (int length in new[] { 0, 1, 15, 16, 17, 100, 2999 })
        {
            byte[] target = [.. Enumerable.Repeat((byte)0xEE, 4000)];
            Assert.Equal(-1, Lz77.Decompress(compressed, target.AsSpan(0, length)));
            Assert.All(target.Skip(length), static one => Assert.Equal(0xEE, one));
        }

        for (int cut = 0; cut < compressed.Length - 3; cut++)
        {
            byte[] target = new byte[data.Length];
            int length = Lz77.Decompress(compressed.AsSpan(0, cut), target);
            Assert.True(length < data.Length);
            Assert.Equal(data.AsSpan(0, Math.Max(0, length)), target.AsSpan(0, Math.Max(0, length)));
        }
    }

    // Distances and lengths at the borders of each opcode.
    [Theory]
    [InlineData(0x3FF)]
    [InlineData(0x400)]
    [InlineData(0x401)]
    [InlineData(0x3FFF)]
    [InlineData(0x4000)]
    [InlineData(0x4001)]
    [InlineData(0x7FFE)]
    [InlineData(0x7FFF)]
    [InlineData(0x8000)]
    public void Matches_of_each_distance_and_length_are_compressed(int distance)
    {
        Random random = new(distance);
        foreach (int length in new[] { 4, 9, 10, 14, 15, 0x21, 0x22, 0x108, 0x109, 0x120, 0x121, 0x21F, 0x220, 600 })
        {
            byte[] data = new byte[distance + length + 3];
            random.NextBytes(data);
            data.AsSpan(0, length).CopyTo(data.AsSpan(distance));
            byte[] compressed = new Lz77Encoder().Compress(data);
            byte[] again = new byte[data.Length];
            Assert.Equal(data.Length, Lz77.Decompress(compressed, again));
            Assert.Equal(data, again);
            bool isMatch = compressed.Length < distance + (distance / 255) + 16;
            Assert.True(isMatch || distance > 0x7FFF || length < 14, $"length {length}: {compressed.Length} bytes");
        }
    }

    // An opcode of literals counts from 8; literals of 32 bytes and less are stored in another order.
    [Theory]
    [InlineData("00 6162636465666768", "6162636465666768")]
    [InlineData("01 626364656667686961", "616263646566676869")] // nine bytes: the last one first
    [InlineData("20 0000 01 61", "61")] // the first literals may be fewer than 8
    [InlineData("20 0000 03 636261", "616263")]
    [InlineData("00 6162636465666768 13 07 02 7978", "6162636465666768 616263646566 7879")]
    [InlineData("00 6162636465666768 30 00", "6162636465666768 686868")] // the nearest byte, three times
    public void Opcodes_of_release_2007_are_copies_and_literals(string source, string expected)
    {
        byte[] bytes = Bytes(expected == "616263" && source[1] == '1' ? "616263646566676968" : expected);
        byte[] target = new byte[bytes.Length];
        int length = PermutedLz77.Decompress(Bytes(source), target);
        Assert.Equal((bytes.Length, Convert.ToHexString(bytes)), (length, Convert.ToHexString(target)));
    }

    [Theory]
    [InlineData("00 61626364")] // literals that the input does not have
    [InlineData("0F FF FFFF FFFF FFFF")] // a length without an end
    [InlineData("00 6162636465666768 13 08 00")] // a distance of 9 after 8 bytes
    [InlineData("00 6162636465666768 20 0000 F8")] // no distance at all
    [InlineData("00 6162636465666768 2F FF FF FF FF")] // farther back than the start
    [InlineData("00 6162636465666768 28 00 00 FF F8 11")] // longer than the page
    [InlineData("00 6162636465666768 0F")] // a match that is cut
    public void Input_of_release_2007_that_runs_over_is_refused(string source) =>
        Assert.Equal(-1, PermutedLz77.Decompress(Bytes(source), new byte[1000]));

    // Bytes of any input are read or refused, and nothing is written beyond the target.
    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void Random_input_ends_within_its_target(int seed)
    {
        Random random = new(seed);
        byte[] guard = new byte[700];
        for (int round = 0; round < 20_000; round++)
        {
            byte[] source = new byte[random.Next(1, 60)];
            random.NextBytes(source);
            source[0] = (byte)(random.Next(2) == 0 ? random.Next(0x10) : 0x20);
            Array.Fill(guard, (byte)0xEE);
            int length = random.Next(600);
            Span<byte> target = guard.AsSpan(50, length);
            int one = round % 2 == 0 ? Lz77.Decompress(source, target) : PermutedLz77.Decompress(source, target);
            Assert.InRange(one, -1, length);
            Assert.True(guard.AsSpan(0, 50).IndexOfAnyExcept((byte)0xEE) < 0
                && guard.AsSpan(50 + length).IndexOfAnyExcept((byte)0xEE) < 0, $"seed {seed}, round {round}");
        }
    }

    private const string Sixteen = "30313233343536373839414243444546";

    private const string ThirtyFive = "6364636463646364636463646364636463646364636463646364636463646364636463";

    private static byte[] Bytes(string text) => Convert.FromHexString(text.Replace(" ", ""));
}
