using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Damaged files: a named error, or defects; nothing else, in time and memory in proportion to the
/// file.</summary>
public class DamagedContainerTests
{
    private const long MaxMemory = 200_000_000;
    private const int MaxMilliseconds = 5000;

    [DrawingTheory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    public void Cut_and_changed_files_are_read_or_refused(int seed)
    {
        Random random = new(seed);
        foreach (string name in DwgSamples.Small)
        {
            byte[] data = DwgSamples.Bytes(name);
            for (int round = 0; round < 60; round++)
            {
                byte[] changed = Change(data, random, round);
                foreach (bool isTolerant in new[] { false, true })
                {
                    Verify(changed, name, isTolerant, $"seed {seed}, round {round}, tolerant {isTolerant}");
                }
            }
        }
    }

    [DrawingFact]
    public void A_changed_byte_of_a_page_is_a_defect_that_names_the_section()
    {
        byte[] data = DwgSamples.Bytes("lwg__sample_2018.dwg");
        data[data.Length / 2] ^= 0x10;
        ImageLoadException failure = Assert.Throws<ImageLoadException>(
            () => DwgSamples.Open(data, "plan.dwg", new LoadOptions()));
        Assert.Equal(LoadDefectCode.WrongChecksum, failure.Defect!.Code);
        Assert.Contains("'plan.dwg', byte ", failure.Message, StringComparison.Ordinal);
        Assert.Contains("AcDb:AcDbObjects: page ", failure.Message, StringComparison.Ordinal);

        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = DwgSamples.Open(data, "plan.dwg", options);
        Assert.Single(options.Defects);
        Assert.Equal(143, file.Map.Count);
    }

    [DrawingFact]
    public void A_changed_byte_of_an_object_is_a_defect_that_names_its_handle()
    {
        byte[] data = DwgSamples.Bytes("lwg__2000_entities-2d.dwg");
        DwgFile file = DwgSamples.Open(data, "a", new LoadOptions());
        data[file.Map.Offsets[^1] + 8] ^= 0x20;
        ImageLoadException failure = Assert.Throws<ImageLoadException>(
            () => Image.Load(new MemoryStream(data), "plan.dwg", new LoadOptions()));
        Assert.Equal(LoadDefectCode.WrongChecksum, failure.Defect!.Code);
        Assert.Equal(file.Map.Offsets[^1], failure.Defect.Place.Offset);
        Assert.Contains($"object {file.Map.Handles[^1]:X}", failure.Message, StringComparison.Ordinal);
        LoadOptions options = new() { IgnoreErrors = true };
        using Image image = Image.Load(new MemoryStream(data), "plan.dwg", options);
        Assert.Contains("AcDb:AcDbObjects", options.Errors[0], StringComparison.Ordinal);
    }

    // Objects that no handle leads to any more are in the file as well.
    [DrawingTheory]
    [InlineData("lwg__r14_v.dwg")]
    [InlineData("lwg__2000_entities-2d.dwg")]
    [InlineData("lwg__sample_2018.dwg")]
    public void Objects_are_found_without_their_map(string name)
    {
        byte[] data = DwgSamples.Bytes(name);
        DwgFile intact = DwgSamples.Open(data, name, new LoadOptions());
        if (intact.Release <= 2000)
        {
            Array.Clear(data, BitConverter.ToInt32(data, 0x19 + 19), BitConverter.ToInt32(data, 0x19 + 23));
        }
        else
        {
            ClearPages(data, "AcDb:Handles");
        }

        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = DwgSamples.Open(data, name, options);
        Assert.NotEmpty(options.Defects);
        Assert.All(intact.Map.Handles, handle => Assert.Contains(handle, file.Map.Handles));
        Assert.True(intact.Map.Handles.Count(handle => intact.Map.Find(handle) == file.Map.Find(handle))
            > 0.9 * intact.Map.Count);
    }

    [DrawingTheory]
    [InlineData(true)]
    [InlineData(false)]
    public void Sections_are_found_without_the_maps(bool keepsSectionMap)
    {
        byte[] data = DwgSamples.Bytes("tika__testDWG2004.dwg");
        DwgFile intact = DwgSamples.Open(data, "a", new LoadOptions());
        Array.Clear(data, (int)PageScan.FindSystemPage(data, SystemPage.PageMapType), 0x40);
        if (!keepsSectionMap)
        {
            Array.Clear(data, (int)PageScan.FindSystemPage(data, SystemPage.SectionMapType), 0x40);
        }

        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = DwgSamples.Open(data, "a", options);
        Assert.NotEmpty(options.Defects);
        Assert.Equal(intact.Header.ToArray(), file.Header.ToArray());
        Assert.Equal(intact.Classes.ToArray(), file.Classes.ToArray());
        Assert.Equal(intact.Map.Handles, file.Map.Handles);
        Assert.Equal(intact.Objects, file.Objects.AsSpan(0, intact.Objects.Length));
        Assert.Equal(keepsSectionMap ? intact.SummaryInfo : [], file.SummaryInfo);
    }

    // Two wrong bytes of each block of a data page, and eight of the file header, can be corrected.
    [DrawingFact]
    public void The_code_of_release_2007_corrects_wrong_bytes()
    {
        byte[] data = DwgSamples.Bytes("lwg__2007_Line.dwg");
        DwgFile intact = DwgSamples.Open(data, "a", new LoadOptions());
        for (int i = 0; i < 8; i++)
        {
            data[0x80 + (30 * i * 3)] ^= (byte)(1 + (17 * i));
        }

        data[^0x3000] ^= 0xFF;
        data[^0x2FF0] ^= 0x55;
        DwgFile file = DwgSamples.Open(data, "a", new LoadOptions());
        Assert.Equal(intact.Objects, file.Objects);
        Assert.Equal(intact.Map.Offsets, file.Map.Offsets);

        data[0x80 + 3] ^= 1;
        data[0x80 + 6] ^= 1;
        data[0x80 + 9] ^= 1;
        Assert.Throws<ImageLoadException>(() => DwgSamples.Open(data, "a", new LoadOptions()));
    }

    // The file header of release 2007 has a copy at the end of the file, where the section map is, too.
    [DrawingTheory]
    [InlineData("lwg__2007_Line.dwg")]
    [InlineData("lwg__example_2007.dwg")]
    public void Objects_of_release_2007_are_found_without_the_header_or_the_end(string name)
    {
        byte[] data = DwgSamples.Bytes(name);
        DwgFile intact = DwgSamples.Open(data, "a", new LoadOptions());
        byte[] damaged = [.. data];
        damaged.AsSpan(0x80, 0x400).Fill(0x55);
        DwgFile file = DwgSamples.Open(damaged, "a", new LoadOptions { IgnoreErrors = true });
        Assert.Equal(intact.Objects, file.Objects);
        Assert.Equal(intact.Map.Handles, file.Map.Handles);

        file = DwgSamples.Open(data[..^0x2000], "a", new LoadOptions { IgnoreErrors = true });
        int found = file.Map.Handles.Intersect(intact.Map.Handles).Count();
        Assert.True(found > 0.9 * intact.Map.Count, $"{found} of {intact.Map.Count} objects");
    }

    // Bytes too many or too few move what is after them.
    [DrawingTheory]
    [InlineData("lwg__r14_v.dwg", 1)]
    [InlineData("lwg__example_2000.dwg", 1)]
    [InlineData("lwg__example_2000.dwg", -1)]
    public void Objects_that_were_moved_are_found(string name, int by)
    {
        byte[] data = DwgSamples.Bytes(name);
        DwgFile intact = DwgSamples.Open(data, "a", new LoadOptions());
        int middle = data.Length / 2;
        byte[] moved = by > 0 ? [.. data[..middle], .. new byte[by], .. data[middle..]]
            : [.. data[..middle], .. data[(middle - by)..]];
        DwgFile file = DwgSamples.Open(moved, "a", new LoadOptions { IgnoreErrors = true });
        int found = Enumerable.Range(0, intact.Map.Count).Count(i => file.Map.Find(intact.Map.Handles[i])
            is >= 0 and var at && (at == intact.Map.Offsets[i] || at == intact.Map.Offsets[i] + by));
        Assert.True(found > 0.98 * intact.Map.Count, $"{found} of {intact.Map.Count} objects");
    }

    [Theory]
    [InlineData(16)]
    [InlineData(4)]
    public void As_many_wrong_bytes_as_half_the_parity_are_corrected(int parity)
    {
        ReedSolomon code = parity == 4 ? ReedSolomon.Data : ReedSolomon.System;
        Random random = new(parity);
        for (int round = 0; round < 100; round++)
        {
            byte[] block = new byte[ReedSolomon.BlockLength]; // zeros are a valid block of every linear code
            int[] places = [.. Enumerable.Range(0, block.Length).OrderBy(_ => random.Next()).Take(parity / 2)];
            Array.ForEach(places, place => block[place] = (byte)random.Next(1, 256));
            Assert.True(code.Correct(block));
            Assert.All(block, static one => Assert.Equal(0, one));
        }
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1018)]
    [InlineData(CadAcadVersion.AC1021)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Encrypted_files_are_refused_by_name(CadAcadVersion version)
    {
        byte[] data = MadeFiles.Of(version);
        data[0x18] |= 1;
        ImageLoadException failure = Assert.Throws<ImageLoadException>(
            () => MadeFiles.Open(data, new LoadOptions { IgnoreErrors = true }));
        Assert.Equal(LoadDefectCode.Encrypted, failure.Defect!.Code);
        Assert.Contains("password", failure.Message, StringComparison.Ordinal);
    }

    private static void ClearPages(byte[] data, string name)
    {
        DwgSource source = new(data, "a", new LoadOptions());
        FileHeader header = FileHeader.Read(source);
        Dictionary<int, long> pages = PageMap.Read(source, header);
        SectionInfo section = SectionMap.Read(source, pages[header.SectionMapPage]).Find(one => one.Name == name)!;
        section.Pages.ForEach(page => Array.Clear(data, (int)pages[page.Number] + 0x20, (int)page.Stored));
    }

    private static void Verify(byte[] data, string name, bool isTolerant, string what)
    {
        LoadOptions options = new() { IgnoreErrors = isTolerant };
        long before = GC.GetAllocatedBytesForCurrentThread();
        Stopwatch watch = Stopwatch.StartNew();
        Exception? failure = Record.Exception(() => DwgSamples.Open(data, name, options));
        Assert.True(failure is null or ImageLoadException { Defect: not null }, $"{name}, {what}: {failure}");
        Assert.True(watch.ElapsedMilliseconds < MaxMilliseconds, $"{name}, {what}: {watch.ElapsedMilliseconds} ms");
        long used = GC.GetAllocatedBytesForCurrentThread() - before;
        Assert.True(used < MaxMemory, $"{name}, {what}: {used} bytes");
    }

    private static byte[] Change(byte[] data, Random random, int round)
    {
        byte[] changed = round % 4 == 0 ? data[..random.Next(6, data.Length)] : [.. data];
        for (int i = random.Next(1, 6); i > 0 && round % 4 != 0; i--)
        {
            // The sizes and counts are at the start and the end.
            int place = random.Next(3) switch
            {
                0 => random.Next(6, 0x500),
                1 => random.Next(Math.Max(6, changed.Length - 0x800), changed.Length),
                _ => random.Next(6, changed.Length),
            };
            changed[place] = random.Next(3) switch
            {
                0 => (byte)(changed[place] ^ (1 << random.Next(8))),
                1 => 0xFF,
                _ => (byte)random.Next(256),
            };
        }

        return changed;
    }
}
