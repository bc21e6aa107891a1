using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Objects that are written and read again are the same, in each release that is written.</summary>
public class ObjectRoundTripTests
{
    public static readonly TheoryData<CadAcadVersion> Releases = new()
    {
        CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1027,
        CadAcadVersion.AC1032,
    };

    [Theory]
    [MemberData(nameof(Releases))]
    public void EntitiesMadeByProgramsStay(CadAcadVersion version)
    {
        CadDrawing drawing = Sample();

        (CadDrawing again, IReadOnlyList<string> leftOut) = WriteAndRead(drawing, version);

        Assert.Empty(leftOut);
        Assert.Empty(DrawingDifferences.Between(again, drawing, static _ => true));
    }

    [DrawingTheory]
    [InlineData("lwg__example_2000.dwg", CadAcadVersion.AC1015)]
    [InlineData("lwg__example_2004.dwg", CadAcadVersion.AC1018)]
    [InlineData("lwg__example_2010.dwg", CadAcadVersion.AC1024)]
    [InlineData("lwg__example_2013.dwg", CadAcadVersion.AC1027)]
    [InlineData("lwg__example_2018.dwg", CadAcadVersion.AC1032)]
    public void RealDrawingsStayWithAllObjects(string name, CadAcadVersion version)
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg(name), new LoadOptions());

        (CadDrawing again, IReadOnlyList<string> leftOut) = WriteAndRead(drawing, version);

        Assert.Empty(leftOut);
        Assert.Empty(DrawingDifferences.Between(again, drawing, static _ => true));
    }

    [DrawingFact]
    public void ObjectsOfAnotherReleaseAreProxiesWithTheirGraphics()
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg("lwg__2013_gh109_1.dwg"), new LoadOptions());

        (CadDrawing again, IReadOnlyList<string> leftOut) = WriteAndRead(drawing, CadAcadVersion.AC1018);

        Assert.Empty(leftOut);
        CadEntityBase[] kept = [.. DrawingWalk.Entities(drawing).Where(static one => one is RawEntity)];
        Assert.True(kept.Length > 20, $"only {kept.Length}");
        Dictionary<ulong, CadAcadProxyEntity> proxies =
            DrawingWalk.Entities(again).OfType<CadAcadProxyEntity>().ToDictionary(static one => one.Handle);
        Assert.All(kept, entity =>
        {
            CadAcadProxyEntity proxy = proxies[entity.Handle];
            Assert.Equal(entity.LayerName, proxy.LayerName);
            Assert.Equal(ProxyGraphics.DataOf(entity), proxy.GraphicsData);
            Assert.Equal(31, proxy.DrawingFormat & 0xFFFF);
        });
        HashSet<ulong> present = DrawingWalk.Handles(again);
        Assert.All(
            again.Objects.OfType<CadDictionaryBase>(),
            dictionary => Assert.All(
                dictionary.GetObjectHandles(), handle => Assert.Contains(Convert.ToUInt64(handle, 16), present)));
    }

    [DrawingFact]
    public void CopiesAndChangedEntitiesOfUnknownClassesAreProxies()
    {
        CadDrawing drawing = RealObjectTests.Load(SharedDrawings.Dwg("lwg__2013_gh109_1.dwg"), new LoadOptions());
        RawEntity[] kept = [.. drawing.Entities.OfType<RawEntity>()];
        kept[1].LayerName = "MOVED";
        drawing.Entities.Add(kept[2].Clone());

        (CadDrawing again, IReadOnlyList<string> leftOut) = WriteAndRead(drawing, CadAcadVersion.AC1027);

        Assert.Empty(leftOut);
        Assert.Equal(kept.Length - 1, again.Entities.OfType<RawEntity>().Count());
        CadAcadProxyEntity[] proxies = [.. again.Entities.OfType<CadAcadProxyEntity>()];
        Assert.Equal(["MOVED", kept[2].LayerName], proxies.Select(static one => one.LayerName));
        Assert.All(proxies, static one => Assert.NotEmpty(one.GraphicsData));
    }

    [Theory]
    [MemberData(nameof(Releases))]
    public void DataThatIsNotHexadecimalIsRefusedByItsObject(CadAcadVersion version)
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        CadXRecord record = new();
        record.Data.Add(new CadCodeValue(310, "ABC"));
        drawing.Objects.Add(record);

        ImageSaveException failure = Assert.Throws<ImageSaveException>(() => WriteAndRead(drawing, version));

        Assert.Contains("XRECORD", failure.Message, StringComparison.Ordinal);
        Assert.Contains("'ABC' is not binary data", failure.Message, StringComparison.Ordinal);
    }

    /// <summary>Text files may have coordinates by themselves, which records have no coding for.</summary>
    [Theory]
    [MemberData(nameof(Releases))]
    public void CoordinatesByThemselvesAreNumbers(CadAcadVersion version)
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        CadCircle circle = new();
        CadXdata data = new("SURVEY");
        data.Data.AddRange([new(1011, "1"), new(1021, "2"), new(1021, "4"), new(1031, "5"), new(1070, "6")]);
        circle.XdataContainer.XdataEntities.Add(data);
        drawing.ModelSpace.Entities.Add(circle);

        (CadDrawing again, _) = WriteAndRead(drawing, version);

        CadXdata read = Assert.Single(Assert.Single(again.ModelSpace.Entities).XdataContainer.XdataEntities);
        Assert.Equal(
            ["1011=1", "1021=2", "1031=0", "1040=4", "1040=5", "1070=6"],
            read.Data.Select(static tag => $"{tag.Attribute}={tag.Value}"));
    }

    private static CadDrawing Sample()
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.Layers.Add(new CadLayerTable
        {
            Name = "Walls",
            ColorId = -3,
            LineWeight = 35,
            PlotFlag = 0,
            IsFrozen = true,
        });
        drawing.LineTypes.Add(LineType());
        CadBlockEntity block = new() { Name = "Door", NameAgain = "Door", Flags = 2, BasePoint = new(1, 2, 3) };
        block.Entities.Add(new CadAttDef { DefinitionTagString = "TAG", PromptString = "Value?", DefaultValue = "1" });
        drawing.BlockEntities.Add(block);
        foreach (CadEntityBase entity in Entities())
        {
            entity.LayerName = "Walls";
            drawing.ModelSpace.Entities.Add(entity);
        }

        return drawing;
    }

    private static CadLineTypeTableObject LineType()
    {
        CadLineTypeTableObject type = new() { Name = "GAS", Description = "Gas __GAS__", PatternLength = 1.5 };
        type.Pattern.AddRange([1, -0.5]);
        (int Code, string Value)[] tags =
            [(74, "2"), (75, "0"), (340, "0"), (46, "0.1"), (50, "0"), (44, "-0.1"), (45, "-0.05"), (9, "GAS")];
        type.ComplexTags.AddRange(tags.Select(static tag => (2, new CadCodeValue(tag.Code, tag.Value))));
        return type;
    }

    // Values beyond the short forms of each coding, and those that files leave out.
    private static IEnumerable<CadEntityBase> Entities()
    {
        yield return new CadLine { FirstPoint = new(1, 2, 0), SecondPoint = new(1, 2.5, 0), LineTypeName = "GAS" };
        yield return new CadLine { FirstPoint = new(1, 2, 3), SecondPoint = new(-1e300, 4, 5), Thickness = 2.5 };
        yield return new CadArc { Radius = 3, StartAngle = 30, EndAngle = 359.5, ExtrusionDirection = new(0, 0, -1) };
        yield return new CadText
        {
            DefaultValue = "Ж∅ plan",
            TextRotation = 45,
            HorizontalAlignment = 1,
            ScaleX = 0.8,
            SecondAlignment = new(5, 6, 0)
        };
        yield return new CadMText { Text = new string('x', 5000) + "\\PЖ", TextDirection = new(0, 1, 0) };
        yield return new Cad3DFace { SecondPoint = new(1, 0, 1), ThirdPoint = new(1, 1, 1), InvisibleEdges = 5 };
        yield return new CadSolid
        {
            FirstPoint = new(0, 0, 4),
            SecondPoint = new(1, 0, 4),
            ThirdPoint = new(0, 1, 4),
            FourthPoint = new(1, 1, 4)
        };
        yield return Polyline();
        yield return LwPolyline();
        yield return new CadInsertObject { Name = "Door", ScaleX = 1, ScaleY = 2, ScaleZ = 1, RotationAngle = 90 };
        yield return new CadInsertObject
        {
            Name = "Door",
            ScaleX = 2,
            ScaleY = 2,
            ScaleZ = 2,
            ColumnCount = 3,
            ColumnSpacing = 10
        };
        CadInsertObject insert = new() { Name = "Door", ScaleX = 3, ScaleY = 4, ScaleZ = 5 };
        insert.Attributes.Add(new CadAttrib { DefinitionTagString = "TAG", DefaultValue = "7" });
        insert.Attributes.Add(new CadAttrib { DefinitionTagString = "TAG2", DefaultValue = "", AttFlags = 1 });
        yield return insert;
        yield return new CadEllipse { MajorEndPoint = new(2, 1, 0), AxisRatio = 0.5, EndAngle = 3 };
        yield return new CadPoint { CenterPoint = new(1, 1, 1), ColorId = 5, LineWeight = 211, Visible = 1 };
        yield return WithXdata(new CadCircle { Radius = 1e-9, LinetypeScale = 0.25 });
        yield return Spline();
    }

    private static CadPolyline Polyline()
    {
        CadPolyline polyline = new() { Flag = CadPolylineFlag.Closed, Elevation = new(0, 0, 7) };
        polyline.Vertices.Add(
            new Cad2DVertex { LocationPoint = new(1, 1, 7), StartWidth = 2, EndWidth = 2, Bulge = -1 });
        polyline.Vertices.Add(new Cad2DVertex { LocationPoint = new(2, 1, 7), StartWidth = 0, EndWidth = 2 });
        return polyline;
    }

    private static CadLwPolyline LwPolyline()
    {
        CadLwPolyline polyline = new() { Elevation = 3, Flag = CadLwPolylineFlag.Closed | CadLwPolylineFlag.Plinegen };
        for (int i = 0; i < 300; i++)
        {
            polyline.Coordinates.Add(new Cad2DPoint(i, i % 7));
            polyline.Bulges.Add(i % 3);
        }

        return polyline;
    }

    private static CadSpline Spline()
    {
        CadSpline spline = new() { Flag = 12, ExtrusionDirection = new() };
        spline.KnotValues.AddRange([0, 0, 0, 0, 1, 1, 1, 1]);
        spline.Weights.AddRange([1, 0.5, 0.5, 1]);
        for (int i = 0; i < 4; i++)
        {
            spline.ControlPoints.Add(new Cad3DPoint(i, i * i, 0));
        }

        return spline;
    }

    private static CadCircle WithXdata(CadCircle circle)
    {
        CadXdata data = new("SURVEY");
        (int Code, string Value)[] tags =
        [
            (1000, "Name"), (1002, "{"), (1003, "Walls"), (1004, "0A0B"), (1005, "1F"), (1010, "1.5"), (1020, "2.5"),
            (1030, "-3.5"), (1040, "0.1"), (1070, "-7"), (1071, "70000"), (1002, "}"),
        ];
        foreach ((int code, string value) in tags)
        {
            data.Data.Add(code == 1004 ? new CadBinaryCodeValue(code, value) : new CadCodeValue(code, value));
        }

        circle.XdataContainer.XdataEntities.Add(data);
        return circle;
    }

    internal static (CadDrawing Drawing, IReadOnlyList<string> LeftOut) WriteAndRead(
        CadDrawing drawing, CadAcadVersion version, LoadOptions? options = null)
    {
        int release = DrawingRelease.Year(version);
        DwgSaver.Prepare(drawing, release);
        DwgObjectWriter writer = new(drawing, release, Encoding.Latin1);
        writer.Write();
        DwgSource source = new([], "written", options ?? new LoadOptions());
        DwgFile file = new()
        {
            Source = source,
            Version = version,
            Encoding = Encoding.Latin1,
            Objects = writer.Objects.ToArray(),
            Map = ObjectMap.Read(source, writer.Objects.WriteMap(0), -1),
        };
        CadDrawing again = new(DrawingSeed.Blank);
        again.Header.AcadVersion = version;
        foreach (CadClassEntity item in writer.Classes)
        {
            again.ClassEntities.Add(item);
        }

        new DwgReader(file, again).Read();
        return (again, writer.LeftOut);
    }
}
