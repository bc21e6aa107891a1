using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using System.Text.RegularExpressions;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

/// <summary>The mirror against what the native header says of itself.</summary>
public partial class RecordTests
{
    private static readonly string Header =
        File.ReadAllText(Path.Combine(ProbeModel.RepositoryRoot, "contract", "include", "contract", "records.h"));

    public static IEnumerable<object[]> Sizes => Matches(Record())
        .Select(match => new object[] { match.Groups[1].Value, int.Parse(match.Groups[2].Value) });

    public static IEnumerable<object[]> Offsets => Matches(Field())
        .Select(match => match.Groups)
        .Select(parts => new object[] { parts[1].Value, parts[2].Value, int.Parse(parts[3].Value) });

    [Theory]
    [MemberData(nameof(Sizes))]
    public void EveryRecordHasItsSize(string record, int size) => Assert.Equal(size, Marshal.SizeOf(TypeOf(record)));

    [Theory]
    [MemberData(nameof(Offsets))]
    public void EveryFieldStandsInItsPlace(string record, string field, int offset)
    {
        string name = string.Concat(field.Split('_').Select(word => char.ToUpperInvariant(word[0]) + word[1..]));
        Assert.Equal(offset, (int)Marshal.OffsetOf(TypeOf(record), name));
    }

    private static Type TypeOf(string record) =>
        typeof(VariantArg).Assembly.GetType("Korvan.WrpGen.Interop." + record, throwOnError: true)!;

    private static IEnumerable<Match> Matches(Regex pattern) => pattern.Matches(Header);

    [GeneratedRegex(@"^KORVAN_RECORD\((\w+), (\d+)\);", RegexOptions.Multiline)]
    private static partial Regex Record();

    [GeneratedRegex(@"^KORVAN_FIELD\((\w+), (\w+), (\d+)\);", RegexOptions.Multiline)]
    private static partial Regex Field();
}
