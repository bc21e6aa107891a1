using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The units of widths and sizes.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SpecificationMode
{
    /// <summary>VDC.</summary>
    [CgmKeyword("ABS")] Absolute = 0,

    /// <summary>Multiples of the nominal size of the device.</summary>
    [CgmKeyword("SCALED")] Scaled = 1,

    /// <summary>Fractions of the longer side of the VDC extent.</summary>
    [CgmKeyword("FRACTIONAL")] Fractional = 2,

    /// <summary>Millimetres.</summary>
    [CgmKeyword("MM")] Millimetres = 3,
}
