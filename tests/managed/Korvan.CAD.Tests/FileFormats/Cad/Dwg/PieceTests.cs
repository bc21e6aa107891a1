using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg;

/// <summary>Objects are read in pieces, by several threads: neither drawing nor defects depend on who was
/// first.</summary>
public class PieceTests
{
    private const int Entities = 6000;

    private static readonly Action<int, Action<int>>[] Orders =
    [
        static (count, run) => Array.ForEach([.. Enumerable.Range(0, count)], run),
        static (count, run) => Array.ForEach([.. Enumerable.Range(0, count).Reverse()], run),
        ForkedProcess.RunPieces,
    ];

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1018)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Pieces_in_any_order_are_the_same_drawing(CadAcadVersion version)
    {
        byte[] data = MadeFiles.Write(LargeDrawing(), version);
        List<(CadDrawing Drawing, List<string> Errors)> read = [.. Orders.Select(run => Read(data, run, 0, true))];
        Assert.Equal(Entities, read[0].Drawing.ModelSpace.Entities.Count);
        Assert.All(read, static one => Assert.Empty(one.Errors));
        VerifySame(read);

        read = [.. Orders.Select(run => Read(data, run, 97, true))];
        Assert.InRange(read[0].Drawing.ModelSpace.Entities.Count, Entities * 9 / 10, Entities - 1);
        Assert.True(read[0].Errors.Count > 50, $"{read[0].Errors.Count} defects");
        VerifySame(read);
    }

    // Where a defect ends the load, it is the first one, in whichever piece it was found.
    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void The_first_defect_ends_the_load(CadAcadVersion version)
    {
        byte[] data = MadeFiles.Write(LargeDrawing(), version);
        string first = Read(data, Orders[0], 997, true).Errors[0];
        foreach (Action<int, Action<int>> run in Orders)
        {
            ImageLoadException failure = Assert.Throws<ImageLoadException>(() => Read(data, run, 997, false));
            Assert.Equal(first, failure.Message);
        }
    }

    private static void VerifySame(List<(CadDrawing Drawing, List<string> Errors)> read)
    {
        foreach ((CadDrawing drawing, List<string> errors) in read.Skip(1))
        {
            Assert.Equal(read[0].Errors, errors);
            Assert.Equal(read[0].Drawing.Objects.Select(HandleOf), drawing.Objects.Select(HandleOf));
            Assert.Equal(
                read[0].Drawing.ModelSpace.Entities.Select(HandleOf), drawing.ModelSpace.Entities.Select(HandleOf));
            Assert.Empty(DrawingDifferences.Between(drawing, read[0].Drawing, static _ => true));
        }
    }

    private static ulong HandleOf(CadBaseObject item) => item.Handle;

    private static CadDrawing LargeDrawing()
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.Layers.Add(new CadLayerTable { Name = "Walls" });
        for (int i = 0; i < Entities; i++)
        {
            CadEntityBase entity = i % 3 == 0 ? new CadText { DefaultValue = $"text {i}" }
                : i % 3 == 1 ? new CadCircle { Radius = i } : new CadLine { FirstPoint = new(i, -i, 0.25) };
            entity.LayerName = i % 2 == 0 ? "Walls" : "0";
            if (i % 7 == 0)
            {
                CadXdata data = new("ACAD");
                data.Data.Add(new CadCodeValue(1000, $"{i}"));
                entity.XdataContainer.XdataEntities.Add(data);
            }

            drawing.ModelSpace.Entities.Add(entity);
        }

        return drawing;
    }

    // Every so many records are damaged: in their fields, or in their checksum alone.
    private static (CadDrawing Drawing, List<string> Errors) Read(
        byte[] data, Action<int, Action<int>> run, int damagedStep, bool isTolerant)
    {
        LoadOptions options = new() { IgnoreErrors = isTolerant };
        DwgFile file = MadeFiles.Open([.. data], options);
        for (int i = damagedStep; damagedStep > 0 && i < file.Map.Count; i += damagedStep)
        {
            (byte[] record, _) = DwgSamples.RecordOf(file, i);
            int start = (int)file.Map.Offsets[i] + 3;
            Span<byte> bytes = file.Objects.AsSpan(start + (i % 2 == 0 ? record.Length - 2 : 4), i % 2 == 0 ? 2 : 8);
            bytes.Fill(0xFF);
        }

        CadDrawing drawing = new(DrawingSeed.Blank);
        new DwgReader(file, drawing) { Run = run }.Read();
        return (drawing, options.Errors);
    }
}
