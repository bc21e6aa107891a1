using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Files whose sections are in compressed pages: damaged, and with maps that lie.</summary>
public class PagedContainerTests
{
    private const string Objects = "AcDb:AcDbObjects";

    // Fields of the map of sections, from the start of that of a section on.
    private const int SizeField = 0;
    private const int PageCountField = 8;
    private const int PageSizeField = 12;
    private const int IdField = 24;
    private const int FirstPage = 96;
    private const int PageStart = FirstPage + 8;

    private static readonly byte[] Whole = MadeFiles.Of(CadAcadVersion.AC1018);

    [Fact]
    public void A_wrong_byte_anywhere_names_the_part_that_it_is_in()
    {
        DwgFile whole = MadeFiles.Open(Whole);
        PagedFile file = new(Whole);
        byte[] maps = file.Build();
        long map = FileHeader.Read(new DwgSource(maps, "a", new LoadOptions())).PageMapAddress;
        Verify("file header", FileHeader.Start, 0x60);
        Verify("page map", (int)map, SystemPage.HeaderLength + 2);
        Verify("section map", (int)map - 0x40, 0x10);
        foreach (SectionInfo section in file.Sections.Where(static section => section.Pages.Count > 0))
        {
            PageInfo page = section.Pages[^1];
            int address = (int)file.Addresses[page.Number];
            Verify(section.Name, address, SectionLoader.HeaderLength + ((int)page.Stored / 2));
            Verify(section.Name, address, 0x0C); // the size of the page, which only the checksum of the header covers
        }

        void Verify(string part, int address, int at)
        {
            byte[] data = [.. maps];
            data[address + at] ^= 0x10;
            (DwgFile found, List<LoadDefect> defects) =
                MadeFiles.VerifyDefect(data, LoadDefectCode.WrongChecksum, part);
            Assert.InRange(defects[0].Place.Offset, address - 0x800, address);
            Assert.Equal(whole.Map.Count, found.Map.Handles.Intersect(whole.Map.Handles).Count());
            Assert.True(part is Objects || whole.Objects.AsSpan().SequenceEqual(found.Objects), part);
            Assert.Equal(whole.Header.Length, found.Header.Length);
        }
    }

    // The maps are at the end, so that any cut loses them: the pages before it tell where they belong.
    [Fact]
    public void Of_a_cut_file_the_sections_before_the_cut_are_read()
    {
        DwgFile whole = MadeFiles.Open(Whole);
        PagedFile file = new(Whole);
        int[] borders = [.. file.Addresses.Values.Select(static one => (int)one).Append(FileHeader.FirstPage)];
        foreach (int cut in borders.SelectMany(static border => new[] { border - 1, border, border + 0x1F }))
        {
            byte[] data = Whole[..cut];
            Assert.NotNull(Assert.Throws<ImageLoadException>(() => MadeFiles.Open(data)).Defect);
            if (cut < FileHeader.FirstPage)
            {
                continue;
            }

            DwgFile found = MadeFiles.Open(data, new LoadOptions { IgnoreErrors = true });
            bool IsBefore(string name) => file[name].Pages.TrueForAll(
                page => file.Addresses[page.Number] + SectionLoader.HeaderLength + page.Stored <= cut);
            Assert.Equal(IsBefore("AcDb:Header") ? whole.Header.ToArray() : [], found.Header.ToArray());
            Assert.Equal(IsBefore("AcDb:Classes") ? whole.Classes.ToArray() : [], found.Classes.ToArray());
            Assert.Equal(IsBefore(Objects) ? whole.Map.Handles : [], found.Map.Handles);
        }
    }

    [Theory]
    [InlineData(SizeField, -1, nameof(LoadDefectCode.CountTooLarge), "states 4294967295 bytes")]
    [InlineData(SizeField, int.MaxValue, nameof(LoadDefectCode.CountTooLarge), "states 2147483647 bytes")]
    [InlineData(SizeField + 4, -1, nameof(LoadDefectCode.CountTooLarge), "bytes in 1 pages")]
    [InlineData(PageSizeField, 0, nameof(LoadDefectCode.CountTooLarge), "the pages of the file hold 0")]
    [InlineData(IdField, 99, nameof(LoadDefectCode.InvalidPage), "not where the page map states, or not whole")]
    [InlineData(FirstPage, 4711, nameof(LoadDefectCode.InvalidPage), "page 4711 is not where the page map states")]
    [InlineData(FirstPage, -1, nameof(LoadDefectCode.InvalidPage), "page -1 is not where the page map states")]
    [InlineData(FirstPage, 1, nameof(LoadDefectCode.InvalidPage), "page 1 is not where")] // but another section
    [InlineData(PageStart, int.MaxValue, nameof(LoadDefectCode.InvalidPage), "begins at byte 2147483647 of a section")]
    [InlineData(PageStart + 4, -1, nameof(LoadDefectCode.InvalidPage), "of a section")]
    public void A_section_that_the_map_describes_wrongly_is_named(int field, int value, string code, string cause)
    {
        PagedFile file = new(Whole);
        file.Put(file.PlaceOf("AcDb:Template") + field, value);
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), Enum.Parse<LoadDefectCode>(code), "AcDb:Template");
        Assert.Contains(cause, defects[0].Cause);
        Assert.Equal(MadeFiles.Open(Whole).Objects, found.Objects);
        byte[] template = MadeFiles.Open(Whole).Template;
        bool isFound = field is SizeField or SizeField + 4 or FirstPage;
        Assert.Equal(isFound ? template : [], found.Template[..(isFound ? template.Length : 0)]);
    }

    // All sections after the one with too many pages are read as pages of it; those that matter are guessed.
    [Theory]
    [InlineData(-1)]
    [InlineData(100_000)]
    public void Sections_that_the_map_loses_are_found_by_their_pages(int count)
    {
        DwgFile whole = MadeFiles.Open(Whole);
        PagedFile file = new(Whole);
        file.Put(file.PlaceOf("AcDb:Template") + PageCountField, count);
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.Truncated, "section map");
        Assert.Contains("but ends after", defects[0].Cause);
        Assert.Equal(whole.Map.Handles, found.Map.Handles);
        Assert.Equal(whole.Header.ToArray(), found.Header.ToArray());

        file.Put(file.PlaceOf("AcDb:Template") + PageCountField, 1);
        file.Put(0, count);
        (found, _) = MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.Truncated, "section map");
        Assert.Equal(whole.Template, found.Template);
    }

    [Theory]
    [InlineData(0)] // all later pages begin where this one does
    [InlineData(0x20)] // the next one begins within it
    [InlineData(0x4000)]
    [InlineData(-1)]
    public void Pages_that_the_page_map_misplaces_are_found(int size)
    {
        PagedFile file = new(Whole);
        int at = file.Pages.FindIndex(page => page.Number == file[Objects].Pages[0].Number) - 1;
        file.Pages[at] = (file.Pages[at].Number, size);
        byte[] data = file.Build();
        LoadDefect defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(data)).Defect!;
        Assert.Equal(LoadDefectCode.InvalidPage, defect.Code);
        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile found = MadeFiles.Open(data, options);
        DwgFile whole = MadeFiles.Open(Whole);
        Assert.NotEmpty(options.Defects);
        Assert.Equal(whole.Map.Handles, found.Map.Handles);
        Assert.Equal(whole.Objects, found.Objects.AsSpan(0, whole.Objects.Length));
        Assert.Equal(whole.Header.ToArray(), found.Header.ToArray());
    }

    [Fact]
    public void Gaps_take_room_and_a_number_that_is_stated_again_does_not_count()
    {
        PagedFile file = new(Whole);
        DwgFile whole = MadeFiles.Open(Whole);
        (int number, int size) = file.Pages[3];
        file.Pages[3] = (number, size - 0x20);
        file.Pages.Insert(4, (-7, 0x20));
        file.Pages.Add((number, 0));
        DwgFile found = MadeFiles.Open(file.Build());
        Assert.Equal(whole.Objects, found.Objects);
        Assert.Equal(whole.SummaryInfo, found.SummaryInfo);

        file.Pages.RemoveAt(4);
        Assert.Throws<ImageLoadException>(() => MadeFiles.Open(file.Build()));
    }

    [Theory]
    [InlineData("stored", -1)]
    [InlineData("stored", 0x100000)]
    [InlineData("section", 77)]
    [InlineData("type", 0x4163003B)]
    public void A_page_whose_header_lies_is_not_read(string field, int value)
    {
        PagedFile file = new(Whole);
        int page = file["AcDb:Template"].Pages[0].Number;
        file.ChangePage(page, (ref DataPageHeader header) => _ = field switch
        {
            "stored" => header.Stored = (uint)value,
            "section" => (uint)(header.Section = value),
            _ => (uint)(header.Type = value),
        });
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.InvalidPage, "AcDb:Template");
        Assert.Equal($"page {page} is not where the page map states, or not whole", Assert.Single(defects).Cause);
        Assert.Equal(file.Addresses[page], defects[0].Place.Offset);
        Assert.Equal([0, 0, 0, 0], found.Template);
    }

    [Fact]
    public void Compressed_data_that_runs_over_is_a_defect_of_its_page()
    {
        PagedFile file = new(Whole);
        int page = file["AcDb:Template"].Pages[0].Number;
        file.ChangeData(page, 0x01, 1, 2, 3, 4, 0x21, 0xFC, 0xFF); // a match before the start
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.InvalidCompression, "AcDb:Template");
        Assert.Equal($"page {page} cannot be decompressed", Assert.Single(defects).Cause);
        Assert.Equal([1, 2, 3, 4], found.Template);
    }

    [Theory]
    [InlineData(0)]
    [InlineData(100)]
    [InlineData(int.MaxValue)]
    public void A_map_with_another_size_than_its_page_states_is_a_defect(int size)
    {
        PagedFile file = new(Whole) { StatedMapSize = size };
        LoadDefect defect = Assert.Throws<ImageLoadException>(() => MadeFiles.Open(file.Build())).Defect!;
        Assert.Equal("section map", defect.Place.Record);
        DwgFile found = MadeFiles.Open(file.Build(), new LoadOptions { IgnoreErrors = true });
        Assert.Equal(MadeFiles.Open(Whole).Map.Handles, found.Map.Handles);
    }

    [Theory]
    [InlineData(0x54, -0x101, "page map")]
    [InlineData(0x54, int.MaxValue, "page map")]
    [InlineData(0x54, 0, "page map")] // a data page
    [InlineData(0x5C, 4711, "section map")]
    [InlineData(0x5C, 1, "section map")]
    public void Maps_that_the_header_misplaces_are_found(int field, int value, string map)
    {
        PagedFile file = new(Whole)
        {
            ChangeHeader = header => BitConverter.GetBytes((long)value).AsSpan(
            0, field == 0x54 ? 8 : 4).CopyTo(header.AsSpan(field))
        };
        (DwgFile found, _) = MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.InvalidPage, map);
        DwgFile whole = MadeFiles.Open(Whole);
        Assert.Equal(whole.SummaryInfo, found.SummaryInfo);
        Assert.Equal(whole.Map.Handles, found.Map.Handles);
        Assert.Equal(whole.Header.ToArray(), found.Header.ToArray());
    }

    // Each page would be the content of a section again and again: a small file would be decompressed for hours.
    [Fact]
    public void Pages_that_are_stated_again_are_decompressed_once()
    {
        PagedFile file = new(Whole);
        SectionInfo section = file["AcDb:Template"];
        int place = file.PlaceOf(section.Name);
        const int more = 100_000;
        List<byte> map = [.. file.SectionMap];
        byte[] page = [.. map[(place + FirstPage)..(place + FirstPage + 16)]];
        map.InsertRange(place + FirstPage, Enumerable.Repeat(page, more).SelectMany(static one => one));
        file.SectionMap = [.. map];
        file.Put(place + PageCountField, more + 1);
        (DwgFile found, List<LoadDefect> defects) =
            MadeFiles.VerifyDefect(file.Build(), LoadDefectCode.InvalidPage, section.Name);
        Assert.Contains($"as are {more - 1} more", Assert.Single(defects).Cause);
        Assert.Equal(MadeFiles.Open(Whole).Template, found.Template);
    }

    // Without maps, each page is a section of its own for who looks at the headers only.
    [Fact]
    public void Many_headers_of_pages_are_searched_in_time()
    {
        const int count = 60_000;
        byte[] data = [.. Whole[..FileHeader.FirstPage], .. new byte[count * SectionLoader.HeaderLength]];
        for (int i = 0; i < count; i++)
        {
            DataPageHeader header = new() { Type = SectionLoader.PageType, Section = i, Start = (uint)i };
            int address = FileHeader.FirstPage + (i * SectionLoader.HeaderLength);
            header.Checksum = header.ExpectedChecksum();
            header.ApplyMask(address);
            System.Runtime.InteropServices.MemoryMarshal.Write(data.AsSpan(address), in header);
        }

        System.Diagnostics.Stopwatch watch = System.Diagnostics.Stopwatch.StartNew();
        DwgFile found = MadeFiles.Open(data, new LoadOptions { IgnoreErrors = true });
        Assert.Equal(0, found.Map.Count);
        Assert.InRange(watch.ElapsedMilliseconds, 0, 5000);
    }
}
