using System;
using System.Collections.Concurrent;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Small drawing databases of each container, made by the library, for tests that damage them.</summary>
internal static class MadeFiles
{
    /// <summary>The name of files in messages.</summary>
    internal const string Name = "plan.dwg";

    /// <summary>Gets a release of each container: plain, in pages, and in encoded pages.</summary>
    internal static readonly CadAcadVersion[] Versions =
        [CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1021, CadAcadVersion.AC1032];

    private static readonly ConcurrentDictionary<CadAcadVersion, byte[]> Files = [];

    internal static TheoryData<CadAcadVersion> EachVersion => [.. Versions];

    /// <summary>Returns a copy of a file with an entity of each kind of structure.</summary>
    internal static byte[] Of(CadAcadVersion version) =>
        [.. Files.GetOrAdd(version, static key => Write(Drawing(), key))];

    /// <summary>Returns the sections that a drawing is written of, also for the release that has no writer.</summary>
    internal static DwgContent ContentOf(CadDrawing drawing, CadAcadVersion version)
    {
        int release = DrawingRelease.Year(version);
        DrawingIntegrity.Prepare(drawing, release);
        DwgObjectWriter objects = new(drawing, release, DwgCodePage.Get("ANSI_1252"));
        objects.Write();
        return DwgContentBuilder.Build(drawing, version, objects.Objects, objects.Classes);
    }

    /// <summary>Returns a file of a drawing.</summary>
    internal static byte[] Write(CadDrawing drawing, CadAcadVersion version) => Write(ContentOf(drawing, version));

    internal static byte[] Write(DwgContent content)
    {
        if (content.Version == CadAcadVersion.AC1021)
        {
            return new EncodedFile(content).Build();
        }

        using MemoryStream stream = new();
        DwgContainer.Write(content, stream);
        return stream.ToArray();
    }

    /// <summary>Returns the sections of a file whose objects are any bytes.</summary>
    internal static DwgContent ContentOf(CadAcadVersion version, ObjectStore objects) => new()
    {
        Version = version,
        Header = new byte[40],
        Classes = new byte[20],
        Objects = objects,
    };

    internal static DwgFile Open(byte[] data, LoadOptions? options = null) =>
        DwgSamples.Open(data, Name, options ?? new LoadOptions());

    internal static CadDrawing Load(byte[] data, LoadOptions? options = null) =>
        DwgLoader.Load(data, Name, DwgSamples.VersionOf(data), options ?? new LoadOptions());

    /// <summary>Verifies that a damaged file is refused with a defect that names its place, and that it is read with
    /// such a defect where defects do not end the load.</summary>
    /// <returns>The file and its defects.</returns>
    internal static (DwgFile File, List<LoadDefect> Defects) VerifyDefect(
        byte[] data, LoadDefectCode code, string place)
    {
        LoadDefect first = Assert.Throws<ImageLoadException>(() => Open(data)).Defect!;
        Assert.Equal((code, place), (first.Code, first.Place.Record));
        LoadOptions options = new() { IgnoreErrors = true };
        DwgFile file = Open(data, options);
        Assert.Equal(first, options.Defects[0]);
        return (file, options.Defects);
    }

    /// <summary>Returns a drawing with entities, a block with an attribute, a polyline and extended data.</summary>
    internal static CadDrawing Drawing()
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.Layers.Add(new CadLayerTable { Name = "Walls", ColorId = 3 });
        CadBlockEntity door = new() { Name = "Door", NameAgain = "Door" };
        door.Entities.Add(new CadArc { Radius = 9, StartAngle = 0, EndAngle = 90 });
        door.Entities.Add(new CadAttDef { DefinitionTagString = "NO", PromptString = "number", TextHeight = 2 });
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = "Door" });
        drawing.BlockEntities.Add(door);
        CadInsertObject insert = new() { Name = "Door" };
        insert.Attributes.Add(new CadAttrib { DefinitionTagString = "NO", DefaultValue = "12", TextHeight = 2 });
        CadPolyline polyline = new();
        polyline.Vertices.Add(new Cad2DVertex { LocationPoint = new(1, 1, 0) });
        polyline.Vertices.Add(new Cad2DVertex { LocationPoint = new(5, 1, 0) });
        CadEntityBase[] entities =
        [
            new CadLine { FirstPoint = new(1, 2, 3), SecondPoint = new(4, 5, 6), LayerName = "Walls" },
            new CadCircle { CenterPoint = new(7, 8, 0), Radius = 2.5 },
            new CadText { DefaultValue = "Maß ☃", TextHeight = 3 }, insert, polyline,
            .. Enumerable.Range(0, 20).Select(static i => new CadPoint { CenterPoint = new(i, -i, 0) }),
        ];
        Array.ForEach(entities, drawing.ModelSpace.Entities.Add);
        drawing.Properties.SetSummary(new SummaryInfoData { Title = "Plan" }, drawing.Header);
        return drawing;
    }

    /// <summary>Returns the types of all entities of model space.</summary>
    internal static string Describe(CadDrawing drawing) =>
        string.Join(' ', drawing.ModelSpace.Entities.Select(static entity => $"{entity.DxfName}:{entity.LayerName}"));

    /// <summary>Returns records of objects that are bytes only.</summary>
    internal static ObjectStore Records(int release, int count, int length)
    {
        ObjectStore objects = new(release);
        for (int i = 1; i <= count; i++)
        {
            objects.Add((ulong)i, Encoding.ASCII.GetBytes($"{i}".PadRight(length, '.')), 0);
        }

        return objects;
    }
}
