using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>The places and sizes of what stands for newer entities, and what old drawings get.</summary>
public class ReleaseGeometryTests
{
    [Fact]
    public void Multilines_become_a_polyline_for_each_element()
    {
        CadMultiLine line = new() { Flags = CadMultiLineFlag.Closed | CadMultiLineFlag.HasVertices };
        foreach ((double x, double y, double side) in new[] { (0.0, 0.0, 1.0), (10, 0, 1), (10, 5, -2) })
        {
            CadMultiLineVectorBlock vertex = new()
            {
                Location = new Cad3DPoint(x, y, 0),
                Miter = new Cad3DPoint(0, side, 0),
            };
            vertex.ElementParameters.AddRange([[0.5], [-0.5, 1, 2]]); // after the first, where the line is broken
            line.Vertices.Add(vertex);
        }

        CadPolyline[] made = [.. Converted(DxfOutputVersion.R12, line).Entities.Cast<CadPolyline>()];
        Assert.Equal(["0 0.5, 10 0.5, 10 4", "0 -0.5, 10 -0.5, 10 6"], made.Select(Corners));
        Assert.All(made, static one => Assert.True(one.IsClosed));
    }

    [Fact]
    public void Images_become_their_frames()
    {
        CadRasterImage image = new()
        {
            InsertionPoint = new Cad3DPoint(5, 6, 7),
            VectorU = new Cad3DPoint(0, 0.5, 0), // rotated by a quarter
            VectorV = new Cad3DPoint(-0.25, 0, 0),
            ImageSize = new Cad2DPoint(20, 8),
        };
        CadPolyline frame = Assert.IsType<CadPolyline>(Assert.Single(Converted(DxfOutputVersion.R12, image).Entities));
        Assert.Equal("5 6, 5 16, 3 16, 3 6", Corners(frame));
        Assert.Equal((true, 7.0), (frame.IsClosed, frame.Elevation.Z));
    }

    [Fact]
    public void Tilted_ellipses_become_polylines_in_space()
    {
        CadEllipse ellipse = new()
        {
            CenterPoint = new Cad3DPoint(1, 2, 3),
            MajorEndPoint = new Cad3DPoint(0, 0, 4),
            ExtrusionDirection = new Cad3DPoint(1, 0, 0),
            AxisRatio = 0.5,
            EndAngle = Math.PI,
        };
        CadPolyline3D made = Assert.IsType<CadPolyline3D>(
            Assert.Single(Converted(DxfOutputVersion.R12, ellipse).Entities));
        Cad3DPoint[] points = [.. made.Vertices.Select(static vertex => vertex.LocationPoint)];
        Assert.All(points, static point => Assert.Equal(
            1, Math.Pow((point.Y - 2) / 2, 2) + Math.Pow((point.Z - 3) / 4, 2), 3));
        Assert.All(points, static point => Assert.Equal(1, point.X, 9));
        Assert.Equal((7.0, -1.0), (Math.Round(points[0].Z, 6), Math.Round(points[^1].Z, 6)));
        Assert.Contains(points, static point => point.Y < 2 - 1.99); // the normal crossed with the major axis
    }

    [Fact]
    public void Frames_of_tolerances_have_a_row_for_each_line_and_a_cell_for_each_part()
    {
        DxfImage source = new();
        source.DimensionStyles[0].Dimtxt = 2;
        source.DimensionStyles[0].Dimscale = 3;
        CadTolerance tolerance = new()
        {
            InsertionPoint = new Cad3DPoint(10, 20, 0),
            VisualRepresentation = "0.1%%vA%%v%%vB^J0.2",
            DimensionStyleName = source.DimensionStyles[0].Name,
        };
        CadEntityBase[] made = [.. Converted(DxfOutputVersion.R12, source, tolerance).Entities];
        CadPolyline[] frames = [.. made.OfType<CadPolyline>()];
        Assert.Equal(["0.1", "A", "B", "0.2"], made.OfType<CadText>().Select(static text => text.DefaultValue));
        Assert.All(made.OfType<CadText>(), static text => Assert.Equal(6, text.TextHeight));
        Assert.Equal([14.0, 14, 14, 2], frames.Select(static frame =>
            frame.Vertices.Min(static vertex => vertex.LocationPoint.Y)));
        Assert.All(frames, static frame => Assert.Equal(12, Height(frame), 9));
        Assert.Equal([10.0, 10], [Left(frames[0]), Left(frames[3])]);
        Assert.Equal(Right(frames[0]), Left(frames[1]), 9);
        Assert.Equal(Right(frames[1]), Left(frames[2]), 9);
        for (int i = 0; i < frames.Length; i++)
        {
            double middle = made.OfType<CadText>().ElementAt(i).SecondAlignment.X;
            Assert.Equal((Left(frames[i]) + Right(frames[i])) / 2, middle, 9);
        }
    }

    [Fact]
    public void Newer_dimensions_and_tables_become_insertions_of_their_blocks()
    {
        DxfImage source = new();
        CadBlockEntity block = new() { Name = "*D7", NameAgain = "*D7" };
        block.Entities.Add(new CadLine());
        source.BlockEntities.Add(block);
        CadArcLengthDimension shown = new() { BlockName = "*D7", InsertionPoint = new Cad3DPoint(1, 2, 0) };
        CadArcLengthDimension empty = new() { BlockName = "*D9" };
        DxfImage again = Converted(DxfOutputVersion.R2000, source, shown, empty);
        CadInsertObject insert = Assert.IsType<CadInsertObject>(Assert.Single(again.Entities));
        Assert.Equal(("*D7", 1.0, 2.0), (insert.Name, insert.InsertionPoint.X, insert.InsertionPoint.Y));
        Assert.IsType<CadArcLengthDimension>(Converted(DxfOutputVersion.R2004, source).Entities[0]);
    }

    [Fact]
    public void What_is_made_takes_handle_layer_and_extended_data_of_its_source()
    {
        CadLwPolyline source = new() { LayerName = "WALLS", ColorId = 5, LineWeight = 50, ObjectHandle = "F00" };
        source.Coordinates.AddRange([new(0, 0), new(1, 1)]);
        source.XdataContainer.XdataEntities.Add(new CadXdata("ACME"));
        source.XdataContainer.XdataEntities[0].Data.Add(new CadCodeValue(1000, "note"));
        CadEntityBase made = Assert.Single(Converted(DxfOutputVersion.R12, source).Entities);
        Assert.Equal(("F00", "WALLS", (short)5), (made.ObjectHandle, made.LayerName, made.ColorId));
        Assert.Equal("note", made.XdataContainer.XdataEntities.Single().Data[0].Value);
    }

    /// <summary>An entity, the first release that has it, and what it is before.</summary>
    public static readonly TheoryData<CadEntityBase, DxfOutputVersion, string> Firsts = new()
    {
        { Polyline(), DxfOutputVersion.R2000, "POLYLINE" },
        { new CadMText { Text = "a" }, DxfOutputVersion.R2000, "TEXT" },
        { new CadRay { UnitDirection = new Cad3DPoint(1, 0, 0) }, DxfOutputVersion.R2000, "LINE" },
        { new CadRasterImage(), DxfOutputVersion.R2000, "POLYLINE" },
        { new Cad3DSolid { AcisData = { "400 0 1 0" } }, DxfOutputVersion.R2000, "" },
        { new CadLight(), DxfOutputVersion.R2007, "" },
        { new CadArcLengthDimension(), DxfOutputVersion.R2004, "" },
    };

    [Theory]
    [MemberData(nameof(Firsts))]
    public void Entities_stay_from_their_first_release_on(CadEntityBase entity, DxfOutputVersion first, string before)
    {
        foreach (DxfOutputVersion target in Enum.GetValues<DxfOutputVersion>())
        {
            if (target != DxfOutputVersion.Original)
            {
                string[] names = [.. Converted(target, entity.Clone()).Entities.Select(static one => one.TypeNameText)];
                string[] expected = target >= first ? [entity.TypeNameText] : before.Length > 0 ? [before] : [];
                Assert.True(expected.SequenceEqual(names), $"{target}: {string.Join(' ', names)}");
            }
        }
    }

    [Fact]
    public void Old_drawings_get_what_later_releases_require()
    {
        DxfImage old = DxfText.Load(DxfText.Header("AC1009")
            + DxfText.Entities(0, "POINT", 8, "WALLS", 6, "DASHED") + DxfText.Tags(0, "EOF"));
        DxfImage again = ReleaseTests.Converted(old, DxfOutputVersion.R2018).Image;
        Assert.Empty(new[] { "ByBlock", "ByLayer", "Continuous", "DASHED" }.Except(again.LineTypes.Names));
        Assert.Empty(new[] { "0", "WALLS" }.Except(again.Layers.Names));
        Assert.Equal(["*Model_Space", "*Paper_Space"], again.BlockRecords.Names.Order());
        CadDictionaryBase root = again.Objects.OfType<CadDictionaryBase>().First();
        Assert.Empty(new[] { "ACAD_GROUP", "ACAD_MLINESTYLE", "ACAD_LAYOUT" }.Except(root.Names));
        CadDictionaryBase styles = again.Objects.OfType<CadDictionaryBase>().Single(
            one => one.ObjectHandle == root.GetHandle("ACAD_MLINESTYLE"));
        Assert.Equal(styles.GetHandle("STANDARD"), again.Objects.Single(
            static one => one.TypeNameText == "MLINESTYLE").ObjectHandle);
        Assert.Equal(["Model", "Layout1"], again.Layouts.Names);
    }

    [Fact]
    public void What_release_12_lacks_of_an_entity_has_its_default()
    {
        DxfImage again = Converted(DxfOutputVersion.R12, new CadLine
        {
            LinetypeScale = 3,
            Transparency = 0x020000FF,
            ColorValue = 0xff0000,
            SecondPoint = new Cad3DPoint(1, 2, 3),
        });
        CadLine line = Assert.IsType<CadLine>(Assert.Single(again.Entities));
        Assert.Equal((1.0, 0, (short)1), (line.LinetypeScale, line.Transparency, line.ColorId));
        Assert.True(line.SecondPoint.Is(1, 2, 3));
    }

    private static CadLwPolyline Polyline()
    {
        CadLwPolyline polyline = new();
        polyline.Coordinates.AddRange([new(0, 0), new(1, 1)]);
        return polyline;
    }

    private static DxfImage Converted(DxfOutputVersion target, params CadEntityBase[] entities) =>
        Converted(target, new DxfImage(), entities);

    private static DxfImage Converted(DxfOutputVersion target, DxfImage image, params CadEntityBase[] entities)
    {
        Array.ForEach(entities, image.AddEntity);
        return ReleaseTests.Converted(image, target).Image;
    }

    private static string Corners(CadPolyline polyline) => string.Join(", ", polyline.Vertices.Select(
        static vertex => FormattableString.Invariant($"{R(vertex.LocationPoint.X)} {R(vertex.LocationPoint.Y)}")));

    private static double R(double value) => Math.Round(value, 9);

    private static double Left(CadPolyline frame) => frame.Vertices.Min(static vertex => vertex.LocationPoint.X);

    private static double Right(CadPolyline frame) => frame.Vertices.Max(static vertex => vertex.LocationPoint.X);

    private static double Height(CadPolyline frame) => frame.Vertices.Max(static vertex => vertex.LocationPoint.Y)
        - frame.Vertices.Min(static vertex => vertex.LocationPoint.Y);
}
