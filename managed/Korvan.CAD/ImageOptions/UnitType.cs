using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Units of length.</summary>
[PythonEnum(EnumKind.Flag)]
public enum UnitType
{
    /// <summary>1000 metres.</summary>
    Kilometer = 0,

    /// <summary>The metre.</summary>
    Meter = 1,

    /// <summary>A hundredth of a metre.</summary>
    Centimeter = 2,

    /// <summary>A thousandth of a metre.</summary>
    Millimeter = 3,

    /// <summary>A millionth of a metre.</summary>
    Micrometer = 4,

    /// <summary>10⁻⁹ metre.</summary>
    Nanometer = 5,

    /// <summary>10⁻¹⁰ metre.</summary>
    Angstrom = 6,

    /// <summary>A tenth of a metre.</summary>
    Decimeter = 7,

    /// <summary>10 metres.</summary>
    Decameter = 8,

    /// <summary>100 metres.</summary>
    Hectometer = 9,

    /// <summary>10⁹ metres.</summary>
    Gigameter = 10,

    /// <summary>149 597 870 700 metres.</summary>
    AstronomicalUnit = 11,

    /// <summary>9.4607304725808·10¹⁵ metres.</summary>
    LightYear = 12,

    /// <summary>About 3.0857·10¹⁶ metres.</summary>
    Parsec = 13,

    /// <summary>1609.344 metres.</summary>
    Mile = 14,

    /// <summary>25.4 millimetres.</summary>
    Inch = 15,

    /// <summary>A millionth of an inch.</summary>
    MicroInch = 16,

    /// <summary>A thousandth of an inch.</summary>
    Mil = 17,

    /// <summary>12 inches.</summary>
    Foot = 18,

    /// <summary>3 feet.</summary>
    Yard = 19,

    /// <summary>Units that the drawing defines itself.</summary>
    Custom = 20,

    /// <summary>No unit: a drawing unit is a unit of the output.</summary>
    Unitless = 21,
}
