using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Files of release 2007 with wrong bytes, and with maps that lie.</summary>
public class EncodedContainerTests
{
    private const string Objects = "AcDb:AcDbObjects";
    private const string FileHeader = "file header";

    // The entities are those of the other releases, so that the files that these tests damage are right ones.
    [Fact]
    public void A_file_without_compression_is_read()
    {
        CadDrawing drawing = MadeFiles.Load(MadeFiles.Of(CadAcadVersion.AC1021));
        Assert.Equal(CadAcadVersion.AC1021, drawing.Version);
        Assert.Equal(
            MadeFiles.Describe(MadeFiles.Load(MadeFiles.Of(CadAcadVersion.AC1018))), MadeFiles.Describe(drawing));
        Assert.Equal("Plan", drawing.Header.SummaryInfo.Title);
    }

    // As many wrong bytes as half the parity of a block are corrected; the bytes of the blocks of a page alternate.
    [Fact]
    public void Wrong_bytes_are_corrected_up_to_a_number_and_then_name_their_section()
    {
        EncodedFile file = File();
        byte[] whole = file.Build();
        DwgFile expected = MadeFiles.Open(whole);
        List<(string Section, int Address, int Blocks, int Correctable)> pages = [(FileHeader, 0x80, 3, 8)];
        int mapBlocks = EncodedFile.BlocksOf(ReedSolomon.System, 16 * (file.Pages.Count + 2));
        pages.Add(("page map", file.Addresses[1], mapBlocks, 8));
        pages.Add(("section map", file.Addresses[2], 0, 8));
        pages.AddRange(file.Sections.SelectMany(section => section.Pages.Select(page =>
            (section.Name, file.Addresses[page.Number], EncodedFile.BlocksOf(ReedSolomon.Data, (int)page.Stored), 2))));
        foreach ((string section, int address, int blocks, int correctable) in pages)
        {
            int step = blocks > 0 ? blocks : (file.Addresses[1] - file.Addresses[2]) / ReedSolomon.BlockLength;
            byte[] data = [.. whole];
            for (int i = 0; i < correctable; i++)
            {
                data[address + (i * 5 * step)] ^= (byte)(0x11 + i);
            }

            DwgFile corrected = MadeFiles.Open(data);
            Assert.Equal(expected.Objects, corrected.Objects);
            Assert.Equal(expected.Header.ToArray(), corrected.Header.ToArray());

            data[address + (correctable * 5 * step)] ^= 0x77;
            LoadDefect defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(data)).Defect!;
            Assert.Equal((LoadDefectCode.WrongChecksum, section), (defect.Code, defect.Place.Record));
            Assert.Equal(address, defect.Place.Offset);
            LoadOptions options = new() { IgnoreErrors = true };
            DwgFile damaged = MadeFiles.Open(data, options);
            Assert.Equal(defect, options.Defects[0]);
            if (section.StartsWith("AcDb", StringComparison.Ordinal))
            {
                Assert.Equal(expected.Map.Count, damaged.Map.Handles.Intersect(expected.Map.Handles).Count());
            }
        }
    }

    [Theory]
    [InlineData(-1, nameof(LoadDefectCode.CountTooLarge))]
    [InlineData(long.MaxValue, nameof(LoadDefectCode.CountTooLarge))]
    [InlineData(1 << 20, nameof(LoadDefectCode.CountTooLarge))]
    [InlineData(0x280, nameof(LoadDefectCode.InvalidPage))] // the second page does not fit
    public void A_section_with_another_size_keeps_the_pages_that_fit(long size, string code)
    {
        EncodedFile file = File();
        byte[] expected = MadeFiles.Open(file.Build()).Objects;
        file[Objects] = file[Objects] with { Size = size };
        (DwgFile found, _) = MadeFiles.VerifyDefect(file.Build(), Enum.Parse<LoadDefectCode>(code), Objects);
        int kept = size == 0x280 ? 0x200 : expected.Length;
        Assert.Equal(expected.AsSpan(0, kept), found.Objects.AsSpan(0, kept));
    }

    [Theory]
    [InlineData("number", 4711, "page 4711 is not in the file")]
    [InlineData("number", 10, "page 10 is not in the file")] // a page of the section before, which is not enough
    [InlineData("start", -1, "begins at byte -1")]
    [InlineData("start", long.MaxValue, "begins at byte 9223372036854775807")]
    [InlineData("size", -1, "of -1 bytes")]
    [InlineData("size", long.MaxValue, "of 9223372036854775807 bytes")]
    [InlineData("stored", -1, "extends beyond the end")]
    [InlineData("stored", long.MaxValue, "extends beyond the end")]
    [InlineData("stored", 0x20000, "extends beyond the end")]
    [InlineData("stored", 0x100, "another checksum")]
    [InlineData("checksum", 1, "another checksum")]
    [InlineData("check", 1, "another checksum")]
    public void A_page_that_the_map_describes_wrongly_costs_itself(string field, long value, string cause)
    {
        EncodedFile file = File();
        byte[] expected = MadeFiles.Open(file.Build()).Objects;
        EncodedPage page = file[Objects].Pages[1];
        file[Objects].Pages[1] = field switch
        {
            "number" => page with { Number = value == 10 ? file[Objects].Pages[0].Number : value },
            "start" => page with { Start = value },
            "size" => page with { Size = value },
            "stored" => page with { Stored = value },
            "checksum" => page with { Checksum = page.Checksum ^ 1 },
            _ => page with { Check = page.Check ^ 1 },
        };
        cause = value == 10 ? cause.Replace("10", $"{file[Objects].Pages[0].Number}") : cause;
        LoadDefectCode code = field.StartsWith("check", StringComparison.Ordinal) || value == 0x100
            ? LoadDefectCode.WrongChecksum : LoadDefectCode.InvalidPage;
        (DwgFile found, List<LoadDefect> defects) = MadeFiles.VerifyDefect(file.Build(), code, Objects);
        Assert.Contains(cause, Assert.Single(defects).Cause);
        Assert.Equal(expected.AsSpan(0, 0x200), found.Objects.AsSpan(0, 0x200));
        Assert.Equal(expected.AsSpan(0x400), found.Objects.AsSpan(0x400, expected.Length - 0x400));
    }

    [Theory]
    [InlineData(-1)]
    [InlineData(long.MaxValue)]
    [InlineData(long.MinValue)]
    public void The_page_map_ends_with_a_page_that_cannot_be(long size)
    {
        EncodedFile file = File();
        int broken = file.Pages.Count - 1;
        file.Pages[broken] = (file.Pages[broken].Number, size);
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.InvalidPage, "page map");
        Assert.Contains($"a page of {size} bytes", defects[0].Cause);

        // The section map is after that page: sections are told by how they begin.
        Assert.Equal(MadeFiles.Open(File().Build()).Map.Handles, found.Map.Handles);
    }

    // What the header states about the maps, by the offset of the field.
    [Theory]
    [InlineData(0x38, -0x481, "page map")]
    [InlineData(0x38, long.MaxValue, "page map")]
    [InlineData(0x50, 0, "page map")]
    [InlineData(0x50, long.MaxValue, "page map")]
    [InlineData(0x58, -1, "page map")]
    [InlineData(0x58, int.MaxValue, "page map")]
    [InlineData(0x18, 0, "page map")]
    [InlineData(0x18, long.MaxValue, "page map")]
    [InlineData(0x80, 1, "page map")]
    [InlineData(0xC0, 4711, "section map")]
    [InlineData(0xB0, 0x10000, "section map")]
    [InlineData(0xC8, 1L << 30, "section map")]
    [InlineData(0xD0, 1, "section map")]
    public void A_map_that_the_header_describes_wrongly_is_named(int field, long value, string map)
    {
        EncodedFile file = File();
        file.ChangeHeader = header => BitConverter.GetBytes(value).CopyTo(header, field);
        byte[] data = file.Build();
        long before = GC.GetAllocatedBytesForCurrentThread();
        LoadDefect defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(data)).Defect!;
        Assert.Equal(map, defect.Place.Record);
        Assert.InRange(GC.GetAllocatedBytesForCurrentThread() - before, 0, 300L * data.Length);
    }

    [Theory]
    [InlineData(0x38)]
    [InlineData(0xC0)]
    public void The_copy_of_a_map_is_read_where_the_map_is_lost(int field)
    {
        EncodedFile file = File();
        DwgFile expected = MadeFiles.Open(file.Build());
        file.ChangeHeader = header => header[field] ^= 0x10;
        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile found = MadeFiles.Open(file.Build(), options);
        Assert.Equal(expected.Objects, found.Objects);
        Assert.Equal(expected.Map.Offsets, found.Map.Offsets);
        Assert.NotEmpty(options.Defects);
    }

    [Fact]
    public void A_cut_file_is_refused_and_its_pages_before_the_cut_are_read_while_the_maps_are_whole()
    {
        EncodedFile file = File();
        byte[] data = file.Build();
        foreach (int border in file.Addresses.Values.Append(EncodedHeader.FirstPage).Append(data.Length))
        {
            foreach (int cut in new[] { border - 1, border }.Where(cut => cut < data.Length))
            {
                LoadDefect defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(data[..cut])).Defect!;
                Assert.NotEqual("", defect.Place.Record);
                Exception? failure = Record.Exception(
                    () => MadeFiles.Open(data[..cut], new LoadOptions { IgnoreErrors = true }));
                Assert.Equal(cut < EncodedHeader.FirstPage, failure is ImageLoadException { Defect: not null });
            }
        }
    }

    // Before, within and behind pages, and within the header.
    [DrawingTheory]
    [InlineData(0x90, -1)]
    [InlineData(0x700, 1)]
    [InlineData(0x4000, -2)]
    [InlineData(0x9000, 3)]
    [InlineData(0x10000, -1)]
    public void Pages_are_found_where_lost_or_added_bytes_have_moved_them(int at, int count)
    {
        byte[] data = DwgSamples.Bytes("lwg__2007_Line.dwg");
        LoadOptions strict = new();
        DwgFile whole = DwgSamples.Open(data, "whole", strict);
        byte[] damaged = count < 0 ? [.. data[..at], .. data[(at - count)..]]
            : [.. data[..at], .. Enumerable.Repeat((byte)0x5A, count), .. data[at..]];
        LoadOptions options = new() { IgnoreErrors = true };

        DwgFile found = DwgSamples.Open(damaged, "damaged", options);

        Assert.Equal(whole.Objects, found.Objects);
        Assert.Equal(whole.Map.Count, found.Map.Count);
        Assert.NotEmpty(options.Errors);
        Assert.Throws<ImageLoadException>(() => DwgSamples.Open(damaged, "damaged", new LoadOptions()));
    }

    [Fact]
    public void Encrypted_sections_are_left_out_where_the_file_states_encryption()
    {
        EncodedFile file = File();
        file["AcDb:SummaryInfo"] = file["AcDb:SummaryInfo"] with { IsEncrypted = true };
        byte[] data = file.Build();
        Assert.NotEmpty(MadeFiles.Open(data).SummaryInfo);
        data[0x18] = 2;
        Assert.Empty(MadeFiles.Open(data).SummaryInfo);
    }

    private static EncodedFile File() => new(MadeFiles.ContentOf(MadeFiles.Drawing(), CadAcadVersion.AC1021));
}
