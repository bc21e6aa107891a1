using System;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>Writes angles as dimension styles ask for them.</summary>
/// <param name="Unit">The variable $DIMAUNIT: 0 degrees, 1 degrees, minutes and seconds, 2 gons, 3 radians.</param>
/// <param name="Decimals">The number of decimals; of degrees, 1 adds minutes and 3 seconds.</param>
/// <param name="Zeros">The bits of $DIMAZIN: 1 leaves out leading zeros, 2 trailing ones.</param>
/// <param name="Separator">The decimal separator.</param>
internal readonly record struct AngleFormat(int Unit, int Decimals, int Zeros, char Separator)
{
    private const int Sexagesimal = 1;
    private const int Gons = 2;
    private const int Radians = 3;
    private const double GonsPerTurn = 400;
    private const double DegreesPerTurn = 360;

    internal string Format(double radians) => Unit switch
    {
        Sexagesimal when radians < 0 => "-" + Minutes(-radians * DegreesPerTurn / Math.Tau),
        Sexagesimal => Minutes(radians * DegreesPerTurn / Math.Tau),
        Gons => Number(radians * GonsPerTurn / Math.Tau, Decimals) + "g",
        Radians => Number(radians, Decimals) + "r",
        _ => Number(radians * DegreesPerTurn / Math.Tau, Decimals) + "\u00b0",
    };

    private string Minutes(double degrees)
    {
        if (Decimals <= 0)
        {
            return Number(degrees, 0) + "\u00b0";
        }

        // Rounded first, so that no part reaches sixty.
        bool hasSeconds = Decimals > 2;
        int decimals = Math.Max(0, Decimals - 4);
        double unit = hasSeconds ? 3600 * Math.Pow(10, decimals) : 60;
        double units = Math.Round(degrees * unit, MidpointRounding.AwayFromZero);
        double whole = Math.Floor(units / unit);
        double minutes = Math.Floor((units - (whole * unit)) * 60 / unit);
        string text = FormattableString.Invariant($"{whole}\u00b0{minutes}'");
        double seconds = ((units - (whole * unit)) * 3600 / unit) - (minutes * 60);
        return hasSeconds ? text + Number(seconds, decimals) + "\"" : text;
    }

    private string Number(double value, int decimals) =>
        new LengthFormat(LengthUnit.Decimal, decimals, (Zeros & 3) << 2, Separator, 0).Decimal(value);
}
