using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Scene;

internal static class LengthUnits
{
    /// <summary>Millimetres in a unit, or null for units without a length of their own.</summary>
    internal static double? Millimetres(UnitType unit) => unit switch
    {
        UnitType.Kilometer => 1e6,
        UnitType.Meter => 1000,
        UnitType.Centimeter => 10,
        UnitType.Millimeter => 1,
        UnitType.Micrometer => 1e-3,
        UnitType.Nanometer => 1e-6,
        UnitType.Angstrom => 1e-7,
        UnitType.Decimeter => 100,
        UnitType.Decameter => 1e4,
        UnitType.Hectometer => 1e5,
        UnitType.Gigameter => 1e12,
        UnitType.AstronomicalUnit => 149597870700e3,
        UnitType.LightYear => 9.4607304725808e18,
        UnitType.Parsec => 3.0856775814913673e19,
        UnitType.Mile => 1609344,
        UnitType.Inch => 25.4,
        UnitType.MicroInch => 25.4e-6,
        UnitType.Mil => 0.0254,
        UnitType.Foot => 304.8,
        UnitType.Yard => 914.4,
        _ => null,
    };
}
