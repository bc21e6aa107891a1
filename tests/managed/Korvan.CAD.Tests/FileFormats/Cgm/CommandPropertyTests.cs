using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>What holds for every command, over random parameters.</summary>
public class CommandPropertyTests
{
    private const int Rounds = 12;

    public static TheoryData<string, CgmFileFormat, Coding> Cases()
    {
        var cases = new TheoryData<string, CgmFileFormat, Coding>();
        foreach (Type kind in RandomCommands.Kinds)
        {
            foreach (CgmFileFormat format in Enum.GetValues<CgmFileFormat>())
            {
                cases.Add(kind.Name, format, Coding.Narrow);
                cases.Add(kind.Name, format, Coding.Wide);
            }
        }

        return cases;
    }

    [Theory]
    [MemberData(nameof(Cases))]
    public void Parameters_come_back_from_files(string kind, CgmFileFormat format, Coding coding)
    {
        Command[] before = RandomCommands.Before(coding);
        for (int seed = 0; seed < Rounds; seed++)
        {
            Command sent = new RandomCommands(seed, coding).Create(Kind(kind));
            CgmFile read = CgmFile.Load(new MemoryStream(Write([.. before, sent, new EndMetafile()], format)));
            Assert.Empty(read.Messages);
            Assert.Equal(before.Length + 2, read.Commands.Count);
            AssertSame(sent, read.Commands[before.Length], seed);
        }
    }

    [Theory]
    [MemberData(nameof(Cases))]
    public void Values_out_of_range_are_refused_with_their_place(string kind, CgmFileFormat format, Coding coding)
    {
        Command[] before = RandomCommands.Before(coding);
        Type type = Kind(kind);
        foreach ((PropertyInfo property, CustomAttributeData attribute) in RandomCommands.Declared(type))
        {
            foreach (object? value in OutOfRange(property.PropertyType, attribute, format, coding))
            {
                Command command = new RandomCommands(1, coding).Create(type);
                property.SetValue(command, value);
                var failure = Assert.Throws<ImageSaveException>(
                    () => Write([.. before, command, new EndMetafile()], format));
                string element = $"{command.Keyword} ({(int)command.ElementClass}, {command.ElementId})";
                Assert.StartsWith($"'stream', command {before.Length}, {element}: ", failure.Message);
            }
        }
    }

    [Theory]
    [MemberData(nameof(Cases))]
    public void Damaged_parameters_are_read_or_refused_with_their_place(
        string kind, CgmFileFormat format, Coding coding)
    {
        Command[] before = RandomCommands.Before(coding);
        for (int seed = 0; seed < Rounds; seed++)
        {
            var random = new Random(seed);
            int start = LengthOf(before, format);
            byte[] data = Write(
                [.. before, new RandomCommands(seed, coding).Create(Kind(kind)), new EndMetafile()], format);
            int end = Math.Min(data.Length, start + 200);
            for (int i = random.Next(1, 4); i > 0; i--)
            {
                data[random.Next(Math.Min(start + 2, end - 1), end)] = (byte)random.Next(256);
            }

            Exception? failure = Record.Exception(() => CgmFile.Load(new MemoryStream(data)));
            Assert.True(failure is null or ImageLoadException, $"seed {seed}: {failure}");
            Assert.Matches(
                failure is null ? "" : @"^'stream', (byte|line) \d+, \w+ \(\d+, \d+\): .+\.$", failure?.Message ?? "");
        }
    }

    [Fact]
    public void Commands_tell_their_keyword_and_parameters()
    {
        Assert.Equal("LINE (1, 2) (3.5, 4)", new Polyline([new(1, 2), new(3.5, 4)]).ToString());
        Assert.Equal("TEXT (1, 2) Final 'it'", new Text(new CgmPoint(1, 2), "it").ToString());
        Assert.Equal("ENDPIC (0, 5)", new EndPicture().ToString());
        var commands = new RandomCommands(1, Coding.Wide);
        Assert.All(RandomCommands.Kinds.Select(commands.Create), one => Assert.StartsWith(one.Keyword, one.ToString()));
    }

    private static Type Kind(string name) => RandomCommands.Kinds.Single(one => one.Name == name);

    private static byte[] Write(Command[] commands, CgmFileFormat format)
    {
        var stream = new MemoryStream();
        var file = new CgmFile();
        file.Commands.AddRange(commands);
        file.Save(stream, format);
        return stream.ToArray();
    }

    private static int LengthOf(Command[] commands, CgmFileFormat format)
    {
        const string end = "ENDMF;\n";
        int whole = Write([.. commands, new EndMetafile()], format).Length;
        return whole - (format == CgmFileFormat.Binary ? 2 : end.Length);
    }

    /// <summary>Values that no file of the coding can hold.</summary>
    private static IEnumerable<object?> OutOfRange(
        Type type, CustomAttributeData attribute, CgmFileFormat format, Coding coding)
    {
        string kind = attribute.AttributeType.Name["Cgm".Length..^"Attribute".Length];
        if (!type.IsValueType && type != typeof(string[]))
        {
            yield return null;
        }

        bool isNarrow = (format, coding) == (CgmFileFormat.Binary, Coding.Narrow);
        object? value = kind switch
        {
            "Enum" or "RealForm" when type.IsEnum => Enum.ToObject(type, 999),
            "Index" when type.IsEnum => Enum.ToObject(type, 999),
            "SignedBits" or "UnsignedBits" => 12,
            "LocalBits" => 3,
            "FloatingReal" or "Real" or "Vdc" or "Size" when type == typeof(double) => double.NaN,
            "Point" when type == typeof(CgmPoint) => new CgmPoint(0, double.PositiveInfinity),
            "DirectColor" when type == typeof(CgmColor) => new CgmColor(1),
            "Color" when type == typeof(CgmColor) =>
                coding == Coding.Wide ? new CgmColor(1) : new CgmColor(Color.FromArgb(1, 2, 3)),
            "Integer" or "Name" or "Index" when isNarrow && type == typeof(int) => 32768,
            "ColorIndex" when isNarrow => 256,
            _ => null,
        };
        if (value is not null)
        {
            yield return value;
        }
    }

    private static void AssertSame(Command expected, Command actual, int seed)
    {
        Assert.Equal(expected.GetType(), actual.GetType());
        foreach (PropertyInfo property in expected.GetType().GetProperties().Where(property => property.CanWrite))
        {
            Assert.True(
                AreEqual(property.GetValue(expected), property.GetValue(actual)),
                $"seed {seed}, {property.Name}: {property.GetValue(expected)} became {property.GetValue(actual)}");
        }
    }

    private static bool AreEqual(object? first, object? second) => (first, second) switch
    {
        (null, _) or (_, null) => first == second,
        (string or CgmPoint or CgmColor, _) => first.Equals(second),
        (IEnumerable one, IEnumerable other) => AreAllEqual([.. one.Cast<object>()], [.. other.Cast<object>()]),
        _ when first.GetType() != second.GetType() => false,
        _ when first.GetType().IsValueType => first.Equals(second),
        (Command one, Command other) => one.ToString() == other.ToString(),
        _ => first.GetType().GetProperties().All(
            property => AreEqual(property.GetValue(first), property.GetValue(second))),
    };

    private static bool AreAllEqual(object[] first, object[] second) =>
        first.Length == second.Length && first.Zip(second).All(pair => AreEqual(pair.First, pair.Second));
}
