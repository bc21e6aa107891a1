using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg;

/// <summary>Drawings with damaged objects: what is lost with them, and what is not.</summary>
public class DrawingDamageTests
{
    public static TheoryData<CadAcadVersion> Versions => MadeFiles.EachVersion;

    // Whatever the object is, no entity of model space but itself is lost, and the defect names it.
    [Theory]
    [MemberData(nameof(Versions))]
    public void A_damaged_object_costs_itself(CadAcadVersion version)
    {
        Content whole = new(version);
        HashSet<string> expected = [.. Points(MadeFiles.Load(whole.Build()))];
        Assert.Equal(20, expected.Count);
        for (int i = 0; i < whole.Records.Count; i++)
        {
            Content content = new(version);
            (ulong handle, byte[] record, long bits) = content.Records[i];
            content.Records[i] = (handle, [0xFF, 0xFF, .. record.AsSpan(2, record.Length / 2)], bits);
            byte[] data = content.Build();
            Exception? failure = Record.Exception(() => MadeFiles.Load(data));
            Assert.True(failure is null or ImageLoadException { Defect: not null }, $"{handle:X}: {failure}");
            LoadOptions options = new() { IgnoreErrors = true };
            List<string> found = [.. Points(MadeFiles.Load(data, options))];
            Assert.True(found.Count >= 19 && found.TrueForAll(expected.Contains), $"{handle:X}: {found.Count} points");
            Assert.Contains(options.Errors, error => error.Contains($" {handle:X}", StringComparison.Ordinal));
        }
    }

    [Theory]
    [MemberData(nameof(Versions))]
    public void A_defect_names_section_object_and_bit(CadAcadVersion version)
    {
        Content content = new(version);
        int line = content.IndexOf(static one => one is CadLine);
        (ulong handle, byte[] record, _) = content.Records[line];
        content.Records[line] = (handle, record[..12], 0);
        LoadOptions options = new() { IgnoreErrors = true };
        CadDrawing drawing = MadeFiles.Load(content.Build(), options);
        Assert.DoesNotContain(drawing.ModelSpace.Entities, static entity => entity is CadLine);
        Assert.Contains(options.Defects, defect => defect.Place.Record == $"AcDb:AcDbObjects, LINE {handle:X}"
            && defect.Cause.StartsWith("bit ", StringComparison.Ordinal));
    }

    [Theory]
    [MemberData(nameof(Versions))]
    public void Handles_that_lead_nowhere_leave_the_default(CadAcadVersion version)
    {
        Content content = new(version);
        ulong walls = content.Drawing.Layers.Items.Find(static layer => layer.Name == "Walls")!.Handle;
        int line = content.IndexOf(static one => one is CadLine);
        content.Redirect(line, walls, 0xEE);
        CadDrawing drawing = MadeFiles.Load(content.Build());
        Assert.Equal("0", drawing.ModelSpace.Entities.OfType<CadLine>().Single().LayerName);
        Assert.Equal(24, drawing.ModelSpace.Entities.Count - 1);
    }

    // References to objects of another class: a layer that is a text style, an owner that is a point.
    [Theory]
    [MemberData(nameof(Versions))]
    public void Handles_that_lead_to_another_class_do_not_hurt(CadAcadVersion version)
    {
        Content whole = new(version);
        ulong[] handles = [.. whole.Records.Select(static one => one.Handle)];
        ulong point = whole.Records[whole.IndexOf(static one => one is CadPoint)].Handle;
        foreach (ulong from in handles)
        {
            Content content = new(version);
            for (int i = 0; i < content.Records.Count; i++)
            {
                content.Redirect(i, from, point);
            }

            foreach (bool isTolerant in new[] { false, true })
            {
                LoadOptions options = new() { IgnoreErrors = isTolerant };
                Exception? failure = Record.Exception(() => MadeFiles.Load(content.Build(), options));
                Assert.True(failure is null or ImageLoadException { Defect: not null }, $"{from:X}: {failure}");
                Assert.True(failure is null || !isTolerant, $"{from:X}: {failure}");
            }
        }
    }

    // In release 2000, each entity states the one after it.
    [Theory]
    [InlineData(0)]
    [InlineData(3)]
    public void Entities_that_are_linked_in_a_circle_are_read_once(int from)
    {
        Content content = new(CadAcadVersion.AC1015);
        List<string> expected = [.. Points(MadeFiles.Load(content.Build()))];
        ulong[] linked = [.. content.Drawing.ModelSpace.Entities.Select(static one => one.Handle)];
        content.Redirect(content.IndexOf(linked[from]), linked[from + 1], linked[0]);
        CadDrawing drawing = MadeFiles.Load(content.Build());
        Assert.Equal(expected.Order(), Points(drawing).Order());
        Assert.Equal(25, drawing.ModelSpace.Entities.Count);
    }

    [Theory]
    [MemberData(nameof(Versions))]
    public void A_block_whose_record_states_another_handle_than_the_map_is_read(CadAcadVersion version)
    {
        Content content = new(version);
        foreach (CadBlockTableObject record in content.Drawing.BlockRecords.Items)
        {
            Content changed = new(version);
            changed.Redirect(changed.IndexOf(record.Handle), record.Handle, 0xEE);
            CadDrawing drawing = MadeFiles.Load(changed.Build(), new LoadOptions { IgnoreErrors = true });
            Assert.NotNull(drawing.BlockEntities.Find(record.Name));
            Assert.Equal(20, Points(drawing).Count());
        }
    }

    // What damaged sizes add up to is not taken from the objects after them.
    [Theory]
    [MemberData(nameof(Versions))]
    public void Damaged_sizes_cost_no_objects_but_their_own(CadAcadVersion version)
    {
        const int damaged = 8;
        const int length = 8;
        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = MadeFiles.Open(new Content(version).Build(), options);
        byte[] objects = [.. new byte[damaged * length], .. file.Objects];
        for (int at = 0; at < damaged * length; at += length)
        {
            // The size of all that follows, fifteen bits every two bytes.
            int size = objects.Length - at - length;
            BitConverter.TryWriteBytes(objects.AsSpan(at), (ushort)(0x8000 | (size & 0x7FFF)));
            BitConverter.TryWriteBytes(objects.AsSpan(at + 2), (ushort)(size >> 15));
        }

        file.Objects = objects;
        file.Map = new ObjectMap(file.Map.Handles, [.. file.Map.Offsets.Select(
            static (offset, index) => index < damaged ? index * length : offset + (damaged * length))]);
        CadDrawing drawing = new(DrawingSeed.Blank);
        new DwgReader(file, drawing).Read();
        Assert.Equal(20, Points(drawing).Count());
    }

    // Both maps are right for a reader that asks for one object at a time.
    [Theory]
    [MemberData(nameof(Versions))]
    public void Objects_that_overlap_are_not_read_again_and_again(CadAcadVersion version)
    {
        Content content = new(version);
        ObjectStore store = new(content.Release);
        byte[] large = new byte[0x4000];
        for (int i = 0; i < large.Length; i += 2)
        {
            (large[i], large[i + 1]) = (0x00, 0x10); // each pair is the size of a record
        }

        store.Add(1, large, 0);
        DwgFile file = MadeFiles.Open(MadeFiles.Write(MadeFiles.ContentOf(version, store)));
        long start = file.Map.Offsets[0] + (content.Release < 2010 ? 8 : 9);
        LoadOptions options = new() { IgnoreErrors = true };
        ObjectMap map = new(
            [.. Enumerable.Range(1, 4000).Select(static i => (ulong)i)],
            [.. Enumerable.Range(0, 4000).Select(i => start + (2 * i))]);
        DwgFile overlapping = MadeFiles.Open(MadeFiles.Write(MadeFiles.ContentOf(version, store)), options);
        overlapping.Map = map;
        new DwgReader(overlapping, new CadDrawing(DrawingSeed.Blank)).Read();
        Assert.Contains(options.Errors, static error => error.Contains("overlaps other objects"));
    }

    [Theory]
    [InlineData(-1)]
    [InlineData(long.MinValue)]
    [InlineData(long.MaxValue)]
    [InlineData(1L << 61)] // whose bits have no number
    [InlineData(1 << 30)]
    public void An_object_outside_of_the_file_is_named(long offset)
    {
        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = MadeFiles.Open(MadeFiles.Of(CadAcadVersion.AC1018), options);
        file.Map = new ObjectMap([.. file.Map.Handles, 0xABC], [.. file.Map.Offsets, offset]);
        new DwgReader(file, new CadDrawing(DrawingSeed.Blank)).Read();
        Assert.Contains($"object ABC: bit 0: it is at byte {offset} of", Assert.Single(options.Errors));
    }

    // How much of a real file is left where a page of it, or as many bytes, are overwritten.
    [DrawingTheory]
    [InlineData("lwg__example_r14.dwg", 0.55)]
    [InlineData("lwg__example_2000.dwg", 0.55)]
    [InlineData("lwg__example_2004.dwg", 0.55)]
    [InlineData("lwg__example_2007.dwg", 0.55)]
    [InlineData("lwg__example_2018.dwg", 0.55)]
    public void Most_of_a_real_file_is_left_without_a_page(string name, double share)
    {
        byte[] data = DwgSamples.Bytes(name);
        int whole = Count(MadeFiles.Load(data, new LoadOptions { IgnoreErrors = true }));
        int pages = 0;
        double left = 0;
        for (int start = 0x480; start + 0x1000 < data.Length; start += Math.Max(0x1000, data.Length / 8))
        {
            byte[] damaged = [.. data];
            damaged.AsSpan(start, 0x1000).Fill(0x55);
            LoadOptions options = new() { IgnoreErrors = true };
            left += (double)Count(MadeFiles.Load(damaged, options)) / whole;
            pages++;
        }

        Assert.True(left / pages > share, $"{left / pages:0.00} of {whole} objects are left");
    }

    private static int Count(CadDrawing drawing) =>
        DrawingWalk.Entities(drawing).Count() + drawing.Objects.Count;

    private static IEnumerable<string> Points(CadDrawing drawing) =>
        drawing.ModelSpace.Entities.OfType<CadPoint>().Select(static one => $"{one.CenterPoint.X} {one.CenterPoint.Y}");

    /// <summary>The records of a drawing, which can be changed.</summary>
    private sealed class Content
    {
        private readonly DwgContent _content;

        internal Content(CadAcadVersion version)
        {
            Drawing = MadeFiles.Drawing();
            _content = MadeFiles.ContentOf(Drawing, version);
            DwgFile file = MadeFiles.Open(MadeFiles.Write(_content));
            for (int i = 0; i < file.Map.Count; i++)
            {
                (byte[] record, long bits) = DwgSamples.RecordOf(file, i);
                Records.Add((file.Map.Handles[i], record, bits));
            }
        }

        internal CadDrawing Drawing { get; }

        internal int Release => _content.Release;

        internal List<(ulong Handle, byte[] Record, long HandleBits)> Records { get; } = [];

        internal int IndexOf(ulong handle) => Records.FindIndex(one => one.Handle == handle);

        internal int IndexOf(Func<CadEntityBase, bool> isWanted) =>
            IndexOf(Drawing.ModelSpace.Entities.First(isWanted).Handle);

        /// <summary>Replaces a handle of one byte wherever a record has it.</summary>
        internal void Redirect(int index, ulong from, ulong to)
        {
            (ulong handle, byte[] record, long handleBits) = Records[index];
            if (from > 0xFF || to > 0xFF)
            {
                return;
            }

            byte[] changed = [.. record];
            for (long at = 0; at + 16 <= record.Length * 8L; at++)
            {
                BitReader bits = new(record, at, record.Length * 8L);
                (int kind, int value) = (bits.RawByte(), bits.RawByte());
                if (kind is 0x01 or 0x21 or 0x31 or 0x41 or 0x51 && value == (int)from)
                {
                    Put(changed, at + 8, (byte)to);
                }
            }

            Records[index] = (handle, changed, handleBits);
        }

        internal byte[] Build()
        {
            ObjectStore objects = new(Release);
            Records.ForEach(one => objects.Add(one.Handle, one.Record, one.HandleBits));
            return MadeFiles.Write(_content with { Objects = objects });
        }

        private static void Put(byte[] record, long at, byte value)
        {
            for (int i = 0; i < 8; i++, at++)
            {
                byte bit = (byte)(0x80 >> (int)(at & 7));
                bool isSet = (value & (0x80 >> i)) != 0;
                record[at >> 3] = (byte)(isSet ? record[at >> 3] | bit : record[at >> 3] & ~bit);
            }
        }
    }
}
