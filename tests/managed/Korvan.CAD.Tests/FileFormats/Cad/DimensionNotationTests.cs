using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Values at the limits of their notation: rounding that carries, signs, zeros, and stacked parts.</summary>
public class DimensionNotationTests
{
    [Theory]
    [InlineData(1, 2, 0, 9.999, "1.00E+01")] // ten has the next exponent
    [InlineData(1, 2, 0, -9.999, "-1.00E+01")]
    [InlineData(1, 3, 8, 0.00012, "1.2E-04")]
    [InlineData(1, 1, 0, 0, "0.0E+00")]
    [InlineData(2, 2, 0, -0.001, "0.00")] // no sign before nothing
    [InlineData(2, 2, 4, -0.5, "-.50")]
    [InlineData(2, 0, 0, 2.5, "3")]
    [InlineData(2, 20, 8, 0.125, "0.125")] // eight decimals at most
    [InlineData(3, 1, 0, -30, "-2'-6.0\"")]
    [InlineData(3, 1, 1, 6, "0'-6.0\"")]
    [InlineData(3, 0, 2, 0, "0'")]
    [InlineData(4, 3, 0, 35.9999, "3'")]
    [InlineData(4, 3, 1, 0, "0'-0\"")]
    [InlineData(4, 3, 0, 0, "0\"")]
    [InlineData(4, 3, 0, -0.25, "-1/4\"")]
    [InlineData(5, 2, 0, 0.99, "1")]
    [InlineData(5, 4, 0, -1.0625, "-1 1/16")]
    [InlineData(5, 0, 0, 0.5, "1")]
    [InlineData(6, 1, 0, 2.25, "2.3")] // as the desktop: decimal
    public void Lengths(int unit, int decimals, int zeros, double value, string expected) =>
        Assert.Equal(expected, new LengthFormat((LengthUnit)unit, decimals, zeros, '.', 2).Format(value));

    [Theory]
    [InlineData(0, "2'-1{\\H1x;\\S3/4;}\"")]
    [InlineData(1, "2'-1{\\H1x;\\S3#4;}\"")]
    [InlineData(2, "2'-1 3/4\"")]
    public void Fractions_are_stacked_as_the_style_says(int fraction, string expected) =>
        Assert.Equal(expected, new LengthFormat(LengthUnit.Architectural, 2, 0, '.', fraction).Format(25.75));

    [Theory]
    [InlineData(1, 2, 0, -0.5, "-0°30'")]
    [InlineData(1, 3, 0, -1.51, "-1°30'36\"")]
    [InlineData(1, 0, 0, 36.7, "37°")]
    [InlineData(1, 2, 0, 59.9999, "60°0'")] // no sixty minutes
    [InlineData(1, 6, 0, 12.3456789, "12°20'44.44\"")]
    [InlineData(0, 3, 1, 0.25, ".250°")]
    [InlineData(0, 3, 3, 0.25, ".25°")]
    [InlineData(2, 4, 2, 45, "50g")]
    public void Angles(int unit, int decimals, int zeros, double degrees, string expected) =>
        Assert.Equal(expected, new AngleFormat(unit, decimals, zeros, '.').Format(degrees * Math.PI / 180));

    [Fact]
    public void Tolerances_of_angles_are_in_degrees_and_keep_their_signs()
    {
        var angle = new CadAngularDimension
        {
            FirstPoint = new Cad3DPoint(1, 0, 0),
            SecondPoint = new Cad3DPoint(0, 1, 0),
            DefinitionPoint = new Cad3DPoint(2, 2, 0),
        };
        CadDimensionStyleTable values = new() { Dimadec = 2, Dimaunit = 1, Dimtol = 1, Dimtp = 0.25, Dimtm = 0.5 };
        Assert.Equal(
            "90°0'{\\A1;\\H1x;\\S+0°15'^-0°30';}", DimensionText.Of(angle, new DimensionStyle(values, 1)));
        (values.Dimtol, values.Dimlim, values.Dimaunit, values.Dimadec, values.Dimtp) = (0, 1, 0, 1, 0.3);
        Assert.Equal("{\\A1;\\H1x;\\S90.3°^89.5°;}", DimensionText.Of(angle, new DimensionStyle(values, 1)));
        (values.Dimlim, values.Dimadec, values.Dimdec, values.Dimpost) = (0, -1, 3, "<>mm");
        Assert.Equal("90.000°", DimensionText.Of(angle, new DimensionStyle(values, 1))); // the places of lengths
    }

    [Fact]
    public void Alternate_units_have_factor_rounding_affixes_and_tolerances_of_their_own()
    {
        CadDimensionStyleTable values = new()
        {
            Dimdec = 1,
            Dimalt = 1,
            Dimaltf = 25.4,
            Dimaltd = 0,
            Dimaltrnd = 5,
            Dimapost = "(<> mm)",
            Dimtol = 1,
            Dimtp = 0.1,
            Dimtm = 0.1,
            Dimtdec = 2,
            Dimalttd = 1,
        };
        Assert.Equal("2.0±0.10 [(50 mm)±2.5 mm)]", Text(2, values));
        (values.Dimtol, values.Dimlfac, values.Dimalt) = (0, 10, 0);
        Assert.Equal("about 510 mm", Text(2, values, "about []").Replace("(", "").Replace(")", ""));
        (values.Dimtol, values.Dimtp, values.Dimtm) = (1, 0, 0.2);
        Assert.Equal("20.0{\\A1;\\H1x;\\S 0.00^-0.20;}", Text(2, values));
        (values.Dimtp, values.Dimtolj, values.Dimtfac) = (-0.1, 2, 0);
        Assert.Equal("20.0{\\A2;\\H1x;\\S-0.10^-0.20;}", Text(2, values));
    }

    [Fact]
    public void Factors_of_paper_space_apply_there_alone()
    {
        CadDimensionStyleTable values = new() { Dimdec = 0, Dimlfac = -50 };
        var dimension = new CadRotatedDimension { SecondExtensionPoint = new Cad3DPoint(2, 0, 0) };
        Assert.Equal("2", DimensionText.Of(dimension, new DimensionStyle(values, 1)));
        dimension.SpaceMode = CadEntitySpaceMode.PaperSpace;
        Assert.Equal("100", DimensionText.Of(dimension, new DimensionStyle(values, 1)));
    }

    [Theory]
    [InlineData(2, 4, LengthUnit.Architectural)] // 4 and 6 are the stacked and the plain notation
    [InlineData(2, 6, LengthUnit.Architectural)]
    [InlineData(2, 7, LengthUnit.Fractional)]
    [InlineData(2, 8, LengthUnit.Desktop)]
    [InlineData(1, 4, LengthUnit.Scientific)] // the newer variable comes first
    internal void Old_drawings_have_their_notation_in_another_variable(
        short newer, short older, LengthUnit expected) =>
        Assert.Equal(
            expected, new DimensionStyle(new() { Dimlunit = newer, Dimunit = older }, 1).LengthUnit);

    private static string Text(double length, CadDimensionStyleTable values, string text = "") => DimensionText.Of(
        new CadRotatedDimension { SecondExtensionPoint = new Cad3DPoint(length, 0, 0), Text = text },
        new DimensionStyle(values, 1));
}
