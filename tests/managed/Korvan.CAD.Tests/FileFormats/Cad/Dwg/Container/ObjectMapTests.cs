using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Maps of objects that are damaged or lie, and objects that are found without them.</summary>
public class ObjectMapTests
{
    [Fact]
    public void Each_part_counts_from_zero_and_an_empty_one_ends_the_map()
    {
        byte[] map = [.. Part((5, 100), (1, -40)), .. Part((7, 30)), .. Part(), .. Part((9, 9))];
        (ObjectMap read, List<LoadDefect> defects) = Read(map);
        Assert.Equal([5UL, 6, 7], read.Handles);
        Assert.Equal([100L, 60, 30], read.Offsets);
        Assert.Equal((60, -1, -1), (read.Find(6), read.Find(4), read.Find(8)));
        Assert.Empty(defects);
        Assert.False(read.IsDamaged);
    }

    [Fact]
    public void Handles_in_another_order_are_sorted_and_of_a_doubled_one_the_last_counts()
    {
        byte[] map = [.. Part((9, 10), (2, 10)), .. Part((5, 50)), .. Part((9, 70)), .. Part()];
        (ObjectMap read, List<LoadDefect> defects) = Read(map);
        Assert.Equal([5UL, 9, 11], read.Handles);
        Assert.Equal([50L, 70, 20], read.Offsets);
        Assert.Empty(defects);
    }

    // A large object that millions of handles lead to would be read millions of times.
    [Fact]
    public void Of_handles_that_lead_to_one_place_the_first_counts()
    {
        byte[] map = [.. Part((5, 100), (1, 0), (1, 0), (1, 30)), .. Part()];
        (ObjectMap read, List<LoadDefect> defects) = Read(map);
        Assert.Equal([5UL, 8], read.Handles);
        Assert.Equal([100L, 130], read.Offsets);
        LoadDefect defect = Assert.Single(defects);
        Assert.Equal((LoadDefectCode.DuplicateId, ObjectMap.Section), (defect.Code, defect.Place.Record));
        Assert.Contains("2 objects are where another one is, the last of them 7", defect.Cause);
        Assert.True(read.IsDamaged);
    }

    [Theory]
    [InlineData("", "Truncated")]
    [InlineData("00", "Truncated")]
    [InlineData("0001", "Truncated")] // smaller than its own size
    [InlineData("0100 0501", "Truncated")] // more than there is
    [InlineData("FFFF 0501", "Truncated")]
    [InlineData("0004 0585 0000 0002 0000", "Truncated WrongChecksum")] // a difference without an end
    public void Parts_that_are_not_whole_are_defects_at_their_place(string bytes, string codes)
    {
        byte[] first = Part((5, 100));
        (ObjectMap read, List<LoadDefect> defects) = Read(
            [.. first, .. Convert.FromHexString(bytes.Replace(" ", ""))]);
        Assert.Equal(codes, string.Join(' ', defects.Select(static defect => defect.Code)));
        Assert.Equal(1000 + first.Length, defects[0].Place.Offset);
        Assert.Equal([5UL], read.Handles);
        Assert.True(read.IsDamaged);
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1018)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Objects_are_found_without_their_map_and_not_in_other_data(CadAcadVersion version)
    {
        byte[] data = MadeFiles.Of(version);
        DwgFile whole = MadeFiles.Open(data);
        DwgFile file = MadeFiles.Open(data, new LoadOptions { IgnoreErrors = true });
        file.Map = ObjectMap.Empty;
        ObjectMap found = ObjectWalk.Complete(file, version == CadAcadVersion.AC1015 ? 0x60 : 4);
        Assert.Equal(whole.Map.Handles, found.Handles);
        Assert.Equal(whole.Map.Offsets, found.Offsets);

        // One that is damaged is left out, and those after it are found.
        file.Objects = [.. file.Objects];
        file.Objects[whole.Map.Offsets[30] + 6] ^= 1;
        found = ObjectWalk.Complete(file, version == CadAcadVersion.AC1015 ? 0x60 : 4);
        Assert.Equal(whole.Map.Handles.Where((_, i) => i != 30), found.Handles);
    }

    // Where each byte could begin a record that goes to the end, the search ends nevertheless.
    [Theory]
    [InlineData("FF 7F 00 43")]
    [InlineData("40 01 50 51 01 05")]
    [InlineData("00")]
    public void The_search_for_objects_ends_in_time(string pattern)
    {
        byte[] unit = Convert.FromHexString(pattern.Replace(" ", ""));
        DwgFile file = MadeFiles.Open(MadeFiles.Of(CadAcadVersion.AC1018));
        file.Objects = [.. Enumerable.Range(0, 2_000_000).Select(i => unit[i % unit.Length])];
        file.Map = ObjectMap.Empty;
        Stopwatch watch = Stopwatch.StartNew();
        Assert.Equal(0, ObjectWalk.Complete(file, 4).Count);
        Assert.InRange(watch.ElapsedMilliseconds, 0, 10_000);
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void A_million_small_objects_are_found(CadAcadVersion version)
    {
        const int count = 1_000_000;
        ObjectStore records = MadeFiles.Records(version == CadAcadVersion.AC1015 ? 2000 : 2018, count, 8);
        DwgFile file = MadeFiles.Open(MadeFiles.Write(MadeFiles.ContentOf(version, records)));
        Assert.Equal(count, file.Map.Count);
        for (int i = 0; i < count; i += 4999)
        {
            Assert.Equal((ulong)i + 1, file.Map.Handles[i]);
            Assert.True(file.HasRightChecksum(file.Map.Offsets[i], file.Map.Offsets[i]
                + (version == CadAcadVersion.AC1015 ? 10 : 11)));
        }
    }

    [Theory]
    [InlineData(0)]
    [InlineData(1)]
    [InlineData(0x7FFF)]
    [InlineData(0x8000)]
    [InlineData(100_000)]
    public void Records_of_each_length_are_found_again(int length)
    {
        foreach (int release in new[] { 2000, 2004, 2010 })
        {
            ObjectStore store = new(release);
            byte[] record = [.. Enumerable.Range(0, length).Select(static i => (byte)i)];
            store.Add(0x1234567890, record, 77);
            store.Add(2, [1, 2, 3], 1);
            (ObjectMap map, _) = Read(store.WriteMap(50));
            Assert.Equal([2UL, 0x1234567890UL], map.Handles);
            BitReader bits = new(store.ToArray(), (map.Offsets[1] - 50) << 3, long.MaxValue);
            Assert.Equal(length, bits.ModularShort());
            Assert.Equal(release == 2010 ? 77UL : 0, release == 2010 ? bits.UnsignedModularChar() : 0);
            Assert.Equal(record, bits.Bytes((long)length));
        }
    }

    private static (ObjectMap Map, List<LoadDefect> Defects) Read(byte[] data)
    {
        LoadOptions options = new() { IgnoreErrors = true };
        ObjectMap map = ObjectMap.Read(new DwgSource(new byte[10], "a", options), data, 1000);
        return (map, options.Defects);
    }

    private static byte[] Part(params (int Handle, int Offset)[] pairs)
    {
        BitWriter bits = new();
        foreach ((int handle, int offset) in pairs)
        {
            bits.UnsignedModularChar((ulong)handle);
            bits.ModularChar(offset);
        }

        int size = bits.Bytes.Length + 2;
        byte[] part = [(byte)(size >> 8), (byte)size, .. bits.Bytes];
        ushort checksum = Crc16.Compute(Crc16.Seed, part);
        return [.. part, (byte)(checksum >> 8), (byte)checksum];
    }
}
