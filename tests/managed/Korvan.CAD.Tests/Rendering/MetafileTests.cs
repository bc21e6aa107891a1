using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.ImageOptions;
using Xunit;
using static Korvan.CAD.Tests.Rendering.MetafilePage;
using LineCapElement = Korvan.CAD.FileFormats.Cgm.Commands.LineCap;

namespace Korvan.CAD.Tests.Rendering;

public class MetafileTests
{
    [Fact]
    public void Lines_have_width_colour_ends_and_joins()
    {
        using MetafilePage page = Of(
        [
            .. Pen(Red, 10),
            new LineCapElement { Cap = LineCapIndicator.Butt },
            new LineJoin { Join = JoinIndicator.Mitre },
            Line(20, 20, 60, 20, 60, 80),
        ]);
        Assert.Equal(Red, page[40, 24]);
        Assert.Equal(Rgba.White, page[40, 26]);
        Assert.Equal(Rgba.White, page[18, 20]);
        Assert.Equal(Red, page[64, 16]);
    }

    [Fact]
    public void Widths_follow_their_modes()
    {
        // The page has 100 pixels for 100 mm.
        var metric = new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 1 };
        foreach ((SpecificationMode mode, double width, double mm, int pixels) in new[]
        {
            (SpecificationMode.Absolute, 20.0, 1.0, 20), (SpecificationMode.Fractional, 0.2, 1.0, 20),
                (SpecificationMode.Millimetres, 20.0, 2.0, 10),
        })
        {
            metric.MetricScaleFactor = mm;
            CgmImage image = Image([], [metric, new LineWidthSpecificationMode { Value = mode }],
                [.. Pen(Red, width), Line(0, 50, 100, 50)]);
            using MetafilePage page = Of(image);
            (int _, int y0, int _, int y1) = page.Foreground();
            Assert.Equal(pixels, y1 - y0);
        }
    }

    [Fact]
    public void Dashes_and_bundles_say_how_lines_look()
    {
        var bundle = new LineRepresentation { BundleIndex = 2, Type = DashType.Solid, Width = 10, Color = C(Blue) };
        var flags = new AspectSourceFlags();
        flags.Infos
            .Add(new AspectSourceFlags.AspectSourceFlagsInfo(AspectSourceFlags.ASFType.LineColour,
            AspectSourceFlags.ASFValue.Bundled));
        CgmImage image = Image(
            [],
            [new LineAndEdgeTypeDefinition { TypeIndex = -1, RepeatLength = 40, Elements = [3, 1] }, bundle],
            [
                .. Pen(Red, 4),
                new LineCapElement { Cap = LineCapIndicator.Butt },
                new LineType { Index = -1 },
                Line(0, 20, 100, 20),
                new LineBundleIndex { Index = 2 },
                flags,
                Line(0, 60, 20, 60),
            ]);
        using MetafilePage page = Of(image);
        Assert.Equal(Red, page[28, 20]);
        Assert.Equal(Rgba.White, page[35, 20]);
        Assert.Equal(Red, page[45, 20]);
        Assert.Equal(Blue, page[10, 60]);
        Assert.Equal(Rgba.White, page[10, 64]);
    }

    [Fact]
    public void Arcs_turn_as_their_elements_say()
    {
        using MetafilePage page = Of(
        [
            .. Pen(Red, 4),
            new CircularArcCentre { Centre = P(50, 50), StartX = 1, EndX = 0, EndY = 1, Radius = 20 },
                // the upper right quarter
            .. Pen(Blue, 4),
            new CircularArcCentreReversed { Centre = P(50, 50), StartX = 1, EndX = 0, EndY = 1, Radius = 30 },
                // all but that
            .. Pen(Green, 4),
            new CircularArc3Point { Start = P(90, 50), Intermediate = P(50, 10), End = P(10, 50) }, // the lower half
            .. Pen(Rgba.Black, 4),
            new EllipticalArc
            {
                Centre = P(50, 50), FirstRadiusEnd = P(60, 50), SecondRadiusEnd = P(50, 55), StartX = -1, EndX = 1,
                    EndY = 0,
            }, // the lower half
        ]);
        Assert.Equal(Red, page[64, 64]);
        Assert.Equal(Rgba.White, page[36, 36]);
        Assert.Equal(Blue, page[29, 29]);
        Assert.Equal(Rgba.White, page[71, 71]);
        Assert.Equal(Green, page[50, 10]);
        Assert.Equal(Rgba.White, page[50, 90]);
        Assert.Equal(Rgba.Black, page[50, 45]);
        Assert.Equal(Rgba.White, page[50, 55]);
    }

    [Fact]
    public void Conics_and_splines_pass_their_points()
    {
        using MetafilePage page = Of(
        [
            .. Pen(Red, 4),
            new ParabolicArc { Start = P(10, 10), TangentIntersection = P(50, 90), End = P(90, 10) },
                // the vertex lies halfway
            .. Pen(Blue, 4),
            new HyperbolicArc
            {
                Centre = P(0, 0), TransverseRadiusEnd = P(30, 0), ConjugateRadiusEnd = P(0, 30), StartX = 50,
                    StartY = -30, EndX = 50, EndY = 30,
            },
            .. Pen(Green, 4),
            new PolyBezier { ContinuityIndicator = 2,
                Points = Points(5, 60, 5, 80, 20, 80, 20, 60, 20, 40, 35, 40, 35, 60) },
            .. Pen(Rgba.Black, 4),
            new NonUniformBSpline
            {
                Order = 3, ControlPoints = Points(60, 60, 70, 100, 80, 60), Knots = [0, 0, 0, 1, 1, 1],
                    StartParameter = 0, EndParameter = 0.5,
            },
        ]);
        Assert.Equal(Red, page[50, 50]);
        Assert.Equal(Blue, page[30, 0]);
        Assert.Equal(Blue, page[37, 22]); // x² - y² = 30²
        Assert.Equal(Green, page[12, 75]);
        Assert.Equal(Green, page[27, 45]);
        Assert.Equal(Rgba.Black, page[69, 79]);
        Assert.Equal(Rgba.White, page[77, 71]); // behind the end parameter
    }

    [Fact]
    public void Areas_are_filled_by_parity_and_edged()
    {
        using MetafilePage page = Of(
        [
            .. Solid(Red), .. Edge(Blue, 4),
            new PolygonSet
            {
                Points = Points(10, 10, 60, 10, 60, 60, 10, 60, 20, 20, 50, 20, 50, 50, 20, 50),
                Flags =
                [
                    PolygonSet.EdgeFlag.Visible, PolygonSet.EdgeFlag.Invisible, PolygonSet.EdgeFlag.Visible,
                        PolygonSet.EdgeFlag.CloseVisible,
                    PolygonSet.EdgeFlag.Invisible, PolygonSet.EdgeFlag.Invisible, PolygonSet.EdgeFlag.Invisible,
                        PolygonSet.EdgeFlag.CloseInvisible,
                ],
            },
            new EdgeVisibility(),
            new CircularArcCentreClose { Centre = P(75, 75), StartX = 1, EndX = -1, EndY = 0, Radius = 20,
                Closure = ClosureType.Chord },
            new CircularArcCentreClose { Centre = P(75, 40), StartX = 1, EndX = 0, EndY = -1, Radius = 20,
                Closure = ClosureType.Pie },
            new InteriorStyle { Value = InteriorStyle.Style.Empty },
            Box(0, 90, 10, 100),
        ]);
        Assert.Equal(Red, page[15, 30]);
        Assert.Equal(Rgba.White, page[35, 35]);
        Assert.Equal(Blue, page[30, 10]);
        Assert.Equal(Red, page[59, 30]); // this side has no edge
        Assert.Equal(Red, page[75, 85]);
        Assert.Equal(Rgba.White, page[75, 70]);
        Assert.Equal(Red, page[65, 50]);
        Assert.Equal(Rgba.White, page[85, 30]); // the quarter that the pie lacks
        Assert.Equal(Rgba.White, page[5, 95]);
    }

    [Fact]
    public void Interiors_are_hatched_patterned_and_shaded()
    {
        var pattern = new PatternTable { Index = 3, CellsPerLine = 2, LineCount = 1, Cells = [0xFF0000, 0x0000FF] };
        using MetafilePage page = Of(
            Image(
                [],
                [
                    new InteriorStyleSpecificationMode { Value = SpecificationMode.Absolute },
                    new HatchStyleDefinition
                    {
                        HatchNumber = -2, FirstDirectionX = 1, FirstDirectionY = 0, CycleLength = 10, GapWidths = [1],
                            LineTypes = [1],
                    },
                ],
                [
                    pattern,
                    new InteriorStyle { Value = InteriorStyle.Style.Pattern }, new PatternIndex { Index = 3 },
                    new PatternSize { WidthX = 20, WidthY = 0, HeightX = 0, HeightY = 10 },
                        new FillReferencePoint { Point = P(10, 10) },
                    Box(0, 0, 50, 40),
                    new InteriorStyle { Value = InteriorStyle.Style.Hatch }, new HatchIndex { Index = -2 },
                    new FillColour { Color = C(Red) }, new FillReferencePoint { Point = P(0, 5) },
                    Box(50, 0, 100, 40),
                    new InteriorStyle { Value = InteriorStyle.Style.Interpolated },
                        new FillReferencePoint { Point = P(0, 50) },
                    new InterpolatedInterior { Style = 1, ReferenceGeometry = [100, 0], StageDesignators = [1],
                        Colors = [C(Red), C(Blue)] },
                    Box(0, 50, 100, 100),
                ]));
        Assert.Equal(Red, page[15, 5]);
        Assert.Equal(Blue, page[25, 25]);
        Assert.Equal(Red, page[35, 35]);
        Assert.True(page[75, 15].G < 200 && page[75, 15].R > 200); // a hatch line each ten units
        Assert.Equal(Rgba.White, page[75, 10]);
        Assert.True(page[3, 75].R > 240 && page[97, 75].B > 240);
    }

    [Fact]
    public void Figures_are_closed_by_connecting_lines_and_compound_lines_are_one()
    {
        using MetafilePage page = Of(
        [
            .. Solid(Red), .. Edge(Blue, 4),
            new BeginFigure(),
            Line(10, 10, 50, 10),
            new ConnectingEdge(),
            Line(50, 50, 10, 50), // a visible edge leads here, an invisible one back
            new NewRegion(),
            Line(20, 20, 40, 20, 40, 40, 20, 40),
            new EndFigure(),
            .. Pen(Green, 6),
            new LineCapElement { Cap = LineCapIndicator.Butt }, new LineJoin { Join = JoinIndicator.Mitre },
            new BeginCompoundLine(), Line(60, 60, 90, 60), Line(90, 60, 90, 90), new EndCompoundLine(),
        ]);
        Assert.Equal(Red, page[15, 30]);
        Assert.Equal(Rgba.White, page[30, 30]);
        Assert.Equal(Blue, page[30, 10]);
        Assert.Equal(Blue, page[50, 30]);
        Assert.Equal(Red, page[11, 30]);
        Assert.Equal(Green, page[92, 58]); // the mitre of one line
    }

    [Fact]
    public void Cells_fill_their_parallelogram_from_the_first_corner()
    {
        using MetafilePage page = Of(
            new CellArray
            {
                FirstCorner = P(10, 90),
                OppositeCorner = P(50, 50),
                LineEnd = P(50, 90),
                CellsPerLine = 2,
                LineCount = 2,
                Cells = [0xFF0000, 0x00FF00, 0x0000FF, 0],
            },
            new TransparentCellColour { IsActive = true, Color = C(Green) },
            new CellArray
            {
                FirstCorner = P(60, 10),
                OppositeCorner = P(90, 40),
                LineEnd = P(60, 40),
                CellsPerLine = 2,
                LineCount = 1,
                Cells = [0xFF0000, 0x00FF00],
            });
        Assert.Equal(Red, page[20, 80]);
        Assert.Equal(Green, page[40, 80]);
        Assert.Equal(Blue, page[20, 60]);
        Assert.Equal(Rgba.Black, page[40, 60]);
        Assert.Equal(Red, page[75, 15]); // the line runs up
        Assert.Equal(Rgba.White, page[75, 35]);
    }

    [Fact]
    public void Tiles_are_unpacked_in_their_places()
    {
        // One line of eight black cells, then seven like it: horizontal mode, then vertical ones (ITU-T T.6).
        byte[] t6 = [0b00100110, 0b10100010, 0b11111111, 0b11111110, 0b00000000, 0b00010000, 0b00000001];
        var array = new BeginTileArray
        {
            Position = P(10, 90),
            TilesInPathDirection = 2,
            TilesInLineDirection = 1,
            CellsPerTileInPathDirection = 8,
            CellsPerTileInLineDirection = 8,
            CellSizeInPathDirection = 5,
            CellSizeInLineDirection = 5,
            ImageCellsInPathDirection = 16,
            ImageCellsInLineDirection = 8,
        };
        BitonalTile Tile(CompressionType type, byte[] data) =>
            new() { Compression = type, RowPadding = 8, Background = C(Green), Foreground = C(Red), Data = data };
        using MetafilePage page = Of(
            array, Tile(CompressionType.T6, t6), Tile(CompressionType.Bitmap, [0xF0, 0xF0, 0xF0, 0xF0, 0, 0, 0, 0xFF]),
                new EndTileArray());
        Assert.Equal(Red, page[12, 88]);
        Assert.Equal(Red, page[48, 52]);
        Assert.Equal(Red, page[55, 85]);
        Assert.Equal(Green, page[80, 85]);
        Assert.Equal(Green, page[55, 62]);
        Assert.Equal(Red, page[85, 52]);
    }

    [Fact]
    public void Tiles_of_many_colours_are_cells_or_packed_ones()
    {
        var array = new BeginTileArray
        {
            Position = P(0, 100),
            CellsPerTileInPathDirection = 2,
            CellsPerTileInLineDirection = 1,
            CellSizeInPathDirection = 50,
            CellSizeInLineDirection = 50,
        };
        Tile Tile(CompressionType type, int bits, params byte[] data) =>
            new() { Compression = type, CellPrecision = bits, RowPadding = 8, Data = data };
        using MetafilePage direct = Of(array, Tile(CompressionType.Bitmap, 4, 0xF0, 0x00, 0x0F), new EndTileArray());
        Assert.Equal((Red, Blue), (direct[25, 75], direct[75, 75]));

        // A clear code, the cells 4 and 5, and the end, each of nine bits (TIFF 6.0, section 13).
        Tile packed = Tile(CompressionType.Lzw, 8, 0x80, 0x01, 0x00, 0xB0, 0x10);
        var table = new ColourTable { StartIndex = 4, Colors = [C(Green), C(Blue)] };
        using MetafilePage indexed = Of(Image([], [new ColourSelectionMode()],
            [table, array, packed, new EndTileArray()]));
        Assert.Equal((Green, Blue), (indexed[25, 75], indexed[75, 75]));
        using MetafilePage colours = Of(array,
            Tile(CompressionType.Lzw, 8, 0x80, 0x3F, 0xC0, 0x00, 0x00, 0x00, 0x01, 0xFF, 0x01), new EndTileArray());
        Assert.Equal((Red, Blue), (colours[25, 75], colours[75, 75]));
        using MetafilePage cut = Of(array, Tile(CompressionType.Bitmap, 8, 1, 2, 3), new EndTileArray());
        Assert.Equal(Rgba.White, cut[25, 75]); // not all cells are there
    }

    [Fact]
    public void Clips_and_regions_hide_what_lies_outside()
    {
        using MetafilePage page = Of(
        [
            .. Solid(Red),
            new ClipRectangle { FirstCorner = P(10, 10), SecondCorner = P(50, 50) },
            Box(0, 0, 100, 30),
            new ClipIndicator { IsClipping = false },
            Box(60, 40, 70, 50),
            new BeginProtectionRegion { RegionIndex = 1 }, Box(80, 80, 90, 90), new EndProtectionRegion(),
            new ProtectionRegionIndicator { RegionIndex = 1, Indicator = 3 },
            Box(70, 70, 100, 100),
        ]);
        Assert.Equal(Rgba.White, page[5, 20]);
        Assert.Equal(Red, page[30, 20]);
        Assert.Equal(Rgba.White, page[60, 20]);
        Assert.Equal(Red, page[65, 45]);
        Assert.Equal(Red, page[75, 75]);
        Assert.Equal(Rgba.White, page[85, 85]); // the region is shielded
    }

    [Fact]
    public void Segments_are_copied_with_their_transformations_and_attributes_come_back()
    {
        CgmImage image = Image(
            [new BeginSegment { Identifier = 7 }, .. Solid(Red), Box(0, 0, 10, 10), new EndSegment()],
            [],
            [
                .. Solid(Blue),
                new CopySegment { SegmentIdentifier = 7, ScaleX = 2, ScaleY = 2, TranslationX = 20, TranslationY = 20 },
                Box(60, 60, 70, 70),
                new SavePrimitiveContext { ContextName = 1 }, .. Solid(Green),
                    new RestorePrimitiveContext { ContextName = 1 },
                Box(80, 80, 90, 90),
                new BeginSegment { Identifier = 8 },
                new SegmentTransformation { SegmentIdentifier = 8, TranslationX = 50 }, .. Solid(Green),
                    Box(0, 0, 10, 10), new EndSegment(),
            ]);
        using MetafilePage page = Of(image);
        Assert.Equal(Rgba.White, page[5, 5]);
        Assert.Equal(Red, page[38, 38]);
        Assert.Equal(Blue, page[65, 65]);
        Assert.Equal(Blue, page[85, 85]);
        Assert.Equal(Green, page[55, 5]);
    }

    [Fact]
    public void Segments_that_contain_themselves_are_refused_by_name()
    {
        CgmImage endless = Image(
            [new BeginSegment { Identifier = 7 }, new CopySegment { SegmentIdentifier = 7 }, new EndSegment()], [],
                [new CopySegment { SegmentIdentifier = 7 }]);
        Assert.Contains("\"one\"", Assert.Throws<ImageSaveException>(() => Of(endless)).Message);
    }

    [Fact]
    public void Structures_are_layers_and_can_be_invisible()
    {
        ApplicationStructureAttribute Attribute(string name, string value)
        {
            var attribute = new ApplicationStructureAttribute { AttributeType = name };
            attribute.Value.Members
                .Add(new StructuredDataRecord.Member(StructuredDataRecord.StructuredDataType.Text, [value]));
            return attribute;
        }

        CgmImage image = Image(
        [
            .. Solid(Red),
            new BeginApplicationStructure { Identifier = "a", StructureType = "layer" },
                Attribute("layername", "Walls"),
            new BeginApplicationStructureBody(), Box(0, 0, 10, 10), new EndApplicationStructure(),
            new BeginApplicationStructure { Identifier = "b", StructureType = "grobject" },
                Attribute("visibility", "off"),
            new BeginApplicationStructureBody(), Box(20, 0, 30, 10), new EndApplicationStructure(),
            Box(40, 0, 50, 10),
        ]);
        using MetafilePage all = Of(image);
        Assert.Equal((Red, Rgba.White, Red), (all[5, 5], all[25, 5], all[45, 5]));
        var options = new PngOptions
        {
            Layers = ["walls"],
            VectorRasterizationOptions = new CadRasterizationOptions { PageWidth = 100, PageHeight = 100 }
        };
        using var walls = Rasterizer.Draw(image, options);
        Assert.Equal(0, walls.Row(95)[5 * 4]);
        Assert.Equal(255, walls.Row(95)[45 * 4]);
    }

    [Fact]
    public void Pictures_are_pages_with_their_own_coordinates_and_the_defaults_of_the_metafile()
    {
        var defaults = new MetafileDefaultsReplacement();
        defaults.Commands.AddRange(Solid(Blue));
        CgmImage image = Image([defaults], [new VdcExtent(P(100, 100), P(0, 0))],
            [Box(0, 0, 30, 10), .. Solid(Red), Box(60, 60, 70, 70)]);
        image.File.Commands.InsertRange(image.File.Commands.Count - 1, Picture("one", [], [Box(0, 0, 30, 10)]));
        image.File.Commands.InsertRange(image.File.Commands.Count - 1,
            Picture("", [new BackgroundColour { Color = C(Green) }], []));
        Assert.Equal(["one", "one (2)", "Picture 3"], image.PictureNames);
        using MetafilePage first = Of(image, "one");
        using MetafilePage second = Of(image, "one (2)");
        using MetafilePage third = Of(image, "Picture 3");
        Assert.Equal(Blue, first[95, 95]); // both axes run the other way
        Assert.Equal(Blue, second[5, 5]);
        Assert.Equal(Rgba.White, second[35, 35]); // the red of the first picture is gone
        Assert.Equal(Green, third[50, 50]);
    }

    [Fact]
    public void Colours_by_number_come_from_the_table()
    {
        var table = new ColourTable { StartIndex = 4, Colors = [C(Green), C(Blue)] };
        CgmImage image = Image([], [new ColourSelectionMode()], [
            table, new InteriorStyle { Value = InteriorStyle.Style.Solid }, new FillColour { Color = new CgmColor(5) },
                Box(0, 0, 10, 10),
            new CellArray
            {
                FirstCorner = P(20, 0), OppositeCorner = P(40, 10), LineEnd = P(40, 0), CellsPerLine = 2, LineCount = 1,
                    Cells = [4, 1],
            },
        ]);
        using MetafilePage page = Of(image);
        Assert.Equal((Blue, Green, Rgba.Black), (page[5, 5], page[25, 5], page[35, 5]));
    }

    [Fact]
    public void Sizes_in_millimetres_make_pages_of_that_size()
    {
        CgmImage image = Image([], [new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 2.1 }],
            [Box(0, 0, 10, 10)]);
        Assert.Equal((210, 210, UnitType.Millimeter), (image.Width, image.Height, image.UnitType));
        string file = Tools.TempFile(".pdf");
        image.Save(file, new PdfOptions());
        Assert.Contains("595.2", Tools.Run("pdfinfo", file), System.StringComparison.Ordinal);
        image.File.Commands.OfType<ScalingMode>().First().MetricScaleFactor = 1e9; // no sheet is so large
        Assert.Equal((100, UnitType.Unitless), (image.Width, image.UnitType));
    }
}
