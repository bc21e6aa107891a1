using System;
using System.Text;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

[Collection(nameof(FakePython))]
public unsafe class ValueTests
{
    [Theory]
    [InlineData("", 1)]
    [InlineData("caf\u00e9", 1)] // Latin-1 storage
    [InlineData("\u20ac\0x", 2)] // with an embedded NUL
    [InlineData("a\ud83d\ude00b", 4)] // one code point, two units
    public void StringsComeInFromEveryWidth(string text, int width)
    {
        Encoding storage = width == 1 ? Encoding.Latin1 : width == 2 ? Encoding.Unicode : Encoding.UTF32;
        byte[] bytes = storage.GetBytes(text);
        fixed (byte* start = bytes)
        {
            var argument = new PyStringArg { Length = bytes.Length / width, CharSize = width, Data = start };
            Assert.Equal(text, PyText.Read(&argument));
        }
    }

    [Fact]
    public void LoneSurrogatesPassThrough()
    {
        uint[] codePoints = [0xD800, 'x', 0xDC00];
        fixed (uint* start = codePoints)
        {
            var argument = new PyStringArg { Length = 3, CharSize = 4, Data = start };
            Assert.Equal("\ud800x\udc00", PyText.Read(&argument));
        }
    }

    [Fact]
    public void ANullStringIsNoneBothWays()
    {
        var argument = new PyStringArg { Length = -1 };
        Assert.Null(PyText.Read(&argument));
        Assert.Equal(FakePython.None, PyText.Write(null));
        Assert.Equal("out", FakePython.ValueOf(PyText.Write("out")));
    }

    [Fact]
    public void AStringOfMoreCharactersThanAnIntCountsIsRefused()
    {
        Assert.Throws<ArgumentException>(() =>
        {
            var argument = new PyStringArg { Length = int.MinValue };
            PyText.Read(&argument);
        });
    }

    [Fact]
    public void BytesTellNullFromEmpty()
    {
        var none = new PyBytesArg { Length = -1 };
        var empty = new PyBytesArg { Length = 0, Acquired = 1 };
        Assert.Null(PyValues.ReadBytes(&none));
        Assert.Equal([], PyValues.ReadBytes(&empty)!);
        Assert.Equal(FakePython.None, PyValues.WriteBytes(null));
        Assert.Equal(Array.Empty<byte>(), FakePython.ValueOf(PyValues.WriteBytes([])));
    }

    [Theory]
    [InlineData(DateTimeKind.Unspecified)]
    [InlineData(DateTimeKind.Utc)]
    [InlineData(DateTimeKind.Local)]
    public void TimesKeepTheirKindInTheTopBits(DateTimeKind kind)
    {
        foreach (DateTime edge in new[] { DateTime.MinValue, new DateTime(2024, 2, 29, 23, 59, 59), DateTime.MaxValue })
        {
            DateTime time = DateTime.SpecifyKind(edge, kind);
            PyDateTimeOut wire;
            PyValues.WriteDateTime(time, &wire);
            Assert.Equal((long)kind, (long)((ulong)wire.Ticks >> 62));
            DateTime back = PyValues.ReadDateTime(wire.Ticks);
            Assert.Equal((time, kind), (back, back.Kind));
        }
    }

    [Theory]
    [InlineData("0")]
    [InlineData("-0.0000000000000000000000000001")]
    [InlineData("79228162514264337593543950335")]
    public void DecimalsKeepEveryDigit(string text)
    {
        decimal value = decimal.Parse(text, System.Globalization.CultureInfo.InvariantCulture);
        PyDecimalArg words;
        PyValues.WriteDecimal(value, &words);
        Assert.Equal(decimal.GetBits(value), new[] { words.Low, words.Middle, words.High, words.Flags });
        Assert.Equal(value, PyValues.ReadDecimal(&words));
    }

    [Theory]
    [InlineData(null, -1)]
    [InlineData("1.2", 2)]
    [InlineData("1.2.3", 3)]
    [InlineData("1.2.3.4", 4)]
    public void VersionsKeepTheirLength(string? text, int count)
    {
        Version? version = text is null ? null : Version.Parse(text);
        PySysVersionArg record;
        PyValues.WriteVersion(version, &record);
        Assert.Equal(count, record.Count);
        Assert.Equal(version, PyValues.ReadVersion(&record));
    }

    [Fact]
    public void IdentifiersAreTheirBytes()
    {
        Guid guid = Guid.Parse("00112233-4455-6677-8899-aabbccddeeff");
        byte* bytes = stackalloc byte[16];
        PyValues.WriteGuid(guid, bytes);
        Assert.Equal(0x33, bytes[0]); // mixed-endian, as in memory
        Assert.Equal(guid, PyValues.ReadGuid(bytes));
    }

    [Fact]
    public void ItemsFitAsStrictlyAsParameters()
    {
        Assert.Equal((byte)255, Items<byte>.Fit(255));
        Assert.Equal(5L, Items<long>.Fit(5));
        Assert.Null(Items<string?>.Fit(null));
        Assert.Throws<OverflowException>(() => Items<byte>.Fit(256));
        Assert.Throws<InvalidCastException>(() => Items<double>.Fit(1)); // an int is no float
        Assert.Throws<InvalidCastException>(() => Items<int>.Fit(1.0));
        Assert.Throws<InvalidCastException>(() => Items<int>.Fit(true));
        Assert.Throws<InvalidCastException>(() => Items<int>.Fit(null));
    }
}
