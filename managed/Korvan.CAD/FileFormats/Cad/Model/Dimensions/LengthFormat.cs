using System;
using System.Globalization;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// Writes lengths as dimension styles ask for them. Zeros are the bits of $DIMZIN: the lowest two choose which of zero
/// feet and zero inches are written, 4 leaves out leading zeros of decimals and 8 trailing ones.
/// </summary>
/// <param name="Unit">The notation, see <see cref="LengthUnit"/>.</param>
/// <param name="Decimals">The number of decimals; fractions have denominators of up to two to this power.</param>
/// <param name="Zeros">The bits for zeros.</param>
/// <param name="Separator">The decimal separator.</param>
/// <param name="Fraction">How fractions are stacked: 0 with a level bar, 1 with a diagonal one, 2 not at all.</param>
internal readonly record struct LengthFormat(
    LengthUnit Unit, int Decimals, int Zeros, char Separator, int Fraction)
{
    private const int NoLeadingZeros = 4;
    private const int NoTrailingZeros = 8;
    private const int MaxDecimals = 8;
    private const int InchesPerFoot = 12;
    private const int NotStacked = 2;

    private bool ShowsZeroFeet => (Zeros & 3) is 1 or 2;

    private bool ShowsZeroInches => (Zeros & 3) is 1 or 3;

    internal string Format(double value) => Unit switch
    {
        LengthUnit.Scientific => Scientific(value),
        LengthUnit.Engineering or LengthUnit.Architectural => Feet(value),
        LengthUnit.Fractional => Sign(Rounded(value)) + Mixed(Math.Abs(Rounded(value)), hasZero: false),
        _ => Decimal(value),
    };

    /// <summary>Writes a number with decimals; no more of them than a number of double precision has.</summary>
    internal string Decimal(double value)
    {
        int decimals = Math.Clamp(Decimals, 0, MaxDecimals);
        string text = Math.Round(value, decimals, MidpointRounding.AwayFromZero)
            .ToString("F" + decimals, CultureInfo.InvariantCulture);
        if ((Zeros & NoTrailingZeros) != 0 && text.Contains('.'))
        {
            text = text.TrimEnd('0').TrimEnd('.');
        }

        text = text is "-0" || (text.StartsWith('-') && text.AsSpan(1).Trim("0.").IsEmpty) ? text[1..] : text;
        if ((Zeros & NoLeadingZeros) != 0)
        {
            text = text.StartsWith("0.", StringComparison.Ordinal) ? text[1..]
                : text.StartsWith("-0.", StringComparison.Ordinal) ? "-" + text[2..] : text;
        }

        return text.Replace('.', Separator);
    }

    private static string Sign(double value) => value < 0 ? "-" : "";

    // Rounded first: what rounds up to ten has the next exponent.
    private string Scientific(double value)
    {
        int exponent = value == 0 ? 0 : (int)Math.Floor(Math.Log10(Math.Abs(value)));
        double digits = Math.Pow(10, Math.Clamp(Decimals, 0, MaxDecimals));
        double rounded = Math.Round(value / Math.Pow(10, exponent) * digits, MidpointRounding.AwayFromZero) / digits;
        exponent += Math.Abs(rounded) >= 10 ? 1 : 0;
        return FormattableString.Invariant($"{Decimal(value / Math.Pow(10, exponent))}E{exponent:+00;-00}");
    }

    // Rounded first: what rounds up to twelve inches is a foot.
    private double Rounded(double value)
    {
        int decimals = Math.Clamp(Decimals, 0, MaxDecimals);
        double parts = Unit == LengthUnit.Engineering ? Math.Pow(10, decimals) : 1 << decimals;
        return Math.Round(value * parts, MidpointRounding.AwayFromZero) / parts;
    }

    private string Feet(double value)
    {
        double size = Math.Abs(Rounded(value));
        double feet = Math.Floor(size / InchesPerFoot);
        double inches = size - (feet * InchesPerFoot);
        bool hasFeet = feet > 0 || ShowsZeroFeet;
        bool hasInches = inches > 0 || !hasFeet || ShowsZeroInches;
        string text = Sign(value) + (hasFeet ? FormattableString.Invariant($"{feet}'") : "");
        text += hasFeet && hasInches ? "-" : "";
        string number = Unit == LengthUnit.Engineering ? Decimal(inches) : Mixed(inches, hasFeet);
        return hasInches ? $"{text}{number}\"" : text;
    }

    private string Mixed(double value, bool hasZero)
    {
        double whole = Math.Floor(value);
        int denominator = 1 << Math.Clamp(Decimals, 0, MaxDecimals);
        int numerator = (int)Math.Round((value - whole) * denominator);
        if (numerator == 0)
        {
            return FormattableString.Invariant($"{whole}");
        }

        while (numerator % 2 == 0)
        {
            (numerator, denominator) = (numerator / 2, denominator / 2);
        }

        string number = whole > 0 || hasZero ? FormattableString.Invariant($"{whole}") : "";
        string space = number.Length > 0 && Fraction == NotStacked ? " " : "";
        return Fraction switch
        {
            0 => FormattableString.Invariant($"{number}{{\\H1x;\\S{numerator}/{denominator};}}"),
            1 => FormattableString.Invariant($"{number}{{\\H1x;\\S{numerator}#{denominator};}}"),
            _ => FormattableString.Invariant($"{number}{space}{numerator}/{denominator}"),
        };
    }
}

/// <summary>The notations of lengths, as $DIMLUNIT numbers them.</summary>
internal enum LengthUnit
{
    Scientific = 1,
    Decimal = 2,

    /// <summary>Feet, and inches with decimals.</summary>
    Engineering = 3,

    /// <summary>Feet, and inches with fractions.</summary>
    Architectural = 4,
    Fractional = 5,

    /// <summary>As the desktop is set up, which a drawing does not know: decimal.</summary>
    Desktop = 6,
}
