using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.FileFormats.Cgm.Export;
using Korvan.CAD.FileFormats.Cgm.Import;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Elements in both encodings, put together by hand from ISO/IEC 8632-3 and 8632-4.</summary>
public class ElementEncodingTests
{
    private static readonly CgmColor Red = new(Color.FromArgb(255, 0, 0));

    /// <summary>Commands at the start of a metafile: 16-bit integer coordinates, fixed-point reals, indexed
    /// colours.</summary>
    public static readonly TheoryData<Command, string, string> Elements = new()
    {
        { new BeginMetafile("ab"), "0023 02 6162 00", "BEGMF 'ab';" },
        { new EndPicture(), "00A0", "ENDPIC;" },
        { new MetafileVersion(3), "1022 0003", "MFVERSION 3;" },
        { new IntegerPrecision { Precision = 32 }, "1082 0020", "INTEGERPREC -2147483648 2147483647;" },
        { new RealPrecision { Value = Precision.Floating64 }, "10A6 0000 000C 0034", "" },
        { new ColourValueExtent(), "1146 000000 FFFFFF", "COLRVALUEEXT 0 0 0 255 255 255;" },
        {
            new MetafileElementList { Elements = ["DRAWINGPLUS", "LINE"] }, "116A 0002 FFFF 0001 0004 0001",
            "MFELEMLIST 'DRAWINGPLUS LINE';"
        },
        { new FontList { Fonts = ["a", "bc"] }, "11A5 01 61 02 6263 00", "FONTLIST 'a' 'bc';" },
        {
            new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 0.5 }, "2026 0001 3F000000",
            "SCALEMODE METRIC 0.5;"
        },
        { new LineWidthSpecificationMode { Value = SpecificationMode.Absolute }, "2062 0000", "LINEWIDTHMODE ABS;" },
        { new BackgroundColour(Red), "20E3 FF0000 00", "BACKCOLR 255 0 0;" },
        { new VdcIntegerPrecision { Precision = 16 }, "3022 0010", "VDCINTEGERPREC -32768 32767;" },
        { new ClipIndicator(false), "30C2 0000", "CLIP OFF;" },
        { new Polyline([new(1, 2), new(-1, 256)]), "4028 0001 0002 FFFF 0100", "LINE (1,2) (-1,256);" },
        { new Text(new CgmPoint(1, 2), "Hi"), "4089 0001 0002 0001 02 4869 00", "TEXT (1,2) FINAL 'Hi';" },
        {
            new PolygonSet
            {
                Points = [new(1, 2), new(3, 4)],
                Flags = [PolygonSet.EdgeFlag.Visible, PolygonSet.EdgeFlag.CloseInvisible],
            },
            "410C 0001 0002 0001 0003 0004 0002", "POLYGONSET (1,2) VIS (3,4) CLOSEINVIS;"
        },
        {
            new GeneralizedDrawingPrimitive { Identifier = -1, Points = [new(1, 2)], Data = [0x41] },
            "414A FFFF 0001 0001 0002 01 41", "GDP -1 (1,2) 'A';"
        },
        { new CircleElement(new CgmPoint(1, 2), 3), "4186 0001 0002 0003", "CIRCLE (1,2) 3;" },
        {
            new CircularArcCentreClose
            {
                Centre = new(1, 2), StartX = 3, StartY = 4, EndX = 5, EndY = 6, Radius = 7, Closure = ClosureType.Chord,
            },
            "4210 0001 0002 0003 0004 0005 0006 0007 0001", "ARCCTRCLOSE (1,2) 3 4 5 6 7 CHORD;"
        },
        { new LineType { Type = DashType.Dot }, "5042 0003", "LINETYPE 3;" },
        { new LineWidth(1.5), "5064 0001 8000", "LINEWIDTH 1.5;" },
        { new LineColour(new CgmColor(4)), "5081 04 00", "LINECOLR 4;" },
        { new InteriorStyle { Value = InteriorStyle.Style.Empty }, "52C2 0004", "INTSTYLE EMPTY;" },
        {
            // Without a mode for interiors their sizes are coordinates, as they were before there was one.
            new PatternSize { HeightX = 0, HeightY = 2, WidthX = 3, WidthY = 0 }, "5428 0000 0002 0003 0000",
            "PATSIZE 0 2 3 0;"
        },
        { new ColourTable(2, [Red]), "5444 02 FF0000", "COLRTABLE 2 255 0 0;" },
        {
            new AspectSourceFlags { Infos = [new(AspectSourceFlags.ASFType.All, AspectSourceFlags.ASFValue.Bundled)] },
            "5464 01FF 0001", "ASF ALL BNDLD;"
        },
        {
            new CAD.FileFormats.Cgm.Commands.LineCap { CapIndex = 2, DashCapIndex = 3 }, "54A4 0002 0003",
            "LINECAP 2 3;"
        },
        { new Escape { Identifier = 5, Data = [0x41, 0x42] }, "6025 0005 02 4142 00", "ESCAPE 5 'AB';" },
        {
            new MessageCommand { Action = MessageCommand.ActionType.Action, Message = "x" }, "7024 0001 01 78",
            "MESSAGE ACTION 'x';"
        },
        {
            new InheritanceFilter { Filters = [InheritanceFilter.Filter.LineColour, InheritanceFilter.Filter.All] },
            "8046 0003 002D 0001", "INHFILTER LINECOLR ALL SEG;"
        },
        {
            new SegmentTransformation { SegmentIdentifier = 1, TranslationX = 5, TranslationY = 6 },
            "8096 0001 00010000 00000000 00000000 00010000 0005 0006", "SEGTRAN 1 1.0 0.0 0.0 1.0 5 6;"
        },
    };

    /// <summary>The order of parameters that have the same type, which no round trip can check.</summary>
    public static readonly TheoryData<Command, string, string> Orders = new()
    {
        { new BeginSegment { Identifier = 7 }, "00C2 0007", "BEGSEG 7;" },
        {
            new BeginApplicationStructure("i", "t")
            {
                Inheritance = BeginApplicationStructure.InheritanceFlag.ApplicationStructure,
            },
            "02A6 0169 0174 0001", "BEGAPS 'i' 't' APS;"
        },
        {
            new BeginTileArray
            {
                Position = new(1, 2), CellPathDirection = 180, LineProgressionDirection = 90, TilesInPathDirection = 2,
                TilesInLineDirection = 3, CellsPerTileInPathDirection = 4, CellsPerTileInLineDirection = 5,
                CellSizeInPathDirection = 0.5, CellSizeInLineDirection = 0.25, ImageOffsetInPathDirection = 6,
                ImageOffsetInLineDirection = 7, ImageCellsInPathDirection = 8, ImageCellsInLineDirection = 9,
            },
            "027F 0020 0001 0002 0002 0000 0002 0003 0004 0005 00008000 00004000 0006 0007 0008 0009",
            "BEGTILEARRAY (1,2) 180 90 2 3 4 5 0.5 0.25 6 7 8 9;"
        },
        {
            new GlyphMapping
            {
                CharacterSetIndex = 2, CharacterSetType = CharacterSetList.Type.Multibyte94, Designation = "B",
                OctetsPerCode = 4, GlyphSource = 3,
            },
            "12CB 0002 0002 01 42 0004 0003 00 00", "GLYPHMAP 2 STD94MULTIBYTE 'B' 4 3 '';"
        },
        {
            new PictureDirectory
            {
                LocationType = PictureDirectory.Type.UInt8,
                Infos = [new() { Identifier = "a", Location = 2, Directory = 3 }],
            },
            "1306 0000 0161 02 03", "PICDIR UI8 'a' 2 3;"
        },
        {
            new DeviceViewport
            {
                FirstCorner = new(new VC(0.25), new VC(0.5)), SecondCorner = new(new VC(0.75), new VC(1)),
            },
            "2110 00004000 00008000 0000C000 00010000", "DEVVP 0.25 0.5 0.75 1.0;"
        },
        {
            new DeviceViewportMapping
            {
                Scaling = DeviceViewportMapping.Isotropy.NotForced,
                HorizontalAlignment = DeviceViewportMapping.Horizontalalignment.Right,
                VerticalAlignment = DeviceViewportMapping.Verticalalignment.Centre,
            },
            "2146 0000 0002 0001", "DEVVPMAP NOTFORCED RIGHT CTR;"
        },
        {
            new LineRepresentation { BundleIndex = 2, TypeIndex = 3, Width = 1.5, Color = new(4) },
            "2169 0002 0003 00018000 04 00", "LINEREP 2 3 1.5 4;"
        },
        {
            new TextRepresentation
            {
                BundleIndex = 2, FontIndex = 3, Precision = TextPrecisionType.Stroke, Spacing = 0.5,
                ExpansionFactor = 2,
                Color = new(4),
            },
            "21AF 0002 0003 0002 00008000 00020000 04 00", "TEXTREP 2 3 STROKE 0.5 2.0 4;"
        },
        {
            new FillRepresentation
            {
                BundleIndex = 2, Style = InteriorStyle.Style.Hatch, Color = new(4), HatchNumber = 5, PatternIndex = 6,
            },
            "21C9 0002 0003 04 0005 0006 00", "FILLREP 2 HATCH 4 5 6;"
        },
        {
            new LineAndEdgeTypeDefinition { TypeIndex = -2, RepeatLength = 1.5, Elements = [3, 1] },
            "222A FFFE 00018000 0003 0001", "LINEEDGETYPEDEF -2 1.5 3 1;"
        },
        {
            new HatchStyleDefinition
            {
                HatchNumber = -2, Style = HatchStyleDefinition.HatchStyle.CrossHatch, FirstDirectionX = 1,
                FirstDirectionY = 2, SecondDirectionX = 3, SecondDirectionY = 4, CycleLength = 5, GapWidths = [6, 7],
                LineTypes = [8, 9],
            },
            "2258 FFFE 0001 0001 0002 0003 0004 0005 0002 0006 0007 0008 0009",
            "HATCHSTYLEDEF -2 CROSSHATCH 1 2 3 4 5 2 6 7 8 9;"
        },
        {
            new GeometricPatternDefinition
            {
                PatternIndex = 2, SegmentIdentifier = 3, FirstCorner = new(4, 5), SecondCorner = new(6, 7),
            },
            "226C 0002 0003 0004 0005 0006 0007", "GEOPATDEF 2 3 (4,5) (6,7);"
        },
        {
            new RestrictedText
            {
                ExtentWidth = 10, ExtentHeight = 5, Position = new(1, 2), Final = AppendText.FinalType.NotFinal,
                Content = "x",
            },
            "40AC 000A 0005 0001 0002 0000 01 78", "RESTRTEXT 10 5 (1,2) NOTFINAL 'x';"
        },
        {
            new CellArray
            {
                FirstCorner = new(1, 1), OppositeCorner = new(3, 2), LineEnd = new(3, 1), CellsPerLine = 2,
                LineCount = 1, Cells = [7, 9],
            },
            "4136 0001 0001 0003 0002 0003 0001 0002 0001 0000 0001 07 09", "CELLARRAY (1,1) (3,2) (3,1) 2 1 0 7 9;"
        },
        {
            new CircularArc3Point { Start = new(1, 2), Intermediate = new(3, 4), End = new(5, 6) },
            "41AC 0001 0002 0003 0004 0005 0006", "ARC3PT (1,2) (3,4) (5,6);"
        },
        {
            new EllipticalArc
            {
                Centre = new(1, 2), FirstRadiusEnd = new(3, 4), SecondRadiusEnd = new(5, 6), StartX = 7, StartY = 8,
                EndX = 9, EndY = 10,
            },
            "4254 0001 0002 0003 0004 0005 0006 0007 0008 0009 000A", "ELLIPARC (1,2) (3,4) (5,6) 7 8 9 10;"
        },
        {
            new HyperbolicArc
            {
                Centre = new(1, 2), TransverseRadiusEnd = new(3, 4), ConjugateRadiusEnd = new(5, 6), StartX = 7,
                StartY = 8,
                EndX = 9, EndY = 10,
            },
            "42D4 0001 0002 0003 0004 0005 0006 0007 0008 0009 000A", "HYPERBARC (1,2) (3,4) (5,6) 7 8 9 10;"
        },
        {
            new ParabolicArc { TangentIntersection = new(1, 2), Start = new(3, 4), End = new(5, 6) },
            "42EC 0001 0002 0003 0004 0005 0006", "PARABARC (1,2) (3,4) (5,6);"
        },
        {
            new NonUniformBSpline
            {
                Order = 2, ControlPoints = [new(1, 2), new(3, 4)], Knots = [0, 0.5, 1, 2], StartParameter = 0.5,
                EndParameter = 1,
            },
            "431F 0024 0002 0002 0001 0002 0003 0004 00000000 00008000 00010000 00020000 00008000 00010000",
            "NUB 2 2 (1,2) (3,4) 0.0 0.5 1.0 2.0 0.5 1.0;"
        },
        {
            new BitonalTile { RowPadding = 8, Data = [0x80, 1] }, "4389 0005 0008 00 01 00 8001 00",
            "BITONALTILE 5 8 0 1 '' 16#8001;"
        },
        {
            new Tile { RowPadding = 8, CellPrecision = 4, Parameters = Record(4), Data = [0xFE, 1] },
            "43AF 0005 0008 0004 06 0006 0001 0004 FE01 00", "TILE 5 8 15 '6 1 4' 16#FE01;"
        },
        {
            new CharacterOrientation { UpX = 1, UpY = 2, BaseX = 3, BaseY = 4 }, "5208 0001 0002 0003 0004",
            "CHARORI 1 2 3 4;"
        },
        {
            new TextAlignment
            {
                Horizontal = TextAlignment.HorizontalAlignmentType.Continuous,
                Vertical = TextAlignment.VerticalAlignmentType.Continuous, ContinuousHorizontal = 0.5,
                ContinuousVertical = 0.75,
            },
            "524C 0004 0006 00008000 0000C000", "TEXTALIGN CONTHORIZ CONTVERT 0.5 0.75;"
        },
        {
            new InterpolatedInterior
            {
                ReferenceGeometry = [3, 4], StageDesignators = [0.5], Colors = [new(5), new(6)],
            },
            "556E 0001 0003 0004 0001 00008000 05 06", "INTERPINT 1 3 4 1 0.5 5 6;"
        },
        {
            new SymbolSize { Scaling = SymbolSize.ScaleIndicator.Both, Height = 4, Width = 5 }, "5646 0002 0004 0005",
            "SYMBOLSIZE BOTH 4 5;"
        },
        { new ApplicationData { Identifier = 5, Data = [0x41] }, "7044 0005 01 41", "APPLDATA 5 'A';" },
        {
            new CopySegment
            {
                SegmentIdentifier = 1, ScaleX = 2, ShearX = 3, ShearY = 4, ScaleY = 5, TranslationX = 6,
                TranslationY = 7,
                AppliesSegmentTransformation = true,
            },
            "8038 0001 00020000 00030000 00040000 00050000 0006 0007 0001", "COPYSEG 1 2.0 3.0 4.0 5.0 6 7 YES;"
        },
        {
            new SegmentHighlighting { SegmentIdentifier = 3, State = SegmentHighlighting.Highlighting.Highlighted },
            "80A4 0003 0001", "SEGHIGHL 3 HIGHL;"
        },
    };

    public static readonly TheoryData<Command, string> Unwritable = new()
    {
        { new IntegerPrecision { Precision = 12 }, "12 bits" },
        { new VdcIntegerPrecision { Precision = 8 }, "8 bits" },
        { new CellArray { LocalPrecision = 3 }, "3 bits" },
        { new RealPrecision { Value = (Precision)4 }, "precision 4" },
        { new BeginTileArray { CellPathDirection = 45 }, "45 degrees" },
        { new ColourModel { Value = (ColourModel.Model)9 }, "index 9" },
        { new PolygonSet { Points = [new CgmPoint()] }, "flags has 0 items" },
        { new CharacterSetList { Designations = ["B"] }, "designations has 1 items" },
        { new HatchStyleDefinition { GapWidths = [1, 2, 3] }, "line_types has 1 items, but 3" },
        { new NonUniformBSpline { ControlPoints = [new CgmPoint()], Knots = [1] }, "knots has 1 items, but 5" },
        { new NonUniformRationalBSpline { Knots = [0, 0, 1, 1], Weights = [1] }, "weights has 1 items, but 0" },
        { new NonUniformBSpline { Order = -2, ControlPoints = [new CgmPoint()] }, "-1 are needed" },
        { new ColourCalibration { RedComponents = [1, 2], RedValues = [0, 1] }, "green_components has 0 items, but 2" },
        { new ColourValueExtent { Minimum = [0] }, "minimum has 1 items, but 3" },
        { new InterpolatedInterior { Style = 2 }, "reference_geometry has 2 items, but 4" },
        {
            new AspectSourceFlags { Infos = [new((AspectSourceFlags.ASFType)18, AspectSourceFlags.ASFValue.Bundled)] },
            "value 18"
        },
        { new MetafileElementList { Elements = ["LIME"] }, "'LIME'" },
        { new MetafileDefaultsReplacement { Commands = [null!] }, "missing" },
        { new TextScoreType { Infos = [null!] }, "missing" },
        { new PictureDirectory { Infos = [null!] }, "missing" },
        { new Tile { Parameters = Record("four") }, "'four' (String) of a record" },
    };

    public static readonly TheoryData<string, string> Damaged = new()
    {
        { "1082 000C", "12 bits" },
        { "3022 0008", "8 bits" },
        { "1262 0009", "index 9" },
        { "1304 0003 01 61", "UI32" },
        { "5464 0012 0001", "value 18" },
        { "8040", "selection setting is missing" },
        { "8044 0003 0002", "selection setting is missing" },
        { "430C 0002 7FFF 0001 0001 0001 0001", "32767 items" },
        { "4304 7FFF FFFF", "-1" },
    };

    [Theory]
    [MemberData(nameof(Elements))]
    [MemberData(nameof(Orders))]
    public void Elements_are_written_as_the_standard_has_them(Command command, string bytes, string text)
    {
        Assert.Equal(bytes.Replace(" ", ""), Binary(command));
        if (text.Length > 0)
        {
            var stream = new MemoryStream();
            new DefaultClearTextWriter(stream).WriteCommand(command);
            Assert.Equal(text, Plain(Encoding.ASCII.GetString(stream.ToArray())));
        }
    }

    [Theory]
    [MemberData(nameof(Unwritable))]
    public void What_no_file_can_hold_is_not_written(Command command, string message)
    {
        var stream = new MemoryStream();
        ImageSaveException failure = Assert.Throws<ImageSaveException>(
            () => new DefaultBinaryWriter(stream).WriteCommand(command));
        Assert.Contains(message, failure.Message);
        Assert.Equal(0, stream.Length);
    }

    [Theory]
    [MemberData(nameof(Damaged))]
    public void Parameters_that_make_no_sense_are_named(string bytes, string message)
    {
        using var reader = new DefaultBinaryReader(new MemoryStream(Convert.FromHexString(bytes.Replace(" ", ""))));
        ImageLoadException failure = Assert.Throws<ImageLoadException>(reader.ReadCommand);
        Assert.Contains(message, failure.Message);
    }

    [Fact]
    public void Gaps_are_passed_over()
    {
        using var reader = new DefaultBinaryReader(new MemoryStream(Convert.FromHexString("0003AABBCC0000A00040")));
        Assert.Equal(
            [typeof(NoOp), typeof(EndPicture), typeof(EndMetafile)],
            Enumerable.Range(0, 3).Select(_ => reader.ReadCommand()?.GetType()));
        Assert.Empty(reader.Messages);
    }

    [Fact]
    public void What_has_no_word_is_no_clear_text()
    {
        var stream = new MemoryStream();
        var writer = new DefaultClearTextWriter(stream);
        Assert.Throws<InvalidOperationException>(() => new NoOp().WriteAsClearText(writer));
        Assert.Equal(0, stream.Length);
    }

    [Fact]
    public void Modes_and_precisions_change_how_later_elements_are_coded()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        foreach (Command command in (Command[])
            [
                new LineWidthSpecificationMode { Value = SpecificationMode.Absolute },
                new IndexPrecision { Precision = 8 },
                new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
                new VdcIntegerPrecision { Precision = 32 },
            ])
        {
            writer.WriteCommand(command);
        }

        stream.SetLength(0);
        writer.WriteCommand(new LineRepresentation { BundleIndex = 2, Width = 3, Color = Red });
        Assert.Equal("2169 02 01 00000003 FF0000 00".Replace(" ", ""), Convert.ToHexString(stream.ToArray()));
    }

    [Fact]
    public void Replaced_defaults_hold_in_each_picture_and_what_a_picture_changes_ends_with_it()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        writer.WriteCommand(
            new MetafileDefaultsReplacement
            {
                Commands = [new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct }],
            });
        Assert.Equal(2, WidthOfColor());
        writer.WriteCommand(new BeginPicture("direct"));
        Assert.Equal(4, WidthOfColor());
        writer.WriteCommand(new ColourSelectionMode());
        Assert.Equal(2, WidthOfColor());
        writer.WriteCommand(new BeginPicture("direct again"));
        Assert.Equal(4, WidthOfColor());
        writer.WriteCommand(new BeginMetafile("another one"));
        Assert.Equal(2, WidthOfColor());

        int WidthOfColor()
        {
            stream.SetLength(0);
            writer.WriteCommand(new LineColour(writer.State.HasIndexedColors ? new CgmColor(1) : Red));
            return (int)stream.Length - 2;
        }
    }

    [Fact]
    public void Factors_bound_the_colours_of_other_models()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        writer.WriteCommand(new ColourModel { Value = ColourModel.Model.CieLab });
        writer.WriteCommand(new ColourValueExtent { Scales = [0.5, 1, 2], Offsets = [0, -128, 3] });
        stream.Position = 0;
        using var reader = new DefaultBinaryReader(stream);
        reader.ReadCommand();
        ColourValueExtent extent = Assert.IsType<ColourValueExtent>(reader.ReadCommand());
        Assert.Equal([0.5, 1, 2], extent.Scales);
        Assert.Equal([0, -128, 3], extent.Offsets);
    }

    [Fact]
    public void Bezier_curves_share_points_only_where_they_are_continuous()
    {
        CgmPoint[] points = [.. Enumerable.Range(0, 8).Select(i => new CgmPoint(i, 0))];
        Assert.Equal([0, 4], Starts(1));
        Assert.Equal([0, 3], Starts(2));

        double[] Starts(int continuity)
        {
            var command = new PolyBezier { ContinuityIndicator = continuity, Points = [.. points] };
            return [.. command.GetCurves().Select(curve => curve.Start.X)];
        }
    }

    private static StructuredDataRecord Record(object value)
    {
        var record = new StructuredDataRecord();
        record.Members.Add(new(StructuredDataRecord.StructuredDataType.Integer, [value]));
        return record;
    }

    private static string Binary(Command command)
    {
        var stream = new MemoryStream();
        new DefaultBinaryWriter(stream).WriteCommand(command);
        return Convert.ToHexString(stream.ToArray());
    }

    // Which quotes, how many blanks and how many digits is left to whoever writes.
    private static string Plain(string text) =>
        string.Join(
            ' ',
            text.Replace('"', '\'').Replace(", ", ",").Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries));
}
