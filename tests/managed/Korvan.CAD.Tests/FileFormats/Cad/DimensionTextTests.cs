using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>How measurements are written: notations, zeros, affixes, tolerances and texts of their own.</summary>
public class DimensionTextTests
{
    [Theory]
    [InlineData(2, 2, 0, 1234.5, "1234.50")]
    [InlineData(2, 2, 8, 1234.5, "1234.5")]
    [InlineData(2, 2, 12, 0.5, ".5")] // neither leading nor trailing zeros
    [InlineData(2, 3, 4, 0.0001, ".000")]
    [InlineData(2, 0, 8, 1500, "1500")] // zeros before the separator stay
    [InlineData(1, 2, 0, 1234.5, "1.23E+03")]
    [InlineData(3, 2, 0, 15.5, "1'-3.50\"")]
    [InlineData(3, 2, 0, 23.999, "2'")] // rounds up to a foot, whose zero inches are left out
    [InlineData(4, 4, 1, 0.5, "0'-0 1/2\"")]
    [InlineData(4, 4, 0, 0.5, "1/2\"")]
    [InlineData(4, 4, 3, 24, "2'-0\"")]
    [InlineData(4, 2, 0, 12.75, "1'-0 3/4\"")]
    [InlineData(4, 2, 0, 11.99, "1'")]
    [InlineData(5, 3, 0, 15.375, "15 3/8")]
    public void Lengths_are_written_in_the_notation_of_the_style(
        short unit, short decimals, short zeros, double value, string expected) =>
        Assert.Equal(
            expected, Text(value, v => (v.Dimlunit, v.Dimdec, v.Dimzin, v.Dimfrac) = (unit, decimals, zeros, 2)));

    [Theory]
    [InlineData(0, 0, 0, 36.6, "37°")]
    [InlineData(0, 2, 2, 36.5, "36.5°")]
    [InlineData(1, 1, 0, 36.5, "36°30'")]
    [InlineData(1, 4, 0, 36.999999, "37°0'0\"")] // no sixty seconds
    [InlineData(2, 1, 0, 90, "100.0g")]
    [InlineData(3, 3, 0, 180, "3.142r")]
    public void Angles_are_written_in_the_notation_of_the_style(
        int unit, int decimals, int zeros, double degrees, string expected) =>
        Assert.Equal(expected, new AngleFormat(unit, decimals, zeros, '.').Format(degrees * Math.PI / 180));

    [Fact]
    public void Factors_rounding_and_affixes_apply_in_this_order()
    {
        Assert.Equal("~12,5 mm", Text(1.26, v =>
        {
            (v.Dimlfac, v.Dimrnd, v.Dimpost, v.Dimdsep, v.Dimdec) = (10, 0.5, "~<> mm", (short)',', 1);
        }));
        Assert.Equal("10.0 [254.00mm]", Text(10, v => (v.Dimdec, v.Dimalt, v.Dimapost) = (1, 1, "mm")));
        Assert.Equal("10", Text(10, v => (v.Dimdec, v.Dimlfac) = (0, -2))); // for sheets of paper alone
        Assert.Equal("5%", Text(5, v => (v.Dimdec, v.Dimpost) = (0, "%"))); // a suffix without a place
    }

    [Fact]
    public void Tolerances_follow_the_measurement_and_limits_replace_it()
    {
        static Action<CadDimensionStyleTable> With(double upper, double lower, short limits) => v =>
            (v.Dimdec, v.Dimtdec, v.Dimtp, v.Dimtm, v.Dimtol, v.Dimlim, v.Dimtfac)
                = (1, 2, upper, lower, (short)(1 - limits), limits, 0.5);

        Assert.Equal("10.0±0.10", Text(10, With(0.1, 0.1, 0)));
        Assert.Equal("10.0{\\A1;\\H0.5x;\\S+0.20^-0.10;}", Text(10, With(0.2, 0.1, 0)));
        Assert.Equal("{\\A1;\\H0.5x;\\S10.2^9.9;}", Text(10, With(0.2, 0.1, 1)));
    }

    [Fact]
    public void Texts_of_their_own_keep_a_place_for_the_measurement()
    {
        Assert.Equal("2x 7.5 typ", Text(7.5, v => v.Dimdec = 1, "2x <> typ"));
        Assert.Equal("as built", Text(7.5, _ => { }, "as built"));
        Assert.Equal("", Text(7.5, _ => { }, " "));
    }

    [Fact]
    public void Radii_and_diameters_have_their_symbol_unless_the_style_has_a_prefix()
    {
        var radius = new CadRadialDimension { ChordPoint = new Cad3DPoint(3, 4, 0) };
        var diameter = new CadDiametricDimension { FarChordPoint = new Cad3DPoint(6, 8, 0) };
        var whole = new CadDimensionStyleTable { Dimdec = 0 };
        var prefixed = new CadDimensionStyleTable { Dimdec = 0, Dimpost = "SR<>" };
        Assert.Equal("R5", DimensionText.Of(radius, new DimensionStyle(whole, 1)));
        Assert.Equal("%%c10", DimensionText.Of(diameter, new DimensionStyle(whole, 1)));
        Assert.Equal("SR5", DimensionText.Of(radius, new DimensionStyle(prefixed, 1)));
    }

    private static string Text(double length, Action<CadDimensionStyleTable> change, string text = "")
    {
        var values = new CadDimensionStyleTable();
        change(values);
        var dimension = new CadRotatedDimension { SecondExtensionPoint = new Cad3DPoint(length, 0, 0), Text = text };
        return DimensionText.Of(dimension, new DimensionStyle(values, 1));
    }
}
