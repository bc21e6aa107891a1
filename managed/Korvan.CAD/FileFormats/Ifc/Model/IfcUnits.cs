using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The units that a project declares.</summary>
internal static class IfcUnits
{
    private static readonly Dictionary<string, UnitType> MetricUnits = new()
    {
        [""] = UnitType.Meter,
        ["GIGA"] = UnitType.Gigameter,
        ["KILO"] = UnitType.Kilometer,
        ["HECTO"] = UnitType.Hectometer,
        ["DECA"] = UnitType.Decameter,
        ["DECI"] = UnitType.Decimeter,
        ["CENTI"] = UnitType.Centimeter,
        ["MILLI"] = UnitType.Millimeter,
        ["MICRO"] = UnitType.Micrometer,
        ["NANO"] = UnitType.Nanometer,
    };

    // Names that the schema recommends for conversion-based units.
    private static readonly Dictionary<string, UnitType> OtherUnits = new()
    {
        ["INCH"] = UnitType.Inch,
        ["FOOT"] = UnitType.Foot,
        ["YARD"] = UnitType.Yard,
        ["MILE"] = UnitType.Mile,
    };

    /// <summary>Returns the unit of length; <see cref="UnitType.Unitless"/> if none is declared,
    /// <see cref="UnitType.Custom"/> for one without a member of its own.</summary>
    internal static UnitType LengthUnit(IfcModel model)
    {
        foreach (IIfcEntity assignment in model.OfClass(model.Schema.FindClass("IfcUnitAssignment")!, false))
        {
            IIfcEntity? unit = ((IfcCollection?)assignment.GetAttribute("Units"))?.Cast<IfcSelect>()
                .Select(one => one.Entity)
                .FirstOrDefault(one => one is not null && IsLength(one));
            if (unit is not null)
            {
                return TypeOf(unit);
            }
        }

        return UnitType.Unitless;
    }

    private static bool IsLength(IIfcEntity unit) =>
        unit.IsA("IfcNamedUnit") && unit.GetAttribute("UnitType") as string == "LENGTHUNIT";

    private static UnitType TypeOf(IIfcEntity unit)
    {
        if (unit.IsA("IfcSIUnit"))
        {
            string prefix = unit.GetAttribute("Prefix") as string ?? string.Empty;
            return MetricUnits.GetValueOrDefault(prefix, UnitType.Custom);
        }

        string name = unit.IsA("IfcConversionBasedUnit") ? unit.GetAttribute("Name") as string ?? "" : "";
        return OtherUnits.GetValueOrDefault(name.ToUpperInvariant(), UnitType.Custom);
    }
}
