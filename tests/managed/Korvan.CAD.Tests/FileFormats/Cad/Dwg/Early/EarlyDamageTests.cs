using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early;

/// <summary>Damaged files are refused by name, or read as far as they are whole.</summary>
public class EarlyDamageTests
{
    [Theory]
    [InlineData("AC1.2\0")]
    [InlineData("MC0.0\0")]
    public void Older_releases_are_refused_by_name(string code)
    {
        byte[] data = new byte[100];
        System.Text.Encoding.ASCII.GetBytes(code).CopyTo(data, 0);
        var failure = Assert.Throws<ImageLoadException>(() => EarlyDwgReader.Read(data, "old.dwg", null));
        Assert.Contains(code.TrimEnd('\0'), failure.Message);
    }

    [Fact]
    public void A_wrong_checksum_is_a_defect_of_its_record_only()
    {
        EarlyFile file = Sample();
        byte[] data = file.Build();
        data[file.Places["entities"] + 12] ^= 1;
        data[file.Places["LAYER"] + 40] ^= 1;
        data[file.Places["$LTSCALE"]] ^= 1;
        Assert.Contains("header", Assert.Throws<ImageLoadException>(() => Read(data, null)).Message);
        LoadOptions options = new() { IgnoreErrors = true };
        CadDrawing drawing = Read(data, options);
        Assert.Equal((12, 2), (drawing.Entities.Count, drawing.Layers.Count));
        Assert.Equal(["header", "LAYER", "entities"], options.Defects.Select(static defect => defect.Place.Record));
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Records_are_found_after_one_with_a_wrong_length(bool isLate)
    {
        EarlyFile file = isLate ? Sample() : Sample(EarlyFile.Release9());
        byte[] data = file.Build();
        int third = file.Places["entities"] + (2 * file.Entities[0].Length);
        BitConverter.GetBytes((short)30000).CopyTo(data, third + 2);
        LoadOptions options = new() { IgnoreErrors = true };
        Assert.Equal(11, Read(data, options).Entities.Count);
        Assert.Contains("a record has 30000 bytes", Assert.Single(options.Errors));
    }

    [Fact]
    public void Tables_are_found_where_the_header_misplaces_them()
    {
        EarlyFile file = Sample();
        byte[] data = file.Build();
        byte[] place = BitConverter.GetBytes(file.Places["LAYER"]);
        int at = data.AsSpan(0, 0x5E).IndexOf(place);
        BitConverter.GetBytes(file.Places["LAYER"] - 300).CopyTo(data, at);
        LoadOptions options = new() { IgnoreErrors = true };
        Assert.Equal("WALLS", Read(data, options).Layers[1].Name);
        Assert.Contains(options.Errors, static error => error.Contains("LAYER: it begins at another place"));
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void A_wrong_byte_costs_its_record_or_those_that_its_length_leaps_over(bool isLate)
    {
        EarlyFile file = Sample(isLate ? EarlyFile.Release11() : EarlyFile.Release9());
        byte[] whole = file.Build();
        int start = file.Places["entities"];
        for (int at = start; at < start + (12 * file.Entities[0].Length); at++)
        {
            byte[] data = [.. whole];
            data[at] ^= 0x40;
            LoadOptions options = new() { IgnoreErrors = true };
            int left = Read(data, options).Entities.Count;
            Assert.True(left >= (isLate ? 11 : 9), $"byte {at}: {left} entities are left");
            Assert.True(!isLate || options.Errors.Count > 0, $"byte {at} is no defect");
        }
    }

    // Each row is a record that is whole by its checksum.
    [Theory]
    [InlineData("type", "there is no entity of the type 99")]
    [InlineData("layer", "the layer number 7, but there are 2")]
    [InlineData("line type", "the line type number 9")]
    [InlineData("style", "the text style number 4, but there are 0")]
    [InlineData("block", "the block number 0, but there are 0")]
    [InlineData("number", "a number is NaN")]
    [InlineData("short", "8 bytes were expected, but 0 are left")]
    [InlineData("text", "65535 bytes were expected")]
    [InlineData("xdata length", "extended data of 500 bytes is announced")]
    [InlineData("xdata start", "extended data begins without an application")]
    [InlineData("xdata code", "extended data has no items of the code 99")]
    [InlineData("jump", "a record leads to the place 7000000")]
    public void A_record_that_cannot_be_is_named(string kind, string cause)
    {
        EarlyFile file = Sample();
        file.Add("APPID", "ACAD", 0);
        file.Entities.Insert(5, kind switch
        {
            "type" => file.Entity(99, 0, 0, 0),
            "layer" => file.Entity(3, 0, 7, 0, 1.0, 1.0, 0.5),
            "line type" => file.Entity(3, 2, 0, 0, (short)9, 1.0, 1.0, 0.5),
            "style" => file.Entity(7, 0, 0, 8, 1.0, 1.0, 0.5, "a", (byte)4),
            "block" => file.Entity(14, 0, 0, 0, (short)0, 1.0, 1.0),
            "number" => file.Entity(3, 32, 0, 0, (byte)1, (byte)0xAB, 1.0, double.NaN, 0.5),
            "short" => file.Entity(3, 0, 0, 0, 1.0, 1.0),
            "text" => file.Entity(7, 0, 0, 0, 1.0, 1.0, 0.5, (short)-1, (byte)65),
            "xdata length" => file.Entity(3, 64, 0, 0, (byte)2, (short)500, 1.0, 1.0, 0.5),
            "xdata start" => file.Entity(3, 64, 0, 0, (byte)2, (short)2, (byte)2, (byte)0, 1.0, 1.0, 0.5),
            "xdata code" => file.Entity(3, 64, 0, 0, (byte)2, (short)4, (byte)1, (short)0, (byte)99, 1.0, 1.0, 0.5),
            _ => EarlyFile.Jump(0x7000000),
        });
        byte[] data = file.Build();
        ImageLoadException failure = Assert.Throws<ImageLoadException>(() => Read(data, null));
        Assert.Contains(cause, failure.Message);
        Assert.StartsWith("entities", failure.Defect!.Place.Record);
        Assert.Equal(kind == "number", failure.Message.Contains("handle AB", StringComparison.Ordinal));
        LoadOptions options = new() { IgnoreErrors = true };
        Assert.InRange(Read(data, options).Entities.Count, 12, 13);
        Assert.Contains(cause, Assert.Single(options.Errors));
    }

    [Theory]
    [InlineData(2, 0x7FFF, "CountTooLarge", "the file has room for")]
    [InlineData(0, 20, "InvalidSection", "the records of the table have 20 bytes")]
    [InlineData(6, 0x7FFFFFFF, "InvalidSection", "it begins at another place")]
    public void A_table_that_the_header_describes_wrongly_is_named(int field, int value, string code, string cause)
    {
        EarlyFile file = Sample();
        byte[] data = file.Build();
        int place = data.AsSpan(0, 0x5E).IndexOf(BitConverter.GetBytes(file.Places["LAYER"])) - 6;
        byte[] bytes = BitConverter.GetBytes(value);
        bytes.AsSpan(0, field == 6 ? 4 : 2).CopyTo(data.AsSpan(place + field));
        LoadOptions options = new() { IgnoreErrors = true };
        CadDrawing drawing = Read(data, options);
        Assert.Contains(options.Defects, defect =>
            defect.Code.ToString() == code && defect.Place.Record == "LAYER" && defect.Cause.Contains(cause));
        Assert.Equal(12, drawing.Entities.Count);
        Assert.Equal(field == 0 ? 0 : 2, drawing.Layers.Items.Count(static layer => layer.Name is "0" or "WALLS"));
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Of_a_cut_file_the_entities_before_the_cut_are_read(bool isLate)
    {
        EarlyFile file = Sample(isLate ? EarlyFile.Release11() : EarlyFile.Release9());
        byte[] whole = file.Build();
        int start = file.Places["entities"];
        int length = file.Entities[0].Length;
        for (int i = 0; i <= 12; i++)
        {
            foreach (int cut in new[] { start + (i * length) - 1, start + (i * length), start + (i * length) + 5 })
            {
                Assert.NotNull(Assert.Throws<ImageLoadException>(() => Read(whole[..cut], null)).Defect);
                if (cut < start && !isLate)
                {
                    continue; // within the header
                }

                int expected = Math.Max(0, (cut - start) / length);
                Assert.Equal(Math.Min(12, expected),
                    Read(whole[..cut], new LoadOptions { IgnoreErrors = true }).Entities.Count);
            }
        }

        for (int cut = 0; cut < 0x5E; cut++)
        {
            var failure = Assert.Throws<ImageLoadException>(
                () => Read(whole[..cut], new LoadOptions { IgnoreErrors = true }));
            Assert.Equal("header", failure.Defect!.Place.Record);
        }
    }

    // Blocks that begin nowhere, at the same place, or without a beginning.
    [Fact]
    public void A_block_that_is_damaged_costs_itself()
    {
        EarlyFile file = Sample();
        file.Add("BLOCK", "WHOLE", 0, 0x40000000, (short)0, (short)0);
        file.Add("BLOCK", "NOWHERE", 0, 0x40FFFFFF, (short)0, (short)0);
        file.Add("BLOCK", "AGAIN", 0, 0x40000000, (short)0, (short)0);
        byte[] begin = file.Entity(12, 0, 0, 0, 0.0, 0.0);
        byte[] end = file.Entity(13, 0, 0, 0);
        file.Add("BLOCK", "HEADLESS", 0, 0x40000000 + begin.Length + end.Length, (short)0, (short)0);
        file.BlockEntities.AddRange([begin, end, file.Entities[0], end]);
        LoadOptions options = new() { IgnoreErrors = true };
        CadDrawing drawing = Read(file.Build(), options);
        Assert.Equal(12, drawing.Entities.Count);
        Assert.NotNull(drawing.BlockEntities.Find("WHOLE"));
        Assert.Equal(3, options.Errors.Count);
        Assert.Contains("the block 'NOWHERE' begins beyond the end", options.Errors[0]);
        Assert.Contains("the record was read before", options.Errors[1]);
        Assert.Contains("the block 'HEADLESS' has no beginning", options.Errors[2]);
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void Changed_and_cut_files_are_read_or_refused(int seed)
    {
        Random random = new(seed);
        foreach (byte[] whole in Files())
        {
            for (int round = 0; round < 400; round++)
            {
                byte[] data = Changed(whole, random);
                foreach (bool forgiving in new[] { false, true })
                {
                    LoadOptions options = new() { IgnoreErrors = forgiving };
                    Exception? failure = Record.Exception(() => Read(data, options));
                    Assert.True(
                        failure is null or ImageLoadException { Defect: not null },
                        $"seed {seed}, round {round}, forgiving {forgiving}: {failure}");
                    Assert.True(options.Errors.Count < 1000);
                }
            }
        }
    }

    private static byte[] Changed(byte[] whole, Random random)
    {
        byte[] data = [.. whole];
        for (int i = random.Next(1, 5); i > 0; i--)
        {
            int at = random.Next(6, data.Length - 4);
            switch (random.Next(3))
            {
                case 0:
                    data[at] ^= (byte)(1 << random.Next(8));
                    break;
                case 1:
                    BitConverter.GetBytes(random.Next(2) == 0 ? -1 : random.Next()).CopyTo(data, at);
                    break;
                default:
                    data[at] = (byte)random.Next(256);
                    break;
            }
        }

        return random.Next(4) == 0 ? data[..random.Next(6, data.Length)] : data;
    }

    private static IEnumerable<byte[]> Files()
    {
        yield return Sample().Build();
        yield return Sample(EarlyFile.Release9()).Build();
        if (SharedDrawings.Root is null)
        {
            yield break;
        }

        foreach (string name in new[] { "lc__pre_r10_r140_entities", "lc__pre_r10_r210_entities", "lwg__r2.6_dim",
            "lwg__r11_entities-3d" })
        {
            yield return System.IO.File.ReadAllBytes(SharedDrawings.Dwg(name + ".dwg"));
        }
    }

    private static EarlyFile Sample() => Sample(EarlyFile.Release11());

    private static EarlyFile Sample(EarlyFile file)
    {
        for (int i = 0; i < 12; i++)
        {
            file.Entities.Add(file.Entity(3, 0, i % 2, 0, 10.0 * i, 1.0, 0.5));
        }

        return file;
    }

    private static CadDrawing Read(byte[] data, LoadOptions? options) =>
        EarlyDwgReader.Read(data, "damaged.dwg", options);
}
