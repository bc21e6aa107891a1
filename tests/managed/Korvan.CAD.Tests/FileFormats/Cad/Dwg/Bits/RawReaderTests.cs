using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Bits;

/// <summary>Values of whole bytes.</summary>
public class RawReaderTests
{
    private static readonly byte[] Data = [.. Enumerable.Range(0x81, 8).Select(static one => (byte)one)];

    [Fact]
    public void Values_have_the_lowest_byte_first_but_for_those_of_the_object_map()
    {
        RawReader reader = new(Data);
        Assert.Equal((0x81, 0x8382, 0x8485), (reader.Byte(), reader.UInt16(), reader.UInt16BigEndian()));
        Assert.Equal((5, 3, false), (reader.Position, reader.Remaining, reader.IsShort));
        reader.Seek(1);
        Assert.Equal(0x85848382, reader.UInt32());
        reader.Seek(4);
        Assert.Equal(unchecked((int)0x88878685), reader.Int32());
        reader.Seek(0);
        Assert.Equal(unchecked((long)0x8887868584838281), reader.Int64());
        Assert.False(reader.IsShort);
    }

    // Nothing is read of a value that is not whole.
    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(4)]
    [InlineData(8)]
    public void What_is_beyond_the_end_is_zero_and_ends_everything(int length)
    {
        RawReader reader = new(Data.AsSpan(0, length - 1));
        long value = length switch
        {
            1 => reader.Byte(),
            2 => reader.UInt16(),
            4 => reader.UInt32(),
            _ => reader.Int64(),
        };
        Assert.Equal((0L, true, 0), (value, reader.IsShort, reader.Remaining));
        Assert.Equal(0, reader.Byte());
    }

    [Fact]
    public void Places_and_lengths_outside_of_the_data_are_told()
    {
        foreach (long place in new[] { -1, 9, long.MinValue, long.MaxValue })
        {
            RawReader reader = new(Data);
            reader.Seek(place);
            Assert.Equal((true, 0), (reader.IsShort, reader.Remaining));
            RawReader taken = new(Data);
            Assert.True(taken.Take(place).IsEmpty);
            Assert.True(taken.IsShort);
        }

        RawReader whole = new(Data);
        whole.Seek(8);
        Assert.False(whole.IsShort);
    }

    [Theory]
    [InlineData(5)]
    [InlineData(6)]
    public void Differences_are_read_as_they_are_written(int seed)
    {
        Random random = new(seed);
        List<(ulong Plain, long Signed)> values = [(ulong.MaxValue, long.MaxValue >> 1), (0, 0), (127, -64), (128, 63)];
        for (int i = 0; i < 500; i++)
        {
            values.Add(((ulong)random.NextInt64() >> random.Next(63), (random.NextInt64() >> random.Next(1, 63))
                * (random.Next(2) == 0 ? 1 : -1)));
        }

        BitWriter writer = new();
        values.ForEach(value =>
        {
            writer.UnsignedModularChar(value.Plain);
            writer.ModularChar(value.Signed);
        });
        RawReader reader = new(writer.Bytes);
        foreach ((ulong plain, long signed) in values)
        {
            Assert.Equal((plain, signed), (reader.ModularChar(), reader.SignedModularChar()));
        }

        Assert.Equal((0, false), (reader.Remaining, reader.IsShort));
    }

    [Theory]
    [InlineData(3)] // the data ends
    [InlineData(30)] // the number does not
    public void Differences_without_an_end_are_told(int length)
    {
        byte[] data = [.. Enumerable.Repeat((byte)0xFF, length)];
        RawReader plain = new(data);
        plain.ModularChar();
        RawReader signed = new(data);
        signed.SignedModularChar();
        Assert.True(plain.IsShort && signed.IsShort);
    }
}
