using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>The data of solids in a section of its own.</summary>
public class StoredSolidTests
{
    private const int Segment = 0x400;
    private static readonly byte[] Small = [.. "ACIS BinaryFile"u8, 1, 2, 3];
    private static readonly byte[] Large = [.. "ASM BinaryFile4"u8, .. Enumerable.Range(0, 100).Select(i => (byte)i)];

    [Fact]
    public void DataIsThatOfItsOwner()
    {
        CadDrawing drawing = new(DrawingSeed.Blank);

        Assert.True(DataStore.Read(Section(), drawing));
        Assert.Equal(Small, drawing.AcdsData.GetData("2A"));
        Assert.Equal(Large, drawing.AcdsData.GetData("2B"));
        Assert.Equal(3, drawing.AcdsData.Items.Count);
    }

    [Fact]
    public void DamagedSectionsAreReportedAndEnd()
    {
        byte[] sound = Section();
        Random random = new(2013);
        bool hasFailed = false;
        for (int round = 0; round < 2000; round++)
        {
            byte[] damaged = [.. sound];
            damaged[random.Next(damaged.Length)] = (byte)random.Next(256);
            hasFailed |= !DataStore.Read(damaged, new CadDrawing(DrawingSeed.Blank));
        }

        Assert.True(hasFailed);
        Assert.All(
            Enumerable.Range(1, Segment * 4), length =>
                Assert.False(DataStore.Read(sound[..length], new CadDrawing(DrawingSeed.Blank))));
    }

    [DrawingFact]
    public void SolidsOfRealDrawingsHaveData()
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg("acs__sample_base.dwg"), new LoadOptions());

        List<CadObjectWithAcisData> solids =
            [.. DrawingWalk.Entities(drawing).OfType<CadObjectWithAcisData>().Where(static solid =>
                solid is not CadPlaneSurface)];

        Assert.True(solids.Count >= 3);
        Assert.All(solids, static solid => Assert.NotEmpty(solid.DataRecord!.Data));
    }

    [Fact]
    public void WrittenSectionsHaveWhatTheyAreGiven()
    {
        List<(ulong Owner, byte[] Data)> solids = [(0x2A, Small), (0x2B, Large), (0x2C, Sized(0x40000)),
            (0x2D, Sized(0x40001)), (0x2E, Sized(0x140000)), (0x2F, Small)];
        CadDrawing drawing = new(DrawingSeed.Blank);

        byte[] section = DataStoreWriter.Write(solids);

        Assert.True(DataStore.Read(section, drawing));
        Assert.Equal(0, section.Length % 128);
        Assert.All(solids, solid => Assert.Equal(solid.Data, drawing.AcdsData.GetData($"{solid.Owner:X}")));
        Assert.Equal(solids.Count + 1, drawing.AcdsData.Items.Count);
    }

    // The schemas, byte for byte, are those of other programs.
    [DrawingFact]
    public void SchemasAreThoseOfRealDrawings()
    {
        byte[] file = File.ReadAllBytes(SharedDrawings.Dwg("acs__sample_base.dwg"));
        byte[] real = DwgContainer.Read(file, "", CadAcadVersion.AC1032, new LoadOptions()).AcdsPrototype;
        const int attributes = 0x60;

        Assert.True(real.AsSpan().IndexOf(SolidSchemas.Data.AsSpan(attributes)) > 0);
        Assert.True(real.AsSpan().IndexOf(SolidSchemas.DataNames.AsSpan(sizeof(int), 11)) > 0);
    }

    // Data of text and binary form state their version.
    [DrawingTheory]
    [InlineData("lwg__example_2018.dwg", CadAcadVersion.AC1015, "version 22300 ")]
    [InlineData("lwg__example_2018.dwg", CadAcadVersion.AC1032, "")]
    [InlineData("lwg__example_2004.dwg", CadAcadVersion.AC1015, "version 20800 ")]
    [InlineData("lwg__example_2000.dwg", CadAcadVersion.AC1015, "")]
    public void DataThatIsNewerThanTheReleaseIsStated(string name, CadAcadVersion version, string stated)
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg(name), new LoadOptions());

        IReadOnlyList<string> notes =
            DwgSaver.Save(drawing, new DwgOptions { Version = version }, new MemoryStream());

        string found = notes.FirstOrDefault(
            static note => note.Contains("of the modeler;", StringComparison.Ordinal)) ?? "";
        Assert.Contains(stated, found, StringComparison.Ordinal);
        Assert.Equal(stated.Length == 0, found.Length == 0);
    }

    [DrawingFact]
    public void SurfacesHaveWhatTheyWereMadeOf()
    {
        CadDrawing drawing = RealObjectTests.Load(
            SharedDrawings.Dwg("lc__assoc_surface_r2004.dwg"), new LoadOptions { IgnoreErrors = true });

        CadExtrudedSurface extruded = DrawingWalk.Entities(drawing).OfType<CadExtrudedSurface>().Single();
        CadSweptSurface swept = DrawingWalk.Entities(drawing).OfType<CadSweptSurface>().Single();
        CadRevolvedSurface revolved = DrawingWalk.Entities(drawing).OfType<CadRevolvedSurface>().Single();
        CadLoftedSurface lofted = DrawingWalk.Entities(drawing).OfType<CadLoftedSurface>().Single();

        Assert.Equal((200.0, 35, 59), (extruded.SweepVector.Z, extruded.SweepEntityClass,
            extruded.SweepEntityData.Length));
        Assert.Equal((77, 134, 19, 43), (swept.SweepEntityClass, swept.SweepEntityData.Length, swept.PathEntityClass,
            swept.PathEntityData.Length));
        Assert.Equal((1.0, 0.193, 77), (revolved.AxisVector.Y, Math.Round(revolved.RevolveAngle, 3),
            revolved.RevolvedEntityClass));
        Assert.Equal([68, 76], lofted.Entities.Select(static profile => profile.Data.Length));
        Assert.Equal(Math.PI / 2, lofted.StartDraftAngle, 9);
    }

    private static byte[] Sized(int size) => [.. "ACIS BinaryFile"u8, .. new byte[size - 15]];

    // A header, then segments: their index, that of the data, the data, and a page of large data.
    private static byte[] Section()
    {
        using MemoryStream file = new(new byte[Segment * 5]);
        using BinaryWriter writer = new(file);
        WriteAt(writer, 0, 0x6472616A, 128, 2, 2, 0, 1, Segment, 0, 5, 0, 2, 0, 0, Segment * 5);
        WriteAt(writer, Segment + 48, 0, 0, 0);
        for (int i = 1; i < 5; i++)
        {
            writer.Write((long)(Segment * i));
            writer.Write(Segment);
        }

        WriteAt(writer, (Segment * 2) + 48, 3, 0, 0, 0, 0, 3, 0, 0, 3, 20, 0);
        WriteAt(writer, (Segment * 3) + 36, 6);
        WriteAt(writer, (Segment * 3) + 48, 20, 1, 0x2A, 0, 0, 20, 1, 0x2B, 0, 0x40);
        WriteAt(writer, (Segment * 3) + 96, Small.Length);
        writer.Write(Small);
        WriteAt(writer, (Segment * 3) + 96 + 0x40, unchecked((int)0xBB106BB1), Large.Length, 0, 1, 44, 100, 0, 0, 0, 4);
        WriteAt(writer, (Segment * 4) + 48, Large.Length, 0, 0, 0, 0, 1, Large.Length, 0);
        writer.Write(Large);
        return file.ToArray();
    }

    private static void WriteAt(BinaryWriter writer, int position, params int[] values)
    {
        writer.BaseStream.Position = position;
        Array.ForEach(values, writer.Write);
    }
}
