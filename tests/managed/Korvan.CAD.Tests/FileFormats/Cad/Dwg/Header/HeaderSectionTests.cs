using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Header;

/// <summary>The header and class sections of each release, written and read again.</summary>
public class HeaderSectionTests
{
    private static readonly int[] Years = [1994, 1997, 2000, 2004, 2007, 2010, 2013, 2018];

    public static TheoryData<int> Releases => [.. Years];

    [Theory]
    [MemberData(nameof(Releases))]
    public void Fields_of_a_release_are_read_as_they_were_written(int release)
    {
        Random random = new(release);
        for (int round = 0; round < 20; round++)
        {
            HeaderValues values = Values(random, release);
            HeaderWriter writer = new(release, Encoding.Latin1);
            values.Exchange(writer);
            HeaderReader reader = new(writer.ToArray(), release, Encoding.Latin1);
            HeaderValues again = new();
            again.Exchange(reader);
            HeaderField[] fields = [.. Of(release).Where(field => again.Contains(field.Name))];
            Assert.All(fields, field => Assert.Equal(
                (field.Name, values[field.Name]), (field.Name, again[field.Name])));
            Assert.InRange(fields.Length, 180, 400);
            Assert.InRange(reader.Remaining, 0, 7);
        }
    }

    // Nothing is read beyond the end, and the variable that is not whole is named.
    [Theory]
    [MemberData(nameof(Releases))]
    public void A_section_that_ends_early_names_the_variable(int release)
    {
        HeaderWriter writer = new(release, Encoding.Latin1);
        Values(new Random(1), release).Exchange(writer);
        byte[] data = writer.ToArray();
        HashSet<string> names = [.. Of(release).Select(static field => field.Name)];
        int named = 0;
        for (int length = 0; length < data.Length - 1; length += 3)
        {
            var fault = Assert.Throws<DwgFault>(
                () => new HeaderValues().Exchange(
                    new HeaderReader(data.AsMemory(0, length), release, Encoding.Latin1)));
            named += names.Contains(fault.Message.Split(':')[0]) ? 1 : 0;
            Assert.InRange(fault.Position, 0, length * 8);
        }

        Assert.True(named > 0 || release >= 2007);
    }

    // Later releases state where the strings and references begin: both may lie.
    [Theory]
    [InlineData(2007)]
    [InlineData(2018)]
    public void Sizes_that_lie_are_faults(int release)
    {
        HeaderWriter writer = new(release, Encoding.Latin1);
        Values(new Random(1), release).Exchange(writer);
        byte[] data = writer.ToArray();
        foreach (uint size in new[] { 0u, 31u, (uint)data.Length * 8 + 1, uint.MaxValue })
        {
            BitWriter bits = new();
            bits.RawLong((int)size);
            bits.Bits(data.AsSpan(4), (data.Length - 4) * 8L);
            var fault = Assert.Throws<DwgFault>(() => new HeaderReader(bits.ToArray(), release, Encoding.Latin1));
            Assert.Contains($"the data has {size} bits", fault.Message);
        }

        BitWriter strings = new();
        strings.RawLong(32 + 16 + 1);
        strings.RawShort(100);
        strings.Bit(true);
        Assert.Contains("strings of 100 bits", Assert.Throws<DwgFault>(
            () => new HeaderReader(strings.ToArray(), release, Encoding.Latin1)).Message);
    }

    [Theory]
    [InlineData(2000, 30)]
    [InlineData(2007, 30)]
    [InlineData(2007, 60_000)] // a size that needs two numbers
    [InlineData(2018, 2_050)]
    public void Strings_of_any_length_are_kept(int release, int length)
    {
        HeaderValues values = new() { ["$MENU"] = new HeaderValue(0) { Text = new string('é', length) } };
        HeaderWriter writer = new(release, Encoding.Latin1);
        values.Exchange(writer);
        HeaderValues again = new();
        again.Exchange(new HeaderReader(writer.ToArray(), release, Encoding.Latin1));
        Assert.Equal(values["$MENU"], again["$MENU"]);
        Assert.Equal(values["$LTSCALE"], again["$LTSCALE"]);
    }

    [Fact]
    public void Characters_that_a_code_page_lacks_are_kept_as_escape_sequences()
    {
        HeaderValues values = new() { ["$MENU"] = new HeaderValue(0) { Text = "漢字 é" } };
        HeaderWriter writer = new(2004, Encoding.Latin1);
        values.Exchange(writer);
        HeaderValues again = new();
        again.Exchange(new HeaderReader(writer.ToArray(), 2004, Encoding.Latin1));
        Assert.Equal("漢字 é", again["$MENU"].Text);
    }

    // Bits of one integer: each variable alone, with the others at their defaults.
    [Fact]
    public void Settings_in_one_integer_do_not_mix()
    {
        (string Name, string Value)[] settings =
        [
            ("$CELWEIGHT", "211"), ("$CELWEIGHT", "-2"), ("$ENDCAPS", "3"), ("$JOINSTYLE", "2"), ("$LWDISPLAY", "1"),
            ("$XEDIT", "0"), ("$EXTNAMES", "1"), ("$PSTYLEMODE", "1"), ("$OLESTARTUP", "1"),
        ];
        foreach ((string name, string value) in settings)
        {
            CadHeader header = new CadDrawing(DrawingSeed.Blank).Header;
            HeaderFlags.ToHeader(HeaderFlags.FromHeader(header), header);
            Dictionary<string, string> expected = settings.DistinctBy(static one => one.Name)
                .ToDictionary(static one => one.Name, one => header.GetString(one.Name));
            header.Set(name, header.GetTags(name)[0].Attribute, value);
            expected[name] = value;
            CadHeader again = new CadDrawing(DrawingSeed.Blank).Header;
            HeaderFlags.ToHeader(HeaderFlags.FromHeader(header), again);
            Assert.All(expected, one => Assert.Equal((one.Key, one.Value), (one.Key, again.GetString(one.Key))));
        }
    }

    [Theory]
    [InlineData(2451545.0, 2451545, 0)]
    [InlineData(2451545.5, 2451545, 43_200_000)]
    [InlineData(2451544.999999999, 2451545, 0)] // the last millisecond is rounded to the next day
    [InlineData(0, 0, 0)]
    public void Times_are_days_and_milliseconds(double time, double days, double milliseconds) =>
        Assert.Equal(new HeaderValue(days, milliseconds), HeaderVariableCodec.TimeOf(time));

    [Theory]
    [MemberData(nameof(Releases))]
    public void Classes_of_a_release_are_read_as_they_were_written(int release)
    {
        foreach (int count in new[] { 0, 1, 40 })
        {
            List<CadClassEntity> classes = [.. Enumerable.Range(0, count).Select(static i => Class(i))];
            Assert.Equal(classes.Select(one => Describe(one, release)),
                WriteAndRead(classes, release).Select(one => Describe(one, release)));
        }
    }

    // A number that is damaged costs its class; the others keep the numbers that objects refer to.
    [Theory]
    [InlineData(3)]
    [InlineData(499)]
    [InlineData(-5)]
    [InlineData(0x7FFF)]
    public void A_class_with_a_number_of_none_does_not_move_the_others(int number)
    {
        HeaderWriter writer = new(2000, Encoding.Latin1);
        ClassSection.Write(writer, [Class(0), Class(1), Class(2)]);
        byte[] data = writer.ToArray();
        BitReader bits = new(data);
        long second = 0;
        while (second == 0)
        {
            BitReader start = bits;
            second = start.BitShort() == 501 ? bits.Position : 0;
            bits.Position++;
        }

        BitWriter changed = new();
        changed.Bits(data, second + 2);
        changed.RawShort(number);
        BitReader rest = new(data, second + 18, data.Length * 8L);
        while (rest.Remaining > 0)
        {
            changed.Bit(rest.Bit());
        }

        List<CadClassEntity> read = ClassSection.Read(new HeaderReader(changed.ToArray(), 2000, Encoding.Latin1));
        Assert.Equal("RECORD0", read[0].DxfRecordName);
        Assert.Equal("RECORD2", read[2].DxfRecordName);
        Assert.Equal("CLASS_501", read[1].DxfRecordName);
        Assert.Equal(3, read.Count);
    }

    [Theory]
    [MemberData(nameof(Releases))]
    public void Classes_that_end_early_are_a_fault_or_fewer(int release)
    {
        HeaderWriter writer = new(release, Encoding.Latin1);
        ClassSection.Write(writer, [.. Enumerable.Range(0, 5).Select(static i => Class(i))]);
        byte[] data = writer.ToArray();
        for (int length = 0; length < data.Length; length++)
        {
            Exception? failure = Record.Exception(() => Assert.True(ClassSection.Read(
                new HeaderReader(data.AsMemory(0, length), release, Encoding.Latin1)).Count <= 5));
            Assert.True(failure is null or DwgFault, $"{length}: {failure}");
        }
    }

    private static List<CadClassEntity> WriteAndRead(List<CadClassEntity> classes, int release)
    {
        HeaderWriter writer = new(release, Encoding.Latin1);
        ClassSection.Write(writer, classes);
        return ClassSection.Read(new HeaderReader(writer.ToArray(), release, Encoding.Latin1));
    }

    private static CadClassEntity Class(int i) => new()
    {
        DxfRecordName = $"RECORD{i}",
        ClassName = $"AcDbClass{i}",
        ApplicationName = "App|version",
        ProxyFlags = (ushort)(i * 0x101),
        WasAProxy = i % 2 == 0,
        IsEntity = i % 3 == 0,
        InstanceCount = i * 1000,
        FormatVersion = 22 + i,
        MaintenanceVersion = i,
    };

    private static string Describe(CadClassEntity one, int release) =>
        $"{one.DxfRecordName} {one.ClassName} {one.ApplicationName} {one.ProxyFlags} {one.WasAProxy} {one.IsEntity} "
            + (release < 2004 ? "" : $"{one.InstanceCount} {one.FormatVersion} {one.MaintenanceVersion}");

    private static HeaderField[] Of(int release) =>
        Array.FindAll(HeaderFields.All, field => release >= field.Since && release <= field.Until);

    // A value of each field that its coding can hold.
    private static HeaderValues Values(Random random, int release)
    {
        HeaderValues values = new();
        foreach (HeaderField field in Of(release))
        {
            double number = random.Next(2) == 0 ? random.Next(2) : random.NextDouble() * 1000;
            values[field.Name] = field.Coding switch
            {
                HeaderCoding.Bit => new HeaderValue(random.Next(2)),
                HeaderCoding.BitShort => new HeaderValue(random.Next(short.MinValue, short.MaxValue)),
                HeaderCoding.BitLong or HeaderCoding.Flags => new HeaderValue(random.Next(-100_000, 100_000)),
                HeaderCoding.BitLongLong => new HeaderValue(random.NextInt64(1L << 50)),
                HeaderCoding.RawByte => new HeaderValue(random.Next(256)),
                HeaderCoding.BitDouble => new HeaderValue(number),
                HeaderCoding.Point => new HeaderValue(number, -number, random.NextDouble()),
                HeaderCoding.FlatPoint => new HeaderValue(number, random.NextDouble()),
                HeaderCoding.Time => new HeaderValue(random.Next(3_000_000), random.Next(86_400_000)),
                HeaderCoding.Color => new HeaderValue(random.Next(1, 256)),
                HeaderCoding.Text => new HeaderValue(0) { Text = new string('x', random.Next(20)) },
                _ => new HeaderValue(0) { Handle = (ulong)random.NextInt64() >> random.Next(63) },
            };
        }

        values["$CEPSNTYPE"] = new HeaderValue(random.Next(4));
        return values;
    }
}
