using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Files whose sections are found by locators: cut, changed, and with locators that are wrong.</summary>
public class PlainContainerTests
{
    private const string FileHeader = "file header";
    private const int FirstLocator = 0x19;
    private const int LocatorLength = 9;
    private const int Map = 2;

    private static readonly string[] Names =
        ["AcDb:Header", "AcDb:Classes", ObjectMap.Section, "AcDb:ObjFreeSpace", "AcDb:Template", "AcDb:AuxHeader"];

    // An object that is whole before the cut is found by walking, whatever was lost after it.
    [Fact]
    public void Of_a_cut_file_the_objects_before_the_cut_are_read()
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        DwgFile whole = MadeFiles.Open(data);
        List<int> borders = [0x19, 0x60, .. Enumerable.Range(0, Names.Length).SelectMany(i => new[]
            { StartOf(data, i), StartOf(data, i) + LengthOf(data, i) })];
        borders.AddRange([.. whole.Map.Offsets.Take(4).Select(static one => (int)one)]);
        int last = borders.Max();
        foreach (int cut in borders.Where(static border => border > 6).SelectMany(static border => new[]
            { border - 1, border, border + 1 }))
        {
            byte[] part = data[..Math.Min(cut, last)];
            if (part.Length < last)
            {
                LoadDefect? defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(part)).Defect;
                Assert.Contains(defect!.Code, new[] { LoadDefectCode.Truncated, LoadDefectCode.CountTooLarge,
                    LoadDefectCode.WrongChecksum });
                Assert.Contains(defect.Place.Record, Names.Append(FileHeader));
            }

            if (part.Length >= FirstLocator)
            {
                DwgFile file = MadeFiles.Open(part, new LoadOptions { IgnoreErrors = true });
                Assert.Equal(whole.Map.Handles.Where((_, i) => EndOf(data, whole.Map.Offsets[i]) <= part.Length),
                    file.Map.Handles);
            }
        }
    }

    [DrawingTheory]
    [InlineData("lwg__r14_v.dwg")]
    [InlineData("lwg__2000_entities-2d.dwg")]
    public void Real_files_that_are_cut_keep_the_objects_before_the_cut(string name)
    {
        byte[] data = DwgSamples.Bytes(name);
        DwgFile whole = MadeFiles.Open(data);
        int cut = StartOf(data, Map) - 1000;
        DwgFile file = MadeFiles.Open(data[..cut], new LoadOptions { IgnoreErrors = true });
        ulong[] expected = [.. whole.Map.Handles.Where((_, i) => EndOf(data, whole.Map.Offsets[i]) <= cut)];
        Assert.NotEmpty(expected);
        Assert.All(expected, handle => Assert.Equal(whole.Map.Find(handle), file.Map.Find(handle)));
    }

    [Theory]
    [InlineData(FileHeader, 0x14)]
    [InlineData("AcDb:Header", 30)]
    [InlineData("AcDb:Classes", 20)]
    [InlineData(ObjectMap.Section, 9)]
    public void A_wrong_checksum_names_its_section_and_place(string section, int at)
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        DwgFile whole = MadeFiles.Open(data);
        int number = Array.IndexOf(Names, section);
        int start = number < 0 ? 0 : StartOf(data, number);
        data[start + at] ^= 4;
        (DwgFile file, List<LoadDefect> defects) = MadeFiles.VerifyDefect(data, LoadDefectCode.WrongChecksum, section);
        Assert.Single(defects);
        Assert.InRange(defects[0].Place.Offset, start, start + 0x60);
        Assert.Equal(whole.Header.Length, file.Header.Length);
        Assert.Equal(whole.Map.Handles.Length, file.Map.Handles.Intersect(whole.Map.Handles).Count());
    }

    // A locator costs its section, and that of the map not even the objects.
    [Theory]
    [InlineData(0, 0x7FFFFFFF, -1, nameof(LoadDefectCode.Truncated))]
    [InlineData(0, -1, -1, nameof(LoadDefectCode.Truncated))]
    [InlineData(1, -1, 0x7FFFFFFF, nameof(LoadDefectCode.Truncated))]
    [InlineData(1, 100, -1, nameof(LoadDefectCode.InvalidSection))]
    [InlineData(Map, -1, -2, nameof(LoadDefectCode.Truncated))]
    [InlineData(Map, 0x19, -1, nameof(LoadDefectCode.Truncated))]
    [InlineData(4, 0x7FFFFFFF, -1, nameof(LoadDefectCode.Truncated))]
    public void A_section_is_not_looked_for_beyond_the_file(int number, int start, int length, string code)
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        DwgFile whole = MadeFiles.Open(data);
        int place = FirstLocator + (number * LocatorLength) + 1;
        BitConverter.GetBytes(start == -1 && length == -1 ? uint.MaxValue : start == -1 ? (uint)StartOf(data, number)
            : (uint)start).CopyTo(data, place);
        BitConverter.GetBytes(length == -1 ? LengthOf(data, number) : length).CopyTo(data, place + 4);
        RestoreChecksum(data);
        (DwgFile file, _) = MadeFiles.VerifyDefect(data, Enum.Parse<LoadDefectCode>(code), Names[number]);
        Assert.Equal(number == 0, file.Header.IsEmpty);
        Assert.All(whole.Map.Handles, handle => Assert.Equal(whole.Map.Find(handle), file.Map.Find(handle)));
    }

    [Theory]
    [InlineData(0)]
    [InlineData(2)]
    [InlineData(33)]
    [InlineData(-1)]
    public void Numbers_of_locators_that_no_file_has_are_defects(int count)
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        BitConverter.GetBytes(count).CopyTo(data, 0x15);
        (DwgFile file, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(data, LoadDefectCode.CountTooLarge, FileHeader);
        Assert.Contains($"{(uint)count} section locators", defects[0].Cause);
        Assert.NotEqual(0, file.Map.Count);
        Assert.False(file.Header.IsEmpty);
    }

    [Fact]
    public void Of_two_locators_of_a_section_the_first_counts_and_one_that_is_missing_is_named()
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        data[FirstLocator + LocatorLength] = 0;
        RestoreChecksum(data);
        (DwgFile file, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(data, LoadDefectCode.InvalidSection, "AcDb:Classes");
        Assert.Equal("the file has no such section", Assert.Single(defects).Cause);
        Assert.False(file.Header.IsEmpty);
        Assert.True(file.Classes.IsEmpty);
    }

    [Fact]
    public void A_framed_section_without_its_sentinel_or_with_a_wrong_size_is_a_defect()
    {
        byte[] data = MadeFiles.Of(CadAcadVersion.AC1015);
        int start = StartOf(data, 0);
        byte[] sentinel = [.. data];
        sentinel[start] ^= 1;
        (DwgFile file, _) = MadeFiles.VerifyDefect(sentinel, LoadDefectCode.InvalidSection, "AcDb:Header");
        Assert.True(file.Header.IsEmpty);

        BitConverter.GetBytes(-1).CopyTo(data, start + Sentinels.Length);
        (file, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(data, LoadDefectCode.Truncated, "AcDb:Header");
        Assert.Contains("states 4294967295 bytes", defects[0].Cause);
        Assert.False(file.Header.IsEmpty);
    }

    private static int StartOf(byte[] data, int number) =>
        BitConverter.ToInt32(data, FirstLocator + (number * LocatorLength) + 1);

    private static int LengthOf(byte[] data, int number) =>
        BitConverter.ToInt32(data, FirstLocator + (number * LocatorLength) + 5);

    private static long EndOf(byte[] data, long record) => record + BitConverter.ToUInt16(data, (int)record) + 4;

    private static void RestoreChecksum(byte[] data)
    {
        const int end = FirstLocator + (6 * LocatorLength);
        BitConverter.GetBytes(PlainContainer.HeaderChecksum(data.AsSpan(0, end), 6)).CopyTo(data, end);
    }
}
