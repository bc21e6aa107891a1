using System;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;
using Korvan.CAD.FileFormats.Cad.Dwg.R2004;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Checksums of known data, and of data in parts.</summary>
public class ChecksumTests
{
    private static readonly byte[] Digits = Encoding.ASCII.GetBytes("123456789");

    // The check values that catalogues of cyclic redundancy checks state for these polynomials.
    [Fact]
    public void Checks_of_digits_are_those_of_their_polynomials()
    {
        Assert.Equal(0xBB3D, Crc16.Compute(0, Digits));
        Assert.Equal(0x4B37, Crc16.Compute(0xFFFF, Digits));
        Assert.Equal(0xCBF43926, Crc32.Compute(0, Digits));
        Assert.Equal(0x091E01DEu, SectionPageDataChecksum.Compute(1, Digits));
    }

    [Fact]
    public void A_check_of_two_parts_is_that_of_all()
    {
        byte[] data = [.. Enumerable.Range(0, 300).Select(static i => (byte)(i * 7))];
        for (int cut = 0; cut <= data.Length; cut += 13)
        {
            Assert.Equal(Crc16.Compute(Crc16.Seed, data), Crc16.Compute(
                Crc16.Compute(Crc16.Seed, data.AsSpan(0, cut)), data.AsSpan(cut)));
            Assert.Equal(Crc32.Compute(1, data), Crc32.Compute(
                Crc32.Compute(1, data.AsSpan(0, cut)), data.AsSpan(cut)));
        }
    }

    // The sums are reduced in time: so many bytes of 255 are the most that fit before.
    [Fact]
    public void Sums_of_long_pages_do_not_overflow()
    {
        byte[] data = [.. Enumerable.Repeat((byte)255, 0x15B0 * 3)];
        ulong sum = 0;
        ulong sumOfSums = 0;
        foreach (byte one in data)
        {
            sum = (sum + one) % 65521;
            sumOfSums = (sumOfSums + sum) % 65521;
        }

        Assert.Equal((uint)((sumOfSums << 16) | sum), SectionPageDataChecksum.Compute(0, data));
        SectionPageDataChecksum parts = new(0);
        parts.Update(data[..0x15B0]);
        parts.Update(data[0x15B0..]);
        Assert.Equal(SectionPageDataChecksum.Compute(0, data), parts.Value);
    }

    [Fact]
    public void Each_bit_of_a_page_counts_in_the_check_of_64_bits()
    {
        byte[] data = [.. Enumerable.Range(1, 21).Select(static i => (byte)i)];
        ulong plain = Crc64.Compute(Crc64.HeaderSeedOf(0, data.Length), data);
        ulong mirrored = Crc64.ComputeMirrored(Crc64.SeedOf(5, data.Length), data);
        for (int bit = 0; bit < data.Length * 8; bit++)
        {
            data[bit >> 3] ^= (byte)(1 << (bit & 7));
            Assert.NotEqual(plain, Crc64.Compute(Crc64.HeaderSeedOf(0, data.Length), data));
            Assert.NotEqual(mirrored, Crc64.ComputeMirrored(Crc64.SeedOf(5, data.Length), data));
            data[bit >> 3] ^= (byte)(1 << (bit & 7));
        }
    }

    // Eight bytes in pairs from the last to the first, four bytes likewise, and up to three as they are.
    [Theory]
    [InlineData("", "")]
    [InlineData("012", "012")]
    [InlineData("0123", "2301")]
    [InlineData("01234567", "67452301")]
    [InlineData("0123456789ABCDE", "67452301" + "AB89" + "CDE")]
    public void Bytes_are_taken_in_pairs(string data, string ordered) =>
        Assert.Equal(ordered, Encoding.ASCII.GetString(Crc64.Reorder(Encoding.ASCII.GetBytes(data))));

    [Theory]
    [InlineData(4)]
    [InlineData(16)]
    public void More_wrong_bytes_than_the_parity_can_correct_are_told(int parity)
    {
        ReedSolomon code = parity == 4 ? ReedSolomon.Data : ReedSolomon.System;
        Random random = new(parity);
        int told = 0;
        for (int round = 0; round < 200; round++)
        {
            byte[] valid = new byte[ReedSolomon.BlockLength];
            random.NextBytes(valid.AsSpan(0, code.DataLength));
            EncodedFile.AddParity(code, valid);
            byte[] block = [.. valid];
            Assert.True(code.Correct(block));
            Assert.Equal(valid, block);
            int wrong = 1 + (round % parity);
            foreach (int place in Enumerable.Range(0, block.Length).OrderBy(_ => random.Next()).Take(wrong))
            {
                block[place] ^= (byte)random.Next(1, 256);
            }

            bool isValid = code.Correct(block);
            told += !isValid ? 1 : 0;
            Assert.Equal(2 * wrong <= parity, block.AsSpan().SequenceEqual(valid));
            Assert.True(isValid || 2 * wrong > parity);
        }

        // Some blocks with too many wrong bytes are near to another valid one: of few parity bytes more of them.
        Assert.InRange(told, parity == 4 ? 50 : 95, 100);
    }
}
