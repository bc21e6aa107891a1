using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Metafile;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;
using static Korvan.CAD.Tests.Rendering.MetafilePage;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;
using Horizontal = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.HorizontalAlignmentType;
using LineCapElement = Korvan.CAD.FileFormats.Cgm.Commands.LineCap;
using TextElement = Korvan.CAD.FileFormats.Cgm.Commands.Text;
using Vertical = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.VerticalAlignmentType;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Where elements take their attributes from, and what the attributes are in the display list.</summary>
public class MetafileStyleTests
{
    private static readonly Command[] Bundles =
    [
        new LineRepresentation { BundleIndex = 1, Type = DashType.Dot, Width = 3, Color = C(Blue) },
        new EdgeRepresentation { BundleIndex = 1, Type = DashType.Dash, Width = 5, Color = C(Green) },
        new MarkerRepresentation { BundleIndex = 1, Type = MarkerType.Type.Dot, Size = 40, Color = C(Blue) },
        new FillRepresentation { BundleIndex = 1, Style = InteriorStyle.Style.Solid, Color = C(Green) },
    ];

    private static readonly Command[] Individual =
    [
        .. Pen(Red, 1), .. Edge(Red, 1), .. Solid(Red),
        new MarkerColour { Color = C(Red) }, new MarkerSize { Size = 10 },
        new MarkerSizeSpecificationMode { Value = SpecificationMode.Absolute },
        new MarkerType { Value = MarkerType.Type.Plus },
    ];

    [Theory]
    [InlineData(null, "", "")]
    [InlineData(ASF.All, "line edge fill marker", "line edge marker")]
    [InlineData(ASF.AllLine, "line", "line")]
    [InlineData(ASF.AllEdge, "edge", "edge")]
    [InlineData(ASF.AllFill, "fill", "")]
    [InlineData(ASF.AllMarker, "marker", "marker")]
    [InlineData(ASF.LineColour, "line", "")]
    [InlineData(ASF.LineWidth, "", "line")]
    [InlineData(ASF.EdgeColour, "edge", "")]
    [InlineData(ASF.EdgeWidth, "", "edge")]
    [InlineData(ASF.FillColour, "fill", "")]
    [InlineData(ASF.MarkerColour, "marker", "")]
    [InlineData(ASF.MarkerSize, "", "marker")]
    public void Flags_choose_between_own_attributes_and_those_of_the_bundle(ASF? flag, string colors, string sizes)
    {
        Command[] flags = flag is ASF type
            ? [new AspectSourceFlags { Infos = [new(type, AspectSourceFlags.ASFValue.Bundled)] }] : [];
        DrawingList list = List(Bundles,
            [.. Individual, .. flags, Line(0, 0, 10, 0), Box(20, 20, 40, 40), new PolyMarker { Points = [P(80, 80)] }]);
        DisplayItem[] items = list.Items.ToArray();
        (string Name, DisplayItem Item, Rgba Bundled)[] found =
        [
            ("line", items[0], Blue), ("fill", items[1], Green), ("edge", items[2], Green), ("marker", items[3], Blue),
        ];
        foreach ((string name, DisplayItem item, Rgba bundled) in found)
        {
            Rgba expected = colors.Contains(name, StringComparison.Ordinal) ? bundled : Red;
            Assert.True(expected == item.Color, $"{flag}, {name}: {item.Color}");
        }

        Assert.Equal(sizes.Contains("line", StringComparison.Ordinal) ? 3 : 1, items[0].LineWeight);
        Assert.Equal(sizes.Contains("edge", StringComparison.Ordinal) ? 5 : 1, items[2].LineWeight);
        Bounds2 marker = SceneList.PathOf(list, items[3]).Bounds;
        bool isDot = flag is ASF.All or ASF.AllMarker; // a fifth of its size
        double size = sizes.Contains("marker", StringComparison.Ordinal) ? 40 : 10;
        Assert.Equal(isDot ? size / 5 : size, marker.Width, 1e-6);
    }

    [Fact]
    public void Flags_of_one_aspect_are_taken_back_alone()
    {
        AspectSourceFlags Flag(ASF type, AspectSourceFlags.ASFValue value) => new() { Infos = [new(type, value)] };
        DrawingList list = List(Bundles,
        [
            .. Individual, Flag(ASF.AllLine, AspectSourceFlags.ASFValue.Bundled),
            Flag(ASF.LineWidth, AspectSourceFlags.ASFValue.Individual), Line(0, 0, 10, 0),
            new LineBundleIndex { Index = 9 }, Line(0, 0, 10, 0), // a bundle that nobody defined
        ]);
        Assert.Equal((Blue, 1), (list.Items[0].Color, list.Items[0].LineWeight));
        Assert.True(list.Items[0].Dash >= 0);
        Assert.Equal((Red, 1), (list.Items[1].Color, list.Items[1].LineWeight));
        Assert.True(list.Items[1].Dash < 0);
    }

    [Theory]
    [InlineData(MarkerType.Type.Plus, 20, 20, 40)]
    [InlineData(MarkerType.Type.Circle, 20, 20, 20 * Math.PI)]
    [InlineData(MarkerType.Type.Cross, 20, 20, 40 * 1.41421356)]
    [InlineData(MarkerType.Type.Asterisk, 17.3205, 20, 60)]
    [InlineData((MarkerType.Type)(-7), 17.3205, 20, 60)] // unknown ones are asterisks
    public void Markers_have_the_size_and_form_of_their_type(
        MarkerType.Type type, double width, double height, double length)
    {
        DrawingList list = List([],
            [.. Individual, new MarkerType { Value = type }, new MarkerSize { Size = 20 },
                new PolyMarker { Points = [P(20, 30), P(70, 30)] }]);
        Bounds2 box = list.Bounds;
        Assert.Equal(50 + width, box.Width, 1e-2);
        Assert.Equal(height, box.Height, 1e-2);
        Assert.Equal(45, box.Center.X, 1e-3);
        Assert.Equal(2 * length, SceneList.Length(list), 0.1);
        Assert.Equal((int)type < 0 ? 1 : 0, list.Skipped.Count);
    }

    [Theory]
    [InlineData(SpecificationMode.Absolute, 12.0, 12)]
    [InlineData(SpecificationMode.Fractional, 0.1, 10)]
    [InlineData(SpecificationMode.Millimetres, 6.0, 3)] // a unit is two millimetres
    [InlineData(SpecificationMode.Scaled, 5.0, 5)] // of a nominal size of a hundredth of the extent
    public void Marker_sizes_follow_their_mode(SpecificationMode mode, double size, double expected)
    {
        DrawingList list = List(
            [
                new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 2 },
                new MarkerSizeSpecificationMode { Value = mode },
            ],
            [new MarkerType { Value = MarkerType.Type.Plus }, new MarkerSize { Size = size },
                new PolyMarker { Points = [P(50, 50)] }]);
        Assert.Equal(expected, list.Bounds.Width, 1e-6);
    }

    [Theory]
    [InlineData(DashType.Solid, 0)]
    [InlineData(DashType.Dash, 2)]
    [InlineData(DashType.Dot, 2)]
    [InlineData(DashType.DashDot, 4)]
    [InlineData(DashType.DashDotDot, 6)]
    [InlineData(DashType.Stitch, 2)]
    [InlineData(DashType.Chain, 4)]
    [InlineData(DashType.Center, 4)]
    [InlineData(DashType.Hidden, 2)]
    [InlineData(DashType.Phantom, 6)]
    [InlineData((DashType)77, 0)] // nobody knows it
    public void Dash_types_alternate_dashes_and_gaps(DashType type, int lengths)
    {
        DrawingList list = List([], [.. Pen(Red, 1), new LineType { Type = type }, Line(0, 0, 100, 0)]);
        Assert.Equal(lengths, list.Items[0].Dash < 0 ? 0 : list.DashOf(list.Items[0]).Length);
    }

    [Fact]
    public void Own_dash_types_repeat_their_length_from_their_offset()
    {
        var own = new LineAndEdgeTypeDefinition { TypeIndex = -2, RepeatLength = 30, Elements = [3, 1, 2] };
        var huge = new LineAndEdgeTypeDefinition { TypeIndex = -3, RepeatLength = 30, Elements = [0, 0] };
        DrawingList list = List([own, huge],
            [.. Pen(Red, 1), new LineType { Index = -2 }, new LineTypeInitialOffset { Offset = 0.5 },
                Line(0, 0, 90, 0), new LineType { Index = -3 }, Line(0, 0, 90, 0)]);
        Assert.Equal([15.0, 5, 10, 15, 5, 10], list.DashOf(list.Items[0])); // an odd count swaps in each repeat
        Assert.Equal(30, list.Items[0].DashOffset, 1e-6);
        Assert.True(list.Items[1].Dash < 0);
    }

    [Theory]
    [InlineData(LineCapIndicator.Butt, JoinIndicator.Mitre, LineCaps.Butt, LineJoins.Miter)]
    [InlineData(LineCapIndicator.ProjectingSquare, JoinIndicator.Bevel, LineCaps.Square, LineJoins.Bevel)]
    [InlineData(LineCapIndicator.Round, JoinIndicator.Round, LineCaps.Round, LineJoins.Round)]
    [InlineData(LineCapIndicator.Unspecified, JoinIndicator.Unspecified, LineCaps.Round, LineJoins.Round)]
    [InlineData(LineCapIndicator.Triangle, JoinIndicator.Round, LineCaps.Round, LineJoins.Round)]
    public void Caps_and_joins_are_those_of_lines_and_of_edges(
        LineCapIndicator cap, JoinIndicator join, object caps, object joins)
    {
        DrawingList list = List([],
        [
            new LineCapElement { Cap = cap }, new LineJoin { Join = join }, new MitreLimit { Limit = 4 },
            Line(0, 0, 9, 9),
            .. Edge(Red, 1), new InteriorStyle { Value = InteriorStyle.Style.Empty },
            new EdgeCap { Cap = cap }, new EdgeJoin { Join = join }, Box(1, 1, 5, 5),
        ]);
        Assert.Equal(2, list.Items.Length);
        foreach (DisplayItem item in list.Items.ToArray())
        {
            Assert.Equal(new StrokeStyle((LineCaps)caps, (LineJoins)joins, 4), list.StyleOf(item));
        }
    }

    [Theory]
    [InlineData(HatchIndex.HatchType.Horizontal, 1, 0.0)]
    [InlineData(HatchIndex.HatchType.Vertical, 1, 90)]
    [InlineData(HatchIndex.HatchType.PositiveSlope, 1, 45)]
    [InlineData(HatchIndex.HatchType.NegativeSlope, 1, 135)]
    [InlineData(HatchIndex.HatchType.HorizontalVerticalCross, 2, 0)]
    [InlineData(HatchIndex.HatchType.PositiveNegativeCross, 2, 45)]
    public void Hatches_of_the_standard_run_at_their_angles(HatchIndex.HatchType type, int directions, double angle)
    {
        DrawingList list = List([],
            [.. Solid(Red), new InteriorStyle { Value = InteriorStyle.Style.Hatch },
                new HatchIndex { Index = (int)type }, Box(10.1, 10.1, 60.1, 60.1)]);
        double[] angles = [.. Segments(list, list.Items[0]).Select(DirectionOf).Distinct().Order()];
        Assert.Equal(directions, angles.Length);
        Assert.Contains(angles, found => Math.Abs(found - angle) < 0.01);

        // The lines of one direction cover the area at one distance, a 120th of the picture.
        Assert.Equal(directions * 50.0 * 50 * 120 / 100, SceneList.Length(list), 50.0 * 50 * 0.05);
    }

    [Fact]
    public void Opaque_hatches_have_a_ground_and_own_ones_two_directions()
    {
        var own = new HatchStyleDefinition
        {
            HatchNumber = -4,
            Style = HatchStyleDefinition.HatchStyle.CrossHatch,
            FirstDirectionX = 1,
            FirstDirectionY = 0,
            SecondDirectionX = 0,
            SecondDirectionY = 1,
            CycleLength = 10,
            GapWidths = [1, 4],
            LineTypes = [1, 1],
        };
        Command[] hatched = [.. Solid(Red), new InteriorStyle { Value = InteriorStyle.Style.Hatch },
            new HatchIndex { Index = -4 }, new FillReferencePoint { Point = P(0, 0) }];
        DrawingList list = List([own],
            [.. hatched, new Transparency { IsTransparent = false }, new AuxiliaryColour { Color = C(Green) },
                Box(1, 1, 99, 99)]);
        Assert.Equal([DisplayKind.Fill, DisplayKind.Stroke], SceneList.Kinds(list));
        Assert.Equal(Green, list.Items[0].Color);
        double[] rows = [.. Segments(list, list.Items[1]).Where(line => Math.Abs(line.A.Y - line.B.Y) < 1e-9)
            .Select(line => Math.Round(line.A.Y, 6)).Order()];
        Assert.Equal([2.0, 10, 12, 20, 22], rows.Take(5)); // gaps of a fifth and of the rest
        Assert.Equal(19, Segments(list, list.Items[1]).Count(line => Math.Abs(line.A.X - line.B.X) < 1e-9));
    }

    [Theory]
    [InlineData(Horizontal.Left, Vertical.Base, 0.0, 0.0)]
    [InlineData(Horizontal.Centre, Vertical.Cap, -0.5, -1)]
    [InlineData(Horizontal.Right, Vertical.Half, -1, -0.5)]
    [InlineData(Horizontal.Continuous, Vertical.Base, -0.25, 0)]
    public void Texts_hang_from_their_alignment(Horizontal horizontal, Vertical vertical, double left, double bottom)
    {
        var alignment = new TextAlignment { Horizontal = horizontal, Vertical = vertical, ContinuousHorizontal = 0.25 };
        Affine2 plain = MatrixOf();
        Affine2 aligned = MatrixOf(alignment);
        double width = 2 * (plain.X0 - MatrixOf(new TextAlignment { Horizontal = Horizontal.Centre }).X0);
        Assert.True(width > 10);
        Assert.Equal(left * width, aligned.X0 - plain.X0, 1e-6);
        Assert.Equal(bottom * 10, aligned.Y0 - plain.Y0, 1e-6);

        // Top and bottom reach beyond the capitals; a continuous height runs between them.
        double top = MatrixOf(new TextAlignment { Vertical = Vertical.Top }).Y0;
        double floor = MatrixOf(new TextAlignment { Vertical = Vertical.Bottom }).Y0;
        Assert.True(top < plain.Y0 - 10 && floor > plain.Y0);
        var third = new TextAlignment { Vertical = Vertical.Continuous, ContinuousVertical = 1 / 3.0 };
        Assert.Equal(floor + ((top - floor) / 3), MatrixOf(third).Y0, 1e-6);
    }

    private static Affine2 MatrixOf(params Command[] attributes)
    {
        DrawingList list = List([],
            [new CharacterHeight { Height = 10 }, .. attributes,
                new TextElement { Position = P(50, 50), Content = "HHH", Final = AppendText.FinalType.Final }]);
        return list.TextOf(list.Items[0]).Matrix;
    }

    private static DrawingList List(Command[] picture, Command[] body)
    {
        using var engine = new TextEngine();
        var scene = new MetafileScene(Image([], picture, body).File);
        return SceneList.WithHatchLines(scene.Build(scene.Pages[0], new RenderStyle(), engine));
    }

    private static List<(Vec2 A, Vec2 B)> Segments(DrawingList list, DisplayItem item)
    {
        ReadOnlySpan<double> c = SceneList.PathOf(list, item).Coords;
        List<(Vec2, Vec2)> lines = [];
        for (int at = 0; at < c.Length; at += 4)
        {
            lines.Add((new Vec2(c[at], c[at + 1]), new Vec2(c[at + 2], c[at + 3])));
        }

        return lines;
    }

    private static double DirectionOf((Vec2 A, Vec2 B) line)
    {
        double degrees = Math.Atan2(line.B.Y - line.A.Y, line.B.X - line.A.X) * 180 / Math.PI;
        return Math.Round((degrees + 360) % 180, 3) % 180;
    }
}
