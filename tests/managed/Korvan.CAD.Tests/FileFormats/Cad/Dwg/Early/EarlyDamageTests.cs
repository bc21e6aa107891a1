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
