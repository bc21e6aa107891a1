using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Objects of drawing databases that other programs wrote.</summary>
public class RealObjectTests
{
    // What the release cannot hold, or what the other program derived when it wrote the text file.
    private static readonly HashSet<Type> Derived =
    [
        typeof(CadSpline), typeof(CadViewport), typeof(CadVportTableObject), typeof(CadXRecord), typeof(CadDictionary),
        typeof(CadDictionaryWithDefault),
    ];

    // Classes whose records of some files hold more than is known: solids of the first release.
    private static readonly HashSet<string> Longer = ["3DSOLID", "REGION"];

    [DrawingTheory]
    [InlineData("example_2000")]
    [InlineData("example_2007")]
    [InlineData("example_2018")]
    public void EntitiesAndTablesAreThoseOfTheTextFile(string name)
    {
        CadDrawing text = new DxfReader(
            new SourceWindow(File.ReadAllBytes(SharedDrawings.Dxf($"lwg__{name}.dxf")), name), new LoadOptions())
            .Read();
        CadDrawing database = Load(SharedDrawings.Dwg($"lwg__{name}.dwg"), new LoadOptions());

        List<string> found = DrawingDifferences.Between(database, text, IsCompared);

        found.RemoveAll(static line => IsOfAnotherSave(line));
        Assert.Empty(found);
        Assert.Equal(text.Layouts.Names, database.Layouts.Names);
        Assert.Equal(text.UnitType, database.UnitType);
    }

    [DrawingFact]
    public void RecordsAreUsedUpExactly()
    {
        List<string> found = [];
        int count = 0;
        foreach (string path in DwgSamples.Files())
        {
            foreach ((string name, CadBaseObject item, long left) in Records(path))
            {
                count++;
                if (left != 0 && !Longer.Contains(name))
                {
                    found.Add($"{Path.GetFileName(path)}: {name} {item.ObjectHandle} has {left} bits more");
                }
            }
        }

        Assert.Empty(found.Take(20));
        Assert.True(count > 100_000, $"only {count} records were read");
    }

    [DrawingFact]
    public void LayersAndBlocksAreAsManyAsAnotherReaderCounts()
    {
        List<string> found = [];
        HashSet<string> databases = [.. DwgSamples.Files()];
        foreach (string line in File.ReadLines(Path.Combine(SharedDrawings.Root!, "CHECKS.tsv")))
        {
            string[] parts = line.Split('\t');
            string path = Path.Combine(SharedDrawings.Root!, parts[0]);
            if (!parts[0].StartsWith("dwg/", StringComparison.Ordinal) || !databases.Contains(path))
            {
                continue;
            }

            CadDrawing drawing = Load(path, new LoadOptions { IgnoreErrors = true });
            string counts = $"{drawing.Layers.Items.Count} layers, {drawing.BlockRecords.Items.Count} block records";
            if (!parts[2].EndsWith(counts, StringComparison.Ordinal))
            {
                found.Add($"{parts[0]}: {counts} instead of {parts[2]}");
            }
        }

        Assert.Empty(found);
    }

    [DrawingFact]
    public void FlippedBitsAreDefectsOrAnError()
    {
        Random random = new(20_000);
        string[] names = ["lwg__2000_TS1", "lwg__example_r14", "lwg__example_2004", "lwg__example_2018"];
        foreach (string path in names.Select(static name => SharedDrawings.Dwg(name + ".dwg")))
        {
            DwgFile file = DwgSamples.Open(path, new LoadOptions { IgnoreErrors = true });
            byte[] sound = file.Objects;
            for (int round = 0; round < 25; round++)
            {
                byte[] damaged = [.. sound];
                for (int flip = 0; flip < 200; flip++)
                {
                    damaged[random.Next(damaged.Length)] ^= (byte)(1 << random.Next(8));
                }

                file.Objects = damaged;
                CadDrawing drawing = new(DrawingSeed.Blank);
                drawing.Header.AcadVersion = file.Version;
                ClassesOf(file).ForEach(drawing.ClassEntities.Add);
                new DwgReader(file, drawing).Read();
                Assert.NotEmpty(drawing.BlockEntities.Items);
            }
        }
    }

    internal static CadDrawing Load(string path, LoadOptions options)
    {
        byte[] data = File.ReadAllBytes(path);
        return DwgLoader.Load(data, Path.GetFileName(path), DwgSamples.VersionOf(data), options);
    }

    /// <summary>Reads the records of a file that have a class, with the number of bits that the class left.</summary>
    internal static IEnumerable<(string Name, CadBaseObject Item, long Left)> Records(string path)
    {
        DwgFile file = DwgSamples.Open(path, new LoadOptions { IgnoreErrors = true });
        RecordReader reader = new(
            file.Objects, new RecordFormat(file.Release, file.Encoding, new RecordNames()), ClassesOf(file));
        foreach (long offset in file.Map.Offsets)
        {
            RecordHeader header = reader.ReadHeader(offset);
            if (ObjectTypeTable.ControlledTable(header.Type) is null && Read(reader, header) is { } item)
            {
                yield return (item.DxfName, item, reader.DataRemaining);
            }
        }
    }

    private static CadBaseObject? Read(RecordReader reader, RecordHeader header)
    {
        try
        {
            return reader.Read(header).Target is { HasBits: true } item ? item : null;
        }
        catch (DwgFault fault)
        {
            throw new InvalidOperationException(
                $"{reader.NameOf(header.Type)} {reader.ReadHandle(header):X}: {fault.Message}", fault);
        }
    }

    private static bool IsCompared(CadBaseObject item) =>
        item is CadEntityBase or CadSymbolTableGroupCodes or CadLayout && !Derived.Contains(item.GetType());

    // What each save makes anew: handles of dictionaries, numbers of blocks without names, what tables hold.
    private static bool IsOfAnotherSave(string line)
    {
        string[] known =
        [
            "ACAD_TABLE", ": AcDbBlockTableRecord 340", "*D", "*T", "the extended data", "AcDbModelerGeometry",
            "ARC_DIM", "LIGHT 75E: AcDbLight 90", "AcDbWipeout", "is a RawObject",
        ];
        bool isAdded = line.EndsWith(" is missing", StringComparison.Ordinal)
            && (line.StartsWith("APPID", StringComparison.Ordinal)
                || line.StartsWith("DICT", StringComparison.Ordinal));
        return isAdded || known.Any(part => line.Contains(part, StringComparison.Ordinal));
    }

    private static List<CadClassEntity> ClassesOf(DwgFile file) => file.Classes.IsEmpty ? []
        : ClassSection.Read(new HeaderReader(file.Classes, file.Release, file.Encoding));
}
