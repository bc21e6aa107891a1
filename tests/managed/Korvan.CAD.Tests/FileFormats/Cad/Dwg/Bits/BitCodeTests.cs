using System;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Bits;

/// <summary>Values of every code, written and read from every bit of a byte on.</summary>
public class BitCodeTests
{
    private const string Characters = "aZ0 \\é€Жß☃漢";

    private static readonly Code[] Codes =
    [
        new("B", static random => random.Next(2) == 1, static (w, v) => w.Bit((bool)v), static (ref r) => r.Bit()),
        new("BB", static random => random.Next(4), static (w, v) => w.BitPair((int)v),
            static (ref r) => r.BitPair()),
        new("3B", static random => random.GetItems([0, 2, 6, 7], 1)[0], static (w, v) => w.BitTriplet((int)v),
            static (ref r) => r.BitTriplet()),
        new("BS", static random => (int)(short)Number(random), static (w, v) => w.BitShort((int)v),
            static (ref r) => r.BitShort()),
        new("BL", static random => (int)Number(random), static (w, v) => w.BitLong((int)v),
            static (ref r) => r.BitLong()),
        new("BLL", static random => Number(random) >> 8, static (w, v) => w.BitLongLong((ulong)v),
            static (ref r) => r.BitLongLong()),
        new("BD", static random => Real(random), static (w, v) => w.BitDouble((double)v),
            static (ref r) => r.BitDouble()),
        new("RC", static random => (byte)Number(random), static (w, v) => w.RawByte((byte)v),
            static (ref r) => r.RawByte()),
        new("RS", static random => (short)Number(random), static (w, v) => w.RawShort((short)v),
            static (ref r) => r.RawShort()),
        new("RL", static random => (int)Number(random), static (w, v) => w.RawLong((int)v),
            static (ref r) => r.RawLong()),
        new("RD", static random => Real(random), static (w, v) => w.RawDouble((double)v),
            static (ref r) => r.RawDouble()),
        new("MC", static random => (int)Number(random) / 2, static (w, v) => w.ModularChar((int)v),
            static (ref r) => r.ModularChar()),
        new("UMC", static random => Number(random) >> 1, static (w, v) => w.UnsignedModularChar((ulong)v),
            static (ref r) => r.UnsignedModularChar()),
        new("MS", static random => (int)(Number(random) & 0x3FFFFFFF), static (w, v) => w.ModularShort((int)v),
            static (ref r) => r.ModularShort()),
        new("H", static random => (random.Next(16), Number(random)), static (w, v) => Put(w, ((int, ulong))v),
            static (ref r) => r.Handle()),
        new("OT", static random => (int)(Number(random) & 0x7FFF), static (w, v) => w.ObjectType((int)v),
            static (ref r) => r.ObjectType()),
        new("TV", static random => Text(random, 5), static (w, v) => w.Text((string)v, Encoding.Latin1),
            static (ref r) => r.Text(Encoding.Latin1)),
        new("TU", static random => Text(random, Characters.Length), static (w, v) => w.Utf16Text((string)v),
            static (ref r) => r.Utf16Text()),
        new("bytes", static random => Convert.ToHexString(Bytes(random)),
            static (w, v) => w.Raw(Convert.FromHexString((string)v)), null),
    ];

    private delegate object Reading(ref BitReader reader);

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    public void Values_are_read_as_they_were_written(int seed)
    {
        Random random = new(seed);
        for (int round = 0; round < 300; round++)
        {
            BitWriter writer = new();
            (Code Code, object Value)[] written = [.. Enumerable.Range(0, 40).Select(_ => random.GetItems(Codes, 1)[0])
                .Select(code => (code, code.Create(random)))];
            Array.ForEach(written, one => one.Code.Write(writer, one.Value));
            BitReader reader = new(writer.ToArray(), 0, writer.Position);
            foreach ((Code code, object value) in written)
            {
                object read = code.Read is { } known
                    ? known(ref reader) : Convert.ToHexString(reader.Bytes(((string)value).Length / 2));
                Assert.True(value.Equals(read), $"seed {seed}, round {round}: {code.Name} {value} became {read}");
            }

            Assert.Equal(0, reader.Remaining);
        }
    }

    // What follows the end is set, so that a value that uses it is not the one that was written.
    [Fact]
    public void Values_that_go_beyond_the_end_are_faults_within_it()
    {
        Random random = new(4);
        foreach (Code code in Codes.Where(static code => code.Read is not null))
        {
            for (int shift = 0; shift < 8; shift++)
            {
                BitWriter writer = new();
                writer.Bits([0xFF], shift);
                code.Write(writer, code.Create(random));
                long length = writer.Position;
                writer.Raw([0xFF, 0xFF, 0xFF]);
                byte[] data = writer.ToArray();
                for (long end = shift; end < length; end++)
                {
                    var fault = Assert.Throws<DwgFault>(() => ReadOne(code, data, shift, end));
                    Assert.True(fault.Position >= shift && fault.Position <= end,
                        $"{code.Name} from bit {shift} to {end}: a fault at bit {fault.Position}");
                    Assert.Throws<DwgFault>(() => ReadOne(code, data[..(int)((end + 7) / 8)], shift, end));
                }
            }
        }
    }

    [Theory]
    [InlineData("BS 0", "10")]
    [InlineData("BS 255", "0111111111")]
    [InlineData("BS 256", "11")]
    [InlineData("BS 257", "000000000100000001")]
    [InlineData("BS -1", "001111111111111111")]
    [InlineData("BL 0", "10")]
    [InlineData("BL 255", "0111111111")]
    [InlineData("BL 256", "0000000000000000010000000000000000")]
    [InlineData("BLL 0", "000")]
    [InlineData("BLL 65535", "0101111111111111111")]
    [InlineData("BD 0", "10")]
    [InlineData("BD 1", "01")]
    [InlineData("BD 2", "000000000000000000000000000000000000000000000000000000000001000000")]
    [InlineData("3B 6", "110")]
    [InlineData("MC 63", "00111111")]
    [InlineData("MC 64", "1100000000000000")] // bit 0x40 of the last byte is the sign
    [InlineData("MC -64", "1100000001000000")]
    [InlineData("UMC 128", "1000000000000001")]
    [InlineData("MS 32767", "1111111101111111")]
    [InlineData("MS 32768", "00000000100000000000000100000000")]
    [InlineData("OT 495", "10" + "1110111100000001")]
    [InlineData("OT 496", "01" + "00000000")]
    [InlineData("OT 751", "01" + "11111111")]
    public void Of_several_codes_the_shortest_is_written(string value, string bits)
    {
        string[] parts = value.Split(' ');
        Code code = Array.Find(Codes, one => one.Name == parts[0])!;
        BitWriter writer = new();
        Type type = code.Create(new Random(1)).GetType();
        code.Write(writer, Convert.ChangeType(parts[1], type, null));
        Assert.Equal(bits, string.Concat(writer.ToArray().Select(static one => $"{one:b8}"))[..(int)writer.Position]);
    }

    [Theory]
    [InlineData("BL", "11", "the code 3")]
    [InlineData("BD", "11", "the code 3")]
    [InlineData("H", "01011001", "a handle of 9 bytes")]
    [InlineData("MC", "11111111 11111111 11111111 11111111 11111111", "no end")]
    [InlineData("UMC", "FF FF FF FF FF FF FF FF FF", "no end")]
    [InlineData("MS", "FF FF FF FF", "no end")]
    [InlineData("TV", "00 11111111 11111111", "65535 items are announced, but only 24 bits follow")]
    [InlineData("TU", "01 00000010", "2 items are announced, but only 24 bits follow")]
    public void Codes_without_a_meaning_are_faults_at_their_place(string name, string bits, string cause)
    {
        string all = string.Concat(bits.Split(' ').Select(static one => one == "FF" ? "11111111" : one));
        BitWriter writer = new();
        writer.Bits([0xFF], 3);
        foreach (char bit in all)
        {
            writer.Bit(bit == '1');
        }

        long end = writer.Position + 24;
        writer.Raw([0, 0, 0]);
        Code code = Array.Find(Codes, one => one.Name == name)!;
        var fault = Assert.Throws<DwgFault>(() => ReadOne(code, writer.ToArray(), 3, end));
        Assert.Contains(cause, fault.Message);
        Assert.Equal(name[0] == 'T' ? end - 24 : 3, fault.Position);
    }

    // 0 is written as code 2 and 1 as code 1, but the zero with a sign is another number.
    [Fact]
    public void Numbers_keep_all_their_bits()
    {
        double[] values = [-0.0, double.Epsilon, double.MaxValue, -1, double.PositiveInfinity, 1 + 1e-15];
        foreach (double value in values)
        {
            BitWriter writer = new();
            writer.BitDouble(value);
            writer.DoubleAfter(value, 1);
            BitReader reader = new(writer.ToArray());
            Assert.Equal(BitConverter.DoubleToInt64Bits(value), BitConverter.DoubleToInt64Bits(reader.BitDouble()));
            Assert.Equal(BitConverter.DoubleToInt64Bits(value), BitConverter.DoubleToInt64Bits(reader.DoubleAfter(1)));
        }
    }

    [Theory]
    [InlineData(0x0000000000000000, 2)]
    [InlineData(0x0000000000000001, 34)]
    [InlineData(0x00000000FFFFFFFF, 34)]
    [InlineData(0x0000000100000000, 50)]
    [InlineData(0x0000FFFFFFFFFFFF, 50)]
    [InlineData(0x0001000000000000, 66)]
    public void Numbers_after_another_have_only_the_bytes_that_differ(long changed, int length)
    {
        const double before = 1234.5678;
        double value = BitConverter.Int64BitsToDouble(BitConverter.DoubleToInt64Bits(before) ^ changed);
        for (int shift = 0; shift < 8; shift++)
        {
            BitWriter writer = new();
            writer.Bits([0xFF], shift);
            writer.DoubleAfter(value, before);
            Assert.Equal(shift + length, writer.Position);
            Assert.Equal(value, new BitReader(writer.ToArray(), shift, writer.Position).DoubleAfter(before));
        }
    }

    // The number of bytes has three bits, and lengths of strings have sixteen.
    [Fact]
    public void Values_that_do_not_fit_their_codes_are_faults()
    {
        BitWriter writer = new();
        writer.BitLongLong((1UL << 56) - 1);
        writer.Utf16Text(new string('x', 65_535));
        writer.Text(new string('x', 65_534), Encoding.Latin1);
        long end = writer.Position;
        foreach (Action write in new Action[]
        {
            () => writer.BitLongLong(1UL << 56),
            () => writer.Utf16Text(new string('x', 65_536)),
            () => writer.Text(new string('x', 65_535), Encoding.Latin1),
        })
        {
            Assert.Equal(end, Assert.Throws<DwgFault>(write).Position);
        }

        Assert.Equal(end, writer.Position);
        BitReader reader = new(writer.ToArray());
        Assert.Equal((1UL << 56) - 1, reader.BitLongLong());
        Assert.Equal((65_535, 65_534), (reader.Utf16Text().Length, reader.Text(Encoding.Latin1).Length));
    }

    [Fact]
    public void A_writer_can_be_used_again()
    {
        BitWriter writer = new();
        writer.Raw(Enumerable.Repeat((byte)0xFF, 3000).ToArray());
        writer.Bit(true);
        writer.Align();
        Assert.Equal(3001, writer.Bytes.Length);
        writer.Clear();
        writer.Bits([0, 0x80], 9);
        Assert.Equal([0, 0x80], writer.ToArray());
        writer.Align();
        writer.Raw(new byte[2998]);
        Assert.Equal(0x80, writer.ToArray().Sum(static one => one));
    }

    private static object ReadOne(Code code, byte[] data, long start, long end)
    {
        BitReader reader = new(data, start, end);
        return code.Read!(ref reader);
    }

    private static void Put(BitWriter writer, (int Kind, ulong Value) handle) =>
        writer.Handle(handle.Kind, handle.Value);

    // Numbers of every length are as likely, and so are those at the borders.
    private static ulong Number(Random random)
    {
        ulong value = (ulong)random.NextInt64() >> random.Next(64);
        return random.Next(4) switch
        {
            0 => 1UL << random.Next(64),
            1 => (1UL << random.Next(64)) - 1,
            2 => ~value,
            _ => value,
        };
    }

    private static object Real(Random random) => random.Next(4) switch
    {
        0 => 0.0,
        1 => 1.0,
        _ => BitConverter.UInt64BitsToDouble(Number(random) & 0x7FEFFFFFFFFFFFFF),
    };

    private static string Text(Random random, int characters) =>
        new(random.GetItems<char>(Characters.AsSpan(0, characters), random.Next(8) == 0 ? 300 : random.Next(6)));

    private static byte[] Bytes(Random random)
    {
        byte[] bytes = new byte[random.Next(40)];
        random.NextBytes(bytes);
        return bytes;
    }

    private sealed record Code(
        string Name, Func<Random, object> Create, Action<BitWriter, object> Write, Reading? Read);
}
