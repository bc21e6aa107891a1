using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// The text of a dimension, with the codes of multi-line text: the measurement in the notation of the style, its
/// tolerance, the same in alternate units, or what the dimension states instead.
/// </summary>
internal static class DimensionText
{
    private const string Measured = "<>";
    private const string Alternate = "[]";
    private const string Plus = "+";

    /// <summary>Gets the text; empty where the dimension has none.</summary>
    internal static string Of(CadDimensionBase dimension, DimensionStyle style)
    {
        string text = dimension.Text;
        if (text.Length > 0 && string.IsNullOrWhiteSpace(text))
        {
            return "";
        }

        if (text is "" or Measured)
        {
            return Composed(dimension, style);
        }

        text = text.Replace("\\X", "\\P", StringComparison.Ordinal);
        if (text.Contains(Measured, StringComparison.Ordinal))
        {
            text = text.Replace(Measured, Composed(dimension, style), StringComparison.Ordinal);
        }

        return text.Contains(Alternate, StringComparison.Ordinal) && !IsAngular(dimension)
            ? text.Replace(Alternate, InAlternateUnits(dimension, style), StringComparison.Ordinal)
            : text;
    }

    private static bool IsAngular(CadDimensionBase dimension) =>
        dimension is Cad2LineAngularDimension or CadAngularDimension;

    private static string Composed(CadDimensionBase dimension, DimensionStyle style)
    {
        CadDimensionStyleTable v = style.Values;
        if (IsAngular(dimension))
        {
            double value = dimension.ActualMeasurement;
            int decimals = v.Dimadec < 0 ? v.Dimdec : v.Dimadec;
            var angle = new AngleFormat(v.Dimaunit, decimals, v.Dimazin, style.Separator);
            double degree = Math.PI / 180;
            return WithTolerance(value, v.Dimtp * degree, v.Dimtm * degree, style, angle.Format, angle.Format);
        }

        var main = new LengthFormat(style.LengthUnit, v.Dimdec, v.Dimzin, style.Separator, v.Dimfrac);
        LengthFormat tolerance = main with { Decimals = v.Dimtdec, Zeros = v.Dimtzin };
        (string before, string after) = Affixes(v.Dimpost);
        before = before.Length > 0 ? before : SymbolOf(dimension);
        string text = WithTolerance(
            Rounded(LengthOf(dimension, v), v.Dimrnd), v.Dimtp, v.Dimtm, style,
            length => before + main.Format(length) + after, length => tolerance.Format(length) + after);
        return v.Dimalt != 0 ? $"{text} [{InAlternateUnits(dimension, style)}]" : text;
    }

    private static string InAlternateUnits(CadDimensionBase dimension, DimensionStyle style)
    {
        CadDimensionStyleTable v = style.Values;
        var main = new LengthFormat((LengthUnit)v.Dimaltu, v.Dimaltd, v.Dimaltz, style.Separator, v.Dimfrac);
        LengthFormat tolerance = main with { Decimals = v.Dimalttd, Zeros = v.Dimalttz };
        (string before, string after) = Affixes(v.Dimapost);
        return WithTolerance(
            Rounded(LengthOf(dimension, v) * v.Dimaltf, v.Dimaltrnd), v.Dimtp * v.Dimaltf, v.Dimtm * v.Dimaltf, style,
            length => before + main.Format(length) + after, length => tolerance.Format(length) + after);
    }

    /// <summary>Returns the length to show. Files state it with the factor of the style, or as less than nothing before
    /// it was measured, so that the points of the dimension come first.</summary>
    private static double LengthOf(CadDimensionBase dimension, CadDimensionStyleTable v)
    {
        double measured = DimensionMeasure.Of(dimension);
        return measured > 0 ? measured * FactorOf(dimension, v) : Math.Max(0, dimension.ActualMeasurement);
    }

    // A negative factor is for sheets of paper alone.
    private static double FactorOf(CadDimensionBase dimension, CadDimensionStyleTable v)
    {
        bool isOnPaper = dimension.SpaceMode == CadEntitySpaceMode.PaperSpace;
        return v.Dimlfac > 0 ? v.Dimlfac : v.Dimlfac < 0 && isOnPaper ? -v.Dimlfac : 1;
    }

    private static double Rounded(double value, double to) =>
        to > 0 ? Math.Round(value / to, MidpointRounding.AwayFromZero) * to : value;

    private static string SymbolOf(CadDimensionBase dimension) => dimension switch
    {
        CadRadialDimension or CadJoggedDimension => "R",
        CadDiametricDimension => "%%c",
        _ => "",
    };

    // Without a place for the measurement the variable is a suffix.
    private static (string Before, string After) Affixes(string post)
    {
        int at = post.IndexOf(Measured, StringComparison.Ordinal);
        at = at < 0 ? post.IndexOf(Alternate, StringComparison.Ordinal) : at;
        return at < 0 ? ("", post) : (post[..at], post[(at + Measured.Length)..]);
    }

    private static string WithTolerance(
        double value, double upper, double lower, DimensionStyle style, Func<double, string> write,
        Func<double, string> writeTolerance)
    {
        CadDimensionStyleTable v = style.Values;
        if (v.Dimlim != 0)
        {
            return Stacked(write(value + upper), write(value - lower), v);
        }

        if (v.Dimtol == 0)
        {
            return write(value);
        }

        return upper == lower
            ? $"{write(value)}\u00b1{writeTolerance(upper)}"
            : write(value) + Stacked(Signed(upper, writeTolerance), Signed(-lower, writeTolerance), v);
    }

    private static string Signed(double value, Func<double, string> write) =>
        value > 0 ? Plus + write(value) : value == 0 ? " " + write(0) : write(value);

    private static string Stacked(string upper, string lower, CadDimensionStyleTable v) =>
        FormattableString.Invariant($"{{\\A{v.Dimtolj};\\H{(v.Dimtfac > 0 ? v.Dimtfac : 1)}x;\\S{upper}^{lower};}}");
}
