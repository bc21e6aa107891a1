using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Units of length by the numbers of $INSUNITS.</summary>
internal static class DrawingUnits
{
    private static readonly UnitType[] Units =
    [
        UnitType.Unitless, UnitType.Inch, UnitType.Foot, UnitType.Mile, UnitType.Millimeter, UnitType.Centimeter,
        UnitType.Meter, UnitType.Kilometer, UnitType.MicroInch, UnitType.Mil, UnitType.Yard, UnitType.Angstrom,
        UnitType.Nanometer, UnitType.Micrometer, UnitType.Decimeter, UnitType.Decameter, UnitType.Hectometer,
        UnitType.Gigameter, UnitType.AstronomicalUnit, UnitType.LightYear, UnitType.Parsec,
    ];

    internal static UnitType FromInsUnits(int number)
    {
        return number >= 0 && number < Units.Length ? Units[number] : UnitType.Unitless;
    }
}
