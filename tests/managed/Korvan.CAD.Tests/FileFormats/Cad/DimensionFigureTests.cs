using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>What dimensions measure, and the lines, arrowheads and texts that show it.</summary>
public class DimensionFigureTests
{
    private const double TextWidth = 4;

    public static TheoryData<CadDimensionBase, double> Measured { get; } = new()
    {
        { new CadRotatedDimension { SecondExtensionPoint = P(3, 4), RotationAngle = 90 }, 4 },
        { new CadAlignedDimension { SecondExtensionPoint = P(3, 4) }, 5 },
        { new CadAlignedDimension { SecondExtensionPoint = P(10, 0), ObliqueAngle = 60 }, 10 },
        { new CadRadialDimension { ChordPoint = P(3, 4) }, 5 },
        { new CadDiametricDimension { FarChordPoint = P(-6, 8) }, 10 },
        { Quarter(definitionX: 2), Math.PI / 2 },
        { Quarter(definitionX: -2), Math.PI * 1.5 }, // the rest of the turn
        { Crossing(arcX: 5, arcY: 1), Math.PI / 4 },
        { Crossing(arcX: 0, arcY: 5), Math.PI * 0.75 }, // the angle beside it
        { Crossing(arcX: -5, arcY: -1), Math.PI / 4 }, // and the one opposite
        { new CadDimensionOrdinate { FeaturePoint = P(7, 9), DefinitionPoint = P(1, 1), TypeOfDimension = 6 | 64 }, 6 },
        { new CadDimensionOrdinate { FeaturePoint = P(7, 9), DefinitionPoint = P(1, 1) }, 8 },
        {
            new CadArcLengthDimension
            {
                FirstExtensionPoint = P(2, 0), SecondExtensionPoint = P(0, 2), DefinitionPoint = P(3, 3),
            }, Math.PI
        },
    };

    [Theory]
    [MemberData(nameof(Measured))]
    public void Measurements_follow_from_the_points_unless_they_are_stated(CadDimensionBase dimension, double expected)
    {
        Assert.Equal(expected, dimension.ActualMeasurement, 9);
        CadDimensionBase stated = (CadDimensionBase)dimension.Clone();
        stated.ActualMeasurement = 42;
        Assert.Equal(42, stated.ActualMeasurement);
    }

    [Theory]
    [InlineData(2000)] // as files state it, with the factor
    [InlineData(-1)] // as they state what was not measured
    public void Texts_show_the_distance_of_the_points_with_the_factor_of_the_style(double stated)
    {
        CadRotatedDimension dimension = Linear(20);
        dimension.ActualMeasurement = stated;
        List<CadEntityBase> figure = Figure(dimension, static v => (v.Dimlfac, v.Dimdec) = (100, 0));
        Assert.Equal("2000", figure.OfType<CadMText>().Single().Text);
    }

    [Fact]
    public void Measurements_of_tilted_dimensions_lie_in_their_plane()
    {
        var dimension = new CadRotatedDimension
        {
            SecondExtensionPoint = new Cad3DPoint(0, 5, 7),
            ExtrusionDirection = new Cad3DPoint(1, 0, 0), // its X axis is the Y axis of the world
        };
        Assert.Equal(5, dimension.ActualMeasurement, 9);
    }

    [Fact]
    public void Linear_dimensions_have_extension_lines_a_broken_line_and_arrowheads_inside()
    {
        List<CadEntityBase> figure = Figure(Linear(20));
        Assert.Equal(
            [(0, 1, 0, 7), (20, 1, 20, 7), (2, 5, 7, 5), (13, 5, 18, 5)], Lines(figure));
        Assert.Equal([(0.0, 5.0), (20, 5)], Tips(figure));
        CadMText text = Assert.Single(figure.OfType<CadMText>());
        Assert.Equal((10, 5), (text.InsertionPoint.X, text.InsertionPoint.Y));
        Assert.Equal("20.0000", text.Text);
        Assert.All(figure, entity => Assert.Equal((0, "0", -2), (entity.ColorId, entity.LayerName, entity.LineWeight)));
    }

    [Theory]
    [InlineData(12, 3, 6, true)] // both fit: text and gaps 6, arrowheads 4
    [InlineData(8, 3, 4, false)] // the text fits alone
    [InlineData(7, 2, 10, true)] // the text is moved first
    [InlineData(3, 3, 10, false)] // nothing fits
    [InlineData(8, 0, 15, false)] // both are moved
    public void Short_dimensions_move_arrowheads_and_text_outside(
        double length, short fit, double textX, bool hasArrowsInside)
    {
        List<CadEntityBase> figure = Figure(Linear(length), v => v.Dimatfit = fit);
        CadSolid first = figure.OfType<CadSolid>().First();
        Assert.Equal(hasArrowsInside, first.FirstPoint.X > 0); // the foot of the head, whose tip is at 0
        CadMText text = figure.OfType<CadMText>().Single();
        Assert.Equal((textX, 5), (text.InsertionPoint.X, text.InsertionPoint.Y));
    }

    [Fact]
    public void Style_variables_suppress_move_and_colour_the_parts()
    {
        List<CadEntityBase> figure = Figure(Linear(20), v =>
        {
            (v.Dimse1, v.Dimsd2, v.Dimtad, v.Dimclrd, v.Dimclre, v.Dimclrt, v.Dimlwd) = (1, 1, 1, 1, 2, 3, 50);
        });
        Assert.Equal([(20, 1, 20, 7), (2, 5, 10, 5)], Lines(figure));
        Assert.Equal([(0.0, 5.0)], Tips(figure));
        CadMText text = figure.OfType<CadMText>().Single();
        Assert.Equal(5 + 1 + 1, text.InsertionPoint.Y); // above the line: the gap and half of the height
        Assert.Equal((3, 2, 1), (text.ColorId, figure[0].ColorId, figure[1].ColorId));
        Assert.Equal(50, figure[1].LineWeight);
    }

    [Fact]
    public void Ticks_and_arrowheads_by_name_replace_the_filled_ones()
    {
        List<CadEntityBase> ticks = Figure(Linear(20), v => (v.Dimtsz, v.Dimdle, v.Dimtad) = (1, 3, 1));
        Assert.Contains((-3, 5, 23, 5), Lines(ticks)); // beyond the extension lines
        Assert.Contains((19, 4, 21, 6), Lines(ticks));
        Assert.Empty(ticks.OfType<CadSolid>());
        string[] names = ["_Open30", "_DOT", "ArchTick", "_Integral", "_BoxFilled", "_Origin2", "_Small"];
        foreach (string name in names)
        {
            var style = new DimensionStyle(Values(_ => { }), 1) { FirstArrow = DimensionArrow.Of(name, false) };
            Assert.Single(DimensionGraphics.Create(Linear(20), style, Box).OfType<CadSolid>(), IsHead);
        }

        var own = new DimensionStyle(Values(_ => { }), 1) { FirstArrow = DimensionArrow.Of("MyHead", true) };
        CadInsertObject head = DimensionGraphics.Create(Linear(20), own, Box).OfType<CadInsertObject>().Single();
        Assert.Equal(("MyHead", 2.0, 180.0), (head.Name, head.ScaleX, Math.Abs(head.RotationAngle)));
        Assert.Same(DimensionArrow.ClosedFilled, DimensionArrow.Of("Missing", false));
    }

    [Fact]
    public void Entities_override_variables_of_their_style()
    {
        CadRotatedDimension dimension = Linear(20);
        var data = new CadXdata("ACAD");
        foreach ((int code, string value) in ((int, string)[])
            [(1000, "DSTYLE"), (1002, "{"), (1070, "271"), (1070, "1"), (1070, "3"), (1000, "<>m"), (1070, "41"),
                (1040, "0.5"), (1070, "70"), (1070, "9"), (1002, "}")])
        {
            data.Data.Add(new CadCodeValue(code, value));
        }

        dimension.XdataContainer.XdataEntities.Add(data);
        CadDimensionStyleTable named = Values(v => v.Dimexo = 7);
        CadDimensionStyleTable own = StyleOverrides.Apply(named, dimension);
        Assert.Equal((1, "<>m", 0.5, 7.0), (own.Dimdec, own.Dimpost, own.Dimasz, own.Dimexo));
        Assert.Equal((4, 2.0), (named.Dimdec, named.Dimasz));
    }

    [Fact]
    public void Angular_dimensions_draw_an_arc_with_room_for_the_text()
    {
        var dimension = new CadAngularDimension
        {
            FirstPoint = P(5, 0),
            SecondPoint = P(0, 30),
            DefinitionPoint = P(20 * Math.Cos(1), 20 * Math.Sin(1)),
        };
        List<CadEntityBase> figure = Figure(dimension);
        CadArc[] arcs = [.. figure.OfType<CadArc>()];
        Assert.Equal(2, arcs.Length);
        Assert.All(arcs, arc => Assert.Equal(20, arc.Radius, 9));
        double step = 2 * Math.Asin(2.0 / 40) * 180 / Math.PI; // the length of an arrowhead
        Assert.Equal(step, arcs[0].StartAngle, 6);
        Assert.Equal(90 - step, arcs[1].EndAngle, 6);
        Assert.True(arcs[0].EndAngle < 45 - 6 && arcs[1].StartAngle > 45 + 6, "room for the text");
        Assert.Equal([(6, 0, 22, 0), (0, 29, 0, 18)], Lines(figure)); // outwards, and inwards from beyond the arc
    }

    [Fact]
    public void Radial_texts_outside_get_a_hook_and_a_mark_of_the_centre()
    {
        var dimension = new CadRadialDimension { ChordPoint = P(3, 4), MiddleOfTextPoint = P(20, 12) };
        List<CadEntityBase> figure = Figure(dimension, v => (v.Dimtoh, v.Dimcen) = (1, 0.5));
        Assert.Contains((-0.5, 0, 0.5, 0), Lines(figure));
        Assert.Contains((17, 12, 15, 12), Lines(figure)); // from the gap before the text
        Assert.Equal([(3.0, 4.0)], Tips(figure));
        List<CadEntityBase> inside = Figure(
            new CadDiametricDimension { FarChordPoint = P(30, 0), MiddleOfTextPoint = P(15, 0) });
        Assert.Equal([(2, 0, 12, 0), (18, 0, 28, 0)], Lines(inside));
        Assert.Equal(2, Tips(inside).Count);
    }

    [Fact]
    public void Ordinates_bend_where_their_leader_is_aside()
    {
        var dimension = new CadDimensionOrdinate
        {
            FeaturePoint = P(10, 10),
            LeaderEndPoint = P(14, 40),
            TypeOfDimension = 6 | 64,
        };
        Assert.Equal([(10, 11, 10, 32), (10, 32, 14, 36), (14, 36, 14, 40)], Lines(Figure(dimension)));
        dimension.LeaderEndPoint = P(10, 40);
        Assert.Equal([(10, 11, 10, 40)], Lines(Figure(dimension)));
        Assert.Equal(1, Figure(dimension).OfType<CadMText>().Single().TextDirection.Y, 9);
    }

    [Fact]
    public void Dimensions_without_a_block_count_in_extents_and_strings()
    {
        var drawing = new CadImage();
        CadRotatedDimension dimension = Linear(20);
        dimension.StyleName = "none such";
        drawing.AddEntity(dimension);
        Assert.Contains("20.0000", drawing.GetStrings());
        Assert.Equal(5.18, drawing.MaxPoint.Y, 2);
        dimension.MiddleOfTextPoint = P(100, 5);
        Assert.True(drawing.MaxPoint.X > 100.1, "the text has a width");
    }

    private static CadRotatedDimension Linear(double length) => new()
    {
        SecondExtensionPoint = P(length, 0),
        DefinitionPoint = P(length, 5),
    };

    private static CadAngularDimension Quarter(double definitionX) => new()
    {
        FirstPoint = P(1, 0),
        SecondPoint = P(0, 1),
        DefinitionPoint = P(definitionX, 2),
    };

    private static Cad2LineAngularDimension Crossing(double arcX, double arcY) => new()
    {
        FirstPoint = P(1, 0),
        SecondPoint = P(9, 0),
        ThirdPoint = P(1, 1),
        DefinitionPoint = P(9, 9),
        ArcPoint = P(arcX, arcY),
    };

    private static CadDimensionStyleTable Values(Action<CadDimensionStyleTable> change)
    {
        var values = new CadDimensionStyleTable { Dimasz = 2, Dimexo = 1, Dimexe = 2, Dimgap = 1, Dimtxt = 2 };
        (values.Dimtih, values.Dimtoh) = (0, 0);
        change(values);
        return values;
    }

    private static List<CadEntityBase> Figure(
        CadDimensionBase dimension, Action<CadDimensionStyleTable>? change = null)
    {
        CadDimensionStyleTable values = Values(change ?? (_ => { }));
        return DimensionGraphics.Create(dimension, new DimensionStyle(values, 1) { TextHeight = 2 }, Box);
    }

    private static Bounds2 Box(CadMText text) => Bounds2.Of(0, 0, TextWidth, text.InitialTextHeight);

    private static (double, double, double, double)[] Lines(List<CadEntityBase> figure) =>
        [.. figure.OfType<CadLine>().Select(line =>
            (R(line.FirstPoint.X), R(line.FirstPoint.Y), R(line.SecondPoint.X), R(line.SecondPoint.Y)))];

    private static bool IsHead(CadSolid solid) =>
        (solid.ThirdPoint.X, solid.ThirdPoint.Y) == (solid.FourthPoint.X, solid.FourthPoint.Y);

    private static List<(double, double)> Tips(List<CadEntityBase> figure) =>
        [.. figure.OfType<CadSolid>().Where(IsHead).Select(s => (R(s.ThirdPoint.X), R(s.ThirdPoint.Y)))];

    private static double R(double value) => Math.Round(value, 6) + 0.0;

    private static Cad3DPoint P(double x, double y) => new(x, y, 0);
}
