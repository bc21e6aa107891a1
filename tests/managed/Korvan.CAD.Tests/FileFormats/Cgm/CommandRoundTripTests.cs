using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Export;
using Korvan.CAD.FileFormats.Cgm.Import;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Each command comes back from a file with every one of its parameters.</summary>
public class CommandRoundTripTests
{
    /// <summary>Real numbers that lose nothing, and coordinates that are real.</summary>
    private static readonly Command[] Before =
    [
        new BeginMetafile("before"), new VdcType { Value = VdcType.Type.Real }, new RealPrecision { Value = Precision.Floating64 },
        new MetafileDefaultsReplacement { Commands = [new VdcRealPrecision { Value = Precision.Floating64 }] },
        new BeginPicture("before"),
    ];

    private static readonly Type[] Kinds =
        [.. typeof(Command).Assembly.GetTypes().Where(type => type.IsSubclassOf(typeof(Command)) && !type.IsAbstract)];

    public static readonly TheoryData<string> Names = [.. Kinds.Where(IsOfTheFormat).Select(kind => kind.Name)];

    [Fact]
    public void Samples_leave_nothing_as_it_is_created()
    {
        // Factors and offsets belong to other models of colours than the samples have.
        string[] unused = ["ColourValueExtent.Scales", "ColourValueExtent.Offsets"];
        IEnumerable<string> left =
            from sample in CommandSamples.All
            from property in Parameters(sample.GetType())
            let created = Activator.CreateInstance(sample.GetType())
            where AreEqual(property.GetValue(sample), property.GetValue(created))
            select $"{sample.GetType().Name}.{property.Name}";
        Assert.Equal(unused, left);
    }

    [Theory]
    [MemberData(nameof(Names))]
    public void Parameters_come_back_from_binary_files(string kind)
    {
        Command sample = Sample(kind);
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        foreach (Command command in Before.Append(sample))
        {
            writer.WriteCommand(command);
        }

        stream.Position = 0;
        using var reader = new DefaultBinaryReader(stream);
        Command? last = null;
        while (reader.ReadCommand() is Command command)
        {
            last = command;
        }

        Assert.Equal(sample.GetType(), last?.GetType());
        AssertSame(sample, last!);
        Assert.All(reader.Messages, message => Assert.Contains("ENDMF", message.Text));
    }

    private static bool IsOfTheFormat(Type kind) => kind != typeof(UnknownCommand);

    private static Command Sample(string kind)
    {
        Type type = Kinds.Single(one => one.Name == kind);
        return CommandSamples.All.SingleOrDefault(one => one.GetType() == type)
            ?? (Parameters(type).Any()
                ? throw new InvalidOperationException($"{kind} has parameters, but no sample")
                : (Command)Activator.CreateInstance(type)!);
    }

    private static IEnumerable<PropertyInfo> Parameters(Type type) => type.GetProperties().Where(property => property.CanWrite);

    private static void AssertSame(Command expected, object actual)
    {
        foreach (PropertyInfo property in Parameters(expected.GetType()))
        {
            Assert.True(
                AreEqual(property.GetValue(expected), property.GetValue(actual)),
                $"{property.Name}: {property.GetValue(expected)} became {property.GetValue(actual)}");
        }
    }

    private static bool AreEqual(object? first, object? second)
    {
        return (first, second) switch
        {
            (null, _) or (_, null) => first == second,
            (string or CgmPoint or CgmColor, _) => first.Equals(second),
            (IEnumerable one, IEnumerable other) => AreEqual([.. one.Cast<object>()], [.. other.Cast<object>()]),
            _ when first.GetType() != second.GetType() => false,
            _ when first.GetType().IsValueType => first.Equals(second),
            _ => first.GetType().GetProperties().All(property => AreEqual(property.GetValue(first), property.GetValue(second))),
        };
    }

    private static bool AreEqual(object[] first, object[] second) =>
        first.Length == second.Length && first.Zip(second).All(pair => AreEqual((object?)pair.First, pair.Second));
}
