using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.Globalization;
using System.Threading;
using System.Threading.Tasks;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg;

/// <summary>Many small files with wrong bytes: each is read, or refused with a defect that names its place, in time and
/// memory in proportion to the file. For longer runs, KORVAN_DWG_MUTANTS states how many there are in each family of
/// releases, and KORVAN_DWG_SEED which ones.</summary>
public class MutationTests
{
    private const int MaxMilliseconds = 20_000;
    private const long MaxMemory = 30_000_000;
    private const long MaxRatio = 2000;

    private static readonly long[] Extremes =
        [0, 1, -1, 0x7F, 0x80, 0xFF, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, long.MaxValue];

    private static readonly int Count = Setting("KORVAN_DWG_MUTANTS", 20_000);
    private static readonly int Seed = Setting("KORVAN_DWG_SEED", 0);

    private delegate byte[] Creation(Random random);

    [Theory]
    [InlineData(CadAcadVersion.AC1015, 2, 1)]
    [InlineData(CadAcadVersion.AC1018, 8, 2)]
    [InlineData(CadAcadVersion.AC1021, 8, 1)]
    [InlineData(CadAcadVersion.AC1032, 8, 2)]
    public void Mutants_of_a_container_are_read_or_refused(CadAcadVersion version, int deep, int share)
    {
        byte[] whole = MadeFiles.Of(version);
        DwgContent content = MadeFiles.ContentOf(MadeFiles.Drawing(), version);
        (ulong Handle, byte[] Record, long HandleBits)[] records = [.. RecordsOf(MadeFiles.Open(whole))];
        VerifyAll((int)version, Count / share, random => random.Next(deep) > 0 ? Mutate(whole, random)
            : MadeFiles.Write(MutateContent(content, records, random)));
    }

    [Theory]
    [InlineData(9)]
    [InlineData(11)]
    public void Mutants_of_early_releases_are_read_or_refused(int release)
    {
        EarlyFile file = release == 9 ? EarlyFile.Release9() : EarlyFile.Release11();
        file.AddSample();
        byte[] whole = file.Build();
        VerifyAll(release, Count / 2, random => Mutate(whole, random));
    }

    private static void VerifyAll(int family, int count, Creation create)
    {
        List<string> failures = [];
        int read = 0;
        Parallel.For(0, count, i =>
        {
            int round = (Seed * count) + i;
            Random random = new((family * 100_003) + round);
            byte[] data = create(random);
            foreach (bool isTolerant in round % 4 == 0 ? [false, true] : new[] { true })
            {
                string? failure = Verify(data, isTolerant, ref read);
                if (failure is not null)
                {
                    lock (failures)
                    {
                        failures.Add($"round {round}, tolerant {isTolerant}: {failure}");
                    }
                }
            }
        });
        // On a busy machine, time alone says little: what was slow is loaded again by itself.
        failures.RemoveAll(one => one.EndsWith(" ms", StringComparison.Ordinal)
            && Verify(create(new Random((family * 100_003) + RoundOf(one))), true, ref read) is null);
        Assert.Empty(failures);
        Assert.InRange(read, count / 2, 3 * count);
    }

    private static int RoundOf(string failure) =>
        int.Parse(failure.AsSpan(6, failure.IndexOf(',') - 6), NumberStyles.None, CultureInfo.InvariantCulture);

    private static string? Verify(byte[] data, bool isTolerant, ref int read)
    {
        LoadOptions options = new() { IgnoreErrors = isTolerant };
        long before = GC.GetAllocatedBytesForCurrentThread();
        Stopwatch watch = Stopwatch.StartNew();
        try
        {
            CadAcadVersion version = DwgSamples.VersionOf(data);
            _ = version < CadAcadVersion.AC1012
                ? EarlyDwgReader.Read(data, MadeFiles.Name, options)
                : DwgLoader.Load(data, MadeFiles.Name, version, options);
            Interlocked.Increment(ref read);
        }
        catch (ImageLoadException failure) when (failure.Defect is { Place.Record.Length: > 0 })
        {
        }
        catch (Exception failure)
        {
            return failure.ToString();
        }

        long used = GC.GetAllocatedBytesForCurrentThread() - before;
        return used > MaxMemory + (MaxRatio * data.Length) ? $"{used} bytes for a file of {data.Length}"
            : watch.ElapsedMilliseconds > MaxMilliseconds ? $"{watch.ElapsedMilliseconds} ms" : null;
    }

    // The first bytes state the release.
    private static byte[] Mutate(byte[] whole, Random random)
    {
        const int first = 6;
        byte[] data = [.. whole];
        for (int i = random.Next(1, 5); i > 0; i--)
        {
            int at = random.Next(first, data.Length);
            switch (random.Next(8))
            {
                case 0 or 1:
                    data[at] ^= (byte)(1 << random.Next(8));
                    break;
                case 2 or 3:
                    byte[] value = BitConverter.GetBytes(random.GetItems(Extremes, 1)[0]);
                    value.AsSpan(0, Math.Min(1 << random.Next(4), data.Length - at)).CopyTo(data.AsSpan(at));
                    break;
                case 4:
                    int length = Math.Min(random.Next(1, 64), data.Length - at);
                    int from = random.Next(first, data.Length - length);
                    data.AsSpan(from, length).CopyTo(data.AsSpan(at));
                    break;
                case 5 when data.Length > 100:
                    data = [.. data[..at], .. data[Math.Min(data.Length, at + random.Next(1, 40))..]];
                    break;
                case 6:
                    data = [.. data[..at], .. new byte[random.Next(1, 40)], .. data[at..]];
                    break;
                default:
                    data[at] = (byte)random.Next(256);
                    break;
            }
        }

        return random.Next(8) == 0 ? data[..random.Next(first, data.Length)] : data;
    }

    // Wrong bytes of sections and objects whose checksums are right.
    private static DwgContent MutateContent(
        DwgContent content, (ulong Handle, byte[] Record, long HandleBits)[] records, Random random)
    {
        byte[] Changed(byte[] bytes) => bytes.Length < 8 ? bytes : Mutate(bytes, random);
        ObjectStore objects = new(content.Release);
        int wrong = random.Next(records.Length);
        for (int i = 0; i < records.Length; i++)
        {
            bool isWrong = i == wrong || random.Next(16) == 0;
            (ulong handle, byte[] record, long bits) = records[i];
            objects.Add(
                isWrong && random.Next(8) == 0 ? records[wrong].Handle : handle, isWrong ? Changed(record) : record,
                isWrong && random.Next(8) == 0 ? random.GetItems(Extremes, 1)[0] & 0x7FFF : bits);
        }

        return random.Next(4) switch
        {
            0 => content with { Header = Changed(content.Header.ToArray()) },
            1 => content with { Classes = Changed(content.Classes.ToArray()), Objects = objects },
            2 => content with { SummaryInfo = Changed(content.SummaryInfo), Objects = objects },
            _ => content with { Objects = objects },
        };
    }

    private static IEnumerable<(ulong Handle, byte[] Record, long HandleBits)> RecordsOf(DwgFile file)
    {
        for (int i = 0; i < file.Map.Count; i++)
        {
            (byte[] record, long bits) = DwgSamples.RecordOf(file, i);
            yield return (file.Map.Handles[i], record, bits);
        }
    }
    private static int Setting(string name, int value) => int.TryParse(
        Environment.GetEnvironmentVariable(name), NumberStyles.None, CultureInfo.InvariantCulture, out int stated)
        ? stated : value;
}
