using System;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Bits;

public class BitReaderTests
{
    [Theory]
    [InlineData("00 10110100 00000010", 0x2B4)] // lowest byte first
    [InlineData("00 11111111 11111111", -1)] // signed
    [InlineData("01 11111111", 255)] // one byte has no sign
    [InlineData("10", 0)]
    [InlineData("11", 256)]
    public void ShortsAreReadByTheirCodes(string bits, int expected) =>
        Equal(expected, bits, (ref BitReader r) => r.BitShort());

    [Theory]
    [InlineData("00 00000001 00000000 00000000 10000000", int.MinValue + 1)]
    [InlineData("01 10000000", 128)]
    [InlineData("10", 0)]
    public void LongsAreReadByTheirCodes(string bits, int expected) =>
        Equal(expected, bits, (ref BitReader r) => r.BitLong());

    [Theory]
    [InlineData("0", 0)]
    [InlineData("10", 2)]
    [InlineData("110", 6)]
    [InlineData("111", 7)]
    public void TripletsEndAtAZero(string bits, int expected) =>
        Equal(expected, bits, (ref BitReader r) => r.BitTriplet());

    [Theory]
    [InlineData("10000010 00100100", 4610)] // the example of the format's description
    [InlineData("11101001 10010111 11100110 00110101", 112823273)]
    [InlineData("10000101 01001011", -1413)]
    public void ModularCharactersHaveTheirSignInTheLastByte(string bits, int expected) =>
        Equal(expected, bits, (ref BitReader r) => r.ModularChar());

    [Fact]
    public void ModularShortsJoinFifteenBits() =>
        Equal(4549 + (22823 << 15), Binary(0xC5, 0x91, 0x27, 0x59), (ref BitReader r) => r.ModularShort());

    [Theory]
    [InlineData("00 00001111", 15)]
    [InlineData("01 00000001", 0x1F1)]
    [InlineData("10 11110100 00000001", 0x1F4)]
    public void TypesOfObjectsHaveThreeForms(string bits, int expected) =>
        Equal(expected, bits, (ref BitReader r) => r.ObjectType());

    [Fact]
    public void NumbersTakeTheirOtherBytesFromADefault()
    {
        const double before = 1234.5678;
        byte[] bytes = BitConverter.GetBytes(before);
        byte[] four = [1, 2, 3, 4, .. bytes[4..]];
        byte[] six = [1, 2, 3, 4, 5, 6, .. bytes[6..]];
        Equal(before, "00", (ref BitReader r) => r.DoubleAfter(before));
        Equal(BitConverter.ToDouble(four), "01" + Binary(1, 2, 3, 4), (ref BitReader r) => r.DoubleAfter(before));
        Equal(
            BitConverter.ToDouble(six), "10" + Binary(5, 6, 1, 2, 3, 4), (ref BitReader r) => r.DoubleAfter(before));
        Equal(-2.5, "11" + Binary(BitConverter.GetBytes(-2.5)), (ref BitReader r) => r.DoubleAfter(before));
    }

    [Fact]
    public void HandlesHaveTheirHighestByteFirst() =>
        Equal((5, 0x1234UL), Binary(0x52, 0x12, 0x34), (ref BitReader r) => r.Handle());

    [Fact]
    public void StringsEndBeforeTheirZeros()
    {
        Equal("Ab", "01" + Binary(3, 0x41, 0x62, 0), (ref BitReader r) => r.Text(Encoding.Latin1));
        Equal("Ж", "01" + Binary(1, 0x16, 0x04), (ref BitReader r) => r.Utf16Text());
    }

    [Theory]
    [InlineData("1")]
    [InlineData("00 1111111")]
    [InlineData("01 0000001")]
    public void WhatLiesBeyondTheEndIsAFault(string bits)
    {
        byte[] data = Bytes(bits, 0);
        long end = bits.Count(c => c != ' ');
        var fault = Assert.Throws<DwgFault>(() => new BitReader(data, 0, end).BitShort());
        Assert.InRange(fault.Position, 0, end);
    }

    [Fact]
    public void CountsThatCannotFollowAreFaults()
    {
        BitReader reader = new(new byte[4]);
        reader.VerifyCount(4, 8);
        Assert.Throws<DwgFault>(() => reader.VerifyCount(5, 8));
        Assert.Throws<DwgFault>(() => reader.VerifyCount(-1, 8));
        Assert.Throws<DwgFault>(() => reader.Bytes(long.MaxValue));
    }

    private delegate T Read<T>(ref BitReader reader);

    // Each value is read from every bit of a byte on, and where the data ends with it.
    private static void Equal<T>(T expected, string bits, Read<T> read)
    {
        long length = bits.Count(c => c != ' ');
        for (int shift = 0; shift < 8; shift++)
        {
            BitReader reader = new(Bytes(bits, shift), shift, shift + length);
            Assert.Equal(expected, read(ref reader));
            Assert.Equal(0, reader.Remaining);
        }
    }

    private static byte[] Bytes(string bits, int shift)
    {
        string all = new string('1', shift) + bits.Replace(" ", "");
        all = all.PadRight((all.Length + 7) / 8 * 8, '1');
        return [.. Enumerable.Range(0, all.Length / 8).Select(i => Convert.ToByte(all.Substring(i * 8, 8), 2))];
    }

    private static string Binary(params byte[] bytes) =>
        string.Concat(bytes.Select(one => Convert.ToString(one, 2).PadLeft(8, '0')));
}
