using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Where the lines and the text of a dimension are, by hand calculation: arrowheads of 2, gaps and offsets of
/// 1, extensions of 2, and a text of 4 by 2.</summary>
public class DimensionPlaceTests
{
    [Fact]
    public void Aligned_dimensions_follow_the_direction_of_their_points()
    {
        // Three, four, five: the line is 50 long, and 10 to the left of the points.
        var dimension = new CadAlignedDimension { SecondExtensionPoint = P(30, 40), DefinitionPoint = P(22, 46) };
        List<CadEntityBase> figure = Figure(dimension);
        Assert.Equal(
            [(-0.8, 0.6, -9.6, 7.2), (29.2, 40.6, 20.4, 47.2), (-6.8, 7.6, 5.2, 23.6), (8.8, 28.4, 20.8, 44.4)],
            Lines(figure));
        CadMText text = figure.OfType<CadMText>().Single();
        Assert.Equal((7, 26), (R(text.InsertionPoint.X), R(text.InsertionPoint.Y)));
        Assert.Equal(0.8, text.TextDirection.Y, 9);
        Assert.Equal("50.0000", text.Text);
    }

    [Theory]
    [InlineData(60, 2.886751, 22.886751)]
    [InlineData(120, -2.886751, 17.113249)]
    public void Oblique_extension_lines_shift_the_line_and_keep_the_measurement(
        double angle, double first, double second)
    {
        CadRotatedDimension dimension = Level(20);
        dimension.ObliqueAngle = angle;
        List<CadEntityBase> figure = Figure(dimension);
        double[] tips = [.. figure.OfType<CadSolid>().Select(static head => R(head.ThirdPoint.X)).Order()];
        Assert.Equal([Math.Min(first, second), Math.Max(first, second)], tips);
        Assert.Equal("20.0000", figure.OfType<CadMText>().Single().Text);
        CadLine extension = figure.OfType<CadLine>().First();
        Assert.Equal(
            Math.Tan(angle * Math.PI / 180),
            (extension.SecondPoint.Y - extension.FirstPoint.Y) / (extension.SecondPoint.X - extension.FirstPoint.X), 6);
    }

    [Theory]
    [InlineData(0, 0, 10, 5)]
    [InlineData(1, 0, 5, 5)] // beside the first extension line: arrowhead, gap and half of the text
    [InlineData(2, 0, 15, 5)]
    [InlineData(0, 1, 10, 7)] // above the line: a gap and half of the height
    [InlineData(1, 1, 5, 7)]
    public void Style_variables_place_the_text(int justification, int above, double x, double y)
    {
        List<CadEntityBase> figure = Figure(
            Level(20), v => (v.Dimjust, v.Dimtad) = ((short)justification, (short)above));
        CadMText text = figure.OfType<CadMText>().Single();
        Assert.Equal((x, y), (R(text.InsertionPoint.X), R(text.InsertionPoint.Y)));
        (double, double, double, double)[] parts = Lines(figure)[2..];
        Assert.Equal(above != 0 ? [(2, 5, 18, 5)] : Broken(x), parts);
    }

    [Theory]
    [InlineData(3, 1, -2, 12, 7)] // above an extension line, which reaches to its end
    [InlineData(4, 4, 22, 7, 12)]
    [InlineData(4, 0, 20, 7, 7)] // past the end of the extension line
    public void Texts_may_run_along_an_extension_line(
        int justification, int above, double x, double firstEnd, double secondEnd)
    {
        List<CadEntityBase> figure = Figure(
            Level(20), v => (v.Dimjust, v.Dimtad) = ((short)justification, (short)above));
        CadMText text = figure.OfType<CadMText>().Single();
        Assert.Equal((x, 10, 1), (R(text.InsertionPoint.X), R(text.InsertionPoint.Y), R(text.TextDirection.Y)));
        Assert.Equal([(0, 1, 0, firstEnd), (20, 1, 20, secondEnd), (2, 5, 18, 5)], Lines(figure));
    }

    [Fact]
    public void A_factor_scales_every_part()
    {
        List<CadEntityBase> figure = Figure(Level(40), scale: 2);
        Assert.Equal(
            [(0, 2, 0, 9), (40, 2, 40, 9), (4, 5, 16, 5), (24, 5, 36, 5)], Lines(figure));
        double[] widths = [.. figure.OfType<CadSolid>().Select(static head =>
            Math.Abs(head.FirstPoint.Y - head.SecondPoint.Y))];
        Assert.All(widths, static width => Assert.Equal(4.0 / 3, width, 6)); // a third of their length
    }

    [Theory]
    [InlineData(0, true)]
    [InlineData(1, false)]
    public void Arrowheads_that_do_not_fit_go_outside_or_away(int isHidden, bool areDrawn)
    {
        List<CadEntityBase> figure = Figure(Level(3), v => v.Dimsoxd = (short)isHidden);
        Assert.Equal(areDrawn ? 2 : 0, figure.OfType<CadSolid>().Count());
        if (areDrawn)
        {
            Assert.Contains((-2, 5, -4, 5), Lines(figure)); // from the foot of the first, by its length
            Assert.Contains((5, 5, 7, 5), Lines(figure));
        }
    }

    [Fact]
    public void A_text_that_was_moved_away_has_a_leader()
    {
        CadRotatedDimension dimension = Level(20);
        dimension.MiddleOfTextPoint = P(15, 30);
        dimension.TypeOfDimension |= 128; // the place is the user's own
        List<CadEntityBase> figure = Figure(dimension, v => v.Dimtmove = 1);
        Assert.Contains((10, 5, 12, 30), Lines(figure)); // from the middle of the line to the hook
        Assert.Contains((12, 30, 14, 30), Lines(figure));
        Assert.Equal(17, figure.OfType<CadMText>().Single().InsertionPoint.X, 9);
        Assert.Contains((2, 5, 18, 5), Lines(figure)); // the line is whole
    }

    [Fact]
    public void Ordinates_along_x_and_y_have_leaders_in_their_direction()
    {
        var dimension = new CadDimensionOrdinate { FeaturePoint = P(10, 10), LeaderEndPoint = P(40, 14) };
        Assert.Equal([(11, 10, 32, 10), (32, 10, 36, 14), (36, 14, 40, 14)], Lines(Figure(dimension)));
        dimension.LeaderEndPoint = P(-20, 10); // to the left
        Assert.Equal([(9, 10, -20, 10)], Lines(Figure(dimension)));
        Assert.Equal("10.0000", Figure(dimension).OfType<CadMText>().Single().Text);
    }

    private static (double, double, double, double)[] Broken(double x) =>
        [.. new[] { (2.0, x - 3), (x + 3, 18.0) }.Where(static part => part.Item2 > part.Item1).Select(
            static part => (part.Item1, 5.0, part.Item2, 5.0))];

    private static CadRotatedDimension Level(double length) => new()
    {
        SecondExtensionPoint = P(length, 0),
        DefinitionPoint = P(length, 5),
    };

    private static List<CadEntityBase> Figure(
        CadDimensionBase dimension, Action<CadDimensionStyleTable>? change = null, double scale = 1)
    {
        var values = new CadDimensionStyleTable { Dimasz = 2, Dimexo = 1, Dimexe = 2, Dimgap = 1, Dimtxt = 2 };
        (values.Dimtih, values.Dimtoh) = (0, 0);
        change?.Invoke(values);
        return DimensionGraphics.Create(
            dimension, new DimensionStyle(values, scale) { TextHeight = 2 },
            static text => Bounds2.Of(0, 0, 4, text.InitialTextHeight));
    }

    private static (double, double, double, double)[] Lines(List<CadEntityBase> figure) =>
        [.. figure.OfType<CadLine>().Select(static line =>
            (R(line.FirstPoint.X), R(line.FirstPoint.Y), R(line.SecondPoint.X), R(line.SecondPoint.Y)))];

    private static double R(double value) => Math.Round(value, 6) + 0.0;

    private static Cad3DPoint P(double x, double y) => new(x, y, 0);
}
