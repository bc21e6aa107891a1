using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using DataType = Korvan.CAD.FileFormats.Cgm.Classes.StructuredDataRecord.StructuredDataType;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>A command of each kind that has parameters, none of them as it is created. Colours are numbers, coordinates
/// are real numbers.</summary>
internal static class CommandSamples
{
    internal static IEnumerable<Command> All =>
    [
        .. Delimiters, .. MetafileDescriptors, .. PictureDescriptors, .. Controls, .. Primitives, .. Lines, .. Texts,
        .. Fills, .. Others,
    ];

    private static readonly Command[] Delimiters =
    [
        new BeginMetafile("plan"),
        new BeginPicture("sheet \"1\", it's"),
        new BeginSegment { Identifier = 7 },
        new BeginProtectionRegion { RegionIndex = 3 },
        new BeginTileArray
        {
            Position = At(1, 2), CellPathDirection = 180, LineProgressionDirection = 90, TilesInPathDirection = 2,
            TilesInLineDirection = 3, CellsPerTileInPathDirection = 4, CellsPerTileInLineDirection = 5,
            CellSizeInPathDirection = 0.5, CellSizeInLineDirection = 0.25, ImageOffsetInPathDirection = 6,
            ImageOffsetInLineDirection = 7, ImageCellsInPathDirection = 8, ImageCellsInLineDirection = 9,
        },
        new BeginApplicationStructure("id", "grobject")
        {
            Inheritance = BeginApplicationStructure.InheritanceFlag.ApplicationStructure,
        },
    ];

    private static readonly Command[] MetafileDescriptors =
    [
        new MetafileVersion(4),
        new MetafileDescription("words"),
        new VdcType { Value = VdcType.Type.Real },
        new IntegerPrecision { Precision = 24 },
        new RealPrecision { Value = Precision.Floating32 },
        new IndexPrecision { Precision = 8 },
        new ColourPrecision { Precision = 16 },
        new ColourIndexPrecision { Precision = 32 },
        new MaximumColourIndex { Index = 200 },
        new ColourValueExtent { Minimum = [1, 2, 3], Maximum = [251, 252, 253] },
        new MetafileElementList { Elements = ["VERSION3", "LINE", "ESCAPE", "APSATTR"] },
        new MetafileDefaultsReplacement
        {
            Commands = [new LineWidth(3), new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct }, new LineColour(Direct)],
        },
        new FontList { Fonts = ["Helvetica", "Times Roman"] },
        new CharacterSetList
        {
            Types = [CharacterSetList.Type.Graphic94, CharacterSetList.Type.CompleteCode], Designations = ["4/2", "I"],
        },
        new CharacterCodingAnnouncer { Value = CharacterCodingAnnouncer.Type.Extended8Bit },
        new NamePrecision { Precision = 32 },
        new MaximumVdcExtent(At(-1, -2), At(3, 4)),
        new SegmentPriorityExtend { Minimum = 1, Maximum = 9 },
        new ColourModel { Value = ColourModel.Model.Cmyk },
        new ColourCalibration
        {
            CalibrationSelection = 2, ReferenceWhite = [0.5, 0.75, 1], Matrix = [1, 2, 3, 4, 5, 6, 7, 8, 9],
            RedComponents = [0, 255], RedValues = [0, 0.5], GreenComponents = [1, 2], GreenValues = [0.125, 1],
            BlueComponents = [3, 4], BlueValues = [0.25, 0.75], GridLocations = [1, 2, 3, 4], GridValues = [0.5, 0.25, 2],
        },
        new FontProperties
        {
            Infos = [new() { PropertyIndicator = 4, Priority = 1, Value = Record((DataType.Text, "Helvetica")) }],
        },
        new GlyphMapping
        {
            CharacterSetIndex = 2, CharacterSetType = CharacterSetList.Type.Multibyte94, Designation = "B",
            OctetsPerCode = 2, GlyphSource = 3, CodeAssociations = Record((DataType.Unsigned16, 65)),
        },
        new SymbolLibraryList { Libraries = ["valves", "pumps"] },
        new PictureDirectory
        {
            LocationType = PictureDirectory.Type.UInt16,
            Infos = [new() { Identifier = "a", Location = 65535, Directory = 40000 }, new() { Identifier = "b", Location = 2, Directory = 3 }],
        },
    ];

    private static readonly Command[] PictureDescriptors =
    [
        new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 0.25 },
        new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
        new LineWidthSpecificationMode { Value = SpecificationMode.Absolute },
        new MarkerSizeSpecificationMode { Value = SpecificationMode.Fractional },
        new EdgeWidthSpecificationMode { Value = SpecificationMode.Millimetres },
        new InteriorStyleSpecificationMode { Value = SpecificationMode.Scaled },
        new VdcExtent(At(-1.5, -2), At(3, 4)),
        new BackgroundColour(Direct),
        new DeviceViewport { FirstCorner = new(new VC(0.25), new VC(0.5)), SecondCorner = new(new VC(0.75), new VC(0.125)) },
        new DeviceViewportSpecificationMode
        {
            Value = DeviceViewportSpecificationMode.Mode.MillimetresWithScaleFactor, ScaleFactor = 0.5,
        },
        new DeviceViewportMapping
        {
            Scaling = DeviceViewportMapping.Isotropy.NotForced,
            HorizontalAlignment = DeviceViewportMapping.Horizontalalignment.Right,
            VerticalAlignment = DeviceViewportMapping.Verticalalignment.Centre,
        },
        new LineRepresentation { BundleIndex = 2, Type = DashType.Dot, Width = 0.5, Color = Indexed },
        new MarkerRepresentation { BundleIndex = 2, Type = MarkerType.Type.Cross, Size = 0.5, Color = Indexed },
        new TextRepresentation
        {
            BundleIndex = 2, FontIndex = 3, Precision = TextPrecisionType.Stroke, Spacing = 0.5, ExpansionFactor = 2, Color = Indexed,
        },
        new FillRepresentation
        {
            BundleIndex = 2, Style = InteriorStyle.Style.Hatch, Color = Indexed,
            Hatch = HatchIndex.HatchType.NegativeSlope, PatternIndex = 5,
        },
        new EdgeRepresentation { BundleIndex = 2, Type = DashType.DashDotDot, Width = 0.5, Color = Indexed },
        new LineAndEdgeTypeDefinition { TypeIndex = -2, RepeatLength = 4.5, Elements = [3, 1, 2, 1] },
        new HatchStyleDefinition
        {
            HatchNumber = -2, Style = HatchStyleDefinition.HatchStyle.CrossHatch, FirstDirectionX = 2,
            FirstDirectionY = 3, SecondDirectionX = 4, SecondDirectionY = 5, CycleLength = 6, GapWidths = [7, 8],
            LineTypes = [2, 3],
        },
        new GeometricPatternDefinition { PatternIndex = 2, SegmentIdentifier = 3, FirstCorner = At(4, 5), SecondCorner = At(6, 7) },
        new ApplicationStructureDirectory
        {
            LocationType = ApplicationStructureDirectory.DataTypeSelector.UInt8,
            Infos = [new() { Identifier = "a", Location = 255 }],
        },
    ];

    private static readonly Command[] Controls =
    [
        new VdcIntegerPrecision { Precision = 32 },
        new VdcRealPrecision { Value = Precision.Fixed64 },
        new AuxiliaryColour { Color = Indexed },
        new Transparency { IsTransparent = false },
        new ClipRectangle(At(1, 2), At(3, 4)),
        new ClipIndicator(false),
        new LineClipping { Mode = ClippingMode.LocusThenShape },
        new MarkerClipping { Mode = ClippingMode.Shape },
        new EdgeClipping { Mode = ClippingMode.LocusThenShape },
        new SavePrimitiveContext { ContextName = 5 },
        new RestorePrimitiveContext { ContextName = 6 },
        new ProtectionRegionIndicator { RegionIndex = 2, Indicator = 3 },
        new GeneralizedTextPathMode { Mode = GeneralizedTextPathMode.TextPathMode.AxisTangential },
        new MitreLimit { Limit = 2.5 },
        new TransparentCellColour { IsActive = true, Color = Indexed },
    ];

    private static readonly Command[] Primitives =
    [
        new Polyline([At(0, 0), At(1.5, -2)]),
        new DisjointPolyline([At(0, 0), At(1, 2), At(3, 4), At(5, 6)]),
        new PolyMarker([At(7, 8)]),
        new Text(At(1, 2), "it's \"so\"") { Final = AppendText.FinalType.NotFinal },
        new RestrictedText
        {
            ExtentWidth = 10, ExtentHeight = 5, Position = At(1, 2), Final = AppendText.FinalType.NotFinal, Content = "box",
        },
        new AppendText { Final = AppendText.FinalType.NotFinal, Content = "more" },
        new PolygonElement([At(0, 0), At(1, 0), At(0, 1)]),
        new PolygonSet
        {
            Points = [At(0, 0), At(1, 0), At(0, 1)],
            Flags = [PolygonSet.EdgeFlag.Visible, PolygonSet.EdgeFlag.Invisible, PolygonSet.EdgeFlag.CloseVisible],
        },
        new CellArray
        {
            FirstCorner = At(1, 1), OppositeCorner = At(4, 3), LineEnd = At(4, 1), CellsPerLine = 3, LineCount = 2,
            LocalPrecision = 4, Cells = [1, 2, 3, 15, 0, 7],
        },
        new GeneralizedDrawingPrimitive { Identifier = -3, Points = [At(1, 2), At(3, 4)], Data = [65, 66, 67] },
        new RectangleElement(At(1, 2), At(3, 4)),
        new CircleElement(At(1, 2), 3.5),
        new CircularArc3Point { Start = At(1, 2), Intermediate = At(3, 4), End = At(5, 7) },
        new CircularArc3PointClose { Start = At(1, 2), Intermediate = At(3, 4), End = At(5, 7), Closure = ClosureType.Chord },
        new CircularArcCentre { Centre = At(1, 2), StartX = 3, StartY = 4, EndX = 5, EndY = 6, Radius = 7 },
        new CircularArcCentreClose
        {
            Centre = At(1, 2), StartX = 3, StartY = 4, EndX = 5, EndY = 6, Radius = 7, Closure = ClosureType.Chord,
        },
        new CircularArcCentreReversed { Centre = At(1, 2), StartX = 3, StartY = 4, EndX = 5, EndY = 6, Radius = 7 },
        new EllipseElement(At(1, 2), At(3, 4), At(5, 6)),
        new EllipticalArc
        {
            Centre = At(1, 2), FirstRadiusEnd = At(3, 4), SecondRadiusEnd = At(5, 6), StartX = 7, StartY = 8, EndX = 9, EndY = 10,
        },
        new EllipticalArcClose
        {
            Centre = At(1, 2), FirstRadiusEnd = At(3, 4), SecondRadiusEnd = At(5, 6), StartX = 7, StartY = 8, EndX = 9, EndY = 10,
            Closure = ClosureType.Chord,
        },
        new HyperbolicArc
        {
            Centre = At(1, 2), TransverseRadiusEnd = At(3, 4), ConjugateRadiusEnd = At(5, 6), StartX = 7, StartY = 8, EndX = 9, EndY = 10,
        },
        new ParabolicArc { TangentIntersection = At(1, 2), Start = At(3, 4), End = At(5, 6) },
        new NonUniformBSpline
        {
            Order = 2, ControlPoints = [At(0, 0), At(1, 1), At(2, 0)], Knots = [0, 0.5, 1, 2, 3], StartParameter = 0.5, EndParameter = 2,
        },
        new NonUniformRationalBSpline
        {
            Order = 2, ControlPoints = [At(0, 0), At(1, 1)], Knots = [0, 0.5, 1, 2], StartParameter = 0.5, EndParameter = 2,
            Weights = [1, 0.25],
        },
        new PolyBezier { ContinuityIndicator = 2, Points = [At(0, 0), At(1, 1), At(2, 1), At(3, 0)] },
        new PolySymbol { SymbolIndex = 3, Points = [At(1, 2)] },
        new BitonalTile
        {
            Compression = CompressionType.T6, RowPadding = 8, Background = Indexed, Foreground = new CgmColor(9),
            Parameters = Record((DataType.Integer, 4)), Data = [1, 2, 3, 4],
        },
        new Tile
        {
            Compression = CompressionType.RunLength, RowPadding = 8, CellPrecision = 8,
            Parameters = Record((DataType.Real, 0.5), (DataType.Integer, -4)), Data = [1, 2, 3, 0xFE],
        },
    ];

    private static readonly Command[] Lines =
    [
        new LineBundleIndex { Index = 2 },
        new LineType { Type = DashType.DashDot },
        new LineWidth(2.5),
        new LineColour(Indexed),
        new MarkerBundleIndex { Index = 2 },
        new MarkerType { Value = MarkerType.Type.Circle },
        new MarkerSize(2.5),
        new MarkerColour(Indexed),
        new EdgeBundleIndex { Index = 2 },
        new EdgeType { Index = -7 },
        new EdgeWidth(2.5),
        new EdgeColour(Indexed),
        new EdgeVisibility(true),
        new CAD.FileFormats.Cgm.Commands.LineCap { Cap = LineCapIndicator.Triangle, DashCap = DashCapIndicator.Match },
        new LineJoin { Join = JoinIndicator.Bevel },
        new LineTypeContinuation { Index = 3 },
        new LineTypeInitialOffset { Offset = 0.25 },
        new EdgeCap { Cap = LineCapIndicator.Round, DashCap = DashCapIndicator.Butt },
        new EdgeJoin { Join = JoinIndicator.Mitre },
        new EdgeTypeContinuation { Index = 4 },
        new EdgeTypeInitialOffset { Offset = 0.5 },
    ];

    private static readonly Command[] Texts =
    [
        new TextBundleIndex { Index = 2 },
        new TextFontIndex { Index = 5 },
        new TextPrecision { Value = TextPrecisionType.Character },
        new CharacterExpansionFactor { Factor = 0.75 },
        new CharacterSpacing { Spacing = -0.25 },
        new TextColour(Indexed),
        new CharacterHeight(12),
        new CharacterOrientation { UpX = 1, UpY = 2, BaseX = 3, BaseY = 4 },
        new TextPath { Value = TextPath.Type.Down },
        new TextAlignment
        {
            Horizontal = TextAlignment.HorizontalAlignmentType.Continuous, Vertical = TextAlignment.VerticalAlignmentType.Continuous,
            ContinuousHorizontal = 0.25, ContinuousVertical = 0.75,
        },
        new CharacterSetIndex { Index = 2 },
        new AlternateCharacterSetIndex { Index = 3 },
        new TextScoreType { Infos = [new() { Type = 3, IsOn = true }, new() { Type = 1, IsOn = false }] },
        new RestrictedTextType { Value = RestrictedTextType.Type.Justified },
    ];

    private static readonly Command[] Fills =
    [
        new FillBundleIndex { Index = 2 },
        new InteriorStyle { Value = InteriorStyle.Style.Interpolated },
        new FillColour(Indexed),
        new HatchIndex { Value = HatchIndex.HatchType.PositiveNegativeCross },
        new PatternIndex { Index = 2 },
        new FillReferencePoint { Point = At(1, 2) },
        new PatternTable { Index = 2, CellsPerLine = 2, LineCount = 2, LocalPrecision = 8, Cells = [200, 2, 3, 4] },
        new PatternSize { HeightX = 1, HeightY = 2, WidthX = 3, WidthY = 4 },
        new ColourTable(3, [Direct, new CgmColor(Color.FromArgb(1, 2, 3))]),
        new InterpolatedInterior
        {
            Style = 2, ReferenceGeometry = [1, 2, 3, 4], StageDesignators = [0.25, 0.5], Colors = [Indexed, new CgmColor(6), new CgmColor(7)],
        },
    ];

    private static readonly Command[] Others =
    [
        new AspectSourceFlags
        {
            Infos =
            [
                new(AspectSourceFlags.ASFType.EdgeColour, AspectSourceFlags.ASFValue.Bundled),
                new(AspectSourceFlags.ASFType.All, AspectSourceFlags.ASFValue.Individual),
            ],
        },
        new PickIdentifier { Identifier = 4 },
        new SymbolLibraryIndex { Index = 2 },
        new SymbolColour(Indexed),
        new SymbolSize { Scaling = SymbolSize.ScaleIndicator.Both, Height = 4, Width = 5 },
        new SymbolOrientation { UpX = 1, UpY = 2, BaseX = 3, BaseY = 4 },
        new Escape { Identifier = -9, Data = [1, 2, 255] },
        new MessageCommand { Action = MessageCommand.ActionType.Action, Message = "change the paper" },
        new ApplicationData { Identifier = 11, Data = [0, 1, 2] },
        new CopySegment
        {
            SegmentIdentifier = 2, ScaleX = 3, ShearX = 4, ShearY = 5, ScaleY = 6, TranslationX = 7, TranslationY = 8,
            AppliesSegmentTransformation = true,
        },
        new InheritanceFilter { Filters = [InheritanceFilter.Filter.LineColour, InheritanceFilter.Filter.SymbolAttributes], ComesFromSegment = false },
        new ClipInheritance { Inheritance = ClipInheritance.Value.Intersection },
        new SegmentTransformation
        {
            SegmentIdentifier = 2, ScaleX = 3, ShearX = 4, ShearY = 5, ScaleY = 6, TranslationX = 7, TranslationY = 8,
        },
        new SegmentHighlighting { SegmentIdentifier = 2, State = SegmentHighlighting.Highlighting.Highlighted },
        new SegmentDisplayPriority { SegmentIdentifier = 2, Priority = 3 },
        new SegmentPickPriority { SegmentIdentifier = 2, Priority = 3 },
        new ApplicationStructureAttribute { AttributeType = "region", Value = Record((DataType.Coordinate, 0.5)) },
    ];

    private static CgmColor Indexed => new(5);

    private static CgmColor Direct => new(Color.FromArgb(255, 128, 64));

    private static CgmPoint At(double x, double y) => new(x, y);

    private static StructuredDataRecord Record(params (DataType Type, object Value)[] values)
    {
        var record = new StructuredDataRecord();
        record.Members.AddRange(values.Select(one => new StructuredDataRecord.Member(one.Type, [one.Value])));
        return record;
    }
}
